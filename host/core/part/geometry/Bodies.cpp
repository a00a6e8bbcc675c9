#include "Bodies.h"

#include <BRep_Builder.hxx>
#include <TopoDS_Compound.hxx>

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
