#include "PartModel.h"

#include "BuildError.h"
#include "FeatureCopy.h"
#include "FeatureKind.h"
#include "JsonSection.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>

/// One change, as the whole list before and after: a list is small, and no detail is lost.
class PartModel::ChangeCommand : public QUndoCommand
{
public:
    ChangeCommand(PartModel& model, const FeatureList& after, const QString& text)
        : QUndoCommand(text)
        , m_model(model)
        , m_before(model.Features())
        , m_after(after)
    {
    }

    void undo() override { m_model.SetFeatures(m_before); }
    void redo() override { m_model.SetFeatures(m_after); }

private:
    PartModel& m_model;
    FeatureList m_before;
    FeatureList m_after;
};

namespace {

QString QuotedNames(const QStringList& names)
{
    QStringList quoted;
    for (const QString& name : names)
        quoted << Quoted(name);
    return quoted.join(QStringLiteral(", "));
}

int Find(const FeatureList& features, const QString& name)
{
    const int index = features.Find(name);
    if (index < 0)
        throw ModellingError(PartModel::tr("The part has no feature %1").arg(Quoted(name)));
    return index;
}

// Names are typed in lists of inputs, separated by commas.
void CheckNewName(const QString& name)
{
    if (name.contains(QLatin1Char(',')))
        throw ModellingError(
            PartModel::tr("%1 is not a valid name: it contains a comma").arg(Quoted(name)));
    if (name != name.trimmed())
        throw ModellingError(PartModel::tr("%1 is not a valid name: it begins or ends with a blank")
                                 .arg(Quoted(name)));
}

} // namespace

PartModel::PartModel(QObject* parent)
    : QObject(parent)
{
    connect(&m_worker, &KernelWorker::Progressed, this, &PartModel::ShowProgress);
    connect(&m_worker, &KernelWorker::Finished, this, &PartModel::TakeReply);
}

PartModel::~PartModel() = default;

TopoDS_Shape PartModel::ShapeOf(const QString& feature) const
{
    const int index = m_builtFeatures.Find(feature);
    return index < 0 ? TopoDS_Shape() : m_part.shapes[std::size_t(index)];
}

QStringList PartModel::Bodies() const
{
    QStringList bodies;
    for (const Feature& feature : m_features.Features()) {
        if (m_features.UsersOf(feature.name).isEmpty())
            bodies << feature.name;
    }
    return bodies;
}

void PartModel::Open(const FeatureList& features, const std::vector<Condition>& conditions,
                     const QString& folder)
{
    m_undoStack.clear();
    m_conditions = conditions;
    m_folder = folder;
    m_part = BuiltPart();
    m_measures = ShapeMeasures();
    m_lines = LineDrawing();
    m_builtFeatures = FeatureList();
    m_builtPlan.clear();
    SetFeatures(features);
}

