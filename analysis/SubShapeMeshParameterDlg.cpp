#include "SubShapeMeshParameterDlg.h"

#include "ElidedTexts.h"

SubShapeMeshParameterDlg::SubShapeMeshParameterDlg(QWidget* parent)
    : QDialog(parent)
{
    ui.setupUi(this);
    tarn::ElideTexts(*this);
}

SubShapeMeshParameterDlg::~SubShapeMeshParameterDlg() = default;
