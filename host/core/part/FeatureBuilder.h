#pragma once

#include "BuildError.h"
#include "BuiltPart.h"
#include "ResultCache.h"

#include <QString>

#include <functional>

class FeatureList;

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
    void Add(const BuildStep& step, BuiltPart& part, const Progress& progress);
    QByteArray KeyOf(const BuildStep& step, const BuiltPart& part);

    ResultCache& m_cache;
};
