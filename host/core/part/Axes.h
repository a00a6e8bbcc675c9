#pragma once

#include <gp_Ax1.hxx>
#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>

constexpr double RadiansPerDegree = 3.14159265358979323846 / 180.0;

/// The direction of @p components[0..2], which need not be of length 1. @throws BuildError for zero
gp_Dir DirectionOf(const double* components);

gp_Pnt PointOf(const double* coordinates);

/// A point and a direction, as the fields of an axis stand. @throws BuildError
gp_Ax1 AxisOf(const double* values);
