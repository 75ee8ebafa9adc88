# Run by ctest; the variables come from tests/install/CMakeLists.txt.
cmake_minimum_required(VERSION 3.20)

include(${CMAKE_CURRENT_LIST_DIR}/Run.cmake)

set(prefix "${WORK_TREE}/prefix")
function(build_client source name)
  run(${CMAKE_COMMAND} -S "${source}" -B "${WORK_TREE}/${name}" -G "${CMAKE_GENERATOR}" ${ARGN}
    -D CMAKE_PREFIX_PATH=${prefix}
    -D CMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}
    -D CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER}
    -D CMAKE_CXX_FLAGS=${CMAKE_CXX_FLAGS})
  run(${CMAKE_COMMAND} --build "${WORK_TREE}/${name}")
endfunction()

# Leftovers of an earlier run could hide a file that is no longer installed.
file(REMOVE_RECURSE "${WORK_TREE}")
run(${CMAKE_COMMAND} --install "${BUILD_TREE}" --prefix "${prefix}")

file(GLOB_RECURSE headers RELATIVE "${prefix}/${INCLUDE_FOLDER}" "${prefix}/${INCLUDE_FOLDER}/*")
list(SORT headers)
string(REPLACE "," ";" PUBLIC_HEADERS "${PUBLIC_HEADERS}")
list(SORT PUBLIC_HEADERS)
if(NOT headers STREQUAL PUBLIC_HEADERS)
  message(FATAL_ERROR "Installed are\n${headers}\nbut these are public\n${PUBLIC_HEADERS}")
endif()
build_client("${HEADERS_SOURCE}" headers -D INCLUDE_FOLDER=${prefix}/${INCLUDE_FOLDER})

build_client("${CLIENT_SOURCE}" client)
set(picture "${WORK_TREE}/client.pdf")
run("${WORK_TREE}/client/minimal" "${CLIENT_SOURCE}/decay.csv" "${picture}")
# The axis of the example's data, from 0 to 1, is labelled in the picture.
file(STRINGS "${picture}" header LIMIT_COUNT 1)
file(STRINGS "${picture}" label REGEX "\\(0\\.9\\)")
if(NOT header MATCHES "^%PDF-" OR NOT label)
  message(FATAL_ERROR "${picture} is no PDF of the plot")
endif()

if(WITH_VIEWER)
  run("${prefix}/bin/talmesh-plot" --version)
endif()
