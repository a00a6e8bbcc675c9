# Only project() sets the version; the first entry of the changelog must be for this version.
include("${CMAKE_CURRENT_LIST_DIR}/Run.cmake")
file(STRINGS "${SOURCE_DIR}/CHANGELOG.md" entries REGEX "^## ")
list(GET entries 0 top)
string(REPLACE "." "\\." pattern "${VERSION}")
if(NOT top MATCHES "^## ${pattern}( |$)")
  message(FATAL_ERROR "The version is ${VERSION}, but CHANGELOG.md begins with: ${top}")
endif()
