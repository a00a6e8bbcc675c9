#include "SolverActions.h"

#include "ExternalSolver.h"
#include "ExternalSolverOption.h"
#include "MenuActions.h"

#include <QMenu>

#include <memory>

SolverActions::SolverActions(QWidget* window)
    : QObject(window)
    , m_window(window)
{
}

SolverActions::~SolverActions() = default;

void SolverActions::FillMenu(QMenu& menu)
{
    menu.addActions(
        {NewAction(tr("Run &Nastran"), "action_RunSolver", this, &SolverActions::RunSolver),
         NewAction(tr("Open results in &HyperView"), "action_ShowResults", this,
                   &SolverActions::ShowResults)});
    menu.addSeparator();
    menu.addAction(
        NewAction(tr("Solver &paths"), "action_SolverPaths", this, &SolverActions::ListSolvers));
}

void SolverActions::RunSolver()
{
    const std::unique_ptr<QDialog> dialog(CreateSolverSetting(m_window));
    dialog->exec();
}

void SolverActions::ShowResults()
{
    const std::unique_ptr<QDialog> dialog(CreateResultSetting(m_window));
    dialog->exec();
}

void SolverActions::ListSolvers()
{
    ExternalSolverOption dialog(m_window);
    dialog.exec();
}
