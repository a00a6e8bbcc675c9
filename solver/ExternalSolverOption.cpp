#include "ExternalSolverOption.h"

ExternalSolverOption::ExternalSolverOption(QWidget* parent)
    : QDialog(parent)
{
    ui.setupUi(this);
}

ExternalSolverOption::~ExternalSolverOption() = default;
