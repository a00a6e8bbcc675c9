#pragma once

#include <TopTools_DataMapOfShapeReal.hxx>

class TopoDS_Shape;

/// Volumes in mm3. Each body is measured once, and its copies elsewhere are not measured again.
class BodyVolumes
{
public:
    /// The volume of the bodies of @p shape together. @throws Standard_Failure
    double Of(const TopoDS_Shape& shape);

private:
    TopTools_DataMapOfShapeReal m_measured;
};
