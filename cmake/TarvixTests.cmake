# Makes one test of each suite of a GoogleTest program: starting the program for each of its tests
# would take longer than the tests.
#
#   tarvix_add_suites(TARGET [PROPERTIES property value...])
#
# The suites are those that the built program names when the tests are to be run.
function(tarvix_add_suites target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "PROPERTIES")
    set(list "${CMAKE_CURRENT_BINARY_DIR}/${target}_suites.cmake")
    file(GENERATE OUTPUT "${list}" CONTENT "set(program \"$<TARGET_FILE:${target}>\")
set(emulator \"${CMAKE_CROSSCOMPILING_EMULATOR}\")
set(properties \"WORKING_DIRECTORY;${CMAKE_CURRENT_BINARY_DIR};${arg_PROPERTIES}\")
include(\"${PROJECT_SOURCE_DIR}/cmake/suites_of_program.cmake\")
")
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${list}")
endfunction()
