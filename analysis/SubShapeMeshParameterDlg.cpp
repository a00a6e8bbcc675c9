#include "SubShapeMeshParameterDlg.h"

SubShapeMeshParameterDlg::SubShapeMeshParameterDlg(QWidget* parent)
    : QDialog(parent)
{
    ui.setupUi(this);
}

SubShapeMeshParameterDlg::~SubShapeMeshParameterDlg() = default;
