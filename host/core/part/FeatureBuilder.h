#pragma once

#include "BuildError.h"

#include <QString>
#include <TopoDS_Shape.hxx>

#include <vector>

class FeatureList;

/// What a list of features builds.
struct BuiltPart
{
    TopoDS_Shape shape; ///< The part: all results that no feature uses. Null when there are none.
    std::vector<TopoDS_Shape> shapes; ///< Of each feature of the list; null where left out.
};

/// Builds the bodies of a feature list with the values that the parameter store holds now.
///
/// The same list and values always give the same shape. docs/manual/modelling.md has the rules.
class FeatureBuilder
{
public:
    static constexpr int MaximumInstances = 10000; ///< Bodies in the result of an array.
    static constexpr int MaximumCombined = 500;    ///< Bodies in one fuse or cut.
    static constexpr int MaximumBodies = 100000;   ///< Of all features together.

    FeatureBuilder() = delete;

    /// Files of imports are looked for in @p folder unless their path is absolute. Everything is
    /// checked before the kernel is called. @throws FeatureError, also for failures of the kernel.
    static BuiltPart Build(const FeatureList& list, const QString& folder = QString());
};
