#pragma once

#include "SlurmScripts.h"
#include "StudyRunner.h"

#include <QString>

#include <functional>

class Project;

/// Submits a study to the Slurm workload manager: as a job array, and a job behind it that writes
/// results.csv. The scripts lie in the study's folder.
class SlurmSubmission
{
public:
    struct Options
    {
        StudyRunner::Options study; ///< Its `jobs` is the number of processors of a task.
        int tasks = 0;              ///< 0 for as many as have enough work.
        QString partition;          ///< These three as Slurm writes them; empty for its own.
        QString time;
        QString memory;
        bool isWithoutRun = false; ///< Whether the scripts are written, but not submitted.
    };

    /// A task that takes less time costs the queue more than it does.
    static constexpr int LeastTaskSeconds = 30;
    /// More tasks than this in one array are refused by the default configuration of Slurm.
    static constexpr int MostTasks = 1000;

    /// Calls @p tell with each line of the progress. The project has been read from a file.
    SlurmSubmission(const Project& project, Options options,
                    std::function<void(const QString&)> tell);

    /// Creates or extends the study's folder and writes the scripts; then submits them, unless that
    /// is not wanted. Returns why Slurm refused; empty if it did not. @throws what
    /// StudyRunner::Run() throws, also if Slurm is not there
    QString Run();

private:
    int FittingTasks(int first, int last) const;
    void WriteScripts(const SlurmTasks& tasks) const;
    QString Submit() const;
    QString ScriptPath(const QString& name) const;

    const Project& m_project;
    Options m_options;
    std::function<void(const QString&)> m_tell;
};
