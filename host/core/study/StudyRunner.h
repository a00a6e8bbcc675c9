#pragma once

#include "KernelWorker.h"

#include <QString>

#include <functional>
#include <utility>

class Project;
class ResultsTable;
class Study;

/// Runs a study without a user: builds the part of each run, and writes "results.csv" and a STEP
/// file "run_0001.step" per run.
///
/// A run that results.csv lists as ok is skipped if its STEP file exists, so a study that was
/// stopped continues where it was. Failed runs are tried again.
class StudyRunner
{
public:
    struct Options
    {
        QString directory; ///< For the results; created if it does not exist.
        int firstRun = 0;  ///< The runs to do, counted from 1; 0 for all.
        int lastRun = 0;
    };

    /// The outcome of the requested runs.
    struct Summary
    {
        int ok = 0;
        int failed = 0;
        int skipped = 0; ///< Done by an earlier call.
    };

    /// Calls @p tell with each line of the progress.
    StudyRunner(const Project& project, Options options, std::function<void(const QString&)> tell);

    /// Replaces the parameter store by the project and does the runs. A run that fails does not
    /// stop the others. @throws HostError if the study cannot be run at all: it
    /// has no such runs, or the folder or its results.csv cannot be used
    Summary Run();

private:
    std::pair<int, int> RequestedRuns(int runs) const;
    void DoRun(const Study& study, int run, const QString& stepPath, ResultsTable& table,
               Summary& summary);

    const Project& m_project;
    Options m_options;
    std::function<void(const QString&)> m_tell;
    double m_density = 0.0; // In kg/m3.
    KernelWorker m_worker;
};
