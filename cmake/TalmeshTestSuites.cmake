# The tests of what reads files, which `./test --readers` runs under the sanitizers, by their sources.
set(TALMESH_READER_TESTS "/tests/(app/(formats|import|session)/|plot/([A-Za-z]*Dump[A-Za-z]*|DelimitedFiles)Test\\.cpp)")

# talmesh_register_suites(TARGET): makes every suite of a GoogleTest executable one CTest test.
# A process per test case would spend most of its time on loading VTK; a process per suite still keeps
# a crash from taking other suites along. The suites are asked for when ctest runs, so none can be
# forgotten and building needs no display.
function(talmesh_register_suites target)
  set(environment
    # Settings that a test writes must not end up among the developer's own.
    XDG_CONFIG_HOME=${CMAKE_BINARY_DIR}/test-settings
    XDG_STATE_HOME=${CMAKE_BINARY_DIR}/test-state
    QT_LOGGING_RULES=qt.qpa.*=false)
  set(list "${CMAKE_CURRENT_BINARY_DIR}/${target}_suites.cmake")
  file(GENERATE OUTPUT "${list}" CONTENT
"set(executable [==[$<TARGET_FILE:${target}>]==])
set(target ${target})
set(environment [==[${environment}]==])
set(listing [==[${CMAKE_CURRENT_BINARY_DIR}/${target}_suites.json]==])
set(readers [==[${TALMESH_READER_TESTS}]==])
include([==[${PROJECT_SOURCE_DIR}/cmake/AddTestSuites.cmake]==])
")
  set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES "${list}")
endfunction()
