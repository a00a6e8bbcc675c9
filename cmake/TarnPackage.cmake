# Installs the CMake package, the pkg-config file and the documentation.
include(CMakePackageConfigHelpers)
set(translations_dir ${CMAKE_INSTALL_DATADIR}/TarnGUICommon/translations)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/TarnGUICommon)
configure_package_config_file(cmake/TarnGUICommonConfig.cmake.in "${PROJECT_BINARY_DIR}/TarnGUICommonConfig.cmake"
                              INSTALL_DESTINATION ${package_dir} PATH_VARS translations_dir)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/TarnGUICommonConfigVersion.cmake"
                                 COMPATIBILITY ${TARN_COMPATIBILITY})
install(EXPORT TarnGUICommonTargets NAMESPACE TarnGUICommon:: DESTINATION ${package_dir} COMPONENT development)
install(FILES "${PROJECT_BINARY_DIR}/TarnGUICommonConfig.cmake" "${PROJECT_BINARY_DIR}/TarnGUICommonConfigVersion.cmake"
        DESTINATION ${package_dir} COMPONENT development)

# The prefix is relative to the file, so that the package is relocatable.
file(RELATIVE_PATH pc_prefix "/prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/prefix")
configure_file(cmake/TarnGUICommon.pc.in "${PROJECT_BINARY_DIR}/TarnGUICommon.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/TarnGUICommon.pc" DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT development)

# The manual is installed as web pages, if the build has made them: its sources link into the repository.
set(TARN_DOC_DIR ${CMAKE_INSTALL_DATADIR}/doc/libtarnguicommon-dev)
install(DIRECTORY docs/examples docs/schemas DESTINATION ${TARN_DOC_DIR} COMPONENT development)
install(DIRECTORY "${PROJECT_BINARY_DIR}/manual/" DESTINATION ${TARN_DOC_DIR}/html COMPONENT development OPTIONAL)
