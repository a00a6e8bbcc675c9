# What find_package() answers: components, unknown components, another version, and another or only a part of the kernel.
include("${CMAKE_CURRENT_LIST_DIR}/Run.cmake")

# configure(<name> <line>...): configures a project of these lines; `result` and `output` say how it went.
function(configure name)
  file(REMOVE_RECURSE "${WORK_DIR}/${name}")
  list(JOIN ARGN "\n" lines)
  file(WRITE "${WORK_DIR}/${name}/CMakeLists.txt"
       "cmake_minimum_required(VERSION 3.22)\nproject(${name} LANGUAGES CXX)\n${lines}\n")
  file(WRITE "${WORK_DIR}/${name}/main.cpp" "int main() {}\n")
  execute_process(
    COMMAND ${CMAKE_COMMAND} -S ${WORK_DIR}/${name} -B ${WORK_DIR}/${name}/build -G ${GENERATOR}
            -DCMAKE_PREFIX_PATH=${PREFIX} -DCMAKE_CXX_COMPILER=${CXX} RESULT_VARIABLE result OUTPUT_VARIABLE output
    ERROR_VARIABLE output)
  string(REGEX REPLACE "[ \n]+" " " output "${output}")
  set(result "${result}" PARENT_SCOPE)
  set(output "${output}" PARENT_SCOPE)
endfunction()

# refused(<reason>): the configuration failed for this reason.
macro(refused)
  expect(NOT result EQUAL 0)
  string(FIND "${output}" "${ARGN}" position)
  if(position EQUAL -1)
    message(FATAL_ERROR "Expected \"${ARGN}\" in:\n${output}")
  endif()
endmacro()

# accepted(): the configuration succeeded.
macro(accepted)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${output}")
  endif()
endmacro()

# A model library alone, without widgets and kernel.
set(link "add_executable(host main.cpp)")
configure(
  model
  "find_package(TarnGUICommon CONFIG REQUIRED COMPONENTS TarnDesign)"
  "${link}"
  "target_link_libraries(host PRIVATE TarnGUICommon::TarnDesign)"
  "if(TARGET Qt5::Widgets OR TARGET TKernel)"
  "message(FATAL_ERROR \"More than the component\")"
  "endif()")
accepted()
run(${CMAKE_COMMAND} --build ${WORK_DIR}/model/build)

configure(unknown "find_package(TarnGUICommon CONFIG REQUIRED COMPONENTS TarnDesign Tarn)")
refused(
  "TarnGUICommon has no component \"Tarn\". Its components are TarnCoreGeometry, TarnDesign, TarnFEMData, TarnGUICommon."
)
configure(optional "find_package(TarnGUICommon CONFIG REQUIRED COMPONENTS TarnDesign OPTIONAL_COMPONENTS Tarn)")
accepted()

# Only versions with the same interface.
configure(same "find_package(TarnGUICommon ${INTERFACE} CONFIG REQUIRED)")
accepted()
string(REGEX REPLACE "\\.[0-9]+$" "" major "${INTERFACE}")
configure(next "find_package(TarnGUICommon ${major}.99 CONFIG REQUIRED)")
refused("compatible with requested version")
if(INTERFACE MATCHES "^0\\.[1-9]")
  configure(before "find_package(TarnGUICommon 0.0 CONFIG REQUIRED)")
  refused("compatible with requested version")
endif()

# A host that uses a part of the kernel only.
configure(
  part
  "find_package(OpenCASCADE CONFIG REQUIRED COMPONENTS FoundationClasses)"
  "find_package(TarnGUICommon CONFIG REQUIRED)"
  "${link}"
  "target_link_libraries(host PRIVATE TarnGUICommon::TarnGUICommon)"
  "if(NOT TARGET TKGeomBase)"
  "message(FATAL_ERROR \"A toolkit is missing\")"
  "endif()")
accepted()
run(${CMAKE_COMMAND} --build ${WORK_DIR}/part/build)

# Another kernel.
file(WRITE "${WORK_DIR}/kernel/OpenCASCADEConfig.cmake"
     "set(OpenCASCADE_MAJOR_VERSION 1)\nset(OpenCASCADE_MINOR_VERSION 2)\n")
configure(otherKernel "set(OpenCASCADE_DIR ${WORK_DIR}/kernel)" "find_package(TarnGUICommon CONFIG REQUIRED)")
refused(
  "but version 1.2 was found in ${WORK_DIR}/kernel. Build TarnGUICommon with that version, or set OpenCASCADE_DIR.")
