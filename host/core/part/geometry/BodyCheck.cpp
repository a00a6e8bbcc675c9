#include "BodyCheck.h"

#include "Bodies.h"
#include "BodyVolumes.h"
#include "BoundingBox.h"
#include "BuildError.h"
#include "NumberTexts.h"

#include <BRepCheck_Analyzer.hxx>
#include <BRep_Tool.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_MapOfShape.hxx>

#include <cmath>

namespace {

// Of the greatest possible volume. The kernel integrates free-form faces with errors far below it.
constexpr double VolumeTolerance = 1e-4;
// Of the diagonal of the box. The kernel places the faces of a fillet far more precisely.
constexpr double BoxTolerance = 1e-4;

void CheckClosed(const TopoDS_Shape& body)
{
    if (body.ShapeType() != TopAbs_SOLID && body.ShapeType() != TopAbs_COMPSOLID)
        throw BuildError(BuildError::tr("its result is not a solid body."));
    for (TopExp_Explorer shells(body, TopAbs_SHELL); shells.More(); shells.Next()) {
        if (!BRep_Tool::IsClosed(shells.Current()))
            throw BuildError(
                BuildError::tr("its body is not closed; change a size or a position slightly."));
    }
}

void CheckBody(const TopoDS_Shape& body, BodyVolumes& volumes)
{
    CheckClosed(body);
    if (!BRepCheck_Analyzer(body).IsValid())
        throw BuildError(BuildError::tr("its body is not valid: it may touch or cross itself."));
    const double volume = volumes.Of(body);
    // Negated, so that NaN is refused as well.
    if (!(volume > 0.0))
        throw BuildError(BuildError::tr("its body has a volume of %1 mm³, so it is empty or inside "
                                        "out; change a size or a position slightly.")
                             .arg(ShortText(volume)));
}

} // namespace

void CheckNewBodies(const TopoDS_Shape& result, const std::vector<TopoDS_Shape>& inputs,
                    BodyVolumes& volumes)
{
    TopTools_MapOfShape checked;
    for (const TopoDS_Shape& input : inputs) {
        for (const TopoDS_Shape& body : BodiesOf(input))
            checked.Add(AtOrigin(body));
    }
    for (const TopoDS_Shape& body : BodiesOf(result)) {
        if (checked.Add(AtOrigin(body)))
            CheckBody(AtOrigin(body), volumes);
    }
}

void CheckVolume(double volume, double least, double greatest)
{
    const double tolerance = VolumeTolerance * greatest;
    if (volume < least - tolerance || volume > greatest + tolerance)
        throw BuildError(
            BuildError::tr("its result has a volume of %1 mm³, but has to have from %2 to %3 mm³: "
                           "the geometry kernel failed; change a size or a position slightly.")
                .arg(ShortText(volume), ShortText(least), ShortText(greatest)));
}

void CheckWithinBox(const TopoDS_Shape& result, const TopoDS_Shape& input)
{
    const Bnd_Box inner = TightBox(result);
    const Bnd_Box outer = TightBox(input);
    const double tolerance = BoxTolerance * std::sqrt(outer.SquareExtent());
    for (int axis = 1; axis <= 3; ++axis) {
        if (inner.CornerMin().Coord(axis) < outer.CornerMin().Coord(axis) - tolerance ||
            inner.CornerMax().Coord(axis) > outer.CornerMax().Coord(axis) + tolerance)
            throw BuildError(
                BuildError::tr("its result extends beyond the original body: the geometry kernel "
                               "failed; try a smaller radius or another order of features."));
    }
}
