#pragma once

#include "FullFactorial.h"
#include "ParameterMap.h"
#include "SampledDesigns.h"

#include <QString>
#include <QStringList>

class Project;

/// The runs of a project: those of its design over the samples of the ticked parameters, or those
/// that stand in a file.
class Study
{
public:
    /// Fills the parameter store with the parameters of the project. @throws HostError if a sample
    /// list has a problem, there are more runs than FullFactorial allows, or the design does not
    /// suit the parameters
    explicit Study(const Project& project);

    int RunCount() const { return int(m_runs.empty() ? m_factorial.RunCount() : m_runs.size()); }

    /// The parameters that the design gives values to.
    const QStringList& Names() const { return m_names; }
    /// These, and all other parameters that are not calculated: a run is known by their values.
    QStringList Inputs() const;
    /// The values of Names() in @p run, counted from 1.
    std::vector<double> Values(int run) const;
    /// The parameters of the project, with their own values.
    const ParameterMap& Parameters() const { return m_parameters; }

    /// Puts @p run, counted from 1, into the parameter store: its values, the project's own values
    /// of all other parameters, and the values of their expressions. Returns why that failed, in
    /// one line, or an empty text.
    QString Choose(int run) const { return Choose(Names(), Values(run)); }
    /// As well, with these values of the parameters @p names.
    QString Choose(const QStringList& names, const std::vector<double>& values) const;

private:
    void ReadSamples(const Project& project);
    void ReadList(const Project& project);
    void MakeRuns(const Project& project);

    QStringList m_names;
    std::vector<std::vector<double>> m_samples; // Of each name.
    FullFactorial m_factorial;                  // Not expanded: there may be a million runs.
    DesignRuns m_runs;                          // Of every other design.
    ParameterMap m_parameters;
};
