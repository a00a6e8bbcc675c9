# Installs the build into an empty prefix.
include("${CMAKE_CURRENT_LIST_DIR}/Run.cmake")
file(REMOVE_RECURSE "${PREFIX}")
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX})
