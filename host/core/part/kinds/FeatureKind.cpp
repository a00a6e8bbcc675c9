#include "FeatureKind.h"

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

std::size_t FeatureKind::IndexOf(const char* key) const
{
    const auto found =
        std::find_if(fields.begin(), fields.end(), [key](const FieldDefinition& field) {
            return field.key == QLatin1String(key);
        });
    return std::size_t(found - fields.begin());
}
