# What the options of the build do: it is configured only.
include("${CMAKE_CURRENT_LIST_DIR}/Run.cmake")
file(REMOVE_RECURSE "${WORK_DIR}")

# configure(<name> <option>...): configures the library alone.
set(configure
    ${CMAKE_COMMAND}
    -S
    ${SOURCE_DIR}
    -G
    ${GENERATOR}
    -DCMAKE_CXX_COMPILER=${CXX}
    -DTARN_HOST=OFF
    -DTARN_TESTS=OFF)

# The stores must be one, so that static libraries are refused.
execute_process(COMMAND ${configure} -B ${WORK_DIR}/static -DBUILD_SHARED_LIBS=OFF RESULT_VARIABLE result OUTPUT_QUIET
                ERROR_VARIABLE errors)
expect(NOT result EQUAL 0)
expect(errors MATCHES "TarnGUICommon cannot be built as static libraries")

# Absolute folders.
run(${configure}
    -B
    ${WORK_DIR}/absolute
    -DCMAKE_INSTALL_PREFIX=/opt/tarn
    -DCMAKE_INSTALL_LIBDIR=/srv/libraries
    -DCMAKE_INSTALL_DATADIR=/srv/data
    -DTARN_DOCS=OFF)
set(ENV{PKG_CONFIG_PATH} "${WORK_DIR}/absolute")
foreach(expected
        libdir=/srv/libraries includedir=/opt/tarn/include/TarnGUICommon datadir=/srv/data/TarnGUICommon-${INTERFACE}
        translationsdir=/srv/data/TarnGUICommon-${INTERFACE}/translations)
  string(REGEX REPLACE "=.*" "" variable "${expected}")
  run(pkg-config --variable=${variable} TarnGUICommon)
  expect("${variable}=${output}" STREQUAL "${expected}\n")
endforeach()
file(READ "${WORK_DIR}/absolute/TarnGUICommonConfig.cmake" config)
string(FIND "${config}" "(TarnGUICommon_DATA_DIR \"/srv/data/TarnGUICommon-${INTERFACE}\")" position)
expect(NOT position EQUAL -1)

# Without the manual.
run(${CMAKE_COMMAND} --build ${WORK_DIR}/absolute --target help)
expect(NOT output MATCHES "manual")

# Uninstalling removes what a manifest lists, and no folder of others.
set(root "${WORK_DIR}/root")
file(WRITE "${root}/lib/libTarnX.so" "")
file(WRITE "${root}/share/TarnX/images/picture.png" "")
file(WRITE "${root}/share/other" "")
file(WRITE "${WORK_DIR}/manifest.txt" "/lib/libTarnX.so\n/share/TarnX/images/picture.png\n")
set(ENV{DESTDIR} "${root}")
run(${CMAKE_COMMAND} -DMANIFEST=${WORK_DIR}/manifest.txt -P ${SOURCE_DIR}/cmake/Uninstall.cmake)
file(GLOB_RECURSE left LIST_DIRECTORIES ON RELATIVE "${root}" "${root}/*")
list(JOIN left " " left)
expect(left STREQUAL "lib share share/other")
