# Compares the initialisers of a library with the list beside this file, so that additions do not go
# unnoticed. NAME and FILE are the library, NM and READELF the tools.
function(run variable)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGN}\nfailed with ${result}:\n${output}${errors}")
  endif()
  set(${variable} "${output}" PARENT_SCOPE)
endfunction()

file(STRINGS "${CMAKE_CURRENT_LIST_DIR}/initialisers.txt" expected REGEX "^${NAME} ")
list(TRANSFORM expected REPLACE "^[^ ]+ ([^ ]+) .*" "\\1")
list(SORT expected)

run(symbols ${NM} --demangle ${FILE})
string(REGEX MATCHALL "_GLOBAL__sub_I_[^\n]+" actual "${symbols}")
list(TRANSFORM actual REPLACE "^_GLOBAL__sub_I_" "")
list(SORT actual)
if(NOT "${actual}" STREQUAL "${expected}")
  message(FATAL_ERROR "${NAME} has the initialisers:\n  ${actual}\nbut the list has:\n  ${expected}")
endif()

# There must be no others except frame_dummy.
run(sections ${READELF} --wide --sections ${FILE})
if(NOT "${sections}" MATCHES " \\.init_array +INIT_ARRAY +[0-9a-f]+ [0-9a-f]+ ([0-9a-f]+) ")
  message(FATAL_ERROR "${FILE} has no .init_array")
endif()
math(EXPR entries "0x${CMAKE_MATCH_1} / ${POINTER_SIZE}")
list(LENGTH expected count)
math(EXPR count "${count} + 1")
if(NOT entries EQUAL count)
  message(FATAL_ERROR "${NAME} has ${entries} initialisers, not ${count}")
endif()
