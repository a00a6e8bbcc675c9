#pragma once

#include <QWidget>

class ModelView;
class QLabel;
class ShapePicture;
class TopoDS_Shape;

/// Shows the part: in the 3D view or, where there is none, as a line drawing; its measures; and
/// whether the last build succeeded.
class ShapeSummary : public QWidget
{
    Q_OBJECT

public:
    /// Takes @p view, which may be null, over.
    explicit ShapeSummary(QWidget* parent, ModelView* view = nullptr);
    ~ShapeSummary() override;

    /// Shows a shape that was just built; @p density is in kg/m3.
    void ShowShape(const TopoDS_Shape& shape, double density);

    /// Says why the last build failed. What is shown of the last good shape stays.
    void ShowFailure(const QString& reason);

    /// Shows that there is no shape.
    void Clear();

private:
    void ShowInPicture(const TopoDS_Shape& shape);

    ModelView* m_view;
    ShapePicture* m_picture = nullptr; // Where there is no view.
    QLabel* m_status;
    QLabel* m_volume;
    QLabel* m_area;
    QLabel* m_mass;
    QLabel* m_size;
    QLabel* m_position;
    QString m_builtAt; // The time of the last good shape; empty when there is none.
};
