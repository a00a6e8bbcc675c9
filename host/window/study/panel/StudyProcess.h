#pragma once

#include <QObject>
#include <QString>
#include <QTemporaryFile>

#include <memory>

class Project;
class QProcess;

/// A study that this program runs in a child process, which is this program without a window. What
/// it does can be read in the study's folder.
///
/// The child works with the project as it was when the study was started, also after a pause.
class StudyProcess : public QObject
{
    Q_OBJECT

public:
    struct Options
    {
        QString directory; ///< For the results, absolute.
        int jobs = 1;      ///< How many runs are done at once.
        bool hasSteps = true;
    };

    enum State
    {
        Idle,
        Running,
        Ending, ///< It was asked to pause or to stop.
        Paused
    };

    explicit StudyProcess(QObject* parent = nullptr);
    ~StudyProcess() override;

    State CurrentState() const { return m_state; }
    const Options& CurrentOptions() const { return m_options; }

    /// Starts the study of @p project, which has to have a path. @throws HostError
    void Start(const Project& project, const Options& options);
    /// Ends the child; the runs that it was doing are open again.
    void Pause() { End(Paused); }
    void Continue();
    void Stop() { End(Idle); }

    /// The program to run; this one by default.
    static void SetProgram(const QString& path);

Q_SIGNALS:
    void StateChanged();
    /// The child has ended: all runs are done, or nothing is if there is a @p problem.
    void Finished(const QString& problem);

private:
    void Launch();
    void End(State wanted);
    void HandleEnd();
    void SetState(State state);

    std::unique_ptr<QTemporaryFile> m_project;
    Options m_options;
    std::unique_ptr<QProcess> m_process;
    State m_state = Idle;
    State m_wanted = Idle; // After Ending.
};
