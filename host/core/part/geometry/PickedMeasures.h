#pragma once

#include <QStringList>

class TopoDS_Shape;

/// What can be measured of the faces and edges in @p shapes, one line each, with units: of one its
/// radius, area or length, of two their least distance and, where both are flat or straight, the
/// angle between them. Empty if there is nothing to measure. @throws Standard_Failure
QStringList MeasurePicked(const TopoDS_Shape& shapes);
