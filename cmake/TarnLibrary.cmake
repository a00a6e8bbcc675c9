include(GenerateExportHeader)

# tarn_finish_library(<target> HEADERS <public header>...)
#
# What the four shared libraries have in common: export header, version, hidden symbols, no undefined
# symbols, and their part of the package. Public headers are installed flat, one per class.
function(tarn_finish_library target)
  cmake_parse_arguments(arg "" "" "HEADERS" ${ARGN})
  add_library(TarnGUICommon::${target} ALIAS ${target})
  string(TOLOWER ${target} lower)
  generate_export_header(${target} EXPORT_FILE_NAME "${PROJECT_BINARY_DIR}/exports/${lower}_export.h")
  # The four libraries find one another beside themselves, wherever the package stands.
  set_target_properties(${target} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} INSTALL_RPATH
                                                                                                           "$ORIGIN")
  set(exports "${PROJECT_SOURCE_DIR}/cmake/exports.map")
  target_link_options(${target} PRIVATE "-Wl,--version-script=${exports}")
  set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${exports}")
  if(NOT TARN_SANITIZE)
    target_link_options(${target} PRIVATE -Wl,--no-undefined)
  endif()
  target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/exports>"
                                              "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/TarnGUICommon>")
  install(TARGETS ${target} EXPORT TarnGUICommonTargets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime
                                                                NAMELINK_COMPONENT development)
  install(FILES ${arg_HEADERS} "${PROJECT_BINARY_DIR}/exports/${lower}_export.h"
          DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/TarnGUICommon COMPONENT development)
  foreach(header IN LISTS arg_HEADERS)
    get_filename_component(header "${header}" ABSOLUTE)
    set_property(GLOBAL APPEND PROPERTY TARN_PUBLIC_HEADERS "${header}")
  endforeach()
endfunction()

# tarn_model_library(<target> SOURCES <source>... HEADERS <public header>...)
#
# A model library: it sees QtCore and nothing of the widgets.
function(tarn_model_library target)
  cmake_parse_arguments(arg "" "" "SOURCES;HEADERS" ${ARGN})
  add_library(${target} SHARED ${arg_SOURCES} ${arg_HEADERS})
  target_link_libraries(${target} PUBLIC Qt5::Core PRIVATE $<BUILD_INTERFACE:TarnStrict>
                                                           $<BUILD_INTERFACE:TarnModelSupport>)
  target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>")
  tarn_finish_library(${target} HEADERS ${arg_HEADERS})
endfunction()

# tarn_dialogs([SOURCES <source>...] [HEADERS <public header>...])
#
# What a folder gives to the dialog library; headers named here are installed.
function(tarn_dialogs)
  cmake_parse_arguments(arg "" "" "SOURCES;HEADERS" ${ARGN})
  list(TRANSFORM arg_SOURCES PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
  list(TRANSFORM arg_HEADERS PREPEND "${CMAKE_CURRENT_SOURCE_DIR}/")
  set_property(GLOBAL APPEND PROPERTY TARN_DIALOG_SOURCES ${arg_SOURCES})
  set_property(GLOBAL APPEND PROPERTY TARN_DIALOG_HEADERS ${arg_HEADERS})
endfunction()
