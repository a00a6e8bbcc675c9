#include "CombinedBodies.h"

#include "Bodies.h"
#include "BuildError.h"
#include "FeatureBuilder.h"
#include "NumberTexts.h"
#include "ShapeAtPoint.h"

#include <BRepAlgoAPI_Cut.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <BRepFilletAPI_MakeFillet.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Edge.hxx>
#include <gp_Pnt.hxx>

namespace {

// Body by body: those of one compound may overlap, which the kernel allows only among arguments.
template<class Operation>
TopoDS_Shape Combined(const TopoDS_Shape& first, const std::vector<TopoDS_Shape>& tools)
{
    TopTools_ListOfShape toolBodies;
    for (const TopoDS_Shape& tool : tools) {
        TopTools_ListOfShape bodies = BodiesOf(tool);
        toolBodies.Append(bodies);
    }
    const TopTools_ListOfShape firstBodies = BodiesOf(first);
    // The kernel's time grows with the square of their number, and nothing can stop it meanwhile.
    const int bodies = firstBodies.Size() + toolBodies.Size();
    if (bodies > FeatureBuilder::MaximumCombined)
        throw BuildError(BuildError::tr("%1 bodies would have to be combined; %2 are the most.")
                             .arg(bodies)
                             .arg(FeatureBuilder::MaximumCombined));
    Operation operation;
    operation.SetArguments(firstBodies);
    operation.SetTools(toolBodies);
    operation.Build();
    if (!operation.IsDone() || operation.HasErrors())
        throw BuildError(BuildError::tr("the geometry kernel could not combine the bodies."));
    const TopoDS_Shape result = operation.Shape();
    if (result.IsNull() || !TopExp_Explorer(result, TopAbs_FACE).More())
        throw BuildError(BuildError::tr("nothing is left of the body."));
    return Unwrapped(result);
}

} // namespace

TopoDS_Shape FuseBodies(const TopoDS_Shape& first, const std::vector<TopoDS_Shape>& tools)
{
    return Combined<BRepAlgoAPI_Fuse>(first, tools);
}

TopoDS_Shape CutBodies(const TopoDS_Shape& first, const std::vector<TopoDS_Shape>& tools)
{
    return Combined<BRepAlgoAPI_Cut>(first, tools);
}

TopoDS_Shape FilletBody(const TopoDS_Shape& input, double radius, const gp_Pnt& point)
{
    if (radius == 0.0)
        return input;
    BRepFilletAPI_MakeFillet fillet(input);
    fillet.Add(radius, EdgeAt(input, point));
    fillet.Build();
    if (!fillet.IsDone())
        throw BuildError(BuildError::tr("a fillet of %1 mm cannot be built there; it may be too "
                                        "large for the faces beside the edge.")
                             .arg(ShortText(radius)));
    return Unwrapped(fillet.Shape());
}
