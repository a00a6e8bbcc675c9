#pragma once

#include <QColor>
#include <QImage>
#include <QPoint>

#include <vector>

/// Draws many thousand points or lines in one colour, far faster than a painter: where more of them
/// meet, the colour is stronger.
class DensityImage
{
public:
    explicit DensityImage(const QSize& size);

    /// A point of @p size by @p size pixels.
    void AddPoint(const QPoint& point, int size);
    /// A line that is one pixel wide. Both ends may be outside.
    void AddLine(QPointF from, QPointF to);

    /// With a transparent ground.
    QImage Image(const QColor& color) const;

private:
    void Add(int x, int y)
    {
        if (x >= 0 && y >= 0 && x < m_size.width() && y < m_size.height())
            ++m_counts[std::size_t(y) * std::size_t(m_size.width()) + std::size_t(x)];
    }

    QSize m_size;
    std::vector<int> m_counts;
};
