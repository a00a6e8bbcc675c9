# run(<command>...): the command must succeed; `output` holds what it printed.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGN}\nended with ${result}:\n${output}${errors}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

# expect(<condition>): the condition of an if() must hold.
macro(expect)
  if(NOT (${ARGN}))
    message(FATAL_ERROR "Not so: ${ARGN}")
  endif()
endmacro()
