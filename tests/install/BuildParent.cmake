# Run by ctest; the variables come from tests/install/CMakeLists.txt.
cmake_minimum_required(VERSION 3.24)

include(${CMAKE_CURRENT_LIST_DIR}/Run.cmake)

file(REMOVE_RECURSE "${WORK_TREE}")
run(${CMAKE_COMMAND} -S "${PARENT_SOURCE}" -B "${WORK_TREE}" -G "${CMAKE_GENERATOR}"
  -D WAY=${WAY}
  -D LIBRARY_SOURCE=${LIBRARY_SOURCE}
  -D CLIENT_SOURCE=${CLIENT_SOURCE}
  -D CMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}
  -D CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER}
  -D CMAKE_CXX_FLAGS=${CMAKE_CXX_FLAGS})

# The library is the same as the one that is tested here: compiling it once more would take minutes. Ninja compiles the
# program's objects alone, and tells how it would link them.
if(NOT CMAKE_GENERATOR STREQUAL "Ninja")
  message(STATUS "Only configured: ${CMAKE_GENERATOR} would build the library")
  return()
endif()
run(${CMAKE_COMMAND} --build "${WORK_TREE}" --target
  CMakeFiles/program.dir/minimal.cpp.o CMakeFiles/former.dir/formerSpelling.cpp.o)
file(GLOB_RECURSE compiled "${WORK_TREE}/*.cpp.o")
list(LENGTH compiled count)
if(NOT count EQUAL 2)
  message(FATAL_ERROR "Compiled more or less than the program's two sources: ${compiled}")
endif()

get_filename_component(library_folder "${LIBRARY}" DIRECTORY)
file(GLOB libraries "${library_folder}/libtalmeshplot.so*")
if(WAY STREQUAL "FetchContent")
  set(place "${WORK_TREE}/_deps/talmeshplot-build/lib")
else()
  set(place "${WORK_TREE}/talmeshplot/lib")
endif()
file(COPY ${libraries} DESTINATION "${place}")
foreach(program IN ITEMS program former)
  execute_process(COMMAND ${NINJA} -C "${WORK_TREE}" -t commands ${program}
    OUTPUT_VARIABLE commands COMMAND_ERROR_IS_FATAL ANY)
  string(STRIP "${commands}" commands)
  string(REGEX REPLACE ".*\n" "" link "${commands}")
  execute_process(COMMAND sh -c "${link}" WORKING_DIRECTORY "${WORK_TREE}" COMMAND_ERROR_IS_FATAL ANY)
  run("${WORK_TREE}/${program}" "${CLIENT_SOURCE}/decay.csv" "${WORK_TREE}/${program}.pdf")
  file(STRINGS "${WORK_TREE}/${program}.pdf" header LIMIT_COUNT 1)
  if(NOT header MATCHES "^%PDF-")
    message(FATAL_ERROR "${program} has written no PDF")
  endif()
endforeach()
