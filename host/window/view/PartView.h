#pragma once

#include <Graphic3d_Camera.hxx>
#include <QOpenGLWidget>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Pnt.hxx>

#include <functional>
#include <memory>
#include <optional>

class PartScene;
class QShortcut;
class Standard_Failure;

/// The part in three dimensions: the kernel's viewer in a widget.
///
/// Dragging with the left or the middle button orbits, with the right button (or the left one and
/// Shift) pans; the wheel zooms about the cursor; a click selects a face; the cube in the corner
/// turns to the view that is clicked on it. Lengths are in millimetres.
///
/// Make one only where UnavailableReason() gives no reason against it. Should the driver fail
/// later, Failed() comes once and the view stays empty.
class PartView : public QOpenGLWidget
{
    Q_OBJECT

public:
    /// Where the eye is; z is upwards except in the views from the top and the bottom.
    enum StandardView
    {
        FrontView, ///< Looks along +y.
        BackView,
        LeftView, ///< Looks along +x.
        RightView,
        TopView, ///< Looks along -z, y upwards.
        BottomView,
        IsometricView
    };

    enum DisplayMode
    {
        ShadedWithEdges,
        Wireframe
    };

    /// Why this system cannot show a PartView, for the user; empty when it can. Asked of the
    /// driver once, then remembered.
    static QString UnavailableReason();

    explicit PartView(QWidget* parent = nullptr);
    ~PartView() override;

    /// Shows @p shape in place of the earlier one; a null shape empties the view. The camera stays,
    /// but where @p fitFirstTime is set and nothing was shown before, the shape is fitted into the
    /// view. The selected face is selected no longer.
    void ShowShape(const TopoDS_Shape& shape, bool fitFirstTime = true);

    /// Shows @p shape, which may lie within the part, on top of it in a signal colour; a null shape
    /// ends that.
    void HighlightShape(const TopoDS_Shape& shape);

    /// Marks a point, in place of the one marked earlier.
    void ShowPoint(const gp_Pnt& point);
    void HidePoint();

    void FitAll();
    /// Turns to a standard view and fits the shape into it.
    void SetStandardView(StandardView view);
    void SetDisplayMode(DisplayMode mode);
    DisplayMode CurrentDisplayMode() const { return m_mode; }

    /// The next click on a face is told with FacePicked(). Escape, or CancelPicking(), ends the
    /// wait with PickingCancelled(); a click beside the part does not.
    void PickFace();
    void CancelPicking();
    bool IsPicking() const { return m_isPicking; }

    QSize sizeHint() const override;

Q_SIGNALS:
    /// @p point is where the face was clicked on, exactly on the face's surface.
    void FacePicked(const TopoDS_Face& face, const gp_Pnt& point);
    void PickingCancelled();

    /// The cursor is over this point of the part.
    void PointMoved(const gp_Pnt& point);
    /// The cursor left the part.
    void PointLost();

    /// The driver has failed; the reason is for the user.
    void Failed(const QString& reason);

protected:
    void initializeGL() override;
    void paintGL() override;
    void resizeGL(int width, int height) override;

    void changeEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    /// Runs @p act on the scene, if there is one, with its context; false if that failed.
    bool WithScene(const std::function<void(PartScene&)>& act);
    void MakeScene();
    void DropScene();
    void Resize(PartScene& scene) const;
    void Fail(const Standard_Failure& failure);
    void EndPicking();
    /// Passes on what the mouse did at @p position, and tells what came of it.
    void HandleMouse(const QPointF& position);
    void TellPoint(const std::optional<gp_Pnt>& point);
    /// The position in the device's pixels.
    QPoint DevicePosition(const QPointF& position) const;

    std::unique_ptr<PartScene> m_scene; // Of the OpenGL context; null before there is one.
    // What a new scene is to show.
    TopoDS_Shape m_shape;
    TopoDS_Shape m_highlight;
    std::optional<gp_Pnt> m_mark;
    Handle(Graphic3d_Camera) m_camera; // Null unless an earlier scene left it.
    StandardView m_firstView = IsometricView;
    bool m_isFitAwaited = false;

    DisplayMode m_mode = ShadedWithEdges;
    bool m_isPicking = false;
    bool m_isPointKnown = false; // The last signal about the point was PointMoved().
    QPointF m_cursor;            // Where the mouse was last.
    QShortcut* m_escape;
};
