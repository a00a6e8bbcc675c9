#include "FeatureKind.h"

#include "BodyCheck.h"
#include "BuildInput.h"
#include "FeatureKinds.h"

#include <algorithm>

QString FieldDefinition::Label() const
{
    return FeatureKinds::tr(label);
}

QString FeatureKind::Title() const
{
    return FeatureKinds::tr(title);
}

TracedShape FeatureKind::Built(const BuildInput& input, BodyVolumes& volumes) const
{
    TracedShape result = build(input);
    // The order of the faces stays, and so do their origins.
    if (isPlaced)
        result.shape.Move(input.Placement());
    CheckNewBodies(result.shape, input.Bodies(), volumes);
    if (check != nullptr)
        check(input, result.shape, volumes);
    return result;
}

bool FeatureKind::IsPosition(const FieldDefinition& field) const
{
    return (isAtFace || isAtEdges) &&
           (field.key == QLatin1String("x") || field.key == QLatin1String("y") ||
            field.key == QLatin1String("z"));
}

std::size_t FeatureKind::IndexOf(const char* key) const
{
    const auto found =
        std::find_if(fields.begin(), fields.end(), [key](const FieldDefinition& field) {
            return field.key == QLatin1String(key);
        });
    return std::size_t(found - fields.begin());
}
