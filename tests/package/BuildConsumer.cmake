# Builds the consumer against the library installed in a prefix, and runs it.
include("${CMAKE_CURRENT_LIST_DIR}/Run.cmake")
file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}/build")

# One file for each public header, so that no header depends on other includes.
if(EVERY_HEADER)
  file(GLOB headers RELATIVE "${PREFIX}/include/TarnGUICommon" "${PREFIX}/include/TarnGUICommon/*.h")
  list(LENGTH headers count)
  expect(count GREATER 10)
  foreach(header IN LISTS headers)
    string(MAKE_C_IDENTIFIER "${header}" name)
    file(WRITE "${WORK_DIR}/headers/${name}.cpp" "#include <${header}>\n")
  endforeach()
endif()

if(NOT STANDARD)
  set(STANDARD 17)
endif()
set(strict "-DQT_NO_CAST_FROM_ASCII -DQT_NO_CAST_TO_ASCII")
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
      ${GENERATOR}
      -DCMAKE_PREFIX_PATH=${PREFIX}
      -DCMAKE_CXX_COMPILER=${CXX}
      -DCMAKE_CXX_STANDARD=${STANDARD}
      -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
      "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Wpedantic -Werror ${strict} ${sanitize}"
      -DHEADERS_DIR=${WORK_DIR}/headers)
  run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
else()
  set(ENV{PKG_CONFIG_PATH} "${PREFIX}/${LIBDIR}/pkgconfig")
  run(pkg-config --modversion TarnGUICommon)
  expect(output STREQUAL "${VERSION}\n")
  run(pkg-config --variable=translationsdir TarnGUICommon)
  string(STRIP "${output}" translations)
  expect(EXISTS "${translations}/TarnGUICommon_zh_CN.qm")
  run(pkg-config --variable=datadir TarnGUICommon)
  string(STRIP "${output}" data)
  expect(EXISTS "${data}/SysMaterial.xml")
  run(pkg-config --cflags --libs TarnGUICommon)
  separate_arguments(flags UNIX_COMMAND "${output}")
  run(${CXX}
      -std=c++${STANDARD}
      -Wall
      -Wextra
      -Wpedantic
      -Werror
      ${sanitize}
      ${CONSUMER_DIR}/main.cpp
      -o
      ${WORK_DIR}/build/consumer
      ${flags})
endif()

# A real installation is in the loader's cache instead.
set(ENV{LD_LIBRARY_PATH} "${PREFIX}/${LIBDIR}")
run(${WORK_DIR}/build/consumer)
expect(output STREQUAL "a = 2\n")
