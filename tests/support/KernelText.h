#pragma once

#include <QString>
#include <QStringList>
#include <gp_Ax1.hxx>
#include <gp_Trsf.hxx>

#include <cmath>

/// Formats kernel values with 12 significant digits, so that QCOMPARE ignores smaller differences
/// and prints readable values.
inline QString KernelText(const gp_XYZ& value)
{
    const auto number = [](double x) {
        return QString::number(std::abs(x) < 1e-12 ? 0.0 : x, 'g', 12);
    };
    return QStringLiteral("(%1, %2, %3)")
        .arg(number(value.X()), number(value.Y()), number(value.Z()));
}

inline QString KernelText(const gp_Pnt& point)
{
    return KernelText(point.XYZ());
}

inline QString KernelText(const gp_Dir& direction)
{
    return KernelText(direction.XYZ());
}

inline QString KernelText(const gp_Ax1& axis)
{
    return KernelText(axis.Location()) + QStringLiteral(" along ") + KernelText(axis.Direction());
}

/// The images of the origin and of the three unit points.
inline QString KernelText(const gp_Trsf& transform)
{
    QStringList images;
    for (const gp_Pnt& point : {gp_Pnt(0, 0, 0), gp_Pnt(1, 0, 0), gp_Pnt(0, 1, 0), gp_Pnt(0, 0, 1)})
        images << KernelText(point.Transformed(transform));
    return images.join(QStringLiteral(" "));
}
