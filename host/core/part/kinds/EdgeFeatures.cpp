// The kinds that replace edges of a body.

#include "Bodies.h"
#include "BodyCheck.h"
#include "BuildError.h"
#include "BuildInput.h"
#include "CommonFields.h"
#include "FaceTrace.h"
#include "FeatureKinds.h"
#include "NumberTexts.h"
#include "ShapeAtPoint.h"

#include <BRepFilletAPI_MakeFillet.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
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
            return input.Unchanged();
        // It continues along edges that are tangent to this one.
        BRepFilletAPI_MakeFillet fillet(body);
        TopTools_IndexedMapOfShape edges;
        TopExp::MapShapes(body, TopAbs_EDGE, edges);
        fillet.Add(radius, TopoDS::Edge(edges(EdgeAt(body, input.Point()))));
        fillet.Build();
        if (!fillet.IsDone())
            throw BuildError(BuildError::tr("a fillet of %1 mm cannot be built there; it may be "
                                            "too large for the faces beside the edge.")
                                 .arg(ShortText(radius)));
        FaceTrace trace;
        trace.AddInput(0, body);
        trace.Follow(fillet);
        return trace.Of(Unwrapped(fillet.Shape()), QStringLiteral("round"));
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
