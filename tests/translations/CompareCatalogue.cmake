# Run by ctest; the variables come from tests/translations/CMakeLists.txt.
cmake_minimum_required(VERSION 3.20)
set(catalogue "${SOURCE_TREE}/translations/talmeshplot_de.ts")
set(updated "${WORK_TREE}/updated.ts")

file(REMOVE "${updated}")
configure_file("${catalogue}" "${updated}" COPYONLY)
execute_process(
  COMMAND "${LUPDATE}" -I . -tr-function-alias translate+=translated app widgets -locations none -no-obsolete
    -source-language en -target-language de -ts "${updated}"
  WORKING_DIRECTORY "${SOURCE_TREE}"
  RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "lupdate ended with ${result}:\n${output}")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${catalogue}" "${updated}" RESULT_VARIABLE different)
if(different)
  message(FATAL_ERROR "${catalogue} is not up to date, see docs/translating.md:\n${output}")
endif()
