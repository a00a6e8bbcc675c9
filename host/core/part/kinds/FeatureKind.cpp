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

TopoDS_Shape FeatureKind::Built(const BuildInput& input, BodyVolumes& volumes) const
{
    TopoDS_Shape result = build(input);
    CheckNewBodies(result, input.Bodies(), volumes);
    if (check != nullptr)
        check(input, result, volumes);
    return result;
}

std::size_t FeatureKind::IndexOf(const char* key) const
{
    const auto found =
        std::find_if(fields.begin(), fields.end(), [key](const FieldDefinition& field) {
            return field.key == QLatin1String(key);
        });
    return std::size_t(found - fields.begin());
}
