#pragma once

#include "Journal.h"
#include "ProgressLines.h"
#include "RunQueue.h"
#include "StudyColumns.h"
#include "StudyWorker.h"

#include <QElapsedTimer>
#include <QString>

#include <exception>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

class Project;
class QEventLoop;
class StopSignal;
class Study;

/// Runs a study without a user: builds and analyses the part of each run, and writes a StudyFolder.
///
/// Runs that are done are skipped, so a study that was stopped continues where it was. Failed runs
/// are tried again.
class StudyRunner
{
public:
    struct Options
    {
        QString directory; ///< For the results; created if it does not exist.
        int firstRun = 0;  ///< The runs to do, counted from 1; 0 for all.
        int lastRun = 0;
        int jobs = 1;         ///< How many runs are done at once, each in a process of its own.
        int seconds = 0;      ///< The time limit for building a run; 0 for the user's setting.
        bool hasSteps = true; ///< Whether each part is written to a STEP file.
        bool hasTable = true; ///< Whether results.csv is written; others may do it with a merge.
    };

    /// The outcome of the requested runs.
    struct Summary
    {
        int ok = 0;
        int failed = 0;
        int skipped = 0; ///< Done by an earlier call or another program.
        int signal = 0;  ///< Which of SIGINT and SIGTERM has stopped the study; 0 for none.
    };

    /// Calls @p tell with each line of the progress.
    StudyRunner(const Project& project, Options options, std::function<void(const QString&)> tell);
    ~StudyRunner();

    /// Replaces the parameter store by the project and does the runs. A run that fails does not
    /// stop the others. @throws HostError if the study cannot be run at all: it has no such runs,
    /// or the folder is that of another study; FolderError if the folder cannot be written
    Summary Run();

    /// Creates or extends the folder without doing a run, for programs that do the runs later.
    /// Returns the number of runs in it. Throws like Run().
    int CreateFolder();

private:
    /// A run that is being done.
    struct Place
    {
        std::unique_ptr<StudyWorker> worker;
        int run = 0; ///< 0 for none.
        int line = 0;
        RunResult result;
    };

    RunList PrepareRuns(const Study& study) const;
    std::pair<int, int> RequestedRuns(int runs) const;
    std::pair<int, int> Prepare();
    void PrepareWorkers(int first, int last);
    void Merge();
    void Work(const StopSignal& stop);
    void Try(const std::function<void()>& step);
    void FeedAll();
    void Feed(Place& place);
    bool Begin(Place& place, int run);
    void HandleEnd(Place& place, const StudyOutcome& outcome);
    void End(Place& place, const QStringList& warnings = {});
    void Skip(int run, RunQueue::Settlement settlement);
    void SaveSometimes();
    QString NameOf(int run) const;

    const Project& m_project;
    Options m_options;
    std::function<void(const QString&)> m_tell;
    Summary m_summary;
    double m_density = 0.0; // In kg/m3.
    std::unique_ptr<Study> m_study;
    StudyColumns m_columns;
    QStringList m_parameters;
    std::unique_ptr<StudyFolder> m_folder;
    std::unique_ptr<Journal> m_journal;
    std::unique_ptr<RunQueue> m_queue;
    std::unique_ptr<ProgressLines> m_lines;
    std::vector<Place> m_places;
    QEventLoop* m_loop = nullptr;
    std::exception_ptr m_error; // Why the study stops.
    QElapsedTimer m_sinceSaved;
    qint64 m_savePause = 0; // ms
};
