# Read by ctest for each program of tarvix_add_suites: adds the suites of `program`, which runs on
# `emulator` where it is for another system, as tests with `properties`.
if(NOT EXISTS "${program}")
    # A test of this name that cannot start: a program that was not built is no pass.
    get_filename_component(name "${program}" NAME)
    add_test("${name}_is_not_built" "${program}")
    return()
endif()

execute_process(COMMAND ${emulator} "${program}" --gtest_list_tests
    OUTPUT_VARIABLE listed RESULT_VARIABLE status)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "${program} does not name its tests: ${status}")
endif()
# A suite begins its line and ends in a dot; its tests follow, indented.
string(REPLACE "\r" "" listed "${listed}")
string(REGEX MATCHALL "(^|\n)[A-Za-z0-9_/]+\\." suites "${listed}")
foreach(suite IN LISTS suites)
    string(REGEX REPLACE "\n|\\.$" "" suite "${suite}")
    add_test("${suite}" ${emulator} "${program}" --gtest_brief=1 "--gtest_filter=${suite}.*")
    set_tests_properties("${suite}" PROPERTIES ${properties})
endforeach()
