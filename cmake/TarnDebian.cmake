# The Debian packages: the libraries, the development files, and the reference host.
# `cmake --preset package && cmake --build --preset package` builds all three.
set(debian_runtime libtarnguicommon${TARN_INTERFACE_VERSION})
set(debian_development libtarnguicommon-dev)
set(debian_host tarnhost)

set(CPACK_PACKAGE_CONTACT "TarnGUICommon project <packages@tarnguicommon.invalid>")
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://tarnguicommon.invalid)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1tarn1) # Not a version that Debian would use.
set(debian_version ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
configure_file("${PROJECT_SOURCE_DIR}/cmake/debian/changelog.in" "${PROJECT_BINARY_DIR}/changelog.Debian" @ONLY)

# tarn_install_gzip(<file> <installed name> <component> <folder>)
function(tarn_install_gzip file name component folder)
  set(zipped "${PROJECT_BINARY_DIR}/gzip/${component}/${name}.gz")
  get_filename_component(zipped_folder "${zipped}" DIRECTORY)
  file(MAKE_DIRECTORY "${zipped_folder}")
  # Without name and time, so that builds are reproducible.
  add_custom_command(OUTPUT "${zipped}" COMMAND sh -c "gzip -9nc \"$1\" >\"$2\"" gzip "${file}" "${zipped}"
                     DEPENDS "${file}" VERBATIM)
  add_custom_target(TarnGzip_${component}_${name} ALL DEPENDS "${zipped}")
  install(FILES "${zipped}" DESTINATION "${folder}" COMPONENT ${component})
endfunction()

# The debugging information goes into packages of its own, if there is any. A build with tests does without: they would
# take most of the time of its packages.
set(debian_has_debug_information OFF)
set(debian_strips ON)
if(CMAKE_BUILD_TYPE MATCHES "Deb" AND NOT TARN_TESTS)
  set(debian_has_debug_information ON)
  set(debian_strips OFF)
endif()
set(CPACK_COMPONENTS_ALL runtime development)
if(TARN_HOST)
  list(APPEND CPACK_COMPONENTS_ALL host)
  foreach(program tarnhost tarn-ccx)
    tarn_install_gzip("${PROJECT_SOURCE_DIR}/host/desktop/${program}.1" ${program}.1 host ${CMAKE_INSTALL_MANDIR}/man1)
  endforeach()
endif()
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  set(folder ${CMAKE_INSTALL_DATADIR}/doc/${debian_${component}})
  install(FILES "${PROJECT_SOURCE_DIR}/cmake/debian/copyright" DESTINATION ${folder} COMPONENT ${component})
  tarn_install_gzip("${PROJECT_SOURCE_DIR}/CHANGELOG.md" changelog ${component} ${folder})
  tarn_install_gzip("${PROJECT_BINARY_DIR}/changelog.Debian" changelog.Debian ${component} ${folder})
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${debian_${component}})
  set(CPACK_DEBIAN_${upper}_DEBUGINFO_PACKAGE ${debian_has_debug_information})
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # It would precede the summary of each package.
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ${debian_strips})
set(CPACK_PRE_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/debian/RemoveRunPath.cmake")
set(CPACK_POST_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/debian/Finish.cmake")
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)

# If available, dpkg-shlibdeps determines the dependencies from programs and libraries.
find_program(TARN_SHLIBDEPS dpkg-shlibdeps)
mark_as_advanced(TARN_SHLIBDEPS)
if(TARN_SHLIBDEPS)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${TARN_BUILD_LIBDIR}")
endif()
# A program works with every later library of the same package name; the development files need theirs.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_HOST_PACKAGE_DEPENDS "${debian_runtime} (>= ${PROJECT_VERSION})")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/cmake/debian/triggers")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "dialog library of a desktop CAD/CAE application
Dialogs for parameters and expressions, sampling and design of experiments,
analysis set-up, geometry input and external solvers, and the data stores that
the dialogs share with the application.")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
# The packages that our CMake package and headers use.
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${debian_runtime} (= ${debian_version}), qtbase5-dev (>= 5.15), libocct-foundation-dev, libocct-modeling-data-dev, libtbb-dev"
)
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
    "dialog library of a desktop CAD/CAE application - development files
Headers, CMake package, pkg-config file and documentation for applications that
use the dialogs.")
set(CPACK_DEBIAN_HOST_PACKAGE_SECTION science)
set(CPACK_DEBIAN_HOST_PACKAGE_RECOMMENDS "calculix-ccx, fonts-noto-cjk, gmsh, qttranslations5-l10n")
set(CPACK_DEBIAN_HOST_PACKAGE_SUGGESTS ${debian_development}) # The manual.
set(CPACK_COMPONENT_HOST_DESCRIPTION
    "reference application of the TarnGUICommon dialog library
Edits the parameters of a part, runs design studies with or without a window,
and shows every dialog of the library. Includes a sample project and the system
library of materials.")

install(FILES "${PROJECT_SOURCE_DIR}/cmake/debian/development.overrides"
        DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME ${debian_development} COMPONENT development)
if(TARN_DOCS)
  install(FILES "${PROJECT_SOURCE_DIR}/cmake/debian/manual.doc-base" DESTINATION ${CMAKE_INSTALL_DATADIR}/doc-base
          RENAME ${debian_development} COMPONENT development)
endif()

include(CPack)
