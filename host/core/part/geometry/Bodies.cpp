#include "Bodies.h"

#include "BuildError.h"

#include <BRepCheck_Analyzer.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Iterator.hxx>

namespace {

template<class Visitor>
void VisitBodies(const TopoDS_Shape& shape, const Visitor& visit)
{
    if (shape.ShapeType() != TopAbs_COMPOUND) {
        visit(shape);
        return;
    }
    for (TopoDS_Iterator parts(shape); parts.More(); parts.Next())
        VisitBodies(parts.Value(), visit);
}

} // namespace

TopTools_ListOfShape BodiesOf(const TopoDS_Shape& shape)
{
    TopTools_ListOfShape bodies;
    VisitBodies(shape, [&](const TopoDS_Shape& body) { bodies.Append(body); });
    return bodies;
}

int CountBodies(const TopoDS_Shape& shape)
{
    int count = 0;
    VisitBodies(shape, [&](const TopoDS_Shape&) { ++count; });
    return count;
}

TopoDS_Shape Compound(const std::vector<TopoDS_Shape>& shapes)
{
    const BRep_Builder builder;
    TopoDS_Compound compound;
    builder.MakeCompound(compound);
    for (const TopoDS_Shape& shape : shapes)
        builder.Add(compound, shape);
    return compound;
}

TopoDS_Shape Unwrapped(const TopoDS_Shape& shape)
{
    return CountBodies(shape) == 1 ? BodiesOf(shape).First() : shape;
}

void CheckBodies(const TopoDS_Shape& shape)
{
    TopTools_MapOfShape checked;
    VisitBodies(shape, [&](const TopoDS_Shape& placed) {
        const TopoDS_Shape body = placed.Located(TopLoc_Location());
        if (!checked.Add(body))
            return;
        for (TopExp_Explorer solids(body, TopAbs_SOLID); solids.More(); solids.Next()) {
            for (TopExp_Explorer shells(solids.Current(), TopAbs_SHELL); shells.More();
                 shells.Next()) {
                if (!BRep_Tool::IsClosed(shells.Current()))
                    throw BuildError(BuildError::tr("its body is not closed."));
            }
        }
        if (!BRepCheck_Analyzer(body).IsValid())
            throw BuildError(
                BuildError::tr("its body is not valid: it may touch or cross itself."));
    });
}
