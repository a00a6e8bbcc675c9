#pragma once

#include "HostError.h"

#include <QString>

#include <functional>

class Project;

/// Why a study cannot be run: one line.
class StudyError : public HostError
{
public:
    using HostError::HostError;
};

/// Runs a study without a user: drives the DOE dialog as a user would, builds the part of each run,
/// and writes "results.csv" and a STEP file "run_0001.step" per run.
///
/// Runs that results.csv has as ok and whose STEP file is there are passed over, so a study that
/// was stopped goes on where it was. Failed runs are tried again.
class StudyRunner
{
public:
    struct Options
    {
        QString directory; ///< Where the results go; made when it is not there.
        int firstRun = 0;  ///< The runs to do, counted from 1; 0 for all.
        int lastRun = 0;
    };

    /// What came of the runs that were asked for.
    struct Summary
    {
        int ok = 0;
        int failed = 0;
        int skipped = 0; ///< Done by an earlier call.
    };

    /// @p tell receives the progress, line by line.
    StudyRunner(const Project& project, Options options, std::function<void(const QString&)> tell);

    /// Replaces the parameter store and the sample registry by the project and does the runs. A run
    /// that fails does not stop the others. @throws StudyError or ResultsError for what concerns
    /// the study as a whole: runs that do not exist, a folder or a results.csv that cannot be used.
    Summary Run();

private:
    const Project& m_project;
    Options m_options;
    std::function<void(const QString&)> m_tell;
};
