#include "Axes.h"

#include "BuildError.h"

#include <gp.hxx>

#include <cmath>

gp_Dir DirectionOf(const double* components)
{
    const double x = components[0];
    const double y = components[1];
    const double z = components[2];
    // As the kernel tells a direction from none.
    if (std::sqrt(x * x + y * y + z * z) <= gp::Resolution())
        throw BuildError(BuildError::tr("its direction is zero."));
    return gp_Dir(x, y, z);
}

gp_Pnt PointOf(const double* coordinates)
{
    return gp_Pnt(coordinates[0], coordinates[1], coordinates[2]);
}

gp_Ax1 AxisOf(const double* values)
{
    return gp_Ax1(PointOf(values), DirectionOf(values + 3));
}
