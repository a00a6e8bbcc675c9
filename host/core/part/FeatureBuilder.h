#pragma once

#include "BodyVolumes.h"
#include "BuildError.h"
#include "PartPlan.h"
#include "ResultCache.h"

#include <QString>
#include <TopoDS_Shape.hxx>

#include <functional>
#include <vector>

class FeatureList;

/// What a list of features builds.
struct BuiltPart
{
    TopoDS_Shape shape; ///< The part: all results that no feature uses. Null if there are none.
    std::vector<TopoDS_Shape> shapes; ///< Of each feature; null where nothing was built.
    /// Of each shape. Equal keys mean equal shapes; empty where nothing was built.
    std::vector<QByteArray> keys;
};

/// Builds the bodies of a plan, each feature after those that it uses.
///
/// The same plan always gives the same shape. docs/manual/modelling.md has the rules.
class FeatureBuilder
{
public:
    static constexpr int MaximumBodies = 100000; ///< Of all features together.

    /// Called before a step is built; does not return if it throws.
    using Progress = std::function<void(int step)>;

    /// Results are kept in @p cache, and taken from there.
    explicit FeatureBuilder(ResultCache& cache)
        : m_cache(cache)
    {
    }

    /// @throws FeatureError, also if the kernel fails
    BuiltPart Build(const PartPlan& plan, const Progress& progress = {});

    /// Builds with the values that the parameter store holds now, without a cache. Paths of imports
    /// are relative to @p folder. @throws BuildError
    static BuiltPart Build(const FeatureList& list, const QString& folder = QString());

private:
    void Add(const BuildStep& step, const PartPlan& plan, BuiltPart& part,
             const Progress& progress);
    QByteArray KeyOf(const BuildStep& step, const BuiltPart& part);

    ResultCache& m_cache;
    BodyVolumes m_volumes;
};

/// The part that consists of those of @p shapes that no step of @p plan uses. Null if there are
/// none.
TopoDS_Shape WholePart(const PartPlan& plan, const std::vector<TopoDS_Shape>& shapes);
