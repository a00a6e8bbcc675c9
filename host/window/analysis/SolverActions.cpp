#include "SolverActions.h"

#include "ExternalSolver.h"
#include "MenuActions.h"
#include "MessageLevel.h"
#include "SolverPaths.h"
#include "UserSettings.h"

#include <QDialog>
#include <QLineEdit>
#include <QMenu>

#include <memory>

namespace {

const QLatin1String SolverKey("solver/lastPath");

}

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
    const QString last = UserSettings().value(SolverKey).toString();
    if (last.contains(QLatin1Char(' ')))
        PostMessageToChannel(WarningLevel,
                             tr("The path %1 has blanks: \"Run\" starts only what is before the "
                                "first one. Pick a link to the solver whose path has none.")
                                 .arg(last));
    const std::unique_ptr<QDialog> dialog(CreateSolverSetting(m_window));
    dialog->exec();
    const auto* const path = dialog->findChild<QLineEdit*>(QStringLiteral("lineEdit_Path"));
    if (path != nullptr && !path->text().isEmpty())
        UserSettings().setValue(SolverKey, path->text());
}

void SolverActions::ShowResults()
{
    const std::unique_ptr<QDialog> dialog(CreateResultSetting(m_window));
    dialog->exec();
}

void SolverActions::ListSolvers()
{
    EditSolverPaths(m_window);
}
