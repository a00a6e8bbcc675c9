#pragma once

#include "AnalysisDefinition.h"

/// @file
/// Entries of an analysis set-up, as tests need them.

inline ConstraintDefinition Constraint(const QString& name, const char* face = "box.zmin")
{
    ConstraintDefinition constraint;
    constraint.name = name;
    constraint.held = {true, true, true, false, false, false};
    constraint.faces = {{QString::fromLatin1(face), {}}};
    return constraint;
}

inline LoadDefinition Load(const QString& name, const QString& fx = "1", const QString& fy = "0",
                           const QString& fz = "0")
{
    LoadDefinition load;
    load.name = name;
    load.force = {fx, fy, fz};
    load.faces = {{QStringLiteral("box.zmax"), {}}};
    return load;
}

inline PropertyDefinition Property(const QString& name, const QString& material = "Steel S355",
                                   const QString& thickness = QString())
{
    PropertyDefinition property;
    property.name = name;
    property.material = material;
    property.thickness = thickness;
    return property;
}
