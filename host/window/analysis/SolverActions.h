#pragma once

#include <QObject>

class QMenu;
class QWidget;

/// Runs the dialogs of the external solvers.
class SolverActions : public QObject
{
    Q_OBJECT

public:
    /// @p window is the parent of the dialogs and owns this object.
    explicit SolverActions(QWidget* window);
    ~SolverActions() override;

    void FillMenu(QMenu& menu);

private:
    void RunSolver();
    void ShowResults();
    void ListSolvers();

    QWidget* m_window;
};
