#pragma once

#include "Autosave.h"
#include "Project.h"
#include "ProjectFolder.h"

#include <QObject>

class ProjectSession;
class QAction;
class QMenu;
class QWidget;

/// The menu of the project: opens, saves and closes projects, and asks before changes are lost.
///
/// The window's title has the title and the file of the project, and a mark while there are
/// changes.
class ProjectActions : public QObject
{
    Q_OBJECT

public:
    /// Dialogs belong to @p window, which also owns this object; the session must outlive it.
    ProjectActions(ProjectSession& session, QWidget* window);
    ~ProjectActions() override;

    void FillMenu(QMenu& menu);

    /// Opens @p project in place of the open one, and offers what a crash has left of it.
    void Open(const Project& project);
    /// Offers a project that was never saved and that a crash has left. True if it was opened.
    bool OfferAbandoned();

    /// False when there are changes that the user wants to keep and that are not saved.
    bool ConfirmDiscard();
    /// The project is closed, with or without its changes: nothing of it is to be recovered.
    void Close();

Q_SIGNALS:
    /// The project was written.
    void Saved();

private:
    void OpenNew();
    void AskForProject();
    void OpenFile(const QString& path);
    void Revert();
    bool Save();
    bool SaveAs();
    bool SaveTo(const QString& path);
    void SaveFiles(const QString& folder);
    void EditProperties();

    void Follow(Project project, const QString& folder);
    void OfferRest();
    void ShowRecent();
    void ShowState();

    ProjectSession& m_session;
    QWidget* m_window;
    ProjectFolder m_folder;
    Autosave m_autosave;
    QString m_path; // Where Save writes; empty where that has to be asked.
    QMenu* m_recent = nullptr;
    QAction* m_revert;
};
