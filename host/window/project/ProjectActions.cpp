#include "ProjectActions.h"

#include "MenuActions.h"
#include "MessageLevel.h"
#include "ProjectProperties.h"
#include "ProjectSession.h"
#include "RecentProjects.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>

namespace {

// In the folder of a project that is not saved yet.
const QLatin1String UnsavedName("unsaved.json");

QString ProjectFilter()
{
    return ProjectActions::tr("Projects (*.json);;All files (*)");
}

QMessageBox::StandardButton Ask(QWidget* window, const QString& title, const QString& text,
                                QMessageBox::StandardButtons buttons,
                                QMessageBox::StandardButton safe)
{
    QMessageBox box(QMessageBox::Question, title, text, buttons, window);
    box.setDefaultButton(safe);
    box.setEscapeButton(safe);
    return QMessageBox::StandardButton(box.exec());
}

} // namespace

ProjectActions::ProjectActions(ProjectSession& session, QWidget* window)
    : QObject(window)
    , m_session(session)
    , m_window(window)
    , m_autosave(session, this)
    , m_revert(NewAction(tr("Re&vert"), "action_RevertProject", this, &ProjectActions::Revert))
{
    connect(&m_session, &ProjectSession::StateChanged, this, &ProjectActions::ShowState);
    m_revert->setEnabled(false);
}

ProjectActions::~ProjectActions() = default;

void ProjectActions::FillMenu(QMenu& menu)
{
    menu.addAction(NewAction(tr("&New project"), "action_NewProject", this,
                             &ProjectActions::OpenNew, QKeySequence::New));
    menu.addAction(NewAction(tr("&Open project"), "action_OpenProject", this,
                             &ProjectActions::AskForProject, QKeySequence::Open));
    m_recent = menu.addMenu(tr("Open &recent"));
    m_recent->setObjectName(QStringLiteral("menu_RecentProjects"));
    connect(m_recent, &QMenu::aboutToShow, this, &ProjectActions::ShowRecent);
    menu.addSeparator();
    menu.addActions(
        {NewAction(tr("&Save project"), "action_SaveProject", this, &ProjectActions::Save,
                   QKeySequence::Save),
         NewAction(tr("Save project &as"), "action_SaveProjectAs", this, &ProjectActions::SaveAs,
                   QKeySequence(QStringLiteral("Ctrl+Shift+S"))),
         m_revert});
    menu.addSeparator();
    menu.addAction(NewAction(tr("&Project properties"), "action_ProjectProperties", this,
                             &ProjectActions::EditProperties));
    menu.addSeparator();
    menu.addAction(
        NewAction(tr("&Quit"), "action_Quit", m_window, &QWidget::close, QKeySequence::Quit));
}

void ProjectActions::Follow(Project project, const QString& folder)
{
    m_autosave.Release();
    // A path from the command line is relative to the former working directory.
    const bool isSaved =
        !project.Path().isEmpty() && project.Path() != Project::SamplePath() && folder.isEmpty();
    m_path = isSaved ? QFileInfo(project.Path()).absoluteFilePath() : QString();
    if (isSaved) {
        project.SetPath(m_path);
        m_folder.Enter(QFileInfo(m_path).path());
    } else {
        m_folder.EnterOwn(folder);
        project.SetPath(QDir::current().filePath(UnsavedName));
    }
    m_autosave.Follow(project.Path());
    m_session.Open(project);
    ShowState();
}

void ProjectActions::Open(const Project& project)
{
    Follow(project, QString());
    PostMessageToChannel(InfoLevel, tr("Opened the project \"%1\"").arg(project.Title()));
    if (m_path.isEmpty())
        return;
    RecentProjects::Add(m_path);
    if (m_autosave.IsOpenElsewhere())
        PostMessageToChannel(WarningLevel,
                             tr("%1 is open in another window, too: who saves last replaces what "
                                "the other one has saved")
                                 .arg(QDir::toNativeSeparators(m_path)));
    OfferRest();
}

void ProjectActions::OfferRest()
{
    try {
        const std::optional<Autosave::Rest> rest = m_autosave.LeftByCrash();
        if (!rest.has_value() || rest->project.HasSameContent(m_session.Current()))
            return;
        const QString text =
            tr("\"%1\" has changes of %2 that were not saved before the program ended. Recover "
               "them?")
                .arg(rest->project.Title(), QLocale().toString(rest->time, QLocale::ShortFormat));
        if (Ask(m_window, tr("Recover changes?"), text, QMessageBox::Yes | QMessageBox::Discard,
                QMessageBox::Yes) == QMessageBox::Yes)
            m_session.Recover(rest->project);
        else
            m_autosave.RemoveFile();
    } catch (const ProjectError& error) {
        PostMessageToChannel(WarningLevel,
                             tr("Changes that were saved automatically cannot be recovered: %1")
                                 .arg(error.Reason()));
    }
}

bool ProjectActions::OfferAbandoned()
{
    const QStringList folders = ProjectFolder::Abandoned();
    for (const QString& folder : folders) {
        const QString path = QDir(folder).filePath(UnsavedName);
        const QString file = Autosave::FileFor(path);
        if (QFileInfo::exists(file)) {
            try {
                const Project project = Project::Load(file);
                const QString text =
                    tr("\"%1\" of %2 was never saved before the program ended. Recover it?")
                        .arg(project.Title(), QLocale().toString(QFileInfo(file).lastModified(),
                                                                 QLocale::ShortFormat));
                if (Ask(m_window, tr("Recover changes?"), text,
                        QMessageBox::Yes | QMessageBox::Discard,
                        QMessageBox::Yes) == QMessageBox::Yes) {
                    Project empty;
                    empty.SetTitle(project.Title());
                    Follow(empty, folder);
                    m_session.Recover(project);
                    return true;
                }
            } catch (const ProjectError& error) {
                PostMessageToChannel(WarningLevel, error.Reason());
                continue;
            }
        }
        QDir(folder).removeRecursively();
    }
    return false;
}

