#include "StudyColumns.h"

#include "ExpressionEngine.h"
#include "Project.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>
#include <limits>
#include <map>
#include <string>

namespace {

struct StudyColumnsText
{
    Q_DECLARE_TR_FUNCTIONS(StudyColumns)
};

constexpr double NoValue = std::numeric_limits<double>::quiet_NaN();

} // namespace

// Values that nobody chooses rarely make a divisor 0, which would hide what follows.
QString ExpressionFault(const QString& expression, const QStringList& names)
{
    constexpr double Probe = 0.7390851332;
    std::map<std::string, double> variables;
    for (const QString& name : names)
        variables.emplace(name.toLocal8Bit().toStdString(), Probe);
    ExpressionEngine::CalculateExpress(expression.toLocal8Bit().toStdString(), variables);
    const QString error = ExpressionEngine::LastError();
    // Other values may be in order.
    const char* const ofTheValues[] = {"an operation has no real result, such as 0/0 or sqrt(-1)",
                                       "an operation has no finite result, such as 1/0 or ln(0)",
                                       "a number becomes too large"};
    const bool isOfTheValues =
        std::any_of(std::begin(ofTheValues), std::end(ofTheValues), [&error](const char* text) {
            return error.contains(QCoreApplication::translate("ExpressionText", text));
        });
    return isOfTheValues ? QString() : error;
}

StudyColumns::StudyColumns(const Project& project)
    : m_project(project)
    , m_modes(project.Study().hasVibration ? project.Analysis().frequencies.number : 0)
{
    for (int mode = 1; mode <= m_modes; ++mode)
        m_names << QStringLiteral("f%1_hz").arg(mode);
    if (project.Study().hasStatic)
        m_names << QStringLiteral("max_displacement_mm") << QStringLiteral("max_von_mises_mpa");
    QStringList taken = m_names + ResultsTable::MeasureNames();
    taken << QStringLiteral("run") << QStringLiteral("status") << QStringLiteral("error");
    for (const ParametersDef& record : project.Parameters())
        taken << record.m_strName;
    for (const StudyResponse& response : project.Study().responses) {
        if (taken.contains(response.name))
            throw HostError(
                StudyColumnsText::tr("%1: the response \"%2\" has the name of another column")
                    .arg(project.Path(), response.name.simplified()));
        const QString fault = ExpressionFault(response.expression, taken);
        if (!fault.isEmpty())
            throw HostError(StudyColumnsText::tr("%1: the response \"%2\" cannot be calculated: %3")
                                .arg(project.Path(), response.name.simplified(), fault));
        m_names << response.name;
        taken << response.name;
    }
}

std::vector<double> StudyColumns::Values(const RunResult& result, const QStringList& parameters,
                                         const SolveResultPointer& vibration,
                                         const SolveResultPointer& statics) const
{
    std::vector<double> values;
    for (std::size_t mode = 0; mode < std::size_t(m_modes); ++mode) {
        const bool isFound = vibration != nullptr && mode < vibration->modes.size();
        values.push_back(isFound ? vibration->modes[mode].frequency : NoValue);
    }
    if (m_project.Study().hasStatic) {
        values.push_back(statics != nullptr ? statics->statics.maximumDisplacement : NoValue);
        values.push_back(statics != nullptr ? statics->statics.maximumStress : NoValue);
    }

    std::map<std::string, double> variables;
    const auto add = [&variables](const QStringList& names, const std::vector<double>& numbers) {
        for (std::size_t i = 0; i < numbers.size(); ++i)
            variables.emplace(names[int(i)].toLocal8Bit().toStdString(), numbers[i]);
    };
    add(parameters, result.values);
    add(ResultsTable::MeasureNames(), ResultsTable::MeasuresOf(result));
    add(m_names, values);
    for (const StudyResponse& response : m_project.Study().responses) {
        const double value = ExpressionEngine::CalculateExpress(
            response.expression.toLocal8Bit().toStdString(), variables);
        values.push_back(value);
        variables.emplace(response.name.toLocal8Bit().toStdString(), value);
    }
    return values;
}
