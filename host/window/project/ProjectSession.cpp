#include "ProjectSession.h"

#include "AnalysisParameters.h"
#include "AnalysisRecords.h"
#include "DesignModel.h"
#include "ExpressionNames.h"
#include "MaterialLibrary.h"
#include "MessageLevel.h"
#include "PartModel.h"
#include "SampleRegistry.h"

#include <QScopedValueRollback>

/// One change, as everything before and after it.
class ProjectSession::Step : public QUndoCommand
{
public:
    Step(ProjectSession& session, KnownState before, KnownState after, const QString& text)
        : QUndoCommand(text)
        , m_session(session)
        , m_before(std::move(before))
        , m_after(std::move(after))
    {
    }

    void undo() override { m_session.Apply(*m_before); }
    void redo() override
    {
        // It was done before it became a step.
        if (m_isDone)
            m_session.Apply(*m_after);
        m_isDone = true;
    }

private:
    ProjectSession& m_session;
    KnownState m_before;
    KnownState m_after;
    bool m_isDone = false;
};

ProjectSession::ProjectSession(DesignModel& design, PartModel& part, AnalysisRecords& analysis,
                               QObject* parent)
    : QObject(parent)
    , m_design(design)
    , m_part(part)
    , m_analysis(analysis)
{
    // Each step holds the whole project.
    constexpr int MaximumSteps = 200;
    m_part.UndoStack().setUndoLimit(MaximumSteps);
    connect(&m_design, &DesignModel::Renamed, this, &ProjectSession::FollowName);
    connect(&m_design, &DesignModel::Edited, this, &ProjectSession::TakeChange);
    connect(&m_design, &DesignModel::Changed, this, [this] {
        if (!m_isOpening)
            m_part.Rebuild();
    });
    // Whatever changed it belongs to one step: the operation that is running ends first.
    connect(
        &m_analysis, &AnalysisRecords::Changed, this, [this] { TakeChange(tr("Analysis set-up")); },
        Qt::QueuedConnection);
    connect(&m_part.UndoStack(), &QUndoStack::indexChanged, this, &ProjectSession::FollowStack);
}

ProjectSession::~ProjectSession()
{
    m_part.UndoStack().disconnect(this);
    m_part.UndoStack().clear();
}

void ProjectSession::Open(const Project& project)
{
    m_values = project;
    project.FillParameterStore();
    FillSampleRegistry(project.SampleLists());
    AnalysisStores::Open();
    m_analysis.Start(project.Analysis());
    Q_EMIT Opened();
    {
        // Its part comes below.
        const QScopedValueRollback<bool> opening(m_isOpening, true);
        m_design.Open(project.Units());
    }
    m_part.Open(project.Features(), project.Conditions(), project.Folder());
    m_known = std::make_shared<const State>(CurrentState());
    NoteSaved(m_known->project);
}

void ProjectSession::Recover(const Project& project)
{
    FillSampleRegistry(project.SampleLists());
    State state = CurrentState();
    state.project = project;
    Apply(state);
    TakeChange(tr("Recover changes"));
}

Project ProjectSession::Current() const
{
    Project project = m_values;
    project.SetParameters(m_design.Design());
    project.SetSampleLists(RegisteredSamples());
    project.SetFeatures(m_part.Features());
    project.SetConditions(m_part.Conditions());
    project.SetAnalysis(m_analysis.Definition());
    return project;
}

Project ProjectSession::Shown() const
{
    Project project = Current();
    if (!m_design.HoldsRun())
        return project;
    ParameterEntries entries = m_design.Stored();
    // Their values are those of the run, whatever their expressions say.
    for (ParameterEntry& entry : entries) {
        entry.record.m_strExpression.clear();
        entry.record.m_strExpressPara.clear();
    }
    project.SetParameters(entries);
    return project;
}

ProjectSession::State ProjectSession::CurrentState() const
{
    return {Current(), g_mapParaArrays, AnalysisStores::Current()};
}

double ProjectSession::Density() const
{
    if (m_values.Material().isEmpty())
        return m_values.Density();
    try {
        return DensityOf(m_values.Material());
    } catch (const MaterialError& error) {
        PostMessageToChannel(WarningLevel, error.Reason());
        return m_values.Density();
    }
}

bool ProjectSession::IsChanged() const
{
    return !m_known->project.HasSameContent(m_saved) || m_known->stores != m_savedStores;
}

void ProjectSession::NoteSaved(const Project& saved)
{
    m_saved = saved;
    m_savedStores = AnalysisStores::Current();
    Q_EMIT StateChanged();
}

void ProjectSession::MoveTo(const QString& path)
{
    m_values.SetPath(path);
    m_part.SetFolder(m_values.Folder());
}

void ProjectSession::SaveStores() const
{
    if (AnalysisStores::Current() == m_savedStores)
        return;
    const QString warning = AnalysisStores::Write();
    if (!warning.isEmpty())
        PostMessageToChannel(WarningLevel, warning);
}

void ProjectSession::SetProperties(const Project& project)
{
    m_values.SetTitle(project.Title());
    m_values.SetDensity(project.Density());
    m_values.SetMaterial(project.Material());
    m_part.Replace(m_part.Features(), project.Conditions());
    TakeChange(tr("Project properties"));
    m_part.Rebuild();
}

void ProjectSession::SetStudy(const StudyDefinition& study, const QString& text)
{
    m_values.SetStudy(study);
    TakeChange(text);
}

void ProjectSession::TakeChange(const QString& text)
{
    const auto now = std::make_shared<const State>(CurrentState());
    if (now->project.HasSameContent(m_known->project) && now->stores == m_known->stores)
        return;
    auto* const step = new Step(*this, m_known, now, text);
    // The step after this one begins with the same state, not with a copy.
    m_known = now;
    const QScopedValueRollback<bool> taking(m_isTaking, true);
    m_part.UndoStack().push(step);
}

void ProjectSession::FollowStack()
{
    if (!m_isTaking)
        m_known = std::make_shared<const State>(CurrentState());
    Q_EMIT StateChanged();
}

void ProjectSession::FollowName(const QString& before, const QString& after)
{
    m_analysis.SetDefinition(WithRenamedParameter(m_analysis.Definition(), before, after));
    StudyDefinition study = m_values.Study();
    for (StudyResponse& response : study.responses)
        response.expression = tarn::WithRenamed(response.expression, before, after);
    m_values.SetStudy(study);
}

void ProjectSession::Apply(const State& state)
{
    const QString path = m_values.Path();
    m_values = state.project;
    m_values.SetPath(path);
    g_mapParaArrays = state.samples;
    m_analysis.SetDefinition(state.project.Analysis());
    const QString warning = state.stores.Apply();
    if (!warning.isEmpty())
        PostMessageToChannel(WarningLevel, warning);
    m_part.Replace(state.project.Features(), state.project.Conditions());
    ParameterEntries entries;
    for (const ParametersDef& record : state.project.Parameters())
        entries.push_back({record, state.project.Units().value(record.m_strName)});
    // Rebuilds the part, too.
    m_design.Replace(entries);
}
