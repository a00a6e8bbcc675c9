#pragma once

#include "FeatureKind.h"
#include "Limits.h"

// Rules and groups of fields that several kinds have.

namespace FieldRules {

constexpr FieldRule Length = {MinimumLength, MaximumLength};
constexpr FieldRule LengthOrZero = {MinimumLength, MaximumLength, FieldRule::Millimetres,
                                    false,         false,         true};
constexpr FieldRule Coordinate = {-MaximumLength, MaximumLength};
constexpr FieldRule Component = {-MaximumLength, MaximumLength, FieldRule::Number};
constexpr FieldRule Turn = {-360.0, 360.0, FieldRule::Degrees};
constexpr FieldRule Sweep = {0.0, 360.0, FieldRule::Degrees, true};

/// A whole number.
constexpr FieldRule Count(int minimum, int maximum)
{
    return {double(minimum), double(maximum), FieldRule::WholeNumber};
}

} // namespace FieldRules

/// x, y and z with labels of the kind's own.
std::vector<FieldDefinition> PointFields(const char* x, const char* y, const char* z);

/// dx, dy and dz; (0, 0, 1) in a new feature.
std::vector<FieldDefinition> DirectionFields();

/// A point on the axis, and its direction.
std::vector<FieldDefinition> AxisFields();

/// Adds the fields that place a body: it is turned about the x axis, then the y axis, then the z
/// axis, and then moved.
void MakePlaced(FeatureKind& kind);

/// @p fields, then @p more.
std::vector<FieldDefinition> Joined(std::vector<FieldDefinition> fields,
                                    const std::vector<FieldDefinition>& more);
