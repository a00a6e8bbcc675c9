#pragma once

#include <AIS_ViewController.hxx>
#include <OpenGl_GraphicDriver.hxx>
#include <QObject>
#include <QWindow>
#include <TopoDS_Face.hxx>
#include <V3d_TypeOfOrientation.hxx>

#include <optional>

class AIS_InteractiveContext;
class AIS_InteractiveObject;
class AIS_ViewCube;
class Aspect_NeutralWindow;
class QOpenGLContext;
class QPalette;
class V3d_View;

/// What a PartView shows, in the kernel's viewer, and how the mouse works on it.
///
/// Belongs to one OpenGL context, which is current whenever a member is called. Lengths on the
/// screen are in the device's pixels. The kernel's failures leave it as Standard_Failure.
class PartScene : public QObject, public AIS_ViewController
{
    Q_OBJECT

public:
    /// A point of the part, and the face that it is on.
    struct Hit
    {
        TopoDS_Face face;
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
    void ShowHighlight(const TopoDS_Shape& shape);
    void ShowMark(const gp_Pnt& point);
    void HideMark();

    void FitAll();
    void Turn(V3d_TypeOfOrientation orientation);
    /// A copy.
    Handle(Graphic3d_Camera) Camera() const;
    void SetCamera(const Handle(Graphic3d_Camera) & camera);

    /// Passes on what the mouse has done. True when that was a click, which may have selected.
    bool HandleMouse();
    /// Whether the wheel may go on; at some point all digits are used up.
    bool CanZoom(bool isCloser) const;
    /// A click on the cube has set off a turn: HandleMouse() is to be called for each frame.
    bool IsTurning() const;
    /// Nothing is under the cursor any longer.
    void Leave();
    /// What of the part is under the cursor, which is at (@p x, @p y).
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
                 int mode, int selection);

    QWindow m_surface;
    bool m_wasClicked = false;

    Handle(OpenGl_GraphicDriver) m_driver;
    Handle(V3d_View) m_view;
    Handle(Aspect_NeutralWindow) m_window;
    Handle(AIS_InteractiveContext) m_context;
    Handle(AIS_ViewCube) m_cube;
    Handle(AIS_InteractiveObject) m_part;
    Handle(AIS_InteractiveObject) m_highlight;
    Handle(AIS_InteractiveObject) m_mark;
};
