#include "ShapeMeasures.h"

#include "KernelSignals.h"

#include <BRepBndLib.hxx>
#include <BRepGProp.hxx>
#include <Bnd_Box.hxx>
#include <GProp_GProps.hxx>
#include <TopoDS_Shape.hxx>

namespace {

ShapeMeasures MeasuresOf(const TopoDS_Shape& shape)
{
    ShapeMeasures measures;
    GProp_GProps volume;
    BRepGProp::VolumeProperties(shape, volume);
    measures.volume = volume.Mass();
    GProp_GProps surface;
    BRepGProp::SurfaceProperties(shape, surface);
    measures.area = surface.Mass();

    // From the exact geometry: the usual box is enlarged by tolerances.
    constexpr bool UseTriangulation = false;
    constexpr bool UseTolerance = false;
    Bnd_Box box;
    BRepBndLib::AddOptimal(shape, box, UseTriangulation, UseTolerance);
    if (!box.IsVoid()) {
        auto& [xMin, yMin, zMin, xMax, yMax, zMax] = measures.boundingBox;
        box.Get(xMin, yMin, zMin, xMax, yMax, zMax);
    }
    return measures;
}

} // namespace

ShapeMeasures Measure(const TopoDS_Shape& shape)
{
    return GuardKernelCall([&shape] { return MeasuresOf(shape); });
}

double Mass(const ShapeMeasures& measures, double density)
{
    constexpr double CubicMillimetresPerCubicMetre = 1e9;
    return measures.volume * density / CubicMillimetresPerCubicMetre;
}
