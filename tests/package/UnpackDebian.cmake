# Builds the Debian packages, unpacks them into an empty root and checks them.
include("${CMAKE_CURRENT_LIST_DIR}/Run.cmake")
file(REMOVE_RECURSE "${WORK_DIR}")
set(root "${WORK_DIR}/root")
file(MAKE_DIRECTORY "${root}")
run(${CPACK} --config ${BUILD_DIR}/CPackConfig.cmake -B ${WORK_DIR}/packages)

set(sections_libtarnguicommon${INTERFACE} libs)
set(sections_libtarnguicommon-dev libdevel)
set(sections_tarnhost science)
set(multi_arch_libtarnguicommon${INTERFACE} same)
set(multi_arch_libtarnguicommon-dev same)
set(multi_arch_tarnhost foreign)
set(names libtarnguicommon${INTERFACE} libtarnguicommon-dev tarnhost)
file(GLOB packages "${WORK_DIR}/packages/*.deb")
list(LENGTH packages count)
expect(count EQUAL 3)
foreach(name IN LISTS names)
  file(GLOB package "${WORK_DIR}/packages/${name}_${VERSION}-1tarn1_*.deb")
  expect(EXISTS "${package}")
  run(dpkg-deb --show "--showformat=\${Package} \${Version} \${Section} \${Maintainer} \${Multi-Arch} \${Homepage}"
      ${package})
  expect(output STREQUAL
         "${name} ${VERSION}-1tarn1 ${sections_${name}} TarnGUICommon project <packages@tarnguicommon.invalid> \
${multi_arch_${name}} https://tarnguicommon.invalid")
  run(dpkg-deb --show "--showformat=\${Description}" ${package})
  expect(output MATCHES "^[a-z][^\n]+\n [A-Z]")
  run(dpkg-deb --show "--showformat=, \${Depends}," ${package})
  set(depends_${name} "${output}")
  run(dpkg-deb --extract ${package} ${root})
  expect(EXISTS "${root}/usr/share/doc/${name}/copyright")
  expect(EXISTS "${root}/usr/share/doc/${name}/changelog.gz")
endforeach()

# The headers need exactly this version, the host at least this one; dpkg-shlibdeps finds its other dependencies.
string(FIND "${depends_libtarnguicommon-dev}" ", libtarnguicommon${INTERFACE} (= ${VERSION}-1tarn1)," position)
expect(NOT position EQUAL -1)
string(FIND "${depends_tarnhost}" ", libtarnguicommon${INTERFACE} (>= ${VERSION})," position)
expect(NOT position EQUAL -1)
foreach(name libtarnguicommon${INTERFACE} tarnhost)
  expect(depends_${name} MATCHES ", libqt5widgets5 [^,]+,")
  expect(depends_${name} MATCHES ", libocct-foundation-[^,]+,")
endforeach()
expect(depends_libtarnguicommon${INTERFACE} MATCHES ", libmuparser[^,]+,")
file(GLOB package "${WORK_DIR}/packages/libtarnguicommon${INTERFACE}_*.deb")
run(dpkg-deb --info ${package} triggers)
expect(output MATCHES "^activate-noawait ldconfig\n$")
run(dpkg-deb --info ${package} shlibs)
expect(output MATCHES "libTarnDesign ${INTERFACE} libtarnguicommon${INTERFACE} .>= ${VERSION}")
run(dpkg-deb --info ${package} symbols)
expect(
  output
  MATCHES
  "libTarnDesign.so.${INTERFACE} libtarnguicommon${INTERFACE} #MINVER#\n[*] Build-Depends-Package: libtarnguicommon-dev\n _Z"
)

# Nothing to complain about. Without the folders of a Debian system, they are in unusual places.
if(NOT LIBDIR MATCHES "/")
  set(unusual --suppress-tags
              pkg-config-unavailable-for-cross-compilation,arch-dependent-file-not-in-arch-specific-directory)
endif()
run(lintian --allow-root --fail-on error,warning ${unusual} ${packages})

# Every library has the version of its interface, and none searches for the others in the build folder.
foreach(library TarnCoreGeometry TarnDesign TarnFEMData TarnGUICommon)
  set(file "${root}/usr/${LIBDIR}/lib${library}.so")
  file(READ_SYMLINK "${file}.${INTERFACE}" target)
  expect(target STREQUAL "lib${library}.so.${VERSION}")
  run(readelf --dynamic ${file}.${VERSION})
  string(FIND "${output}" "soname: [lib${library}.so.${INTERFACE}]" position)
  expect(NOT position EQUAL -1)
  expect(NOT output MATCHES "RPATH|RUNPATH")
endforeach()
run(readelf --dynamic ${root}/usr/bin/tarnhost)
expect(NOT output MATCHES "RPATH|RUNPATH")

# Every file that `cmake --install` installs is in one of the packages.
file(GLOB_RECURSE installed RELATIVE "${PREFIX}" "${PREFIX}/*")
expect(installed)
foreach(file IN LISTS installed)
  expect(EXISTS "${root}/usr/${file}")
endforeach()

set(entry "${root}/usr/share/applications/tarnhost.desktop")
run(desktop-file-validate ${entry})
expect(NOT output)
run(appstreamcli validate --no-net ${root}/usr/share/metainfo/invalid.tarnguicommon.tarnhost.metainfo.xml)
run(xmllint --noout ${root}/usr/share/mime/packages/tarnhost.xml)
file(STRINGS "${entry}" icon REGEX "^Icon=tarnhost$")
expect(icon)
foreach(
  file
  icons/hicolor/scalable/apps/tarnhost.svg
  man/man1/tarnhost.1.gz
  metainfo/invalid.tarnguicommon.tarnhost.metainfo.xml
  mime/packages/tarnhost.xml
  TarnGUICommon-${INTERFACE}/SysMaterial.xml
  TarnGUICommon-${INTERFACE}/images/TopTitle.png
  tarnhost/samples/flange.json
  doc/libtarnguicommon-dev/examples/small_host/main.cpp
  doc/libtarnguicommon-dev/html/index.html
  doc/libtarnguicommon-dev/schemas/Materials.xsd)
  expect(EXISTS "${root}/usr/share/${file}")
endforeach()

# Debug symbols, which a build with tests does not pack: as CPack writes them, with checksums of absolute names.
set(debug "${WORK_DIR}/debug")
set(package "${WORK_DIR}/libx-dbgsym.ddeb")
file(WRITE "${debug}/usr/lib/debug/x.debug" "symbols")
file(WRITE "${debug}/DEBIAN/md5sums" "0123456789abcdef0123456789abcdef  ${debug}/usr/lib/debug/x.debug\n")
file(WRITE "${debug}/DEBIAN/control"
     "Auto-Built-Package: debug-symbols\nPackage: libx-dbgsym\nVersion: 1-1\nArchitecture: amd64\n"
     "Maintainer: X <x@x.invalid>\nDescription: debug symbols for libx\n")
run(dpkg-deb --root-owner-group --build ${debug} ${package})
run(${CMAKE_COMMAND} -DCPACK_PACKAGE_FILES=${package} -DCPACK_TEMPORARY_DIRECTORY=${WORK_DIR} -P
    ${SOURCE_DIR}/cmake/debian/Finish.cmake)
run(dpkg-deb --info ${package} md5sums)
string(MD5 sum "symbols")
expect(output STREQUAL "${sum}  usr/lib/debug/x.debug\n")
run(dpkg-deb --contents ${package})
expect(output MATCHES "usr/share/doc/libx-dbgsym -> libx\n")
