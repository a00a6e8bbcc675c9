# Installs the build into an empty prefix and builds the small host of the manual against it.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGN}\nended with ${result}:\n${output}${errors}")
  endif()
endfunction()

if(SANITIZE)
  set(sanitize -fsanitize=${SANITIZE})
endif()
file(REMOVE_RECURSE "${WORK_DIR}")
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/prefix)
run(${CMAKE_COMMAND}
    -S
    ${SOURCE_DIR}
    -B
    ${WORK_DIR}/build
    -G
    ${GENERATOR}
    -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix
    -DCMAKE_CXX_COMPILER=${CXX}
    -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
    "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Wpedantic -Werror -DQT_NO_CAST_FROM_ASCII -DQT_NO_CAST_TO_ASCII ${sanitize}")
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
