#pragma once

#include "Feature.h"

#include <QJsonArray>
#include <QSet>

#include <vector>

/// The history of a part: features in the order in which they are built. A plain value.
///
/// Changes do not check the list; Check() reports what is wrong with it.
class FeatureList
{
public:
    static constexpr int MaximumSize = 1000; ///< Of a list that can be built.

    const std::vector<Feature>& Features() const { return m_features; }
    int Size() const { return int(m_features.size()); }
    bool IsEmpty() const { return m_features.empty(); }
    const Feature& At(int index) const { return m_features.at(std::size_t(index)); }

    /// The place of the feature called @p name, or -1.
    int Find(const QString& name) const;
    /// Of all features.
    QSet<QString> Names() const;
    /// The names of the features that have @p name as an input.
    QStringList UsersOf(const QString& name) const;
    /// The names of the features that have @p name as an input, or one of its faces as their place.
    QStringList ReferrersOf(const QString& name) const;
    /// @p stem if no feature has this name, otherwise @p stem with the next free number.
    QString UniqueName(const QString& stem) const;

    void Append(const Feature& feature) { Insert(Size(), feature); }
    void Insert(int index, const Feature& feature);
    /// A new name also replaces the former one in the inputs and references of all features.
    void Replace(int index, const Feature& feature);
    void Remove(int index);
    /// Moves the feature at @p from to the place @p to.
    void Move(int from, int to);
    void SetSuppressed(int index, bool suppressed);

    /// Checks names, numbers of inputs and fields, and whether inputs precede their users; does not
    /// evaluate fields. @throws FeatureError
    void Check() const;

    /// Reads the entry "features" of a project. @throws JsonError, also for what Check() reports
    static FeatureList FromJson(const QJsonArray& json);
    QJsonArray ToJson() const;

    bool operator==(const FeatureList& other) const { return m_features == other.m_features; }
    bool operator!=(const FeatureList& other) const { return !(*this == other); }

private:
    std::vector<Feature> m_features;
};
