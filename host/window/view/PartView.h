#pragma once

#include "SceneLayers.h"
#include "ViewSymbol.h"

#include <Graphic3d_Camera.hxx>
#include <QOpenGLWidget>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Pnt.hxx>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class PartScene;
class QShortcut;
class Standard_Failure;

/// The part in three dimensions: the kernel's viewer in a widget.
///
/// Dragging with the left or the middle button orbits, with the right button (or the left one and
/// Shift) pans; the wheel zooms about the cursor; a click selects a face; the cube in the corner
/// turns to the view that is clicked on it. Lengths are in millimetres.
///
/// Create one only if UnavailableReason() is empty. If the driver fails later, the view emits
/// Failed() once and stays empty.
class PartView : public QOpenGLWidget
{
    Q_OBJECT

public:
    /// The position of the eye; z points upwards except in the views from the top and the bottom.
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

    /// Which half of the part is cut away, through the middle of its box.
    enum Section
    {
        NoSection,
        SectionX, ///< The half with the greater x is cut away.
        SectionY,
        SectionZ
    };

    enum DisplayMode
    {
        ShadedWithEdges,
        Wireframe
    };

    /// Why this system cannot show a PartView, for the user; empty if it can. The driver is tried
    /// once.
    static QString UnavailableReason();

    explicit PartView(QWidget* parent = nullptr);
    ~PartView() override;

    /// Shows @p shape instead of the earlier one; a null shape empties the view. The camera stays,
    /// except that @p fitFirstTime fits the shape into an empty view. Clears the selection.
    void ShowShape(const TopoDS_Shape& shape, bool fitFirstTime = true);

    /// Shows @p shape, which may lie within the part, on top of it in a signal colour; a null shape
    /// removes the highlight.
    void HighlightShape(const TopoDS_Shape& shape);

    /// Marks a point instead of the one marked earlier.
    void ShowPoint(const gp_Pnt& point);
    void HidePoint() { ShowLayer(SceneLayer::Mark, {}); }

    void FitAll();
    /// Turns to a standard view and fits the shape into it.
    void SetStandardView(StandardView view);
    void SetDisplayMode(DisplayMode mode);
    DisplayMode CurrentDisplayMode() const { return m_mode; }
    /// @p place is that of the cut: 0 for the least coordinate of the part, 1 for the greatest.
    void SetSection(Section section, double place = 0.5);

    /// The next click on a face emits FacePicked(). Escape or CancelPicking() ends the wait with
    /// PickingCancelled(); a click beside the part does not.
    void PickFace();
    /// Each click on a face or an edge, as wanted, emits ShapePicked(), until StopPicking(). Escape
    /// or CancelPicking() ends it with PickingCancelled().
    void PickShapes(bool hasFaces, bool hasEdges);
    /// Ends PickShapes() without a signal.
    void StopPicking()
    {
        if (m_isPicking)
            EndPicking();
    }
    void CancelPicking();
    bool IsPicking() const { return m_isPicking; }

    /// Shows @p symbols instead of those before.
    void ShowSymbols(const std::vector<ViewSymbol>& symbols)
    {
        ShowLayer(SceneLayer::Symbols, NewSymbols(symbols));
    }

    /// Shows @p result in place of the part. Picking shows the part again.
    void ShowResult(const Handle(AIS_InteractiveObject) & result)
    {
        ShowLayer(SceneLayer::Result, result);
    }
    /// The object of the result has changed.
    void UpdateResult();
    /// Shows the part again.
    void HideResult();

    QSize sizeHint() const override { return {480, 360}; }

Q_SIGNALS:
    /// @p point is the clicked point, exactly on the surface of the face.
    void FacePicked(const TopoDS_Face& face, const gp_Pnt& point);
    /// @p shape is a face or an edge of the part; @p point is exactly on it.
    void ShapePicked(const TopoDS_Shape& shape, const gp_Pnt& point);
    void PickingCancelled();
    /// A click on a face while nothing is to be picked.
    void FaceClicked(const TopoDS_Shape& face);
    void FaceDoubleClicked(const TopoDS_Shape& face);

    /// The cursor is over this point of the part.
    void PointMoved(const gp_Pnt& point);
    /// The cursor left the part.
    void PointLost();

    /// The part is shown in place of a result.
    void ResultHidden();

    /// The driver has failed; the reason is for the user.
    void Failed(const QString& reason);

protected:
    void initializeGL() override;
    void paintGL() override;
    void resizeGL(int width, int height) override;

    void changeEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    /// Runs @p act on the scene, if there is one, in its context; false if that failed.
    bool WithScene(const std::function<void(PartScene&)>& act);
    void ShowLayer(SceneLayer layer, const Handle(AIS_InteractiveObject) & object);
    void MakeScene();
    void ShowSection();
    void DropScene();
    void Resize(PartScene& scene) const;
    void Fail(const Standard_Failure& failure);
    void EndPicking();
    /// Lets the scene handle the mouse at @p position, and emits the results.
    void HandleMouse(const QPointF& position);
    void TakeClick(const TopoDS_Shape& shape, const gp_Pnt& point);
    void TellPoint(const std::optional<gp_Pnt>& point);
    /// The position in the device's pixels.
    QPoint DevicePosition(const QPointF& position) const
    {
        return (position * devicePixelRatioF()).toPoint();
    }

    std::unique_ptr<PartScene> m_scene; // Of the OpenGL context; null before there is one.
    // The content for a new scene.
    TopoDS_Shape m_shape;
    SceneLayers m_layers;
    Handle(Graphic3d_Camera) m_camera; // Null unless an earlier scene left it.
    StandardView m_firstView = IsometricView;
    bool m_isFitAwaited = false;

    DisplayMode m_mode = ShadedWithEdges;
    Section m_section = NoSection;
    double m_sectionPlace = 0.5;
    bool m_isPicking = false;
    bool m_isPickingMany = false; // Until the host ends it.
    bool m_isDoubleClick = false;
    bool m_isPointKnown = false; // The last signal about the point was PointMoved().
    QPointF m_cursor;            // Where the mouse was last.
    QShortcut* m_escape;
};
