# The dialog library. Its objects stand in a target of their own, so that tests of what is not
# exported can link them directly.
get_property(TARN_DIALOG_SOURCES GLOBAL PROPERTY TARN_DIALOG_SOURCES)
get_property(TARN_DIALOG_HEADERS GLOBAL PROPERTY TARN_DIALOG_HEADERS)
get_property(TARN_FORM_HEADERS GLOBAL PROPERTY TARN_FORM_HEADERS)
set(TARN_DIALOG_LIBRARIES
    Qt5::Core
    Qt5::Gui
    Qt5::Widgets
    TarnDesign
    TarnFEMData
    TarnCoreGeometry
    TKernel
    TKMath
    TKG3d
    TKGeomBase)
add_library(TarnGUICommonObjects OBJECT ${TARN_DIALOG_SOURCES} "${PROJECT_SOURCE_DIR}/common/images.qrc")
set_target_properties(TarnGUICommonObjects PROPERTIES DEFINE_SYMBOL "" AUTOMOC ON AUTORCC ON)
target_compile_definitions(TarnGUICommonObjects PRIVATE TarnGUICommon_EXPORTS)
target_link_libraries(TarnGUICommonObjects PUBLIC ${TARN_DIALOG_LIBRARIES} TarnModelSupport PRIVATE TarnStrict)
set(TARN_DIALOG_INCLUDES "${PROJECT_BINARY_DIR}/forms" "${PROJECT_BINARY_DIR}/exports")
foreach(folder common design analysis geometry solver)
  list(APPEND TARN_DIALOG_INCLUDES "${PROJECT_SOURCE_DIR}/${folder}")
  # A class that is added there must be seen by moc, which looks at this folder's list files only.
  set_property(TARGET TarnGUICommonObjects APPEND PROPERTY AUTOGEN_TARGET_DEPENDS
                                                           "${PROJECT_SOURCE_DIR}/${folder}/CMakeLists.txt")
endforeach()
target_include_directories(TarnGUICommonObjects PUBLIC ${TARN_DIALOG_INCLUDES})
target_include_directories(TarnGUICommonObjects SYSTEM PUBLIC "${OpenCASCADE_INCLUDE_DIR}")
add_dependencies(TarnGUICommonObjects TarnForms)

add_library(TarnGUICommon SHARED $<TARGET_OBJECTS:TarnGUICommonObjects>)
target_link_libraries(TarnGUICommon PUBLIC ${TARN_DIALOG_LIBRARIES} PRIVATE $<BUILD_INTERFACE:TarnModelSupport>
                                                                            $<BUILD_INTERFACE:TarnStrict>)
target_include_directories(TarnGUICommon PUBLIC "$<BUILD_INTERFACE:${TARN_DIALOG_INCLUDES}>")
# The kernel's targets do not carry its include folder; the package adds it where it finds the kernel.
target_include_directories(TarnGUICommon SYSTEM PUBLIC "$<BUILD_INTERFACE:${OpenCASCADE_INCLUDE_DIR}>")
add_dependencies(TarnGUICommon TarnForms)
tarn_finish_library(TarnGUICommon HEADERS ${TARN_DIALOG_HEADERS} ${TARN_FORM_HEADERS})
install(FILES "${PROJECT_SOURCE_DIR}/common/images/TopTitle.png"
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/TarnGUICommon/images COMPONENT runtime)
