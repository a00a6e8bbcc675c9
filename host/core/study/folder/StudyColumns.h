#pragma once

#include "ResultsTable.h"
#include "SolveResult.h"

#include <QString>
#include <QStringList>

#include <vector>

class Project;

/// Why an expression over the columns @p names can never have a value; empty if it may have one.
QString ExpressionFault(const QString& expression, const QStringList& names);

/// The columns of a study's results beyond the measures of the part: results of analyses, then
/// responses.
class StudyColumns
{
public:
    /// @throws HostError if a response has the name of another column
    explicit StudyColumns(const Project& project);

    const QStringList& Names() const { return m_names; }

    /// The values of these columns for a run that is ok, with the numbers of the parameters
    /// @p parameters and the measures in @p result. NaN where there is no value. @p vibration and
    /// @p statics are null if there was no such analysis.
    std::vector<double> Values(const RunResult& result, const QStringList& parameters,
                               const SolveResultPointer& vibration,
                               const SolveResultPointer& statics) const;

private:
    const Project& m_project;
    int m_modes = 0; // How many have a column.
    QStringList m_names;
};
