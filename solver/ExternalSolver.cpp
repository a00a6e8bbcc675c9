#include "ExternalSolver.h"

#include "ResultSetting.h"
#include "SolverSetting.h"

QDialog* CreateSolverSetting(QWidget* parent)
{
    return new SolverSetting(parent);
}

QDialog* CreateResultSetting(QWidget* parent)
{
    return new ResultSetting(parent);
}
