#pragma once

#include <QString>
#include <QStringList>

struct FeatureKind;

/// One step of a part's history. Its result is a body that later features may use by name.
struct Feature
{
    /// A feature with the default texts of @p featureKind in its fields, without name and inputs.
    explicit Feature(const FeatureKind& featureKind);

    QString name;            ///< Unique in its list.
    const FeatureKind* kind; ///< Never null.
    bool suppressed = false; ///< Not built; its first input takes its place.
    QStringList inputs;      ///< Names of earlier features.
    QStringList fields;      ///< Numbers or expressions over the parameters, as the kind has them.
    QString file;            ///< What an import reads; relative to the project's folder.

    bool operator==(const Feature& other) const
    {
        return name == other.name && kind == other.kind && suppressed == other.suppressed &&
               inputs == other.inputs && fields == other.fields && file == other.file;
    }
    bool operator!=(const Feature& other) const { return !(*this == other); }
};
