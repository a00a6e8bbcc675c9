#pragma once

#include "ResultColumns.h"
#include "StudySelection.h"
#include "StudyTable.h"
#include "TestCase.h"

#include <algorithm>
#include <cmath>

/// @file
/// Runs to plot, and a plot of them in a window.

/// Runs of the parameters a and b, on a grid of @p side by @p side values from 1 on, and the
/// constant c. The sum is a + b, the product a * b; it is missing where a is 1 and b is 2.
inline ResultColumns GridRuns(int side)
{
    ResultColumns columns({"a", "b", "c"}, {"sum", "product"});
    int run = 0;
    for (int a = 1; a <= side; ++a) {
        for (int b = 1; b <= side; ++b) {
            const bool isMissing = a == 1 && b == 2;
            columns.Take(std::vector<QByteArray>{
                QByteArray::number(++run), QByteArray::number(a), QByteArray::number(b), "7",
                QByteArray::number(a + b), isMissing ? QByteArray() : QByteArray::number(a * b),
                "ok", ""});
        }
    }
    return columns;
}

/// A plot of the grid's runs.
template<class Plot>
struct ShownPlot
{
    explicit ShownPlot(int side = 5)
    {
        table.Take(GridRuns(side));
        plot.resize(600, 500);
        plot.show();
        QVERIFY(QTest::qWaitForWindowExposed(&plot));
    }

    /// The numbers of the selected runs.
    std::vector<int> SelectedRuns() const
    {
        std::vector<int> runs;
        for (const int row : selection.Rows())
            runs.push_back(table.Columns().Run(row));
        std::sort(runs.begin(), runs.end());
        return runs;
    }

    StudySelection selection;
    StudyTable table{selection};
    Plot plot{table, selection, nullptr};
};

/// A plot of nine runs, as SVG; the parameter a is in mm.
template<class Plot>
QByteArray SvgWithUnits()
{
    ShownPlot<Plot> shown;
    ResultColumns columns({"a", "b"}, {"sum"}, {{"a", "mm"}});
    for (int run = 0; run < 9; ++run) {
        const int a = 1 + run / 3;
        const int b = 1 + run % 3;
        columns.Take(std::vector<QByteArray>{QByteArray::number(run + 1), QByteArray::number(a),
                                             QByteArray::number(b), QByteArray::number(a + b), "ok",
                                             ""});
    }
    shown.table.Take(columns);
    return shown.plot.Svg();
}

/// Drags with the left button.
inline void Drag(QWidget& widget, const QPoint& from, const QPoint& to)
{
    QTest::mousePress(&widget, Qt::LeftButton, {}, from);
    QTest::mouseMove(&widget, (from + to) / 2);
    QTest::mouseMove(&widget, to);
    QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
}

/// How many pixels of a picture are close to @p color.
inline int PixelsLike(const QImage& image, const QColor& color)
{
    constexpr int Near = 40;
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (std::abs(pixel.red() - color.red()) < Near &&
                std::abs(pixel.green() - color.green()) < Near &&
                std::abs(pixel.blue() - color.blue()) < Near)
                ++count;
        }
    }
    return count;
}
