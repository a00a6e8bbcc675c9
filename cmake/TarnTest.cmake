# A locale with a decimal comma, made for the tests: the machine need not have one.
set(TARN_TEST_LOCALES "${PROJECT_BINARY_DIR}/locales")
add_custom_command(
  OUTPUT "${TARN_TEST_LOCALES}/de_DE.UTF-8/LC_NUMERIC" COMMAND ${CMAKE_COMMAND} -E make_directory "${TARN_TEST_LOCALES}"
  COMMAND localedef -i de_DE -f UTF-8 "${TARN_TEST_LOCALES}/de_DE.UTF-8" VERBATIM)
add_custom_target(TarnTestLocales ALL DEPENDS "${TARN_TEST_LOCALES}/de_DE.UTF-8/LC_NUMERIC")

set(TARN_LSAN_OPTIONS "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0")

# tarn_test(<class> [INTERNAL] [WINDOW_SYSTEM] [TIMEOUT <seconds>] [LIBRARIES <target>...]
#           [DEFINITIONS <definition>...])
#
# One test program for one class: tst_<class>.cpp beside the caller. It runs offscreen, with
# WINDOW_SYSTEM under Xvfb. INTERNAL tests what the dialog library does not export, by linking its
# objects instead of the library.
function(tarn_test name)
  cmake_parse_arguments(arg "INTERNAL;WINDOW_SYSTEM" "TIMEOUT" "LIBRARIES;DEFINITIONS" ${ARGN})
  set(target tst_${name})
  add_executable(${target} tst_${name}.cpp ${target}.moc)
  # Not AUTOMOC: its scan and its extra object cost each program more than the test's one class.
  qt5_generate_moc(tst_${name}.cpp ${target}.moc TARGET ${target})
  target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")
  set(library TarnGUICommon)
  if(arg_INTERNAL)
    set(library TarnGUICommonObjects)
  endif()
  target_link_libraries(${target} PRIVATE TarnTestSupport TarnOptions ${library} ${arg_LIBRARIES})
  target_compile_definitions(${target} PRIVATE ${arg_DEFINITIONS})
  if(arg_WINDOW_SYSTEM)
    add_test(NAME ${target} COMMAND xvfb-run -a -s "-screen 0 1280x1024x24" $<TARGET_FILE:${target}>)
    set(platform xcb)
  else()
    add_test(NAME ${target} COMMAND ${target})
    # Nor does a display that happens to be there lend its OpenGL.
    set(platform "offscreen;DISPLAY=")
  endif()
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 120)
  endif()
  set_tests_properties(${target} PROPERTIES TIMEOUT ${arg_TIMEOUT} ENVIRONMENT
                                            "QT_QPA_PLATFORM=${platform};${TARN_LSAN_OPTIONS}")
endfunction()
