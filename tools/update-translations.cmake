# SPDX-License-Identifier: GPL-3.0-or-later
# cmake -DLUPDATE=... -DSOURCE_DIR=... -DTS_DIR=... -P update-translations.cmake
# Brings every TS_DIR/corva_*.ts up to date with the texts of SOURCE_DIR/src. No line numbers are kept, so that a source changes
# only when a text does.
file(GLOB_RECURSE sources ${SOURCE_DIR}/src/*.cpp ${SOURCE_DIR}/src/*.h)
list(SORT sources)
file(GLOB ts_files ${TS_DIR}/corva_*.ts)
list(FILTER ts_files EXCLUDE REGEX "_en\\.ts$")
# With the headers lupdate knows each class by its full name, which is how the program asks for its texts.
set(options -silent -I ${SOURCE_DIR}/src -no-obsolete -no-recursive -locations none -source-language en)

execute_process(COMMAND ${LUPDATE} ${options} ${sources} -ts ${ts_files}
    ERROR_VARIABLE complaints COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${LUPDATE} ${options} -pluralonly ${sources} -ts ${TS_DIR}/corva_en.ts
    COMMAND_ERROR_IS_FATAL ANY)
if(complaints)
    message(FATAL_ERROR "${complaints}")
endif()
