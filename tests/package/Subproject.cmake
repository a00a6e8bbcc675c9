# The library as a subproject of a host: it is built alone, and adds neither tests, packages nor targets with general
# names.
include("${CMAKE_CURRENT_LIST_DIR}/Run.cmake")
file(MAKE_DIRECTORY "${WORK_DIR}/host")
configure_file("${CONSUMER_DIR}/main.cpp" "${WORK_DIR}/host/main.cpp" COPYONLY)
file(
  WRITE "${WORK_DIR}/host/hidden.cpp"
  "#if __has_include(<Notice.h>) || __has_include(<SafeFile.h>) || __has_include(<WholeFile.h>)
#error The host sees headers that are not installed
#endif
")
file(
  WRITE "${WORK_DIR}/host/CMakeLists.txt"
  "cmake_minimum_required(VERSION 3.22)
project(host LANGUAGES CXX)
include(FetchContent)
include(CTest)
FetchContent_Declare(TarnGUICommon SOURCE_DIR ${SOURCE_DIR})
FetchContent_MakeAvailable(TarnGUICommon)
add_executable(consumer main.cpp hidden.cpp)
target_link_libraries(consumer PRIVATE TarnGUICommon::TarnGUICommon)
install(TARGETS consumer)
")
# Compiled quickly: other tests run optimised libraries.
run(${CMAKE_COMMAND}
    -S
    ${WORK_DIR}/host
    -B
    ${WORK_DIR}/build
    -G
    ${GENERATOR}
    -DCMAKE_CXX_COMPILER=${CXX}
    -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
    -DCMAKE_BUILD_TYPE=Release
    -DCMAKE_CXX_FLAGS_RELEASE=-O0
    -DTARN_UNITE=ON)
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
run(${WORK_DIR}/build/consumer)
expect(output STREQUAL "a = 2\n")

run(${CMAKE_COMMAND} --build ${WORK_DIR}/build --target help)
foreach(target manual uninstall UpdateTranslations update_exported_symbols tarnhost package)
  expect(NOT output MATCHES "[\n ]${target}[: \n]")
endforeach()
expect(NOT EXISTS "${WORK_DIR}/build/CPackConfig.cmake")
run(${CMAKE_CTEST_COMMAND} --test-dir ${WORK_DIR}/build -N)
expect(output MATCHES "Total Tests: 0")

# Only the host is installed.
file(REMOVE_RECURSE "${WORK_DIR}/prefix")
run(${CMAKE_COMMAND} --install ${WORK_DIR}/build --prefix ${WORK_DIR}/prefix)
file(GLOB_RECURSE installed RELATIVE "${WORK_DIR}/prefix" "${WORK_DIR}/prefix/*")
expect(installed STREQUAL "bin/consumer")
