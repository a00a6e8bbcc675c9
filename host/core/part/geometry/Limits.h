#pragma once

// Limits of lengths and angles, for all that the kernel builds.

/// In mm. The kernel's precision, 1e-7 mm, is far below it and far above the rounding error of
/// MaximumLength.
constexpr double MinimumLength = 1e-4;
/// In mm. Of lengths, coordinates and distances.
constexpr double MaximumLength = 1e6;
/// In degrees.
constexpr double MinimumAngle = 1e-3;
