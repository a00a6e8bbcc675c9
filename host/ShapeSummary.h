#pragma once

#include <QWidget>

class QLabel;
class ShapePicture;
class TopoDS_Shape;

/// Shows the part: a picture, its measures, and whether the last build succeeded.
class ShapeSummary : public QWidget
{
    Q_OBJECT

public:
    explicit ShapeSummary(QWidget* parent);
    ~ShapeSummary() override;

    /// Shows a shape that was just built; @p density is in kg/m3.
    void ShowShape(const TopoDS_Shape& shape, double density);

    /// Says why the last build failed. What is shown of the last good shape stays.
    void ShowFailure(const QString& reason);

    /// Shows that there is no shape.
    void Clear();

private:
    ShapePicture* m_picture;
    QLabel* m_status;
    QLabel* m_volume;
    QLabel* m_area;
    QLabel* m_mass;
    QLabel* m_size;
    QLabel* m_position;
    QString m_builtAt; // The time of the last good shape; empty when there is none.
};
