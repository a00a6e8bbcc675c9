#pragma once

#include "Conditions.h"
#include "FeatureBuilder.h"
#include "FeatureList.h"
#include "HostError.h"

#include <QObject>
#include <QUndoStack>

/// Why a change of the features is rejected: one line.
class ModellingError : public HostError
{
public:
    using HostError::HostError;
};

/// The part of the open project: its features, their bodies, and the changes that can be undone.
///
/// Each change goes onto the undo stack and rebuilds the part. If that fails, the last valid shape
/// stays.
class PartModel : public QObject
{
    Q_OBJECT

public:
    explicit PartModel(QObject* parent = nullptr);
    ~PartModel() override;

    const FeatureList& Features() const { return m_features; }
    /// The folder that paths of imports are relative to.
    const QString& Folder() const { return m_folder; }

    /// The last valid part; null before the first one.
    const TopoDS_Shape& Shape() const { return m_part.shape; }
    /// The body of @p feature in the last valid part; null if it has none.
    TopoDS_Shape ShapeOf(const QString& feature) const;
    /// The features that no other feature uses, in order: the bodies of the part.
    QStringList Bodies() const;

    /// Whether the last build failed, why, and at which feature; empty if not at a feature.
    bool HasFailed() const { return !m_failure.isEmpty(); }
    const QString& Failure() const { return m_failure; }
    const QString& FailedFeature() const { return m_failedFeature; }

    QUndoStack& UndoStack() { return m_undoStack; }

    /// Replaces this part by another one and builds it. This cannot be undone.
    void Open(const FeatureList& features, const std::vector<Condition>& conditions,
              const QString& folder);

    /// Builds with the current values of the parameters.
    void Rebuild();

    /// If a change is rejected, it throws a ModellingError and changes nothing. Fields may have any
    /// text; a text without a value fails the build.
    void Add(const Feature& feature);
    /// Replaces the feature called @p name; a new name is also replaced in the inputs of others.
    void Change(const QString& name, const Feature& feature);
    /// By @p steps; -1 is one up.
    void Move(const QString& name, int steps);
    void SetSuppressed(const QStringList& names, bool suppressed);
    /// Rejected if another feature uses one of them.
    void Remove(const QStringList& names);

Q_SIGNALS:
    /// The features, the values of their fields or the result of the build changed.
    void Changed();
    /// The part was built. Precedes Changed().
    void PartBuilt();
    /// The part could not be built; @p reason names the feature. Precedes Changed().
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
