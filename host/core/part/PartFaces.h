#pragma once

#include "ShapeTargets.h"

#include <QStringList>

#include <utility>
#include <vector>

class TopoDS_Shape;
struct BuiltPart;

/// The names of the faces of a part, and the faces and edges that references mean.
///
/// A face bears the name `FEATURE.FACE` of the feature that made it; a merged face bears several.
/// `FEATURE/NAME` means those faces that went through FEATURE.
///
/// Faces and edges are counted from 1, in the order of TopExp::MapShapes() of the shape of a step,
/// or of the whole part. What is asked for is worked out each time. The part must stay as it is as
/// long as this object is used.
class PartFaces
{
public:
    /// In the place of a step.
    static constexpr int WholePart = -1;

    explicit PartFaces(const BuiltPart& part)
        : m_part(part)
    {
    }

    /// What @p face is called: in the order of the features that made it.
    QStringList NamesOf(int step, int face) const;
    /// The features that @p face went through, from those that made it.
    QStringList FeaturesOf(int step, int face) const;

    /// The faces that bear @p name, which may begin with features and slashes. Ascending; empty if
    /// there are none.
    std::vector<int> Named(int step, const QString& name) const;

    /// The faces that @p target means, ascending and at least one. @throws BuildError
    std::vector<int> Faces(int step, const FaceTarget& target) const;
    /// The edges that @p target means, ascending and at least one. @throws BuildError
    std::vector<int> Edges(int step, const EdgeTarget& target) const;

private:
    using Place = std::pair<int, int>; // A step and a face of it.
    using Matches = unsigned;          // Of the patterns that a face matches, one bit each.

    const TopoDS_Shape& ShapeOf(int step) const;
    Place MadeAt(Place place) const;
    std::vector<Place> PlacesInPart(int face) const;
    std::vector<Place> HistoryOf(int step, int face) const;
    std::vector<bool> NeededFor(int step) const;
    std::vector<std::vector<Matches>> MatchesOf(int step, const QStringList& patterns) const;

    const BuiltPart& m_part;
};
