#include "Study.h"

#include "DesignList.h"
#include "GlobalParaMeterMgr.h"
#include "NumberTexts.h"
#include "ParameterEvaluator.h"
#include "Project.h"
#include "SobolSequence.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace {

struct StudyText
{
    Q_DECLARE_TR_FUNCTIONS(Study)
};

[[noreturn]] void Fail(const Project& project, const QString& reason)
{
    throw HostError(QStringLiteral("%1: %2").arg(project.Path(), reason));
}

DesignRanges RangesOf(const std::vector<std::vector<double>>& samples)
{
    DesignRanges ranges;
    for (const std::vector<double>& values : samples) {
        const auto [least, greatest] = std::minmax_element(values.begin(), values.end());
        ranges.push_back({*least, *greatest});
    }
    return ranges;
}

// What the design needs of the number of ticked parameters. Empty if it has that.
QString ParameterFault(StudyDefinition::Design design, int ticked)
{
    const auto atMost = [ticked](const QString& text, int limit) {
        return ticked <= limit ? QString() : text.arg(limit).arg(ticked);
    };
    switch (design) {
    case StudyDefinition::Sobol:
        return atMost(
            StudyText::tr("the Sobol sequence takes at most %1 ticked parameters, not %2"),
            SobolSequence::MaximumDimensions);
    case StudyDefinition::CentralComposite:
        return atMost(
            StudyText::tr(
                "the central composite design takes at most %1 ticked parameters, not %2"),
            MaximumCentralCompositeRanges);
    case StudyDefinition::BoxBehnken:
        return ticked >= MinimumBoxBehnkenRanges
                   ? QString()
                   : StudyText::tr(
                         "the Box-Behnken design needs at least %1 ticked parameters, not %2")
                         .arg(MinimumBoxBehnkenRanges)
                         .arg(ticked);
    default:
        return {};
    }
}

QString Joined(const std::vector<QString>& problems)
{
    return QStringList(problems.begin(), problems.end()).join(QStringLiteral("; ")).simplified();
}

// The values of the parameters @p names where nothing varies.
std::vector<double> OwnValues(const Project& project, const QStringList& names)
{
    const QString problem = Joined(ParameterEvaluator::Evaluate().messages);
    if (!problem.isEmpty())
        Fail(project, problem);
    std::vector<double> values;
    for (const QString& name : names)
        values.push_back(GlobalParaMeterMgr::GetParameterRawValue(name).toDouble());
    return values;
}

} // namespace

Study::Study(const Project& project)
{
    ReadSamples(project);
    project.FillParameterStore();
    m_parameters = GlobalParaMeterMgr::m_nameMapParameters;
    if (project.Study().design == StudyDefinition::List)
        ReadList(project);
    else if (!m_names.isEmpty())
        MakeRuns(project);
}

void Study::ReadSamples(const Project& project)
{
    // In the order of the names, as the DOE dialog shows its columns.
    std::map<QString, std::vector<double>> ticked;
    for (const SampleList& list : project.SampleLists()) {
        if (!list.Problem().isEmpty())
            Fail(project, list.Problem());
        if (list.ticked)
            ticked[list.parameter] = list.Samples();
    }
    for (auto& [name, samples] : ticked) {
        m_names << name;
        m_samples.push_back(std::move(samples));
    }
}

void Study::ReadList(const Project& project)
{
    QSet<QString> known;
    for (const auto& entry : m_parameters)
        known.insert(entry.first);
    const QString path =
        QDir::cleanPath(QDir(QFileInfo(project.Path()).path()).filePath(project.Study().file));
    DesignList list = ReadDesignList(path, known);
    for (const QString& name : qAsConst(m_names)) {
        if (!list.names.contains(name))
            throw HostError(StudyText::tr("%1: row 1: the ticked parameter \"%2\" has no column")
                                .arg(path.simplified(), name.simplified()));
    }
    m_names = std::move(list.names);
    m_runs = std::move(list.runs);
}

void Study::MakeRuns(const Project& project)
{
    const StudyDefinition& definition = project.Study();
    const QString fault = ParameterFault(definition.design, m_names.size());
    if (!fault.isEmpty())
        Fail(project, fault);
    const DesignRanges ranges = RangesOf(m_samples);
    switch (definition.design) {
    case StudyDefinition::LatinHypercube:
        m_runs = LatinHypercubeRuns(ranges, definition.runs, definition.seed.value_or(0));
        break;
    case StudyDefinition::Sobol:
        m_runs = SobolPoints(ranges, definition.runs, definition.seed);
        break;
    case StudyDefinition::BoxBehnken:
        m_runs = BoxBehnkenRuns(ranges);
        break;
    case StudyDefinition::CentralComposite:
        m_runs = CentralCompositeRuns(ranges);
        break;
    case StudyDefinition::OneAtATime:
        m_runs = OneAtATimeRuns(OwnValues(project, m_names), m_samples);
        break;
    default:
        m_factorial = FullFactorial(m_samples);
        break;
    }
    if (m_factorial.IsTooLarge() || m_runs.size() > FullFactorial::MaximumRuns)
        Fail(project, StudyText::tr("Too many runs"));
}

QStringList Study::Inputs() const
{
    QStringList inputs;
    for (const auto& [name, record] : m_parameters) {
        if (m_names.contains(name) || record.m_strExpression.empty())
            inputs << name;
    }
    return inputs;
}

std::vector<double> Study::Values(int run) const
{
    const std::size_t index = std::size_t(run) - 1;
    return m_runs.empty() ? m_factorial.Run(index) : m_runs.at(index);
}

QString Study::Choose(const QStringList& names, const std::vector<double>& values) const
{
    ParameterMap& store = GlobalParaMeterMgr::m_nameMapParameters;
    store = m_parameters;
    for (int column = 0; column < names.size(); ++column) {
        ParametersDef& record = store.at(names[column]);
        const double value = values[std::size_t(column)];
        if (value == GlobalParaMeterMgr::GetParameterRawValue(names[column]).toDouble())
            continue;
        record.m_dValue = value;
        record.m_varRawValue = record.m_dValue;
        record.m_strValue = ExactText(record.m_dValue);
    }
    return Joined(ParameterEvaluator::Evaluate(QSet<QString>(names.begin(), names.end())).messages);
}
