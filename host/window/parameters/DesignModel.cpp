#include "DesignModel.h"

#include "DesignRun.h"
#include "GlobalParaMeterMgr.h"
#include "JsonSection.h"
#include "MessageLevel.h"
#include "sParaArrayData.h"

DesignModel::DesignModel(QObject* parent)
    : QObject(parent)
{
}

DesignModel::~DesignModel() = default;

ParameterEntries DesignModel::Stored() const
{
    ParameterEntries entries;
    entries.reserve(GlobalParaMeterMgr::m_nameMapParameters.size());
    for (const auto& [name, record] : GlobalParaMeterMgr::m_nameMapParameters) {
        entries.push_back({record, m_units.value(name)});
        entries.back().record.m_strName = name;
    }
    return entries;
}

ParameterEntries DesignModel::Design() const
{
    return m_holdsRun ? m_design : Stored();
}

void DesignModel::Open(const QHash<QString, QString>& units)
{
    m_units = units;
    m_design.clear();
    m_holdsRun = false;
    ParameterEvaluator::NoteUsedParameters();
    Settle();
    Q_EMIT Changed();
}

void DesignModel::Store(const ParameterEntries& entries)
{
    GlobalParaMeterMgr::m_nameMapParameters.clear();
    m_units.clear();
    for (const ParameterEntry& entry : entries) {
        GlobalParaMeterMgr::AddParameter(entry.Name(), entry.record);
        if (!entry.unit.isEmpty())
            m_units.insert(entry.Name(), entry.unit);
    }
    m_design.clear();
    m_holdsRun = false;
    ParameterEvaluator::NoteUsedParameters();
    Settle();
}

void DesignModel::Replace(const ParameterEntries& entries)
{
    Store(entries);
    Q_EMIT Changed();
}

void DesignModel::Edit(const ParameterEntries& entries, const QString& text)
{
    Store(entries);
    Q_EMIT Edited(text);
    Q_EMIT Changed();
}

void DesignModel::Rename(const QString& before, const QString& after)
{
    if (before == after)
        return;
    ParameterEntries entries = Design();
    const int index = FindParameter(entries, before);
    if (index < 0)
        throw ParameterError(tr("the project has no parameter %1").arg(Quoted(before)));
    RenameParameter(entries, index, after);

    const auto samples = g_mapParaArrays.find(before);
    if (samples != g_mapParaArrays.end()) {
        sParaArrayData renamed = samples->second;
        renamed.strName = after;
        g_mapParaArrays.erase(samples);
        g_mapParaArrays[after] = renamed;
    }
    Store(entries);
    Q_EMIT Renamed(before, after);
    Q_EMIT Edited(tr("Rename %1 to %2").arg(Quoted(before), Quoted(after)));
    Q_EMIT Changed();
}

void DesignModel::ExpectRuns()
{
    if (!m_holdsRun)
        m_design = Stored();
}

int DesignModel::TakeRun(const QSet<QString>& ticked)
{
    ParameterMap design;
    for (const ParameterEntry& entry : m_design)
        design[entry.Name()] = entry.record;
    m_holdsRun = true;
    const DesignRun::Completion run = DesignRun::Complete(design, ticked);
    Take(run.faults);
    Q_EMIT Changed();
    return run.restored;
}

void DesignModel::ShowRun(const QStringList& names, const std::vector<double>& values)
{
    ParameterEntries entries = Design();
    for (int i = 0; i < names.size(); ++i) {
        const int index = FindParameter(entries, names[i]);
        if (index < 0)
            throw ParameterError(tr("the project has no parameter %1").arg(Quoted(names[i])));
        entries[std::size_t(index)].SetNumber(values[std::size_t(i)]);
    }
    ExpectRuns();
    for (const ParameterEntry& entry : entries)
        GlobalParaMeterMgr::AddParameter(entry.Name(), entry.record);
    TakeRun(QSet<QString>(names.begin(), names.end()));
}

void DesignModel::BackToDesign()
{
    if (!m_holdsRun)
        return;
    for (const ParameterEntry& entry : m_design)
        GlobalParaMeterMgr::AddParameter(entry.Name(), entry.record);
    m_holdsRun = false;
    m_design.clear();
    PostMessageToChannel(InfoLevel, tr("The parameters are those of the design again"));
    Settle();
    Q_EMIT Changed();
}

void DesignModel::Settle()
{
    Take(ParameterEvaluator::Evaluate());
}

void DesignModel::Take(const ParameterEvaluator::Faults& faults)
{
    m_faults = faults;
    for (const QString& problem : m_faults.messages)
        PostMessageToChannel(ErrorLevel, problem);
}
