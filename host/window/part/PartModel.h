#pragma once

#include "Conditions.h"
#include "FeatureBuilder.h"
#include "FeatureList.h"
#include "HostError.h"
#include "KernelWorker.h"

#include <QObject>
#include <QUndoStack>

#include <optional>

/// Why a change of the features is rejected: one line.
class ModellingError : public HostError
{
public:
    using HostError::HostError;
};

/// The part of the open project: its features, their bodies, and the changes that can be undone.
///
/// Each change goes onto the undo stack and starts a build in the worker process. Until it ends,
/// and if it fails, the last valid shape stays. A newer change replaces a build that is running.
class PartModel : public QObject
{
    Q_OBJECT

public:
    explicit PartModel(QObject* parent = nullptr);
    ~PartModel() override;

    const FeatureList& Features() const { return m_features; }
    const std::vector<Condition>& Conditions() const { return m_conditions; }
    /// The folder that paths of imports are relative to.
    const QString& Folder() const { return m_folder; }
    /// The files of imports are in another folder from now on.
    void SetFolder(const QString& folder) { m_folder = folder; }

    /// The last valid part; null before the first one.
    const TopoDS_Shape& Shape() const { return m_part.shape; }
    /// What was built last, with the names of its faces.
    const BuiltPart& Built() const { return m_part; }
    const ShapeMeasures& Measures() const { return m_measures; } ///< Of Shape().
    const LineDrawing& Lines() const { return m_lines; } ///< Of Shape(), if they are wanted.
    /// The body of @p feature in the last valid part; null if it has none.
    TopoDS_Shape ShapeOf(const QString& feature) const;
    /// The features that no other feature uses, in order: the bodies of the part.
    QStringList Bodies() const;

    /// Whether a build or an export is running.
    bool IsBusy() const { return m_worker.IsBusy(); }
    /// Waits, while events are processed, until nothing is running.
    void WaitUntilIdle() const;
    /// Ends a build or an export, within 0.2 s.
    void Cancel() { m_worker.Cancel(); }

    /// Whether the last build failed, why, and at which feature; empty if not at a feature.
    bool HasFailed() const { return !m_failure.isEmpty(); }
    const QString& Failure() const { return m_failure; }
    const QString& FailedFeature() const { return m_failedFeature; }

    QUndoStack& UndoStack() { return m_undoStack; }

    /// Replaces this part by another one and builds it. This cannot be undone.
    void Open(const FeatureList& features, const std::vector<Condition>& conditions,
              const QString& folder);

    /// Replaces features and conditions without a step on the undo stack: whoever calls it has one.
    /// Rebuild() is to follow.
    void Replace(const FeatureList& features, const std::vector<Condition>& conditions);

    /// Builds with the current values of the parameters.
    void Rebuild();

    /// If a change is rejected, it throws a ModellingError and changes nothing. Fields may have any
    /// text; a text without a value fails the build.
    void Add(const Feature& feature);
    /// Adds the features of a text of the clipboard. Returns their names.
    QStringList Paste(const QString& text);
    /// Replaces the feature called @p name; a new name is also replaced in the inputs of others.
    void Change(const QString& name, const Feature& feature);
    /// By @p steps; -1 is one up.
    void Move(const QString& name, int steps);
    void SetSuppressed(const QStringList& names, bool suppressed);
    /// Rejected if another feature uses one of them, or its faces.
    void Remove(const QStringList& names);

    /// Each part comes with Lines() from now on; a part that is there is built again.
    void WantLines();
    /// What later builds may use.
    void SetLimits(const BuildLimits& limits) { m_worker.SetLimits(limits); }

    /// Starts to write the body of @p feature, or the whole part if that is empty, to a STEP file.
    /// Waits for a build that is running.
    void ExportStep(const QString& feature, const QString& path);

Q_SIGNALS:
    /// The features or the values of their fields changed. A build has been started unless it has
    /// failed already.
    void Changed();
    /// What the build is doing, such as "holes, 7 of 11".
    void Progressed(const QString& text);
    /// The part was built.
    void PartBuilt();
    /// The part could not be built; @p reason names the feature.
    void BuildFailed(const QString& reason);
    /// A STEP file was written.
    void Exported(const QString& path);
    void ExportFailed(const QString& reason);

private:
    class ChangeCommand;

    void Push(const FeatureList& features, const QString& text);
    void SetFeatures(const FeatureList& features);
    void Build();
    void Fail(const PartReply& reply);
    void ShowProgress(int step);
    void TakeReply(const PartReply& reply);

    FeatureList m_features;
    std::vector<Condition> m_conditions;
    QString m_folder;

    BuiltPart m_part;
    ShapeMeasures m_measures;
    bool m_wantsLines = false;
    LineDrawing m_lines;
    FeatureList m_builtFeatures; // Those of m_part.
    PartPlan m_builtPlan;
    QString m_failure;
    QString m_failedFeature;

    KernelWorker m_worker;
    PartPlan m_plan; // That is being built.

    struct Export
    {
        QString feature;
        QString path;
    };
    void EndExport(const QString& failure = QString());
    void StartExport();

    std::optional<Export> m_export; // That is running or waits for the build.
    bool m_isExporting = false;

    QUndoStack m_undoStack;
};
