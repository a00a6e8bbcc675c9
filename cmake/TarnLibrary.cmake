include(GenerateExportHeader)

# The shared libraries. Other files read their list.
set(TARN_LIBRARIES TarnCoreGeometry TarnDesign TarnFEMData TarnGUICommon)

# The versions that share these numbers are compatible. While the major version is 0, minor versions are not.
set(TARN_INTERFACE_VERSION ${PROJECT_VERSION_MAJOR})
set(TARN_COMPATIBILITY SameMajorVersion)
if(PROJECT_VERSION_MAJOR EQUAL 0)
  set(TARN_INTERFACE_VERSION 0.${PROJECT_VERSION_MINOR})
  set(TARN_COMPATIBILITY SameMinorVersion)
endif()

# The build tree has the layout of an installation, because the library finds its data relative to itself.
set(TARN_DATA_DIR ${CMAKE_INSTALL_DATADIR}/TarnGUICommon-${TARN_INTERFACE_VERSION})
set(TARN_BUILD_LIBDIR "${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR}")
set(TARN_BUILD_BINDIR "${PROJECT_BINARY_DIR}/${CMAKE_INSTALL_BINDIR}") # Of DLLs.
set(TARN_BUILD_DATA_DIR "${PROJECT_BINARY_DIR}/${TARN_DATA_DIR}")
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}" OR IS_ABSOLUTE "${CMAKE_INSTALL_DATADIR}")
  set(TARN_BUILD_LIBDIR "${PROJECT_BINARY_DIR}/lib")
  set(TARN_BUILD_BINDIR "${PROJECT_BINARY_DIR}/bin")
  set(TARN_BUILD_DATA_DIR "${PROJECT_BINARY_DIR}/share/TarnGUICommon")
endif()

# A project around this one sees the public headers only, as links in one folder. Host, tests and fuzz targets see the
# source folders.
set(TARN_BUILD_INCLUDE_DIR "${PROJECT_BINARY_DIR}/include/TarnGUICommon")
file(MAKE_DIRECTORY "${TARN_BUILD_INCLUDE_DIR}")
set(TARN_SOURCE_FOLDERS PRIVATE)
if(TARN_HOST OR TARN_TESTS OR TARN_FUZZ)
  set(TARN_SOURCE_FOLDERS PUBLIC)
endif()

# tarn_add_library(<target> [<source>...])
#
# Adds one of them with the common settings: export header, version, hidden symbols, no undefined symbols. A class of
# the host with the name of one of ours does not take its place. The library stays loaded until the process ends, since
# Qt keeps pointers into a library that has shown a dialog.
function(tarn_add_library target)
  add_library(${target} SHARED ${ARGN})
  add_library(TarnGUICommon::${target} ALIAS ${target})
  string(TOLOWER ${target} lower)
  set(export_header "${PROJECT_BINARY_DIR}/exports/${lower}_export.h")
  generate_export_header(${target} EXPORT_FILE_NAME "${export_header}")
  tarn_public_headers(${target} "${export_header}")
  target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/exports>"
                                              "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/TarnGUICommon>")
  if(TARN_SOURCE_FOLDERS STREQUAL PRIVATE)
    target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${TARN_BUILD_INCLUDE_DIR}>")
  endif()
  tarn_link_library(${target})
  set_target_properties(
    ${target}
    PROPERTIES VERSION ${PROJECT_VERSION}
               SOVERSION ${TARN_INTERFACE_VERSION}
               LIBRARY_OUTPUT_DIRECTORY "${TARN_BUILD_LIBDIR}"
               ARCHIVE_OUTPUT_DIRECTORY "${TARN_BUILD_LIBDIR}"
               RUNTIME_OUTPUT_DIRECTORY "${TARN_BUILD_BINDIR}")
endfunction()

