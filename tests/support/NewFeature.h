#pragma once

#include "Feature.h"
#include "FeatureKinds.h"
#include "GuardedTest.h"

#include <map>

/// The kind that is called @p word in files.
inline const FeatureKind& KindOf(const char* word)
{
    const FeatureKind* const kind = FeatureKinds::Find(word);
    if (kind == nullptr)
        FailTest(QString("There is no kind \"%1\"").arg(word));
    return *kind;
}

/// The place of the field called @p key.
inline int FieldIndex(const Feature& feature, const char* key)
{
    const std::size_t index = feature.kind->IndexOf(key);
    if (index >= feature.kind->fields.size())
        FailTest(QString("There is no field \"%1\"").arg(key));
    return int(index);
}

/// A feature with the default texts of its kind, except for @p fields, by their keys.
inline Feature NewFeature(const QString& name, const char* kind, const QStringList& inputs = {},
                          const std::map<const char*, QString>& fields = {})
{
    Feature feature(KindOf(kind));
    feature.name = name;
    feature.inputs = inputs;
    for (const auto& [key, text] : fields)
        feature.fields[FieldIndex(feature, key)] = text;
    return feature;
}

/// The text of the field called @p key.
inline QString FieldText(const Feature& feature, const char* key)
{
    return feature.fields.at(FieldIndex(feature, key));
}
