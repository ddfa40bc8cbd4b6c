# SPDX-License-Identifier: GPL-3.0-or-later
# cmake -DSOURCE_DIR=... -DAPP_DIR=... -P assemble-tree.cmake
# Brings Data and res of the runnable tree up to date with the shipped ones.
#
# What a person changed in Data stays: a shipped file is copied when the tree has none of that name, or still has the one
# that was shipped before. For that a copy of what was shipped is kept in APP_DIR/.shipped. Pictures are always the shipped ones.
file(GLOB_RECURSE pictures RELATIVE ${SOURCE_DIR} ${SOURCE_DIR}/res/*)
foreach(name ${pictures})
    configure_file(${SOURCE_DIR}/${name} ${APP_DIR}/${name} COPYONLY)
endforeach()

function(is_same a b result)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${a} ${b} RESULT_VARIABLE differ
        OUTPUT_QUIET ERROR_QUIET)
    if(differ EQUAL 0)
        set(${result} TRUE PARENT_SCOPE)
    else()
        set(${result} FALSE PARENT_SCOPE)
    endif()
endfunction()

file(GLOB_RECURSE data RELATIVE ${SOURCE_DIR} ${SOURCE_DIR}/Data/*)
foreach(name ${data})
    is_same(${APP_DIR}/${name} ${APP_DIR}/.shipped/${name} unchanged)
    if(unchanged OR NOT EXISTS ${APP_DIR}/${name})
        configure_file(${SOURCE_DIR}/${name} ${APP_DIR}/${name} COPYONLY)
    endif()
    configure_file(${SOURCE_DIR}/${name} ${APP_DIR}/.shipped/${name} COPYONLY)
endforeach()
