#include "Study.h"

#include "GlobalParaMeterMgr.h"
#include "NumberTexts.h"
#include "ParameterEvaluator.h"
#include "Project.h"

#include <map>
#include <utility>
#include <vector>

Study::Study(const Project& project)
{
    const auto fail = [&project](const QString& reason) {
        throw HostError(QStringLiteral("%1: %2").arg(project.Path(), reason));
    };
    // In the order of the names, as the DOE dialog shows its columns.
    std::map<QString, std::vector<double>> ticked;
    for (const SampleList& list : project.SampleLists()) {
        if (!list.Problem().isEmpty())
            fail(list.Problem());
        if (list.ticked)
            ticked[list.parameter] = list.Samples();
    }
    std::vector<std::vector<double>> lists;
    for (auto& [name, samples] : ticked) {
        m_names << name;
        lists.push_back(std::move(samples));
    }
    m_design = FullFactorial(std::move(lists));
    if (m_design.IsTooLarge())
        fail(QStringLiteral("Too many runs"));

    project.FillParameterStore();
    m_parameters = GlobalParaMeterMgr::m_nameMapParameters;
}

QString Study::Choose(int run) const
{
    ParameterMap& store = GlobalParaMeterMgr::m_nameMapParameters;
    store = m_parameters;
    const std::vector<double> values = m_design.Run(std::size_t(run) - 1);
    for (int column = 0; column < m_names.size(); ++column) {
        ParametersDef& record = store.at(m_names[column]);
        record.m_dValue = values[std::size_t(column)];
        record.m_varRawValue = record.m_dValue;
        record.m_strValue = ExactText(record.m_dValue);
    }
    const std::vector<QString> problems =
        EvaluateParameters(QSet<QString>(m_names.begin(), m_names.end()));
    return QStringList(problems.begin(), problems.end()).join(QStringLiteral("; ")).simplified();
}