void PartModel::WaitUntilIdle() const
{
    while (IsBusy())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void PartModel::Replace(const FeatureList& features, const std::vector<Condition>& conditions)
{
    m_features = features;
    m_conditions = conditions;
}

void PartModel::WantLines()
{
    m_wantsLines = true;
    if (IsBusy() || !Shape().IsNull())
        Rebuild();
}

void PartModel::Rebuild()
{
    SetFeatures(m_features);
}

void PartModel::SetFeatures(const FeatureList& features)
{
    if (m_isExporting)
        EndExport(tr("the part was changed meanwhile"));
    m_features = features;
    m_failure.clear();
    m_failedFeature.clear();
    Build();
}

void PartModel::Build()
{
    PartReply failed;
    try {
        CheckConditions(m_conditions);
        PartRequest request;
        request.plan = PlanPart(m_features, m_folder);
        request.wantsLines = m_wantsLines;
        m_plan = request.plan;
        m_worker.Start(request, m_part);
        Q_EMIT Changed();
        return;
    } catch (const FeatureError& error) {
        failed.failedFeature = error.FeatureName();
        failed.cause = error.Cause();
    } catch (const BuildError& error) {
        failed.cause = error.Reason();
    }
    m_worker.Discard();
    Q_EMIT Changed();
    Fail(failed);
}

void PartModel::Fail(const PartReply& reply)
{
    m_failedFeature = reply.failedFeature;
    m_failure = reply.Reason();
    Q_EMIT BuildFailed(m_failure);
    if (m_export.has_value())
        EndExport(tr("the part could not be built"));
}

void PartModel::ShowProgress(int step)
{
    if (m_isExporting)
        Q_EMIT Progressed(tr("Writing %1").arg(QFileInfo(m_export->path).fileName()));
    else if (step < int(m_plan.size()))
        Q_EMIT Progressed(tr("Building %1, %2 of %3")
                              .arg(Quoted(m_plan[std::size_t(step)].name))
                              .arg(step + 1)
                              .arg(m_plan.size()));
    else
        Q_EMIT Progressed(tr("Measuring the part"));
}

void PartModel::TakeReply(const PartReply& reply)
{
    const bool isDone = reply.outcome == PartReply::Done;
    if (m_isExporting) {
        EndExport(isDone ? QString() : reply.Reason());
        return;
    }
    if (!isDone) {
        Fail(reply);
        return;
    }
    m_part = reply.part;
    m_measures = reply.measures;
    m_lines = reply.lines;
    m_builtFeatures = m_features;
    m_builtPlan = m_plan;
    Q_EMIT PartBuilt();
    if (m_export.has_value())
        StartExport();
}

void PartModel::ExportStep(const QString& feature, const QString& path)
{
    m_export = Export{feature, path};
    if (!IsBusy())
        StartExport();
}

void PartModel::StartExport()
{
    PartRequest request;
    request.plan = m_builtPlan;
    request.wantsShapes = false;
    request.stepPath = QFileInfo(m_export->path).absoluteFilePath();
    if (!m_export->feature.isEmpty())
        request.stepFeature = m_builtFeatures.Find(m_export->feature);
    m_isExporting = true;
    m_worker.Start(request);
}

void PartModel::EndExport(const QString& failure)
{
    m_isExporting = false;
    const QString path = QDir::toNativeSeparators(m_export->path);
    m_export.reset();
    if (failure.isEmpty())
        Q_EMIT Exported(path);
    else
        Q_EMIT ExportFailed(tr("The export failed: %1").arg(failure));
}

void PartModel::Push(const FeatureList& features, const QString& text)
{
    try {
        features.Check();
    } catch (const BuildError& error) {
        throw ModellingError(error.Reason());
    }
    if (features != m_features)
        m_undoStack.push(new ChangeCommand(*this, features, text));
}

void PartModel::Add(const Feature& feature)
{
    FeatureList features = m_features;
    features.Append(feature);
    Push(features, tr("Add %1 %2").arg(feature.kind->Title(), Quoted(feature.name)));
}

QStringList PartModel::Paste(const QString& text)
{
    QStringList names;
    try {
        const FeatureList features = WithPastedFeatures(m_features, text, names);
        Push(features, tr("Paste %1").arg(QuotedNames(names)));
    } catch (const JsonError& error) {
        throw ModellingError(error.Reason());
    }
    return names;
}

void PartModel::Change(const QString& name, const Feature& feature)
{
    if (feature.name != name)
        CheckNewName(feature.name);
    FeatureList features = m_features;
    features.Replace(Find(features, name), feature);
    Push(features, name == feature.name
                       ? tr("Change %1").arg(Quoted(name))
                       : tr("Rename %1 to %2").arg(Quoted(name), Quoted(feature.name)));
}

void PartModel::Move(const QString& name, int steps)
{
    const int from = Find(m_features, name);
    const int to = qBound(0, from + steps, m_features.Size() - 1);
    FeatureList features = m_features;
    features.Move(from, to);
    try {
        Push(features,
             steps < 0 ? tr("Move %1 up").arg(Quoted(name)) : tr("Move %1 down").arg(Quoted(name)));
    } catch (const ModellingError& error) {
        throw ModellingError(tr("Cannot move %1. %2").arg(Quoted(name), error.Reason()));
    }
}

void PartModel::SetSuppressed(const QStringList& names, bool suppressed)
{
    FeatureList features = m_features;
    for (const QString& name : names)
        features.SetSuppressed(Find(features, name), suppressed);
    const QString quoted = QuotedNames(names);
    Push(features, suppressed ? tr("Suppress %1").arg(quoted) : tr("Unsuppress %1").arg(quoted));
}

void PartModel::Remove(const QStringList& names)
{
    FeatureList features = m_features;
    for (const QString& name : names) {
        QStringList users;
        const QStringList all = m_features.ReferrersOf(name);
        for (const QString& user : all) {
            if (!names.contains(user))
                users << user;
        }
        if (!users.isEmpty())
            throw ModellingError(
                tr("Cannot delete %1: it is used by %2").arg(Quoted(name), QuotedNames(users)));
        features.Remove(Find(features, name));
    }
    Push(features, tr("Delete %1").arg(QuotedNames(names)));
}
