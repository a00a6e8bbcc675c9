#include "Feature.h"

#include "FeatureKind.h"

Feature::Feature(const FeatureKind& featureKind)
    : kind(&featureKind)
{
    for (const FieldDefinition& field : featureKind.fields)
        fields << field.defaultText;
    if (featureKind.hasProfile)
        profile = SquareProfile();
}
