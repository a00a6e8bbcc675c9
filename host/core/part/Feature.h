#pragma once

#include <QString>
#include <QStringList>

/// What a feature does. FeatureKinds tells everything else about a kind.
enum class FeatureKind
{
    Box,
    Cylinder,
    Sphere,
    Torus,
    Cone,
    Wedge,
    Polygon,
    Move,
    Rotate,
    MirrorPoint,
    MirrorAxis,
    MirrorFace,
    PolarArray,
    RectangularArray,
    Fuse,
    Cut,
    Fillet,
    StepImport
};

/// One step of a part's history. Its result is a body that later features may use by name.
struct Feature
{
    QString name; ///< Unique in its list.
    FeatureKind kind = FeatureKind::Box;
    bool suppressed = false; ///< Left out of the part; its first input stands in for it.
    QStringList inputs;      ///< Names of earlier features.
    QStringList fields;      ///< Numbers or expressions over the parameters, as the kind has them.
    QString file;            ///< What StepImport reads; relative to the project's folder.

    bool operator==(const Feature& other) const
    {
        return name == other.name && kind == other.kind && suppressed == other.suppressed &&
               inputs == other.inputs && fields == other.fields && file == other.file;
    }
    bool operator!=(const Feature& other) const { return !(*this == other); }
};
