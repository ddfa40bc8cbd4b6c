# SPDX-License-Identifier: GPL-3.0-or-later
# One interface target carries every flag, so that no folder needs directory-wide settings.

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()

add_library(corva_flags INTERFACE)
target_compile_options(corva_flags INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough
    $<$<BOOL:${CORVA_WERROR}>:-Werror>)
target_compile_definitions(corva_flags INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS
    $<$<BOOL:${CORVA_DEBUG_LOG}>:CORVA_DEBUG_LOG>)
if(CORVA_SANITIZE)
    target_compile_options(corva_flags INTERFACE
        -fsanitize=${CORVA_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
    target_link_options(corva_flags INTERFACE -fsanitize=${CORVA_SANITIZE})
endif()
# corva_add_test(NAME SOURCES... [LIBS targets...]): one Qt Test program under CTest, without a display.
function(corva_add_test name)
    cmake_parse_arguments(ARG "" "" "LIBS" ${ARGN})
    add_executable(${name} ${ARG_UNPARSED_ARGUMENTS})
    target_link_libraries(${name} PRIVATE corva_flags ${ARG_LIBS} Qt6::Test)
    target_compile_definitions(${name} PRIVATE CORVA_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    add_test(NAME ${name} COMMAND ${name})
    cmake_path(GET CMAKE_CURRENT_SOURCE_DIR FILENAME folder)
    if(NOT TARGET tests-${folder})
        add_custom_target(tests-${folder})
    endif()
    add_dependencies(tests-${folder} ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8" TIMEOUT 300)
endfunction()

# corva_run_under_tsan(TESTS...): tests in which several threads meet; "./check tsan" builds and runs these alone.
function(corva_run_under_tsan)
    if(NOT TARGET tests-threads)
        add_custom_target(tests-threads)
    endif()
    add_dependencies(tests-threads ${ARGV})
    set_tests_properties(${ARGV} PROPERTIES LABELS threads ENVIRONMENT_MODIFICATION
        "TSAN_OPTIONS=set:ignore_noninstrumented_modules=1 suppressions=${PROJECT_SOURCE_DIR}/tests/tsan.supp")
endfunction()
