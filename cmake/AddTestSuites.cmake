# Read by ctest with `executable`, `target`, `environment`, `listing` and `readers` set: adds one test per suite. Suites
# of files whose paths match `readers` get that label.
string(REGEX REPLACE "^test_" "" prefix "${target}")

if(NOT EXISTS "${executable}")
  add_test("${prefix}.NOT_BUILT" "${executable}")
  return()
endif()

execute_process(
  COMMAND "${executable}" --gtest_list_tests "--gtest_output=json:${listing}"
  OUTPUT_QUIET
  ERROR_VARIABLE errors
  RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${executable} cannot list its tests: ${result}\n${errors}")
endif()

# Names of suites, which are indented less than those of their cases, each followed by the files of its cases.
file(READ "${listing}" text)
string(REGEX MATCHALL "\n      \"name\": \"[A-Za-z_0-9\\/]+\"|\"file\": \"[^\"\n]*\"" lines "${text}")
set(suites)
foreach(line IN LISTS lines)
  string(REGEX REPLACE "^[^:]*: \"|\"$|\\\\" "" value "${line}")
  if(NOT line MATCHES "\"file\"")
    set(suite "${value}")
    list(APPEND suites "${suite}")
    set(reads_files_${suite} OFF)
  elseif(value MATCHES "${readers}")
    set(reads_files_${suite} ON)
  endif()
endforeach()
if(NOT suites)
  message(FATAL_ERROR "${executable} has no tests")
endif()
foreach(suite IN LISTS suites)
  add_test("${prefix}.${suite}" "${executable}" "--gtest_filter=${suite}.*")
  # Suites that run side by side must not find what another one has just stored.
  string(REGEX REPLACE "(XDG_CONFIG_HOME=[^;]*)" "\\1/${prefix}.${suite}" ownEnvironment "${environment}")
  set_tests_properties("${prefix}.${suite}" PROPERTIES
    TIMEOUT 600
    ENVIRONMENT "${ownEnvironment}")
  if(reads_files_${suite})
    set_tests_properties("${prefix}.${suite}" PROPERTIES LABELS readers)
  endif()
  # It looks for windows by their titles, which those of other suites may bear.
  if(suite STREQUAL "EndedProgram")
    set_tests_properties("${prefix}.${suite}" PROPERTIES RUN_SERIAL TRUE)
  endif()
endforeach()
