// The kinds that combine several bodies.

#include "Bodies.h"
#include "BodyCheck.h"
#include "BodyVolumes.h"
#include "BuildError.h"
#include "BuildInput.h"
#include "FaceTrace.h"
#include "FeatureKinds.h"

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

// Body by body: those of one compound may overlap, which the kernel allows only among arguments.
template<class Operation>
TracedShape Combined(const BuildInput& input)
{
    const TopoDS_Shape& first = input.FirstBody();
    TopTools_ListOfShape tools;
    for (const TopoDS_Shape& tool : input.OtherBodies()) {
        TopTools_ListOfShape bodies = BodiesOf(tool);
        tools.Append(bodies);
    }
    if (tools.IsEmpty())
        return input.Unchanged();
    const TopTools_ListOfShape arguments = BodiesOf(first);
    // The kernel's time grows with the square of their number, and it cannot be interrupted.
    const int bodies = arguments.Size() + tools.Size();
    if (bodies > MaximumBodies)
        throw BuildError(BuildError::tr("too many bodies to combine: %1 (maximum %2).")
                             .arg(bodies)
                             .arg(MaximumBodies));
    Operation operation;
    operation.SetArguments(arguments);
    operation.SetTools(tools);
    operation.Build();
    if (!operation.IsDone() || operation.HasErrors())
        throw BuildError(BuildError::tr("the geometry kernel could not combine the bodies."));
    FaceTrace trace;
    AddInputs(trace, input);
    trace.Follow(operation);
    return trace.Of(Unwrapped(operation.Shape()));
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

template<class Operation>
FeatureKind Combination(const char* word, const char* title, decltype(FeatureKind::check) check)
{
    FeatureKind kind(word, title, FeatureGroup::Combination);
    kind.minInputs = 2;
    kind.maxInputs = FeatureKind::Unlimited;
    kind.build = Combined<Operation>;
    kind.check = check;
    return kind;
}

} // namespace

std::vector<FeatureKind> FeatureKinds::Combinations()
{
    return {
        Combination<BRepAlgoAPI_Fuse>("fuse", QT_TRANSLATE_NOOP("FeatureKinds", "Fuse"), CheckFuse),
        Combination<BRepAlgoAPI_Cut>("cut", QT_TRANSLATE_NOOP("FeatureKinds", "Cut"), CheckCut)};
}