# tarn_link_library(<target>)
#
# Sets the linker options of the platform. The libraries find each other in their own folder, so that the package is
# relocatable. Windows needs no options: DLLs export what is marked, find each other and resolve all symbols.
function(tarn_link_library target)
  if(APPLE)
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "@loader_path")
  elseif(UNIX)
    set(symbols "${PROJECT_SOURCE_DIR}/cmake/exports.map")
    set(shared_data "${PROJECT_SOURCE_DIR}/cmake/shared-data.list")
    target_link_options(${target} PRIVATE "-Wl,--version-script=${symbols}" "-Wl,--dynamic-list=${shared_data}"
                        -Wl,-z,nodelete)
    if(NOT TARN_SANITIZE)
      target_link_options(${target} PRIVATE -Wl,--no-undefined)
    endif()
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN" LINK_DEPENDS "${symbols};${shared_data}")
  endif()
endfunction()

# tarn_add_model_library(<target>)
#
# Adds a model library: it uses QtCore and no widgets.
function(tarn_add_model_library target)
  tarn_add_library(${target})
  target_link_libraries(${target} PUBLIC Qt${TARN_QT}::Core ${TARN_QT_TEXT_CODEC}
                        PRIVATE $<BUILD_INTERFACE:TarnStrict> $<BUILD_INTERFACE:TarnModelSupport>)
  target_include_directories(${target} ${TARN_SOURCE_FOLDERS} "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>")
endfunction()

# tarn_add_folders(<target> <folder>...)
#
# Adds folders that add their sources to a target of the current folder, and makes their headers visible to it.
function(tarn_add_folders target)
  foreach(folder IN LISTS ARGN)
    add_subdirectory(${folder})
    target_include_directories(${target} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}/${folder}")
    # Otherwise moc would miss a class added there: it only watches the list of the current folder.
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${folder}/CMakeLists.txt")
  endforeach()
endfunction()

# tarn_public_headers(<target> <header>...)
#
# Adds headers to install. All go to the same folder.
function(tarn_public_headers target)
  foreach(header IN LISTS ARGN)
    get_filename_component(header "${header}" ABSOLUTE)
    set_property(TARGET ${target} APPEND PROPERTY PUBLIC_HEADER "${header}")
    get_filename_component(name "${header}" NAME)
    file(CREATE_LINK "${header}" "${TARN_BUILD_INCLUDE_DIR}/${name}" COPY_ON_ERROR SYMBOLIC)
  endforeach()
endfunction()

# tarn_install_library(<target>)
#
# Installs the library and the public headers added so far.
function(tarn_install_library target)
  if(NOT TARN_INSTALL)
    return()
  endif()
  install(
    TARGETS ${target}
    EXPORT TarnGUICommonTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    PUBLIC_HEADER DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/TarnGUICommon COMPONENT development)
endfunction()

# tarn_get_public_headers(<variable>)
#
# Sets the variable to the public headers of all libraries.
function(tarn_get_public_headers variable)
  foreach(library IN LISTS TARN_LIBRARIES)
    get_target_property(library_headers ${library} PUBLIC_HEADER)
    list(APPEND headers ${library_headers})
  endforeach()
  set(${variable} ${headers} PARENT_SCOPE)
endfunction()

# tarn_wrap_forms(<variable> <form>...)
#
# Generates ui_<form>.h from each form and sets the variable to the headers.
function(tarn_wrap_forms variable)
  get_target_property(uic Qt${TARN_QT}::uic IMPORTED_LOCATION)
  foreach(form IN LISTS ARGN)
    get_filename_component(name "${form}" NAME_WE)
    set(header "${CMAKE_CURRENT_BINARY_DIR}/ui_${name}.h")
    set(form "${CMAKE_CURRENT_SOURCE_DIR}/${form}")
    set(script "${PROJECT_SOURCE_DIR}/cmake/WrapForm.cmake")
    add_custom_command(OUTPUT "${header}" COMMAND ${CMAKE_COMMAND} -DUIC=${uic} -DFORM=${form} -DHEADER=${header} -P
                                                  ${script} DEPENDS "${form}" "${script}" VERBATIM)
    list(APPEND headers "${header}")
  endforeach()
  set(${variable} ${headers} PARENT_SCOPE)
endfunction()
