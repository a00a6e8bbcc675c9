#pragma once

#include <QTimer>
#include <QWidget>

class PartView;
class QGridLayout;
class QLabel;
class QVBoxLayout;
class ShapePicture;
class TopoDS_Shape;
struct LineDrawing;
struct ShapeMeasures;

/// Shows the part: in three dimensions, with its measures, and whether the last build succeeded.
///
/// Where there is no OpenGL, a line drawing stands in for the view; the first shape then comes with
/// one warning in the message channel.
class PartPanel : public QWidget
{
    Q_OBJECT

public:
    explicit PartPanel(QWidget* parent);
    ~PartPanel() override;

    /// Shows a shape that was just built; @p lines counts where HasPicture(), @p density is in
    /// kg/m3.
    void ShowShape(const TopoDS_Shape& shape, const LineDrawing& lines,
                   const ShapeMeasures& measures, double density);

    /// Shows what a build is doing, and a button to cancel it. Builds of less than a moment show
    /// neither.
    void ShowProgress(const QString& text);
    void EndProgress();

    /// Shows why the last build failed. The last valid shape and its measures stay.
    void ShowFailure(const QString& reason);

    /// Shows that there is no shape.
    void Clear();

    /// Puts @p bar above the view, and becomes its parent.
    void AddBar(QWidget* bar);

    /// The view, which belongs to this; null where there is no OpenGL.
    PartView* View() const { return m_view; }
    /// Whether a line drawing stands in for the view.
    bool HasPicture() const { return m_picture != nullptr; }

Q_SIGNALS:
    /// The user pressed "Cancel" or Escape while a build was running.
    void CancelWanted();
    /// The view does not work on this system: the lines of the part are needed instead.
    void LinesWanted();

private:
    void FillMeasures(QGridLayout& grid);
    QWidget* NewProgressRow();
    void UsePicture(const QString& reason);
    void Show(const TopoDS_Shape& shape, const LineDrawing& lines);
    void ShowInertia(const ShapeMeasures& measures, double density);
    void ShowOverlaps(const QString& warning);

    PartView* m_view = nullptr;
    ShapePicture* m_picture = nullptr; // In place of the view.
    QVBoxLayout* m_layout;
    QString m_warning; // Why there is a picture; empty once it was posted.
    QLabel* m_status;
    QWidget* m_progressRow;
    QLabel* m_progress;
    QTimer m_progressDelay;
    QLabel* m_volume;
    QLabel* m_area;
    QLabel* m_mass;
    QLabel* m_centre;
    QLabel* m_inertia;
    QLabel* m_size;
    QLabel* m_position;
    QLabel* m_overlaps; // A warning; hidden if there is none.
    QString m_builtAt;  // The time of the last valid shape; empty if there is none.
};
