#pragma once

#include "Project.h"

#include <QJsonArray>
#include <QObject>

#include <optional>

class PartModel;
class QMenu;
class QWidget;

/// Opens and saves projects, and asks before changes are lost.
///
/// The window's title has the project's, and its mark for changes is set while the features, the
/// stored parameters or the samples are not those of the file.
class ProjectActions : public QObject
{
    Q_OBJECT

public:
    /// Dialogs belong to @p window, which also owns this object; the model must outlive it.
    ProjectActions(PartModel& model, QWidget* window);
    ~ProjectActions() override;

    void FillMenu(QMenu& menu);

    /// Puts @p project into the stores and the model, in place of what they hold.
    void Open(const Project& project);

    /// In kg/m3.
    double Density() const;

    /// False when there are changes that the user wants to keep and that are not saved.
    bool ConfirmDiscard();

public Q_SLOTS:
    /// To be called after a dialog has written to the parameter store or the sample registry, which
    /// emit no signals. Changes of the features are noticed without a call.
    void UpdateModified();

Q_SIGNALS:
    /// Another project stands in the stores; its part comes next.
    void Opened();
    /// The project was written.
    void Saved();

private:
    void AskForProject();
    bool Save();
    bool SaveAs();
    bool SaveTo(const QString& path);
    void NoteSaved();
    bool IsChanged() const;
    void ShowModified();

    PartModel& m_model;
    QWidget* m_window;
    // As it was opened: the model's relative paths are those of its folder.
    std::optional<Project> m_project;
    QString m_path;           // Where Save writes; empty where that has to be asked.
    QJsonArray m_savedDesign; // The stores as they were opened or saved.
    bool m_isDesignChanged = false;
};
