// The kinds that combine several bodies.

#include "Bodies.h"
#include "BuildError.h"
#include "BuildInput.h"
#include "FeatureKinds.h"

#include <BRepAlgoAPI_Cut.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <TopExp_Explorer.hxx>

namespace {

constexpr int MaximumBodies = 500; // That one feature combines.

// Body by body: those of one compound may overlap, which the kernel allows only among arguments.
template<class Operation>
TopoDS_Shape Combined(const BuildInput& input)
{
    const TopoDS_Shape& first = input.FirstBody();
    TopTools_ListOfShape tools;
    for (const TopoDS_Shape& tool : input.OtherBodies()) {
        TopTools_ListOfShape bodies = BodiesOf(tool);
        tools.Append(bodies);
    }
    if (tools.IsEmpty())
        return first;
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
    const TopoDS_Shape result = operation.Shape();
    if (result.IsNull() || !TopExp_Explorer(result, TopAbs_FACE).More())
        throw BuildError(BuildError::tr("nothing is left of the body."));
    return Unwrapped(result);
}

template<class Operation>
FeatureKind Combination(const char* word, const char* title)
{
    FeatureKind kind(word, title, FeatureGroup::Combination);
    kind.minInputs = 2;
    kind.maxInputs = FeatureKind::Unlimited;
    kind.build = Combined<Operation>;
    return kind;
}

} // namespace

std::vector<FeatureKind> FeatureKinds::Combinations()
{
    return {Combination<BRepAlgoAPI_Fuse>("fuse", QT_TRANSLATE_NOOP("FeatureKinds", "Fuse")),
            Combination<BRepAlgoAPI_Cut>("cut", QT_TRANSLATE_NOOP("FeatureKinds", "Cut"))};
}
