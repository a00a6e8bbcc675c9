# The dialog library. Its folders add their sources to an object library, which tests of unexported classes link.
set(TARN_DIALOG_FOLDERS analysis common design geometry solver)
set(TARN_LIBRARY_FOLDERS ${TARN_DIALOG_FOLDERS} forms model) # All folders with texts to translate.

add_library(TarnGUICommonObjects OBJECT)
set_target_properties(TarnGUICommonObjects PROPERTIES AUTOMOC ON AUTORCC ON)
target_compile_definitions(TarnGUICommonObjects PRIVATE TarnGUICommon_EXPORTS)
target_include_directories(TarnGUICommonObjects PUBLIC "${PROJECT_BINARY_DIR}/exports"
                                                       "${PROJECT_SOURCE_DIR}/model/support")
set(TARN_DIALOG_LIBRARIES
    Qt${TARN_QT}::Core
    Qt${TARN_QT}::Gui
    Qt${TARN_QT}::Widgets
    ${TARN_QT_TEXT_CODEC}
    TarnDesign
    TarnFEMData
    TarnCoreGeometry
    TKernel
    TKMath
    TKG3d
    TKGeomBase)
target_link_libraries(TarnGUICommonObjects PUBLIC ${TARN_DIALOG_LIBRARIES} TarnModelSupport PRIVATE TarnStrict)
tarn_add_library(TarnGUICommon $<TARGET_OBJECTS:TarnGUICommonObjects>)
target_link_libraries(TarnGUICommon PUBLIC ${TARN_DIALOG_LIBRARIES} PRIVATE $<BUILD_INTERFACE:TarnModelSupport>
                                                                            $<BUILD_INTERFACE:TarnStrict>)

# The kernel's headers use the constants of math.h.
foreach(target TarnGUICommonObjects TarnGUICommon)
  target_compile_definitions(${target} PUBLIC $<$<PLATFORM_ID:Windows>:_USE_MATH_DEFINES>)
endforeach()

add_subdirectory(forms)
tarn_add_folders(TarnGUICommonObjects ${TARN_DIALOG_FOLDERS})
tarn_unite(TarnGUICommonObjects)
get_target_property(includes TarnGUICommonObjects INTERFACE_INCLUDE_DIRECTORIES)
target_include_directories(TarnGUICommon ${TARN_SOURCE_FOLDERS} "$<BUILD_INTERFACE:${includes}>")
tarn_install_library(TarnGUICommon)
