# Target "uninstall": removes what the last installation from this build folder installed.
add_custom_target(uninstall COMMAND ${CMAKE_COMMAND} "-DMANIFEST=${PROJECT_BINARY_DIR}/install_manifest.txt" -P
                                    "${PROJECT_SOURCE_DIR}/cmake/Uninstall.cmake" VERBATIM)
