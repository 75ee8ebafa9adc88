# Run by ctest; the variables come from tests/install/CMakeLists.txt.
cmake_minimum_required(VERSION 3.24)

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    string(JOIN " " command ${ARGN})
    message(FATAL_ERROR "${command} ended with ${result}:\n${output}")
  endif()
endfunction()

file(REMOVE_RECURSE "${WORK_TREE}")
run(${CMAKE_COMMAND} -S "${PARENT_SOURCE}" -B "${WORK_TREE}" -G "${CMAKE_GENERATOR}"
  -D WAY=${WAY}
  -D LIBRARY_SOURCE=${LIBRARY_SOURCE}
  -D CLIENT_SOURCE=${CLIENT_SOURCE}
  -D CMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}
  -D CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER}
  -D CMAKE_CXX_FLAGS=${CMAKE_CXX_FLAGS})

# The library is the same as the one that is tested here: compiling it once more would take minutes. The generators
# that know single objects compile those of the program alone.
if(CMAKE_GENERATOR MATCHES "Ninja")
  run(${CMAKE_COMMAND} --build "${WORK_TREE}" --target
    CMakeFiles/program.dir/minimal.cpp.o CMakeFiles/former.dir/formerSpelling.cpp.o)
  file(GLOB_RECURSE compiled "${WORK_TREE}/*.cpp.o")
  list(LENGTH compiled count)
  if(NOT count EQUAL 2)
    message(FATAL_ERROR "Compiled more or less than the program's two sources: ${compiled}")
  endif()
endif()
