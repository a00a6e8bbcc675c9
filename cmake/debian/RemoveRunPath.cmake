# Installed anywhere, program and libraries find one another by a path relative to themselves. In the
# package they stand where the loader looks anyway, and Debian wants no path in them.
file(GLOB_RECURSE files "${CPACK_TEMPORARY_DIRECTORY}/*/usr/bin/*" "${CPACK_TEMPORARY_DIRECTORY}/*/usr/lib/*.so.*")
foreach(file IN LISTS files)
  if(NOT IS_SYMLINK "${file}")
    file(RPATH_REMOVE FILE "${file}")
  endif()
endforeach()
