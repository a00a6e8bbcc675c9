#pragma once

#include "LineDrawing.h"

#include <QWidget>

/// Shows a line drawing of a shape, scaled to fit.
class ShapePicture : public QWidget
{
    Q_OBJECT

public:
    explicit ShapePicture(QWidget* parent);
    ~ShapePicture() override;

    /// Draws @p lines from now on. Without lines the picture is empty; where the shape has too many
    /// faces, a text says so.
    void SetLines(const LineDrawing& lines);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    LineDrawing m_lines;
};
