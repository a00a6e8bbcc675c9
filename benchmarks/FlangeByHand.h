#pragma once

#include "GlobalParaMeterMgr.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAlgoAPI_Cut.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <BRepBndLib.hxx>
#include <BRepCheck_Analyzer.hxx>
#include <BRepFilletAPI_MakeFillet.hxx>
#include <BRepGProp.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <Bnd_Box.hxx>
#include <GProp_GProps.hxx>
#include <GeomAbs_CurveType.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_ListOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Circ.hxx>

#include <cmath>

/// @file
/// The sample flange, built and measured with kernel calls that are written by hand for this part.

inline double Stored(const char* name)
{
    return GlobalParaMeterMgr::GetParameterRawValue(QLatin1String(name)).toDouble();
}

// As ours: every body, not only the part.
inline TopoDS_Shape CheckedBody(const TopoDS_Shape& body)
{
    GProp_GProps properties;
    BRepGProp::VolumeProperties(body, properties);
    return properties.Mass() > 0.0 && BRepCheck_Analyzer(body).IsValid() ? body : TopoDS_Shape();
}

// Moved like the features, which are built at the origin: the kernel needs more time for moved
// bodies.
inline TopoDS_Shape Cylinder(double x, double z, double radius, double height)
{
    gp_Trsf translation;
    translation.SetTranslation(gp_Vec(x, 0.0, z));
    const TopoDS_Shape cylinder = CheckedBody(BRepPrimAPI_MakeCylinder(radius, height).Shape());
    return cylinder.Moved(TopLoc_Location(translation));
}

/// With the values in the parameter store.
inline TopoDS_Shape FlangeByHand()
{
    const double thickness = Stored("thickness");
    const double hubRadius = Stored("hub_diameter") / 2.0;
    const double hubHeight = Stored("hub_height");
    const TopoDS_Shape body =
        CheckedBody(BRepAlgoAPI_Fuse(Cylinder(0.0, 0.0, Stored("outer_diameter") / 2.0, thickness),
                                     Cylinder(0.0, thickness, hubRadius, hubHeight))
                        .Shape());

    TopTools_ListOfShape tools;
    tools.Append(Cylinder(0.0, -1.0, Stored("bore_diameter") / 2.0, thickness + hubHeight + 2.0));
    const TopoDS_Shape hole =
        Cylinder(Stored("bolt_circle") / 2.0, -1.0, Stored("bolt_hole") / 2.0, thickness + 2.0);
    const int count = int(Stored("bolt_count"));
    for (int index = 0; index < count; ++index) {
        gp_Trsf rotation;
        rotation.SetRotation(gp_Ax1(), 2.0 * std::acos(-1.0) * index / count);
        tools.Append(hole.Moved(TopLoc_Location(rotation)));
    }
    TopTools_ListOfShape arguments;
    arguments.Append(body);
    BRepAlgoAPI_Cut cut;
    cut.SetArguments(arguments);
    cut.SetTools(tools);
    cut.Build();

    const TopoDS_Shape drilled = CheckedBody(cut.Shape());
    BRepFilletAPI_MakeFillet fillet(drilled);
    for (TopExp_Explorer edges(drilled, TopAbs_EDGE); edges.More(); edges.Next()) {
        const BRepAdaptor_Curve curve(TopoDS::Edge(edges.Current()));
        if (curve.GetType() == GeomAbs_Circle &&
            std::abs(curve.Circle().Radius() - hubRadius) < 1e-7 &&
            std::abs(curve.Circle().Location().Z() - thickness) < 1e-7) {
            fillet.Add(Stored("fillet_radius"), TopoDS::Edge(edges.Current()));
            break;
        }
    }
    return CheckedBody(fillet.Shape());
}

/// The sum of volume, surface and squared extent: so that nothing is optimised away.
inline double MeasureByHand(const TopoDS_Shape& shape)
{
    GProp_GProps volume;
    BRepGProp::VolumeProperties(shape, volume);
    GProp_GProps area;
    BRepGProp::SurfaceProperties(shape, area);
    Bnd_Box box;
    BRepBndLib::AddOptimal(shape, box, false, false);
    return volume.Mass() + area.Mass() + box.SquareExtent();
}
