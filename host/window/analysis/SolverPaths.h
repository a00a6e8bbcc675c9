#pragma once

class QWidget;

/// Lets the user edit the paths of outside programs, and stores them. The dialog has places for
/// other solvers; those of the mesher and the solver that this host runs are added to it. OK checks
/// the latter two.
void EditSolverPaths(QWidget* window);
