# The dialog library. Its objects stand in a target of their own, so that tests of what is not
# exported can link them directly.
get_property(TARN_DIALOG_SOURCES GLOBAL PROPERTY TARN_DIALOG_SOURCES)
get_property(TARN_DIALOG_HEADERS GLOBAL PROPERTY TARN_DIALOG_HEADERS)
get_property(TARN_FORM_HEADERS GLOBAL PROPERTY TARN_FORM_HEADERS)
add_library(TarnGUICommonObjects OBJECT ${TARN_DIALOG_SOURCES} "${PROJECT_SOURCE_DIR}/common/images.qrc")
set_target_properties(TarnGUICommonObjects PROPERTIES DEFINE_SYMBOL "" AUTOMOC ON AUTORCC ON)
target_compile_definitions(TarnGUICommonObjects PRIVATE TarnGUICommon_EXPORTS)
target_link_libraries(TarnGUICommonObjects PUBLIC Qt5::Core Qt5::Gui Qt5::Widgets TarnDesign TarnFEMData
                                                  TarnCoreGeometry TKernel TKMath TKG3d TKGeomBase
                                           PRIVATE TarnStrict)
set(TARN_DIALOG_INCLUDES "${PROJECT_BINARY_DIR}/forms" "${PROJECT_BINARY_DIR}/exports")
foreach(folder common design analysis geometry solver)
  list(APPEND TARN_DIALOG_INCLUDES "${PROJECT_SOURCE_DIR}/${folder}")
endforeach()
target_include_directories(TarnGUICommonObjects PUBLIC ${TARN_DIALOG_INCLUDES})
add_dependencies(TarnGUICommonObjects TarnForms)

add_library(TarnGUICommon SHARED $<TARGET_OBJECTS:TarnGUICommonObjects>)
target_link_libraries(TarnGUICommon PUBLIC Qt5::Core Qt5::Gui Qt5::Widgets TarnDesign TarnFEMData
                                           TarnCoreGeometry TKernel TKMath TKG3d TKGeomBase
                                    PRIVATE $<BUILD_INTERFACE:TarnStrict>)
target_include_directories(TarnGUICommon PUBLIC "$<BUILD_INTERFACE:${TARN_DIALOG_INCLUDES}>")
add_dependencies(TarnGUICommon TarnForms)
tarn_finish_library(TarnGUICommon HEADERS ${TARN_DIALOG_HEADERS} ${TARN_FORM_HEADERS})
install(FILES "${PROJECT_SOURCE_DIR}/common/images/TopTitle.png"
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/TarnGUICommon/images COMPONENT runtime)
