#pragma once

#include "FeatureKinds.h"

#include <map>

/// A feature with the default texts of its kind, and those of @p fields by their keys.
inline Feature NewFeature(const QString& name, FeatureKind kind, const QStringList& inputs = {},
                          const std::map<QString, QString>& fields = {})
{
    Feature feature = FeatureKinds::MakeFeature(kind);
    feature.name = name;
    feature.inputs = inputs;
    const std::vector<FieldKind>& kinds = FeatureKinds::Of(kind).fields;
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        const auto found = fields.find(kinds[i].key);
        if (found != fields.end())
            feature.fields[int(i)] = found->second;
    }
    return feature;
}

/// The text of the field called @p key.
inline QString FieldText(const Feature& feature, const char* key)
{
    const std::vector<FieldKind>& kinds = FeatureKinds::Of(feature.kind).fields;
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        if (kinds[i].key == QLatin1String(key))
            return feature.fields[int(i)];
    }
    qFatal("There is no field \"%s\"", key);
}
