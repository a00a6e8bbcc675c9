#pragma once

#include <Quantity_Color.hxx>
#include <Standard_Handle.hxx>

class AIS_AnimationCamera;
class AIS_InteractiveContext;
class AIS_InteractiveObject;
class AIS_ViewCube;
class QPalette;
class TopoDS_Shape;
class V3d_View;
class V3d_Viewer;
class gp_Pnt;

/// Colours, lights and precision of a PartScene, and the objects that it shows.
namespace SceneStyle {

void SetLights(V3d_Viewer& viewer);
/// How shapes are drawn and highlighted.
void SetDrawing(const AIS_InteractiveContext& context);
/// Of the surface of a section.
Quantity_Color CutColour();
void SetBackground(V3d_View& view, const QPalette& palette);

/// A null object for a null shape.
Handle(AIS_InteractiveObject) NewPart(const TopoDS_Shape& shape);
/// @copydoc NewPart
Handle(AIS_InteractiveObject) NewHighlight(const TopoDS_Shape& shape);
Handle(AIS_InteractiveObject) NewMark(const gp_Pnt& point);

/// The cube that turns the view with @p animation.
Handle(AIS_ViewCube) NewCube(const Handle(AIS_AnimationCamera) & animation);
/// Gives @p cube its size and place on a screen with @p pixelRatio.
void PlaceCube(AIS_ViewCube& cube, double pixelRatio);

} // namespace SceneStyle
