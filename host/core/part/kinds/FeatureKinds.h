#pragma once

#include "FeatureKind.h"

#include <QCoreApplication>

/// The list of all kinds of features. Each family of kinds has a file of its own.
class FeatureKinds
{
    Q_DECLARE_TR_FUNCTIONS(FeatureKinds)

public:
    FeatureKinds() = delete;

    /// In the order of the menus.
    static const std::vector<FeatureKind>& All();
    /// The kind that is called @p word in files; null if there is none.
    static const FeatureKind* Find(const QString& word);

private:
    static std::vector<FeatureKind> Primitives();
    static std::vector<FeatureKind> Profiles();
    static std::vector<FeatureKind> Imports();
    static std::vector<FeatureKind> Transforms();
    static std::vector<FeatureKind> Arrays();
    static std::vector<FeatureKind> Combinations();
    static std::vector<FeatureKind> EdgeFeatures();
};
