# cmake -DPROGRAM=path -DNAME=name "-DPROPERTIES=properties" -DOUTPUT=file -P Suites.cmake: writes the ctest entries of
# the test program, one a test suite, named NAME.Suite.
set(environment QT_QPA_PLATFORM=offscreen)
execute_process(COMMAND ${CMAKE_COMMAND} -E env ${environment} ${PROGRAM} --gtest_list_tests
    OUTPUT_VARIABLE listing COMMAND_ERROR_IS_FATAL ANY TIMEOUT 60)

# A suite stands at the start of a line, its tests are indented: "Suite." or "Instance/Suite.".
string(REGEX MATCHALL "(^|\n)[A-Za-z_0-9/]+\\." suites "${listing}")
set(script "")
foreach(suite ${suites})
    string(REGEX REPLACE "[\n.]" "" suite ${suite})
    string(REPLACE "/" "_" entry "${NAME}.${suite}")
    string(APPEND script "add_test(${entry} \"${PROGRAM}\" --gtest_filter=${suite}.*)\n"
        "set_tests_properties(${entry} PROPERTIES ENVIRONMENT ${environment} ${PROPERTIES})\n")
endforeach()
file(WRITE ${OUTPUT} "${script}")
