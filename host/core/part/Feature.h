#pragma once

#include "Profile.h"
#include "ShapeReference.h"

#include <QString>
#include <QStringList>

#include <optional>

struct FeatureKind;

/// One step of a part's history. Its result is a body that later features may use by name.
struct Feature
{
    /// A feature with the default texts of @p featureKind in its fields, and a square as profile if
    /// the kind has one; without name and inputs.
    explicit Feature(const FeatureKind& featureKind);

    QString name;            ///< Unique in its list.
    const FeatureKind* kind; ///< Never null.
    bool suppressed = false; ///< Not built; its first input takes its place.
    QStringList inputs;      ///< Names of earlier features.
    QStringList fields;      ///< Numbers or expressions over the parameters, as the kind has them.
    QString file;            ///< What an import reads; relative to the project's folder.
    /// Where a kind at edges or at a face is, instead of its fields x, y, z.
    std::vector<EdgeReference> edges;
    std::optional<FaceReference> face; ///< As well.
    Profile profile;                   ///< Of a kind with one.

    /// Whether edges or a face replace the fields x, y, z.
    bool HasReferences() const { return !edges.empty() || face.has_value(); }

    bool operator==(const Feature& other) const
    {
        return name == other.name && kind == other.kind && suppressed == other.suppressed &&
               inputs == other.inputs && fields == other.fields && file == other.file &&
               edges == other.edges && face == other.face && profile == other.profile;
    }
    bool operator!=(const Feature& other) const { return !(*this == other); }
};
