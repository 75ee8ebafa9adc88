# Read by ctest with `executable`, `target` and `environment` set: adds one test per suite.
string(REGEX REPLACE "^test_" "" prefix "${target}")

if(NOT EXISTS "${executable}")
  add_test("${prefix}.NOT_BUILT" "${executable}")
  return()
endif()

execute_process(
  COMMAND "${executable}" --gtest_list_tests
  OUTPUT_VARIABLE listing
  ERROR_VARIABLE errors
  RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${executable} cannot list its tests: ${result}\n${listing}${errors}")
endif()

# A suite stands at the start of a line and ends in a dot; typed suites add a comment after it.
string(REGEX MATCHALL "(^|\n)[A-Za-z_0-9/]+\\." suites "${listing}")
if(NOT suites)
  message(FATAL_ERROR "${executable} has no tests")
endif()
foreach(suite IN LISTS suites)
  string(REGEX REPLACE "[\n.]" "" suite "${suite}")
  add_test("${prefix}.${suite}" "${executable}" "--gtest_filter=${suite}.*")
  set_tests_properties("${prefix}.${suite}" PROPERTIES
    TIMEOUT 600
    ENVIRONMENT "${environment}")
  # It looks for windows by their titles, which those of other suites may bear.
  if(suite STREQUAL "EndedProgram")
    set_tests_properties("${prefix}.${suite}" PROPERTIES RUN_SERIAL TRUE)
  endif()
endforeach()
