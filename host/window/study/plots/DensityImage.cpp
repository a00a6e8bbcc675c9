#include "DensityImage.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

// Shortens the line to what is within the picture, whose right and lower sides are outside. Returns
// whether anything is left. Liang and Barsky (1984), ACM Transactions on Graphics 3.
bool Clip(QPointF& from, QPointF& to, int width, int height)
{
    constexpr double Inside = 1e-6;
    const QPointF line = to - from;
    double begin = 0.0;
    double end = 1.0;
    const auto cut = [&](double start, double step, double limit) {
        if (step == 0.0)
            return start >= 0.0 && start <= limit;
        const double atLeast = -start / step;
        const double atGreatest = (limit - start) / step;
        begin = std::max(begin, std::min(atLeast, atGreatest));
        end = std::min(end, std::max(atLeast, atGreatest));
        return begin <= end;
    };
    if (!cut(from.x(), line.x(), width - Inside) || !cut(from.y(), line.y(), height - Inside))
        return false;
    const auto limited = [&](const QPointF& point) {
        return QPointF(std::clamp(point.x(), 0.0, width - Inside),
                       std::clamp(point.y(), 0.0, height - Inside));
    };
    to = limited(from + end * line);
    from = limited(from + begin * line);
    return true;
}

} // namespace

DensityImage::DensityImage(const QSize& size)
    : m_size(size.expandedTo(QSize(1, 1)))
    , m_counts(std::size_t(m_size.width()) * std::size_t(m_size.height()))
{
}

void DensityImage::AddColumn(int x, int begin, int end)
{
    if (x < 0 || x >= m_size.width())
        return;
    int* const column = m_counts.data() + std::ptrdiff_t(x) * m_size.height();
    const int last = std::min(end, m_size.height());
    for (int y = std::max(0, begin); y < last; ++y)
        ++column[y];
}

void DensityImage::AddPoint(const QPoint& point, int size)
{
    const int left = point.x() - size / 2;
    const int top = point.y() - size / 2;
    for (int x = left; x < left + size; ++x)
        AddColumn(x, top, top + size);
}

void DensityImage::AddLine(QPointF from, QPointF to)
{
    if (!std::isfinite(from.x() + from.y() + to.x() + to.y()) ||
        !Clip(from, to, m_size.width(), m_size.height()))
        return;
    if (from.x() > to.x())
        std::swap(from, to);
    const double width = to.x() - from.x();
    const double slope = width > 0.0 ? (to.y() - from.y()) / width : 0.0;
    const int first = int(from.x());
    const int last = int(to.x());
    const std::ptrdiff_t height = m_size.height();
    int* column = m_counts.data() + first * height;
    if (width > 0.0 && std::abs(slope) < 1.0) {
        // One pixel in each column, at its middle.
        constexpr double Middle = 1.5; // Of the next column.
        double y = from.y() + slope * (first + Middle - from.x());
        ++column[int(from.y())];
        for (int x = first + 1; x < last; ++x, y += slope)
            ++(column += height)[int(y)];
        if (last > first)
            ++(column + height)[int(to.y())];
        return;
    }
    int before = int(from.y());
    double y = from.y() + slope * (first + 1.0 - from.x());
    // In each column of pixels, what the line passes through.
    for (int x = first; x <= last; ++x, column += height, y += slope) {
        const int after = x == last ? int(to.y()) : int(y);
        const int begin = std::min(before, after);
        // The end belongs to the next column, and to the line at its own end.
        const int end = std::max(before, after) + (x == last || before == after ? 1 : 0);
        for (int place = begin; place < end; ++place)
            ++column[place];
        before = after;
    }
}

QImage DensityImage::Image(const QColor& color) const
{
    // A single line is to be seen, and many are not to become one area.
    constexpr double Least = 0.45;
    constexpr int FewLines = 64;
    const int most = std::max(FewLines, *std::max_element(m_counts.begin(), m_counts.end()));
    std::vector<QRgb> shades(std::size_t(most) + 1);
    for (std::size_t count = 1; count < shades.size(); ++count) {
        QColor shade = color;
        shade.setAlphaF(Least + (1.0 - Least) * std::log(double(count)) / std::log(double(most)));
        shades[count] = qPremultiply(shade.rgba());
    }
    QImage image(m_size, QImage::Format_ARGB32_Premultiplied);
    const std::ptrdiff_t height = m_size.height();
    for (int y = 0; y < m_size.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const int* count = m_counts.data() + y;
        for (int x = 0; x < m_size.width(); ++x, count += height)
            line[x] = shades[std::size_t(*count)];
    }
    return image;
}
