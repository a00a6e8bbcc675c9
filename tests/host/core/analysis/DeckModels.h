#pragma once

#include "Meshed.h"
#include "ModelBuilder.h"
#include "PlanParts.h"
#include "ShapeIndex.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>

/// A block that stands on its bottom, with a force on its top; meshed in the working directory.
inline FiniteElementModel SolidModel(const QString& name = "clamp")
{
    const TopoDS_Shape shape =
        BRepPrimAPI_MakeBox(gp_Pnt(-20.0, 0.1, 0.0), 40.0, 30.0, 20.0).Shape();
    AnalysisPlan plan;
    plan.properties = {SteelSolid()};
    plan.constraints = {OnFaces(name, AllFreedoms, {FaceAt(shape, 0, 15, 0)})};
    plan.loads = {LoadOnFaces(name, {1.0 / 3.0, -2e3, 1e-3}, {FaceAt(shape, 0, 15, 20)})};
    return BuildModel(Meshed(shape, OfSize(10)), plan).model;
}

/// The side and the top of a cylinder as shells of two thicknesses, with triangles and
/// quadrilaterals, held at the lower edge.
inline FiniteElementModel ShellModel(const QString& name = "clamp")
{
    const TopoDS_Shape shape = BRepPrimAPI_MakeCylinder(20.0, 30.0).Shape();
    const int side = FaceAt(shape, 20, 0, 15);
    const int top = FaceAt(shape, 0, 0, 30);
    AnalysisPlan plan;
    plan.properties = {SteelShell(name, 1.0 / 3.0, {side}), SteelShell(name + "2", 2.5, {top})};
    plan.constraints = {
        OnEdges(name, {true, true, true, false, false, true}, {EdgeAt(shape, 0, 20, 0)})};
    plan.loads = {LoadOnEdges(name, {0, 0, -100}, {EdgeAt(shape, 0, 20, 30)})};
    MeshRequest request = OfSize(6);
    request.shellFaces = plan.ShellFaces();
    return BuildModel(Meshed(shape, request), plan).model;
}
