#pragma once

#include "HostError.h"
#include "Profile.h"
#include "ShapeReference.h"

#include <QCoreApplication>

/// Why a text is not a corner or a reference: one line.
class FeatureTextError : public HostError
{
    Q_DECLARE_TR_FUNCTIONS(FeatureTextError)

public:
    using HostError::HostError;
};

// Corners of profiles, faces and edges as texts that a user edits. What is written is read as the
// same. Expressions may hold the separators between brackets.

/// "x; y", or "x; y; via x; via y" for an arc.
QString TextOf(const ProfileCorner& corner);
/// @throws FeatureTextError
ProfileCorner CornerOf(const QString& text);

/// A name, or "(x, y, z)". @throws FeatureTextError
FaceReference FaceOf(const QString& text);

/// "FACE | FACE" or "(x, y, z)" for each edge, separated by semicolons.
QString TextOf(const std::vector<EdgeReference>& edges);
/// Empty for a text of blanks. @throws FeatureTextError
std::vector<EdgeReference> EdgesOf(const QString& text);
