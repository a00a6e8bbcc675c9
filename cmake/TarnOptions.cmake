# Language level, warnings and instrumentation: all our targets link TarnOptions. TarnStrict adds
# the stricter Qt switches for shipped code; tests and benchmarks do not use them.
add_library(TarnOptions INTERFACE)
target_compile_features(TarnOptions INTERFACE cxx_std_17)
if(MSVC)
  target_compile_options(TarnOptions INTERFACE /utf-8 /permissive- /Zc:__cplusplus /W4)
else()
  target_compile_options(
    TarnOptions
    INTERFACE -Wall
              -Wextra
              -Wpedantic
              # The files of a group see the names of one another.
              $<$<NOT:$<BOOL:${TARN_UNITE}>>:-Wshadow>
              -Wconversion
              -Wold-style-cast
              -Wsuggest-override
              $<$<BOOL:${TARN_WERROR}>:-Werror>)
endif()
target_compile_definitions(TarnOptions INTERFACE QT_NO_KEYWORDS QT_NO_FOREACH QT_DEPRECATED_WARNINGS)

# No implicit conversions between text and bytes.
add_library(TarnStrict INTERFACE)
target_link_libraries(TarnStrict INTERFACE TarnOptions)
target_compile_definitions(TarnStrict INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING)

if(TARN_SANITIZE)
  target_compile_options(TarnOptions INTERFACE -fsanitize=${TARN_SANITIZE} -fno-sanitize-recover=all
                                               -fno-omit-frame-pointer)
  target_link_options(TarnOptions INTERFACE -fsanitize=${TARN_SANITIZE})
endif()
if(TARN_COVERAGE)
  target_compile_options(TarnOptions INTERFACE --coverage)
  target_link_options(TarnOptions INTERFACE --coverage)
endif()

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

if(PROJECT_IS_TOP_LEVEL)
  if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE RelWithDebInfo)
  endif()
  # Both make builds faster; a choice of the user's own takes precedence.
  find_program(TARN_CCACHE ccache)
  find_program(TARN_LLD ld.lld)
  mark_as_advanced(TARN_CCACHE TARN_LLD)
  if(TARN_CCACHE AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${TARN_CCACHE}")
  endif()
  if(TARN_LLD AND NOT CMAKE_EXE_LINKER_FLAGS MATCHES "-fuse-ld=")
    string(APPEND CMAKE_EXE_LINKER_FLAGS " -fuse-ld=lld")
  endif()
endif()

# tarn_precompile(<target> <header>...)
#
# Precompiles these headers, and those that most sources use, for the target if TARN_PRECOMPILE is on. Every source
# still includes what it uses: the usual build has no precompiled headers. The libraries for hosts are compiled without
# them, because headers that a source does not use would add initialisers.
function(tarn_precompile target)
  if(TARN_PRECOMPILE)
    target_precompile_headers(
      ${target}
      PRIVATE
      <algorithm>
      <cmath>
      <functional>
      <map>
      <memory>
      <optional>
      <vector>
      <QDir>
      ${ARGN})
  endif()
endfunction()

# tarn_unite(<target>)
#
# Compiles the sources of a finished target in groups if TARN_UNITE is on: most of the time goes into the headers,
# which a group reads once.
function(tarn_unite target)
  if(NOT TARN_UNITE)
    return()
  endif()
  find_package(Python3 REQUIRED COMPONENTS Interpreter)
  get_target_property(sources ${target} SOURCES)
  list(FILTER sources INCLUDE REGEX "^[^$].*\\.cpp$")
  execute_process(
    COMMAND "${Python3_EXECUTABLE}" -B "${PROJECT_SOURCE_DIR}/cmake/joined.py" ${sources}
    WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}" OUTPUT_VARIABLE groups OUTPUT_STRIP_TRAILING_WHITESPACE
                                                                           COMMAND_ERROR_IS_FATAL ANY)
  while(groups)
    list(POP_FRONT groups number source)
    set_source_files_properties("${source}" PROPERTIES UNITY_GROUP ${number})
  endwhile()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
endfunction()
