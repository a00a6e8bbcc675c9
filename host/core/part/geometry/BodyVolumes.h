#pragma once

#include <NCollection_DataMap.hxx>
#include <TopTools_ShapeMapHasher.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Mat.hxx>
#include <gp_XYZ.hxx>

/// The volume of a shape, and how it is spread.
struct VolumeMoments
{
    double volume = 0.0; ///< mm3
    gp_XYZ centre;       ///< Of the volume, in mm; the origin if the volume is 0.
    /// The tensor of inertia for a density of 1, about the centre and parallel to the axes, in mm5.
    gp_Mat inertia;
};

/// Volumes in mm3. Each body is measured once, and its copies elsewhere are not measured again.
class BodyVolumes
{
public:
    /// The volume of the bodies of @p shape together. @throws Standard_Failure
    double Of(const TopoDS_Shape& shape);
    /// The moments of the bodies of @p shape together. @throws Standard_Failure
    VolumeMoments MomentsOf(const TopoDS_Shape& shape);

private:
    const VolumeMoments& AtOrigin(const TopoDS_Shape& body);

    NCollection_DataMap<TopoDS_Shape, VolumeMoments, TopTools_ShapeMapHasher> m_measured;
};