void ProjectActions::OpenNew()
{
    if (!ConfirmDiscard())
        return;
    Project project;
    project.SetTitle(tr("New project"));
    Follow(project, QString());
    PostMessageToChannel(InfoLevel, tr("The project is empty: start with a body of the menu "
                                       "\"Model\" or with a parameter"));
}

void ProjectActions::AskForProject()
{
    if (!ConfirmDiscard())
        return;
    const QString path = QFileDialog::getOpenFileName(
        m_window, tr("Open project"),
        m_path.isEmpty() ? RecentProjects::Folder() : QFileInfo(m_path).path(), ProjectFilter());
    if (!path.isEmpty())
        OpenFile(path);
}

void ProjectActions::OpenFile(const QString& path)
{
    try {
        Open(Project::Load(path));
    } catch (const ProjectError& error) {
        PostMessageToChannel(ErrorLevel, error.Reason());
        RecentProjects::Remove(path);
    }
}

void ProjectActions::ShowRecent()
{
    m_recent->clear();
    const QStringList paths = RecentProjects::Paths();
    for (const QString& path : paths) {
        QString text = QDir::toNativeSeparators(path);
        text.replace(QLatin1Char('&'), QLatin1String("&&"));
        connect(m_recent->addAction(text), &QAction::triggered, this, [this, path] {
            if (ConfirmDiscard())
                OpenFile(path);
        });
    }
    if (paths.isEmpty())
        m_recent->addAction(tr("none yet"))->setEnabled(false);
}

void ProjectActions::Revert()
{
    if (m_session.IsChanged() &&
        Ask(m_window, tr("Revert?"),
            tr("All changes since the project was saved will be lost, and cannot be undone."),
            QMessageBox::Discard | QMessageBox::Cancel,
            QMessageBox::Cancel) != QMessageBox::Discard)
        return;
    OpenFile(m_path);
}

bool ProjectActions::Save()
{
    return m_path.isEmpty() ? SaveAs() : SaveTo(m_path);
}

bool ProjectActions::SaveAs()
{
    if (m_session.Current().Path().isEmpty())
        return false;
    QFileDialog dialog(m_window, tr("Save project"),
                       m_path.isEmpty() ? RecentProjects::Folder() : QFileInfo(m_path).path(),
                       ProjectFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("json"));
    return dialog.exec() == QDialog::Accepted && SaveTo(dialog.selectedFiles().value(0));
}

bool ProjectActions::SaveTo(const QString& path)
{
    const Project project = m_session.Current();
    const QString target = QFileInfo(path).absoluteFilePath();
    try {
        Project saved = project;
        // The files of an own folder go along, so paths to them stay as they are.
        if (m_folder.IsOwn())
            saved.SetPath(target);
        saved.Save(target);
    } catch (const ProjectError& error) {
        PostMessageToChannel(ErrorLevel, tr("%1. The project stays open with its changes; \"Save "
                                            "project as\" saves it elsewhere.")
                                             .arg(error.Reason()));
        return false;
    }
    m_autosave.RemoveFile();
    if (target != m_path) {
        SaveFiles(QFileInfo(target).path());
        if (m_folder.IsOwn())
            m_session.MoveTo(target);
        m_folder.Enter(QFileInfo(target).path());
        m_autosave.Follow(target);
        m_path = target;
    }
    RecentProjects::Add(m_path);
    m_session.SaveStores();
    m_session.NoteSaved(project);
    PostMessageToChannel(InfoLevel, tr("Saved as %1").arg(QDir::toNativeSeparators(path)));
    Q_EMIT Saved();
    return true;
}

void ProjectActions::SaveFiles(const QString& folder)
{
    const QStringList inTheWay = m_folder.CopyFilesTo(folder);
    for (const QString& file : inTheWay)
        PostMessageToChannel(WarningLevel,
                             tr("%1 of this project was not saved: %2 has another one")
                                 .arg(file, QDir::toNativeSeparators(folder)));
}

void ProjectActions::EditProperties()
{
    ProjectProperties dialog(m_session.Current(), m_window);
    if (dialog.exec() == QDialog::Accepted)
        m_session.SetProperties(dialog.Edited());
}

bool ProjectActions::ConfirmDiscard()
{
    if (!m_session.IsChanged())
        return true;
    const QMessageBox::StandardButton answer = QMessageBox::question(
        m_window, tr("Save changes?"),
        tr("\"%1\" has changes that are not saved.").arg(m_session.Current().Title()),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && Save());
}

void ProjectActions::Close()
{
    m_autosave.Release();
}

void ProjectActions::ShowState()
{
    const QString title = m_session.Current().Title();
    m_window->setWindowTitle(
        m_path.isEmpty() ? tr("%1[*] - Tarn host").arg(title)
                         : tr("%1 - %2[*] - Tarn host").arg(title, QFileInfo(m_path).fileName()));
    m_window->setWindowModified(m_session.IsChanged());
    m_revert->setEnabled(!m_path.isEmpty());
}
