# run(COMMAND...): a command that must succeed, silent if it does.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    string(JOIN " " command ${ARGN})
    message(FATAL_ERROR "${command} ended with ${result}:\n${output}")
  endif()
endfunction()
