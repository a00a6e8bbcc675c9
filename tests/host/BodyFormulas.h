#pragma once

#include "FeatureBuilder.h"
#include "FeatureList.h"
#include "GlobalParaMeterMgr.h"
#include "GuardedTest.h"

#include <BRepGProp.hxx>
#include <BRepTools.hxx>
#include <GProp_GProps.hxx>
#include <QJsonDocument>
#include <QJsonObject>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS_Shape.hxx>

#include <array>
#include <cmath>
#include <sstream>

// Volumes and centres by formula and by the kernel, and short ways to write lists of features.

const double Pi = std::acos(-1.0);

/// Volume and centre of mass.
struct Mass
{
    double volume = 0.0;
    std::array<double, 3> centre{};
};

inline double Radians(double degrees)
{
    return degrees * Pi / 180.0;
}

// From the moments of the profile: V, z V, and the first moment about the axis per angle.
inline Mass Turned(double volume, double zMoment, double radial, double degrees)
{
    const double angle = Radians(degrees);
    return {volume,
            {std::sin(angle) * radial / volume, (1.0 - std::cos(angle)) * radial / volume,
             zMoment / volume}};
}

inline Mass Box(double x, double y, double z)
{
    return {x * y * z, {x / 2.0, y / 2.0, z / 2.0}};
}

// A truncated cone, and the cylinder where both radii are equal.
inline Mass Cone(double a, double b, double h, double degrees)
{
    const double half = Radians(degrees) / 2.0;
    return Turned(half * h / 3.0 * (a * a + a * b + b * b),
                  half * h * h / 12.0 * (a * a + 2.0 * a * b + 3.0 * b * b),
                  h / 12.0 * (a * a * a + a * a * b + a * b * b + b * b * b), degrees);
}

// The antiderivative of cos^n.
inline double PowerIntegral(int n, double angle)
{
    if (n == 0)
        return angle;
    if (n == 1)
        return std::sin(angle);
    return std::pow(std::cos(angle), n - 1) * std::sin(angle) / n +
           (n - 1.0) / n * PowerIntegral(n - 2, angle);
}

// What the arc from @p from to @p to of a circle of @p r at @p R from the axis encloses with the
// axis: a torus, and for R = 0 a sphere.
inline Mass Ring(double R, double r, double from, double to, double degrees)
{
    const auto c = [&](int n) {
        return PowerIntegral(n, Radians(to)) - PowerIntegral(n, Radians(from));
    };
    const auto s = [&](int n) {
        return (std::pow(std::cos(Radians(from)), n + 1) - std::pow(std::cos(Radians(to)), n + 1)) /
               (n + 1);
    };
    const double half = Radians(degrees) / 2.0;
    return Turned(
        half * r * (R * R * c(1) + 2.0 * R * r * c(2) + r * r * c(3)),
        half * r * r * (R * R * s(1) + 2.0 * R * r * s(2) + r * r * s(3)),
        r / 3.0 *
            (R * R * R * c(1) + 3.0 * R * R * r * c(2) + 3.0 * R * r * r * c(3) + r * r * r * c(4)),
        degrees);
}

// Its sections are rectangles whose sides change linearly, so that Simpson's rule is exact.
inline Mass Wedge(double x, double z, double h, double xmin, double xmax, double zmin, double zmax)
{
    Mass wedge;
    for (const auto& [t, weight] :
         {std::pair(0.0, 1.0), std::pair(0.5, 4.0), std::pair(1.0, 1.0)}) {
        const double left = t * xmin;
        const double right = x + t * (xmax - x);
        const double back = t * zmin;
        const double front = z + t * (zmax - z);
        const double slice = weight * h / 6.0 * (right - left) * (front - back);
        wedge.volume += slice;
        wedge.centre[0] += slice * (left + right) / 2.0;
        wedge.centre[1] += slice * t * h;
        wedge.centre[2] += slice * (back + front) / 2.0;
    }
    for (double& coordinate : wedge.centre)
        coordinate /= wedge.volume;
    return wedge;
}

