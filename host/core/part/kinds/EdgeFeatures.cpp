// The kinds that replace edges of a body.

#include "Bodies.h"
#include "BodyCheck.h"
#include "BuildError.h"
#include "BuildInput.h"
#include "CommonFields.h"
#include "FaceTrace.h"
#include "FeatureKinds.h"
#include "NumberTexts.h"

#include <BRepFilletAPI_MakeChamfer.hxx>
#include <BRepFilletAPI_MakeFillet.hxx>
#include <TopoDS_Edge.hxx>

using namespace FieldRules;

namespace {

// A kind that replaces edges by faces of one size. Each edge takes those along that are tangent to
// it.
template<class Operation>
TracedShape WithEdgesReplaced(const BuildInput& input, double size, const QString& word)
{
    const TopoDS_Shape& body = input.FirstBody();
    if (size == 0.0)
        return input.Unchanged();
    Operation operation(body);
    for (const TopoDS_Edge& edge : input.Edges()) {
        if (operation.Contour(edge) == 0)
            operation.Add(size, edge);
    }
    operation.Build();
    if (!operation.IsDone())
        return {};
    FaceTrace trace;
    trace.AddInput(0, body);
    trace.Follow(operation);
    return trace.Of(Unwrapped(operation.Shape()), word);
}

FeatureKind AtEdges(const char* word, const char* title, const FieldDefinition& size)
{
    FeatureKind kind(word, title, FeatureGroup::Edge);
    kind.minInputs = 1;
    kind.maxInputs = 1;
    kind.isAtEdges = true;
    kind.fields = Joined({size}, PointFields(QT_TRANSLATE_NOOP("FeatureKinds", "Point on edge x"),
                                             QT_TRANSLATE_NOOP("FeatureKinds", "Point on edge y"),
                                             QT_TRANSLATE_NOOP("FeatureKinds", "Point on edge z")));
    kind.check = [](const BuildInput& input, const TopoDS_Shape& result, BodyVolumes&) {
        CheckWithinBox(result, input.FirstBody());
    };
    return kind;
}

FeatureKind Fillet()
{
    FeatureKind kind =
        AtEdges("fillet", QT_TRANSLATE_NOOP("FeatureKinds", "Fillet"),
                {"radius", QT_TRANSLATE_NOOP("FeatureKinds", "Radius"), "1", LengthOrZero});
    kind.build = [](const BuildInput& input) {
        const double radius = input.Value("radius");
        TracedShape result =
            WithEdgesReplaced<BRepFilletAPI_MakeFillet>(input, radius, QStringLiteral("round"));
        if (result.shape.IsNull())
            throw BuildError(BuildError::tr("a fillet of %1 mm cannot be built there; it may be "
                                            "too large for the faces beside the edge.")
                                 .arg(ShortText(radius)));
        return result;
    };
    return kind;
}

FeatureKind Chamfer()
{
    FeatureKind kind =
        AtEdges("chamfer", QT_TRANSLATE_NOOP("FeatureKinds", "Chamfer"),
                {"distance", QT_TRANSLATE_NOOP("FeatureKinds", "Distance"), "1", LengthOrZero});
    kind.build = [](const BuildInput& input) {
        const double distance = input.Value("distance");
        TracedShape result =
            WithEdgesReplaced<BRepFilletAPI_MakeChamfer>(input, distance, QStringLiteral("bevel"));
        if (result.shape.IsNull())
            throw BuildError(BuildError::tr("a chamfer of %1 mm cannot be built there; it may be "
                                            "too large for the faces beside the edge.")
                                 .arg(ShortText(distance)));
        return result;
    };
    return kind;
}

} // namespace

std::vector<FeatureKind> FeatureKinds::EdgeFeatures()
{
    return {Fillet(), Chamfer()};
}
