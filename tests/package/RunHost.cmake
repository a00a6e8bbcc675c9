# Runs the unpacked reference host with unpacked files only.
include("${CMAKE_CURRENT_LIST_DIR}/Run.cmake")
file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
set(ENV{LD_LIBRARY_PATH} "${PREFIX}/${LIBDIR}")
run(${PREFIX}/bin/tarnhost --version)
expect(output STREQUAL "tarnhost ${VERSION}\n")
run(${PREFIX}/bin/tarnhost
    --study
    ${PREFIX}/share/tarnhost/samples/flange.json
    --out
    ${WORK_DIR}
    --runs
    1-2)
file(STRINGS "${WORK_DIR}/results.csv" results)
list(LENGTH results lines)
expect(lines EQUAL 3)
