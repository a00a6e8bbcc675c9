#pragma once

#include "BuildError.h"

#include <QString>
#include <TopoDS_Shape.hxx>

#include <vector>

class FeatureList;

/// What a list of features builds.
struct BuiltPart
{
    TopoDS_Shape shape; ///< The part: all results that no feature uses. Null if there are none.
    std::vector<TopoDS_Shape> shapes; ///< Of each feature; null where nothing was built.
};

/// Builds the bodies of a feature list with the values that the parameter store holds now.
///
/// The same list and values always give the same shape. docs/manual/modelling.md has the rules.
class FeatureBuilder
{
public:
    static constexpr int MaximumBodies = 100000; ///< Of all features together.

    FeatureBuilder() = delete;

    /// Paths of imports are relative to @p folder. Values are checked before the kernel is called.
    /// @throws FeatureError, also if the kernel fails
    static BuiltPart Build(const FeatureList& list, const QString& folder = QString());
};
