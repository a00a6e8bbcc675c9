// The kinds that combine several bodies.

#include "Bodies.h"
#include "BodyCheck.h"
#include "BodyVolumes.h"
#include "BuildError.h"
#include "BuildInput.h"
#include "FaceTrace.h"
#include "FeatureKinds.h"
#include "Seams.h"

#include <BRepAlgoAPI_Common.hxx>
#include <BRepAlgoAPI_Cut.hxx>
#include <BRepAlgoAPI_Fuse.hxx>

#include <algorithm>

namespace {

constexpr int MaximumBodies = 500; // That one feature combines.

void AddInputs(FaceTrace& trace, const BuildInput& input)
{
    int place = 0;
    for (const BuildInput::Body& body : input.Inputs()) {
        if (!body.shape.IsNull())
            trace.AddInput(place, body.shape);
        ++place;
    }
}

// The kernel's time grows with the square of their number, and it cannot be interrupted.
void CheckCount(const BuildInput& input)
{
    const int bodies = CountBodies(Compound(input.Bodies()));
    if (bodies > MaximumBodies)
        throw BuildError(BuildError::tr("too many bodies to combine: %1 (maximum %2).")
                             .arg(bodies)
                             .arg(MaximumBodies));
}

// Body by body: those of one compound may overlap, which the kernel allows only among arguments.
template<class Operation>
TopoDS_Shape Combine(const TopoDS_Shape& first, const std::vector<TopoDS_Shape>& others,
                     FaceTrace& trace)
{
    TopTools_ListOfShape tools;
    for (const TopoDS_Shape& other : others) {
        TopTools_ListOfShape bodies = BodiesOf(other);
        tools.Append(bodies);
    }
    Operation operation;
    operation.SetArguments(BodiesOf(first));
    operation.SetTools(tools);
    operation.Build();
    if (!operation.IsDone() || operation.HasErrors())
        throw BuildError(BuildError::tr("the geometry kernel could not combine the bodies."));
    trace.Follow(operation);
    return operation.Shape();
}

TracedShape CutBody(const BuildInput& input)
{
    if (input.OtherBodies().empty())
        return input.Unchanged();
    CheckCount(input);
    FaceTrace trace;
    AddInputs(trace, input);
    return trace.Of(
        Unwrapped(Combine<BRepAlgoAPI_Cut>(input.FirstBody(), input.OtherBodies(), trace)));
}

TracedShape FuseBody(const BuildInput& input)
{
    const TopoDS_Shape& first = input.FirstBody();
    if (input.OtherBodies().empty())
        return input.Unchanged();
    CheckCount(input);
    FaceTrace trace;
    AddInputs(trace, input);
    const TopoDS_Shape fused = Combine<BRepAlgoAPI_Fuse>(first, input.OtherBodies(), trace);
    return trace.Of(Unwrapped(WithoutSeams(fused, trace)));
}

// One after the other: the kernel would keep what any of them shares with the first.
TracedShape CommonBody(const BuildInput& input)
{
    if (input.OtherBodies().empty())
        return input.Unchanged();
    CheckCount(input);
    FaceTrace trace;
    AddInputs(trace, input);
    TopoDS_Shape common = input.FirstBody();
    for (const TopoDS_Shape& other : input.OtherBodies())
        common = Combine<BRepAlgoAPI_Common>(common, {other}, trace);
    return trace.Of(Unwrapped(common));
}

// Of a single body: those of one compound may overlap, and fused they have less than together.
double LargestVolume(const TopoDS_Shape& shape, BodyVolumes& volumes)
{
    double largest = 0.0;
    VisitBodies(shape,
                [&](const TopoDS_Shape& body) { largest = std::max(largest, volumes.Of(body)); });
    return largest;
}

void CheckFuse(const BuildInput& input, const TopoDS_Shape& result, BodyVolumes& volumes)
{
    const TopoDS_Shape bodies = Compound(input.Bodies());
    CheckVolume(volumes.Of(result), LargestVolume(bodies, volumes), volumes.Of(bodies));
}

void CheckCut(const BuildInput& input, const TopoDS_Shape& result, BodyVolumes& volumes)
{
    const double volume = volumes.Of(result);
    if (volume == 0.0)
        throw BuildError(BuildError::tr("nothing is left of the body."));
    CheckVolume(volume, 0.0, volumes.Of(input.FirstBody()));
}

void CheckCommon(const BuildInput& input, const TopoDS_Shape& result, BodyVolumes& volumes)
{
    const double volume = volumes.Of(result);
    if (volume == 0.0)
        throw BuildError(BuildError::tr("the bodies have no volume in common."));
    double smallest = volumes.Of(input.FirstBody());
    for (const TopoDS_Shape& other : input.OtherBodies())
        smallest = std::min(smallest, volumes.Of(other));
    CheckVolume(volume, 0.0, smallest);
}

FeatureKind Combination(const char* word, const char* title, decltype(FeatureKind::build) build,
                        decltype(FeatureKind::check) check)
{
    FeatureKind kind(word, title, FeatureGroup::Combination);
    kind.minInputs = 2;
    kind.maxInputs = FeatureKind::Unlimited;
    kind.build = build;
    kind.check = check;
    return kind;
}

} // namespace

std::vector<FeatureKind> FeatureKinds::Combinations()
{
    return {Combination("fuse", QT_TRANSLATE_NOOP("FeatureKinds", "Fuse"), FuseBody, CheckFuse),
            Combination("cut", QT_TRANSLATE_NOOP("FeatureKinds", "Cut"), CutBody, CheckCut),
            Combination("common", QT_TRANSLATE_NOOP("FeatureKinds", "Common"), CommonBody,
                        CheckCommon)};
}
