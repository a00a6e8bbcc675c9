#include "Triangles.h"

#include "Angles.h"
#include "KernelSignals.h"

#include <BRepBndLib.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <BRepTools.hxx>
#include <Bnd_Box.hxx>
#include <TopoDS_Shape.hxx>

#include <IMeshTools_Parameters.hxx>

#include <algorithm>

void AddTriangles(const TopoDS_Shape& shape)
{
    GuardKernelCall([&shape] {
        constexpr bool UseTriangulation = false;
        Bnd_Box box;
        BRepBndLib::Add(shape, box, UseTriangulation);
        if (box.IsVoid())
            return;
        // The view's own rule: a fraction of the longest side of the box.
        constexpr double Fraction = 0.004;
        constexpr double Angle = 20.0;
        const gp_Vec diagonal(box.CornerMin(), box.CornerMax());
        const double longest = std::max({diagonal.X(), diagonal.Y(), diagonal.Z()});
        IMeshTools_Parameters parameters;
        parameters.Deflection = longest * Fraction;
        parameters.Angle = Angle * tarn::RadiansPerDegree;
        // Three times as fast as the default on faces with many holes.
        parameters.MeshAlgo = IMeshTools_MeshAlgoType_Delabella;
        const BRepMesh_IncrementalMesh mesh(shape, parameters);
    });
}

void RemoveTriangles(const TopoDS_Shape& shape)
{
    BRepTools::Clean(shape);
}
