#pragma once

#include "SceneLayers.h"

#include <AIS_ViewController.hxx>
#include <OpenGl_GraphicDriver.hxx>
#include <QObject>
#include <QWindow>
#include <TopoDS_Shape.hxx>
#include <V3d_TypeOfOrientation.hxx>

#include <optional>

class AIS_InteractiveContext;
class AIS_InteractiveObject;
class AIS_ViewCube;
class Aspect_NeutralWindow;
class QOpenGLContext;
class QPalette;
class V3d_View;

/// The content of a PartView in the kernel's viewer, and its mouse gestures.
///
/// Belongs to one OpenGL context, which must be current whenever a member is called. Lengths on the
/// screen are in device pixels. Failures of the kernel are thrown as Standard_Failure.
class PartScene : public QObject, public AIS_ViewController
{
    Q_OBJECT

public:
    /// A point of the part, and the face or edge that it is on.
    struct Hit
    {
        TopoDS_Shape shape; ///< A face or an edge.
        gp_Pnt point;
    };

    explicit PartScene(QOpenGLContext& context);
    ~PartScene() override;

    void SetPalette(const QPalette& palette);
    void Resize(int width, int height, double pixelRatio);
    /// Draws into the frame buffer that is bound.
    void Draw();

    void ShowPart(const TopoDS_Shape& shape, bool isShaded);
    void SetShaded(bool isShaded);
    /// What the cursor finds from now on: faces, edges, or both. What was clicked is not selected
    /// any more.
    void SetPickable(bool hasFaces, bool hasEdges);
    /// Cuts the part at @p place of its box, from 0 to 1, and hides the side to which @p normal
    /// points; nothing if that is zero.
    void SetSection(const gp_XYZ& normal, double place);
    /// Whether any of the part's box is in the picture; true if there is no part.
    bool SeesPart() const;
    /// Shows @p object instead of the one before; nothing if it is null. A result stands in for the
    /// part.
    void ShowLayer(SceneLayer layer, const Handle(AIS_InteractiveObject) & object);
    /// The object of @p layer has changed.
    void UpdateLayer(SceneLayer layer);

    void FitAll();
    void Turn(V3d_TypeOfOrientation orientation);
    /// A copy.
    Handle(Graphic3d_Camera) Camera() const;
    void SetCamera(const Handle(Graphic3d_Camera) & camera);

    /// Handles the mouse events received so far. Returns true after a click, which may have changed
    /// the selection.
    bool HandleMouse();
    /// False at the limit, where the camera has no more precision.
    bool CanZoom(bool isCloser) const;
    /// True while the view turns after a click on the cube; HandleMouse() must then run for each
    /// frame.
    bool IsTurning() const;
    /// The cursor has left the view.
    void Leave();
    /// The face or edge under the cursor, which is at (@p x, @p y).
    std::optional<Hit> Detected(int x, int y) const;

Q_SIGNALS:
    /// Draw() would give another picture.
    void PictureChanged();

protected:
    void OnSelectionChanged(const Handle(AIS_InteractiveContext) & context,
                            const Handle(V3d_View) & view) override;
    void handleViewRedraw(const Handle(AIS_InteractiveContext) & context,
                          const Handle(V3d_View) & view) override;

private:
    void Replace(Handle(AIS_InteractiveObject) & shown, const Handle(AIS_InteractiveObject) & next,
                 int selection);
    /// Hides the part behind a result; otherwise lets the cursor find what it should.
    void UpdatePart();

    QWindow m_surface;
    bool m_wasClicked = false;

    Handle(OpenGl_GraphicDriver) m_driver;
    Handle(V3d_View) m_view;
    Handle(Aspect_NeutralWindow) m_window;
    Handle(AIS_InteractiveContext) m_context;
    Handle(AIS_ViewCube) m_cube;
    Handle(AIS_InteractiveObject) m_part;
    SceneLayers m_layers;
    bool m_hasFaces = true; // That the cursor finds.
    bool m_hasEdges = false;
};
