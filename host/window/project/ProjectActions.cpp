#include "ProjectActions.h"

#include "MenuActions.h"
#include "MessageLevel.h"
#include "ParameterJson.h"
#include "PartModel.h"
#include "SampleListJson.h"
#include "SampleRegistry.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>

namespace {

// What the stores hold of a project's file.
QJsonArray StoredDesign()
{
    return {StoredParameters(), ToJson(RegisteredSamples())};
}

QString ProjectFilter()
{
    return ProjectActions::tr("Projects (*.json);;All files (*)");
}

} // namespace

ProjectActions::ProjectActions(PartModel& model, QWidget* window)
    : QObject(window)
    , m_model(model)
    , m_window(window)
{
    connect(&m_model.UndoStack(), &QUndoStack::cleanChanged, this, &ProjectActions::ShowModified);
}

ProjectActions::~ProjectActions() = default;

void ProjectActions::FillMenu(QMenu& menu)
{
    menu.addActions(
        {NewAction(tr("&Open project"), "action_OpenProject", this, &ProjectActions::AskForProject,
                   QKeySequence::Open),
         NewAction(tr("&Save project"), "action_SaveProject", this, &ProjectActions::Save,
                   QKeySequence::Save),
         NewAction(tr("Save project &as"), "action_SaveProjectAs", this, &ProjectActions::SaveAs,
                   QKeySequence(QStringLiteral("Ctrl+Shift+S")))});
    menu.addSeparator();
    menu.addAction(
        NewAction(tr("&Quit"), "action_Quit", m_window, &QWidget::close, QKeySequence::Quit));
}

double ProjectActions::Density() const
{
    return m_project.has_value() ? m_project->Density() : Project::SteelDensity;
}

void ProjectActions::Open(const Project& project)
{
    m_project = project;
    m_path = project.Path() == Project::SamplePath() ? QString() : project.Path();
    m_project->FillParameterStore();
    FillSampleRegistry(m_project->SampleLists());
    m_window->setWindowTitle(tr("%1[*] - Tarn host").arg(project.Title()));
    PostMessageToChannel(InfoLevel, tr("Opened the project \"%1\"").arg(project.Title()));
    Q_EMIT Opened();
    m_model.Open(project.Features(), project.Conditions(), project.Folder());
    NoteSaved();
}

void ProjectActions::AskForProject()
{
    if (!ConfirmDiscard())
        return;
    const QString path = QFileDialog::getOpenFileName(
        m_window, tr("Open project"), m_path.isEmpty() ? QString() : QFileInfo(m_path).path(),
        ProjectFilter());
    if (path.isEmpty())
        return;
    try {
        Open(Project::Load(path));
    } catch (const ProjectError& error) {
        PostMessageToChannel(ErrorLevel, error.Reason());
    }
}

bool ProjectActions::Save()
{
    return m_path.isEmpty() ? SaveAs() : SaveTo(m_path);
}

bool ProjectActions::SaveAs()
{
    if (!m_project.has_value())
        return false;
    QFileDialog dialog(m_window, tr("Save project"),
                       m_path.isEmpty() ? QString() : QFileInfo(m_path).path(), ProjectFilter());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("json"));
    return dialog.exec() == QDialog::Accepted && SaveTo(dialog.selectedFiles().value(0));
}

bool ProjectActions::SaveTo(const QString& path)
{
    Project saved = *m_project;
    saved.SetFeatures(m_model.Features());
    saved.SetSampleLists(RegisteredSamples());
    try {
        saved.Save(path);
    } catch (const ProjectError& error) {
        PostMessageToChannel(ErrorLevel, error.Reason());
        return false;
    }
    m_path = path;
    NoteSaved();
    PostMessageToChannel(InfoLevel, tr("Saved as %1").arg(QDir::toNativeSeparators(path)));
    Q_EMIT Saved();
    return true;
}

bool ProjectActions::ConfirmDiscard()
{
    if (!IsChanged())
        return true;
    const QMessageBox::StandardButton answer = QMessageBox::question(
        m_window, tr("Save changes?"),
        tr("\"%1\" has changes that are not saved.").arg(m_project->Title()),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && Save());
}

void ProjectActions::NoteSaved()
{
    m_savedDesign = StoredDesign();
    m_isDesignChanged = false;
    m_model.UndoStack().setClean();
    ShowModified();
}

bool ProjectActions::IsChanged() const
{
    return m_project.has_value() && (m_isDesignChanged || !m_model.UndoStack().isClean());
}

void ProjectActions::UpdateModified()
{
    m_isDesignChanged = StoredDesign() != m_savedDesign;
    ShowModified();
}

void ProjectActions::ShowModified()
{
    m_window->setWindowModified(IsChanged());
}
