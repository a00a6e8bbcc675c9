#pragma once

/// @file
/// Constants for angles.

namespace tarn {

constexpr double Pi = 3.14159265358979323846;
constexpr double RadiansPerDegree = Pi / 180.0;

} // namespace tarn
