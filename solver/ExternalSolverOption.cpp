#include "ExternalSolverOption.h"

#include "ElidedTexts.h"

ExternalSolverOption::ExternalSolverOption(QWidget* parent)
    : QDialog(parent)
{
    ui.setupUi(this);
    tarn::ElideTexts(*this);
}

ExternalSolverOption::~ExternalSolverOption() = default;
