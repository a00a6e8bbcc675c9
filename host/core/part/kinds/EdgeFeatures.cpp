// The kinds that replace edges of a body.

#include "Bodies.h"
#include "BodyCheck.h"
#include "BuildError.h"
#include "BuildInput.h"
#include "CommonFields.h"
#include "FeatureKinds.h"
#include "NumberTexts.h"
#include "ShapeAtPoint.h"

#include <BRepFilletAPI_MakeFillet.hxx>
#include <TopoDS_Edge.hxx>

using namespace FieldRules;

namespace {

FeatureKind Fillet()
{
    FeatureKind kind("fillet", QT_TRANSLATE_NOOP("FeatureKinds", "Fillet"),
                     FeatureGroup::Combination);
    kind.minInputs = 1;
    kind.maxInputs = 1;
    kind.fields =
        Joined({{"radius", QT_TRANSLATE_NOOP("FeatureKinds", "Radius"), "1", LengthOrZero}},
               PointFields(QT_TRANSLATE_NOOP("FeatureKinds", "Point on edge x"),
                           QT_TRANSLATE_NOOP("FeatureKinds", "Point on edge y"),
                           QT_TRANSLATE_NOOP("FeatureKinds", "Point on edge z")));
    kind.build = [](const BuildInput& input) {
        const TopoDS_Shape& body = input.FirstBody();
        const double radius = input.Value("radius");
        if (radius == 0.0)
            return body;
        // It continues along edges that are tangent to this one.
        BRepFilletAPI_MakeFillet fillet(body);
        fillet.Add(radius, EdgeAt(body, input.Point()));
        fillet.Build();
        if (!fillet.IsDone())
            throw BuildError(BuildError::tr("a fillet of %1 mm cannot be built there; it may be "
                                            "too large for the faces beside the edge.")
                                 .arg(ShortText(radius)));
        return Unwrapped(fillet.Shape());
    };
    kind.check = [](const BuildInput& input, const TopoDS_Shape& result, BodyVolumes&) {
        CheckWithinBox(result, input.FirstBody());
    };
    return kind;
}

} // namespace

std::vector<FeatureKind> FeatureKinds::EdgeFeatures()
{
    return {Fillet()};
}
