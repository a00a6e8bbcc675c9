# Installs the build into an empty prefix, builds the consumer against it and runs it.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGN}\nended with ${result}:\n${output}${errors}")
  endif()
  set(output "${output}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}/build")
set(prefix "${WORK_DIR}/prefix")
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})

# One file for each public header, so that none depends on what its users include before it.
file(GLOB headers RELATIVE "${prefix}/include/TarnGUICommon" "${prefix}/include/TarnGUICommon/*.h")
list(LENGTH headers count)
if(count LESS 10)
  message(FATAL_ERROR "Only ${count} public headers were installed: ${headers}")
endif()
foreach(header IN LISTS headers)
  string(MAKE_C_IDENTIFIER "${header}" name)
  file(WRITE "${WORK_DIR}/headers/${name}.cpp" "#include <${header}>\n")
endforeach()

if(SANITIZE)
  set(sanitize -fsanitize=${SANITIZE})
endif()
if(TOOL STREQUAL "cmake")
  run(${CMAKE_COMMAND}
      -S
      ${CONSUMER_DIR}
      -B
      ${WORK_DIR}/build
      -G
      Ninja
      -DCMAKE_PREFIX_PATH=${prefix}
      -DCMAKE_CXX_COMPILER=${CXX}
      -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
      "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Wpedantic -Werror ${sanitize}"
      -DHEADERS_DIR=${WORK_DIR}/headers)
  run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
else()
  set(ENV{PKG_CONFIG_PATH} "${prefix}/${LIBDIR}/pkgconfig")
  run(pkg-config --cflags --libs TarnGUICommon)
  separate_arguments(flags UNIX_COMMAND "${output}")
  run(${CXX}
      -std=c++17
      -fPIC
      ${sanitize}
      ${CONSUMER_DIR}/main.cpp
      -o
      ${WORK_DIR}/build/consumer
      ${flags}
      -Wl,-rpath,${prefix}/${LIBDIR})
endif()

run(${WORK_DIR}/build/consumer)
if(NOT output STREQUAL "a = 2\n")
  message(FATAL_ERROR "The consumer printed: ${output}")
endif()
