# Installs the CMake package, the pkg-config file and the documentation.
include(CMakePackageConfigHelpers)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/TarnGUICommon)
configure_package_config_file(cmake/TarnGUICommonConfig.cmake.in "${PROJECT_BINARY_DIR}/TarnGUICommonConfig.cmake"
                              INSTALL_DESTINATION ${package_dir} PATH_VARS TARN_DATA_DIR)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/TarnGUICommonConfigVersion.cmake"
                                 COMPATIBILITY ${TARN_COMPATIBILITY})
install(EXPORT TarnGUICommonTargets NAMESPACE TarnGUICommon:: DESTINATION ${package_dir} COMPONENT development)
install(FILES "${PROJECT_BINARY_DIR}/TarnGUICommonConfig.cmake" "${PROJECT_BINARY_DIR}/TarnGUICommonConfigVersion.cmake"
        DESTINATION ${package_dir} COMPONENT development)

# The prefix is relative to the file, so that the package is relocatable, unless a folder is absolute.
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  set(pc_prefix "${CMAKE_INSTALL_PREFIX}")
else()
  file(RELATIVE_PATH pc_prefix "/prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/prefix")
  set(pc_prefix "\${pcfiledir}/${pc_prefix}")
endif()
foreach(dir libdir includedir datadir)
  string(TOUPPER "CMAKE_INSTALL_${dir}" folder)
  set(pc_${dir} "${${folder}}")
  if(NOT IS_ABSOLUTE "${pc_${dir}}")
    string(PREPEND pc_${dir} "\${prefix}/")
  endif()
endforeach()
# The linker searches the folders of the system anyway.
set(pc_kernel "-L${OpenCASCADE_LIBRARY_DIR} ")
if(OpenCASCADE_LIBRARY_DIR IN_LIST CMAKE_CXX_IMPLICIT_LINK_DIRECTORIES)
  set(pc_kernel "")
endif()
configure_file(cmake/TarnGUICommon.pc.in "${PROJECT_BINARY_DIR}/TarnGUICommon.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/TarnGUICommon.pc" DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT development)

# The manual is installed as web pages, if the build has made them: its sources link into the repository.
set(TARN_DOC_DIR ${CMAKE_INSTALL_DATADIR}/doc/libtarnguicommon-dev)
install(DIRECTORY docs/examples docs/schemas DESTINATION ${TARN_DOC_DIR} COMPONENT development)
install(DIRECTORY "${PROJECT_BINARY_DIR}/manual/" DESTINATION ${TARN_DOC_DIR}/html COMPONENT development OPTIONAL)
