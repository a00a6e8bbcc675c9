# Builds a locale with a decimal comma for the tests, because the system may not have one.
set(TARN_TEST_LOCALES "${PROJECT_BINARY_DIR}/locales")
add_custom_command(
  OUTPUT "${TARN_TEST_LOCALES}/de_DE.UTF-8/LC_NUMERIC" COMMAND ${CMAKE_COMMAND} -E make_directory "${TARN_TEST_LOCALES}"
  COMMAND localedef -i de_DE -f UTF-8 "${TARN_TEST_LOCALES}/de_DE.UTF-8" VERBATIM)
add_custom_target(TarnTestLocales ALL DEPENDS "${TARN_TEST_LOCALES}/de_DE.UTF-8/LC_NUMERIC")

set(TARN_LSAN_OPTIONS "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0")

# tarn_test(<class> [INTERNAL] [WINDOW_SYSTEM] [TIMEOUT <seconds>] [LIBRARIES <target>...]
#           [DEFINITIONS <definition>...])
#
# Adds the test program tst_<class>.cpp for one class. It runs offscreen or, with WINDOW_SYSTEM, under
# Xvfb. INTERNAL links the objects of the dialog library instead of the library, to test classes that
# the library does not export.
function(tarn_test name)
  cmake_parse_arguments(arg "INTERNAL;WINDOW_SYSTEM" "TIMEOUT" "LIBRARIES;DEFINITIONS" ${ARGN})
  set(target tst_${name})
  add_executable(${target} tst_${name}.cpp ${target}.moc)
  # Without AUTOMOC: its scan and extra object take more time than the single class of a test.
  qt5_generate_moc(tst_${name}.cpp ${target}.moc TARGET ${target})
  target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")
  set(library TarnGUICommon)
  if(arg_INTERNAL)
    set(library TarnGUICommonObjects)
  endif()
  target_link_libraries(${target} PRIVATE TarnTestSupport TarnOptions ${library} ${arg_LIBRARIES})
  target_compile_definitions(${target} PRIVATE ${arg_DEFINITIONS})
  if(TARGET TarnTestHeaders)
    target_precompile_headers(${target} REUSE_FROM TarnTestHeaders)
  endif()
  if(TARN_SANITIZE)
    # Undefined behaviour is sought in shipped code. A test then compiles in two thirds of the time.
    set_source_files_properties(tst_${name}.cpp PROPERTIES COMPILE_OPTIONS -fno-sanitize=undefined)
  endif()
  if(arg_WINDOW_SYSTEM)
    add_test(NAME ${target} COMMAND xvfb-run -a -s "-screen 0 1280x1024x24" $<TARGET_FILE:${target}>)
    set(platform xcb)
  else()
    add_test(NAME ${target} COMMAND ${target})
    # Also without the OpenGL of any display that is present.
    set(platform "offscreen;DISPLAY=")
  endif()
  if(TARN_TESTS STREQUAL PLAIN)
    set_target_properties(${target} PROPERTIES EXCLUDE_FROM_ALL ON)
  endif()
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 120)
  endif()
  # Long tests start first, unless the order is random.
  set_tests_properties(${target} PROPERTIES TIMEOUT ${arg_TIMEOUT} COST ${arg_TIMEOUT} ENVIRONMENT
                                            "QT_QPA_PLATFORM=${platform};${TARN_LSAN_OPTIONS}")
endfunction()

# tarn_plain_test(<test>...)
#
# Marks tests that need a build without sanitizers. With TARN_TESTS=PLAIN, only these are built.
function(tarn_plain_test)
  set_property(TEST ${ARGN} APPEND PROPERTY LABELS plain)
  foreach(test IN LISTS ARGN)
    if(TARGET ${test})
      set_target_properties(${test} PROPERTIES EXCLUDE_FROM_ALL OFF)
    endif()
  endforeach()
endfunction()
