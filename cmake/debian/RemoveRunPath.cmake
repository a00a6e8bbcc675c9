# Elsewhere, program and libraries find each other by relative run paths. In the package, the loader
# finds them anyway, and Debian policy discourages run paths.
file(GLOB_RECURSE files "${CPACK_TEMPORARY_DIRECTORY}/*/usr/bin/*" "${CPACK_TEMPORARY_DIRECTORY}/*/usr/lib/*.so.*")
foreach(file IN LISTS files)
  if(NOT IS_SYMLINK "${file}")
    file(RPATH_REMOVE FILE "${file}")
  endif()
endforeach()
