#pragma once

#include "Project.h"

#include <QDialog>

#include <memory>

namespace Ui {
class ProjectProperties;
}

/// Asks for the title, the material, the density and the conditions of a project.
///
/// OK says in the dialog what is wrong and keeps it open: a density that is not above 0, or a
/// condition without an expression.
class ProjectProperties : public QDialog
{
    Q_OBJECT

public:
    /// Offers the materials of KVMaterialData, and that of the project.
    ProjectProperties(const Project& project, QWidget* parent);
    ~ProjectProperties() override;

    /// The project that was given, with what the user entered.
    const Project& Edited() const { return m_project; }

    void accept() override;

private:
    void AddRow(const Condition& condition);
    void RemoveRow();
    /// What the table holds, without rows that are empty.
    std::vector<Condition> Conditions() const;

    std::unique_ptr<Ui::ProjectProperties> m_ui;
    Project m_project;
};
