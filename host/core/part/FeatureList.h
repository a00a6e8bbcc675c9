#pragma once

#include "Feature.h"

#include <QJsonArray>

#include <vector>

/// The history of a part: features in the order in which they are built. A plain value.
///
/// The changes below keep no order and need no valid list; Check() tells what is wrong.
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
    /// Whether another feature uses @p name.
    QStringList UsersOf(const QString& name) const;
    /// @p stem if no feature is called so, otherwise @p stem with the next free number.
    QString UniqueName(const QString& stem) const;

    void Append(const Feature& feature) { Insert(Size(), feature); }
    void Insert(int index, const Feature& feature);
    /// Where the name changes, those that use the feature use the new name.
    void Replace(int index, const Feature& feature);
    void Remove(int index);
    /// Takes the feature at @p from out and puts it in so that it stands at @p to.
    void Move(int from, int to);
    void SetSuppressed(int index, bool suppressed);

    /// Looks at names, numbers of inputs and fields, and whether inputs stand before their users;
    /// the fields' texts are not evaluated. @throws FeatureError
    void Check() const;

    /// Reads the entry "features" of a project. @throws JsonError, also for what Check() refuses.
    static FeatureList FromJson(const QJsonArray& json);
    QJsonArray ToJson() const;

    bool operator==(const FeatureList& other) const { return m_features == other.m_features; }
    bool operator!=(const FeatureList& other) const { return !(*this == other); }

private:
    std::vector<Feature> m_features;
};