inline Mass Polygon(int edges, double radius, double length, double dx, double dy, double dz)
{
    const double norm = length / std::sqrt(dx * dx + dy * dy + dz * dz);
    return {edges / 2.0 * radius * radius * std::sin(2.0 * Pi / edges) * std::abs(dz) * norm,
            {dx * norm / 2.0, dy * norm / 2.0, dz * norm / 2.0}};
}

inline Mass Moved(Mass mass, double x, double y, double z)
{
    mass.centre = {mass.centre[0] + x, mass.centre[1] + y, mass.centre[2] + z};
    return mass;
}

// Both together; a negative volume takes away.
inline Mass Sum(const Mass& a, const Mass& b)
{
    Mass sum;
    sum.volume = a.volume + b.volume;
    for (std::size_t axis = 0; axis < 3; ++axis)
        sum.centre[axis] = (a.volume * a.centre[axis] + b.volume * b.centre[axis]) / sum.volume;
    return sum;
}

inline Mass Less(const Mass& a, Mass b)
{
    b.volume = -b.volume;
    return Sum(a, b);
}

inline FeatureList List(const QByteArray& json)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson("[" + json + "]", &error);
    if (error.error != QJsonParseError::NoError)
        FailTest(QString("The test's list is not JSON: %1").arg(QString(json)));
    return FeatureList::FromJson(document.array());
}

inline Mass MassOf(const TopoDS_Shape& shape)
{
    // Adaptive: with the usual number of points a face that is bounded by a curve across its
    // parameters is off by a few parts in 1e9.
    constexpr double Accuracy = 1e-12;
    GProp_GProps properties;
    BRepGProp::VolumeProperties(shape, properties, Accuracy);
    const gp_Pnt centre = properties.CentreOfMass();
    return {properties.Mass(), {centre.X(), centre.Y(), centre.Z()}};
}

inline Mass Built(const QByteArray& json)
{
    return MassOf(FeatureBuilder::Build(List(json)).shape);
}

inline int Count(const TopoDS_Shape& shape, TopAbs_ShapeEnum type)
{
    TopTools_IndexedMapOfShape shapes;
    TopExp::MapShapes(shape, type, shapes);
    return shapes.Extent();
}

inline std::string Text(const TopoDS_Shape& shape)
{
    std::ostringstream text;
    BRepTools::Write(shape, text);
    return text.str();
}

inline QString Reason(const FeatureList& list)
{
    try {
        FeatureBuilder::Build(list);
    } catch (const FeatureError& error) {
        return error.Reason();
    }
    return "it was built";
}

inline bool AreClose(const Mass& built, const Mass& expected)
{
    // The tolerance of a centre is relative to the size of the body.
    const double size = std::max(1.0, std::cbrt(expected.volume));
    bool close = std::abs(built.volume - expected.volume) <= 1e-9 * expected.volume;
    for (std::size_t axis = 0; axis < 3; ++axis)
        close &= std::abs(built.centre[axis] - expected.centre[axis]) <= 1e-9 * size;
    return close;
}

inline QByteArray Shown(const Mass& mass)
{
    return QString("%1 at (%2, %3, %4)")
        .arg(mass.volume, 0, 'g', 15)
        .arg(mass.centre[0], 0, 'g', 13)
        .arg(mass.centre[1], 0, 'g', 13)
        .arg(mass.centre[2], 0, 'g', 13)
        .toUtf8();
}

inline void StoreScalar(const char* name, double value)
{
    ParametersDef record;
    record.m_strName = name;
    record.m_nType = ParametersDef::ScalarType;
    record.m_dValue = value;
    GlobalParaMeterMgr::AddParameter(name, record);
}

const QByteArray A10 = R"({"name": "a", "kind": "box"})";
const QByteArray Brick = R"({"name": "a", "kind": "box", "fields": {"x": 10, "y": 20, "z": 30}})";
