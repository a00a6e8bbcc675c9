#include "ShapeMeasures.h"

#include "Bodies.h"
#include "BodyVolumes.h"
#include "BoundingBox.h"
#include "KernelSignals.h"

#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>
#include <TopTools_DataMapOfShapeReal.hxx>
#include <TopoDS_Shape.hxx>

namespace {

constexpr double CubicMillimetresPerCubicMetre = 1e9;

// Copies of a body are not measured again.
double Area(const TopoDS_Shape& shape)
{
    TopTools_DataMapOfShapeReal measured;
    double sum = 0.0;
    VisitBodies(shape, [&](const TopoDS_Shape& placed) {
        const TopoDS_Shape body = AtOrigin(placed);
        if (!measured.IsBound(body)) {
            GProp_GProps properties;
            BRepGProp::SurfaceProperties(body, properties);
            measured.Bind(body, properties.Mass());
        }
        sum += measured(body);
    });
    return sum;
}

ShapeMeasures MeasuresOf(const TopoDS_Shape& shape, BodyVolumes& volumes)
{
    ShapeMeasures measures;
    const VolumeMoments moments = volumes.MomentsOf(shape);
    measures.volume = moments.volume;
    measures.centre = {moments.centre.X(), moments.centre.Y(), moments.centre.Z()};
    const gp_Mat& tensor = moments.inertia;
    measures.secondMoments = {tensor(1, 1),  tensor(2, 2),  tensor(3, 3),
                              -tensor(1, 2), -tensor(1, 3), -tensor(2, 3)};
    measures.area = Area(shape);
    const Bnd_Box box = TightBox(shape);
    if (!box.IsVoid()) {
        auto& [xMin, yMin, zMin, xMax, yMax, zMax] = measures.boundingBox;
        box.Get(xMin, yMin, zMin, xMax, yMax, zMax);
    }
    measures.overlaps = FindOverlaps(shape);
    return measures;
}

} // namespace

ShapeMeasures Measure(const TopoDS_Shape& shape, BodyVolumes& volumes)
{
    return GuardKernelCall([&] { return MeasuresOf(shape, volumes); });
}

ShapeMeasures Measure(const TopoDS_Shape& shape)
{
    BodyVolumes volumes;
    return Measure(shape, volumes);
}

double ShapeMeasures::Mass(double density) const
{
    return volume * density / CubicMillimetresPerCubicMetre;
}

std::array<double, 6> ShapeMeasures::Inertia(double density) const
{
    std::array<double, 6> inertia = secondMoments;
    for (double& moment : inertia)
        moment *= density / CubicMillimetresPerCubicMetre;
    return inertia;
}
