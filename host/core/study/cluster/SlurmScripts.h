#pragma once

#include <QByteArray>
#include <QString>

/// A study as a job array: each task does a block of the runs, the blocks as equal as possible.
struct SlurmTasks
{
    QString program; ///< The path of this program, of the project and of the study's folder, as
    QString project; ///< all machines of the cluster see them.
    QString folder;
    int firstRun = 1;
    int lastRun = 1;
    int tasks = 1;        ///< At most one for each run.
    int jobs = 1;         ///< How many runs a task does at once.
    int seconds = 0;      ///< The time limit of a run; 0 for the user's setting.
    bool hasSteps = true; ///< Whether each part is written to a STEP file.
    QString partition;    ///< These three as the queue writes them; empty for its own.
    QString time;
    QString memory;
};

/// The job array. The queue may kill its tasks, start them again, late or twice: what is done
/// stands in the study's folder. The table is left to the job behind it.
QByteArray SlurmArrayScript(const SlurmTasks& tasks);
/// The job behind the array. It writes results.csv.
QByteArray SlurmMergeScript(const SlurmTasks& tasks);
/// What submits both: it prints their numbers, one a line.
QByteArray SlurmSubmitScript(const SlurmTasks& tasks);
