#pragma once

#include "Conditions.h"
#include "FeatureBuilder.h"
#include "FeatureList.h"
#include "HostError.h"

#include <QObject>
#include <QUndoStack>

/// Why a change of the features is refused: one line.
class ModellingError : public HostError
{
public:
    using HostError::HostError;
};

/// The part of the open project: its features, what they built last, and every change to take back.
///
/// Each change goes onto the undo stack and builds the part anew. A part that cannot be built
/// leaves the last good shape where it is.
class PartModel : public QObject
{
    Q_OBJECT

public:
    explicit PartModel(QObject* parent = nullptr);
    ~PartModel() override;

    const FeatureList& Features() const { return m_features; }
    /// Where relative files of imports are looked for.
    const QString& Folder() const { return m_folder; }

    /// The last good part; null before there was one.
    const TopoDS_Shape& Shape() const { return m_part.shape; }
    /// What the feature built in the last good part; null where it built nothing.
    TopoDS_Shape ShapeOf(const QString& feature) const;
    /// The features that no other one uses, in their order: the bodies of the part.
    QStringList Bodies() const;

    /// Whether the last build failed, why, and which feature it was; empty where it was none.
    bool HasFailed() const { return !m_failure.isEmpty(); }
    const QString& Failure() const { return m_failure; }
    const QString& FailedFeature() const { return m_failedFeature; }

    QUndoStack& UndoStack() { return m_undoStack; }

    /// Puts another part in place of this one, without a way back, and builds it.
    void Open(const FeatureList& features, const std::vector<Condition>& conditions,
              const QString& folder);

    /// Builds with the parameters as they are now.
    void Rebuild();

    /// All of them throw ModellingError, and then change nothing. Fields may have any text: one
    /// that has no value fails the build.
    void Add(const Feature& feature);
    /// Puts @p feature in the place of the one called @p name; a new name reaches its users.
    void Change(const QString& name, const Feature& feature);
    /// By @p steps: -1 is one up.
    void Move(const QString& name, int steps);
    void SetSuppressed(const QStringList& names, bool suppressed);
    /// Refuses when a feature that stays uses one of them.
    void Remove(const QStringList& names);

Q_SIGNALS:
    /// Features, values of their fields or the outcome of the build are others now.
    void Changed();
    /// Comes before Changed(): the part was built.
    void PartBuilt();
    /// Comes before Changed(): the part could not be built. @p reason names the feature.
    void BuildFailed(const QString& reason);

private:
    class ChangeCommand;

    void Push(const FeatureList& features, const QString& text);
    void SetFeatures(const FeatureList& features);
    void Build();

    FeatureList m_features;
    std::vector<Condition> m_conditions;
    QString m_folder;

    BuiltPart m_part;
    FeatureList m_builtFeatures; // Those of m_part.
    QString m_failure;
    QString m_failedFeature;

    QUndoStack m_undoStack;
};
