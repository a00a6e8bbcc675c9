#include "DensityImage.h"

#include <algorithm>
#include <cmath>
#include <utility>

DensityImage::DensityImage(const QSize& size)
    : m_size(size.expandedTo(QSize(1, 1)))
    , m_counts(std::size_t(m_size.width()) * std::size_t(m_size.height()))
{
}

void DensityImage::AddPoint(const QPoint& point, int size)
{
    const int left = point.x() - size / 2;
    const int top = point.y() - size / 2;
    for (int y = top; y < top + size; ++y) {
        for (int x = left; x < left + size; ++x)
            Add(x, y);
    }
}

void DensityImage::AddLine(QPointF from, QPointF to)
{
    if (!std::isfinite(from.x() + from.y() + to.x() + to.y()))
        return;
    if (from.x() > to.x())
        std::swap(from, to);
    const int first = std::max(0, int(std::floor(from.x())));
    const int last = std::min(m_size.width() - 1, int(std::floor(to.x())));
    const double width = to.x() - from.x();
    const double slope = width > 0.0 ? (to.y() - from.y()) / width : 0.0;
    const double lowest = double(m_size.height());
    const auto heightAt = [&](double x) {
        const double y = from.y() + slope * (std::clamp(x, from.x(), to.x()) - from.x());
        return int(std::clamp(y, -1.0, lowest));
    };
    // In each column of pixels, what the line passes through.
    for (int x = first; x <= last; ++x) {
        int begin = width > 0.0 ? heightAt(x) : int(std::clamp(from.y(), -1.0, lowest));
        int end = width > 0.0 ? heightAt(x + 1.0) : int(std::clamp(to.y(), -1.0, lowest));
        if (begin > end)
            std::swap(begin, end);
        for (int y = begin; y < std::max(begin + 1, end); ++y)
            Add(x, y);
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
    std::size_t place = 0;
    for (int y = 0; y < m_size.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < m_size.width(); ++x)
            line[x] = shades[std::size_t(m_counts[place++])];
    }
    return image;
}
