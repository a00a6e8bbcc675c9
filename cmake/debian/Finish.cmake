# Adds to the packages what CPack cannot write: Multi-Arch, the symbols of the libraries with the version that a program
# needs which uses them, and, for debug symbols, checksums with relative names. The trigger takes the place of the scripts that would call ldconfig.
function(run)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output COMMAND_ERROR_IS_FATAL ANY)
  set(output "${output}" PARENT_SCOPE)
endfunction()

# write_symbols(<root> <package> <version>)
function(write_symbols root package version)
  file(GLOB_RECURSE libraries "${root}/usr/lib/*.so.*")
  list(SORT libraries)
  foreach(library IN LISTS libraries)
    if(IS_SYMLINK "${library}")
      continue()
    endif()
    run(readelf --dynamic ${library})
    string(REGEX MATCH "soname: \\[([^]]+)\\]" soname "${output}")
    string(APPEND symbols "${CMAKE_MATCH_1} ${package} #MINVER#\n* Build-Depends-Package: libtarnguicommon-dev\n")
    run(nm --dynamic --defined-only --format=posix ${library})
    string(REGEX REPLACE " [^\n]*" "" names "${output}")
    string(REGEX REPLACE "([^\n]+)\n" " \\1@Base ${version}\n" names "${names}")
    string(APPEND symbols "${names}")
  endforeach()
  file(WRITE "${root}/DEBIAN/symbols" "${symbols}")
endfunction()

# remove_comments(<root>): the versions of the compilers.
function(remove_comments root)
  file(GLOB_RECURSE binaries "${root}/usr/lib/*.so.*" "${root}/usr/bin/*")
  foreach(binary IN LISTS binaries)
    if(NOT IS_SYMLINK "${binary}")
      run(objcopy --remove-section=.comment ${binary})
    endif()
  endforeach()
endfunction()

# write_checksums(<root>)
function(write_checksums root)
  file(GLOB_RECURSE files RELATIVE "${root}" "${root}/*")
  list(FILTER files EXCLUDE REGEX "^DEBIAN/")
  foreach(file IN LISTS files)
    if(NOT IS_SYMLINK "${root}/${file}")
      file(MD5 "${root}/${file}" sum)
      string(APPEND sums "${sum}  ${file}\n")
    endif()
  endforeach()
  file(WRITE "${root}/DEBIAN/md5sums" "${sums}")
endfunction()

# finish_debug_symbols(<root> <package>): they share the copyright and the changelog of their package.
function(finish_debug_symbols root package)
  string(REGEX REPLACE "-dbgsym$" "" described "${package}")
  file(MAKE_DIRECTORY "${root}/usr/share/doc")
  file(CREATE_LINK ${described} "${root}/usr/share/doc/${package}" SYMBOLIC)
  run(find
      ${root}/usr/lib/debug
      -name
      *.debug
      -exec
      chmod
      644
      {}
      +)
endfunction()

foreach(file IN LISTS CPACK_PACKAGE_FILES)
  set(root "${CPACK_TEMPORARY_DIRECTORY}/finish")
  file(REMOVE_RECURSE "${root}")
  run(dpkg-deb --raw-extract ${file} ${root})
  file(READ "${root}/DEBIAN/control" control)
  string(REGEX MATCH "(^|\n)Package: ([^\n]+)" package "${control}")
  set(package "${CMAKE_MATCH_2}")
  set(multi_arch same)
  if(package STREQUAL tarnhost)
    set(multi_arch foreign)
  endif()
  string(STRIP "${control}" control)
  file(WRITE "${root}/DEBIAN/control" "${control}\nMulti-Arch: ${multi_arch}\n")
  if(package MATCHES "-dbgsym$")
    finish_debug_symbols("${root}" ${package})
  endif()
  if(package MATCHES "[0-9]$")
    file(REMOVE "${root}/DEBIAN/postinst" "${root}/DEBIAN/postrm")
    write_symbols("${root}" ${package} ${CPACK_PACKAGE_VERSION})
  endif()
  remove_comments("${root}")
  write_checksums("${root}")
  run(dpkg-deb --root-owner-group --build ${root} ${file})
endforeach()
