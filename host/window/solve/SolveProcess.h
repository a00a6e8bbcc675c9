#pragma once

#include "OwnedFolder.h"
#include "SolveChild.h"

#include <QObject>

#include <memory>

class Project;
class QProcess;

/// Solves projects in a child process, one after the other. The window stays alive, and ending the
/// child ends all of its programs.
///
/// The files of an analysis are in a temporary folder until the next one begins or this object
/// ends. Folders that a killed program has left are removed.
class SolveProcess : public QObject
{
    Q_OBJECT

public:
    /// How an analysis ended.
    enum Outcome
    {
        Done,
        Failed,
        Cancelled
    };

    explicit SolveProcess(QObject* parent = nullptr);
    /// Ends the child.
    ~SolveProcess() override;

    /// Starts to solve @p project with the user's materials of the store. Decks and tables go to
    /// @p target as well, unless it has the results already, which are read then. The analysis
    /// before must have ended. @throws HostError if the project cannot be handed over
    void Start(Project project, SolveKind kind, const QString& target, bool hasResults = false);
    /// Ends the child. Finished() was emitted when this returns.
    void Cancel();
    bool IsBusy() const { return m_process != nullptr; }

    /// Of the last analysis that has ended; null if it has not even made a mesh.
    const std::shared_ptr<const SolveReport>& Report() const { return m_report; }

Q_SIGNALS:
    void Told(const SolveMessage& message);
    /// Exactly once for each Start(). @p problem is one line for the user, and empty if it is done.
    void Finished(SolveProcess::Outcome outcome, const QString& problem);

private:
    void Read();
    void HandleEnd();
    void ReadReport();
    QString PathOf(const QString& name) const;

    std::unique_ptr<OwnedFolder> m_folder;
    QProcess* m_process = nullptr; // Null while there is none.
    bool m_isCancelled = false;
    QString m_problem;
    std::shared_ptr<const SolveReport> m_report;
};
