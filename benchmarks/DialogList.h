#pragma once

#include "ArcArrayDlg.h"
#include "CAnalysisTypeGUI.h"
#include "CQLTConstrainEditor.h"
#include "CQLTElePropertyEditor.h"
#include "CQLTLoadForceEditor.h"
#include "DOEDlg.h"
#include "ELementPropGUI.h"
#include "ExternalSolverOption.h"
#include "ExtrudInputDlg.h"
#include "KVMaterialLibrary.h"
#include "MatrixArrayDlg.h"
#include "MeshSizeInput.h"
#include "MirrorDialog.h"
#include "MoveInput.h"
#include "OneParameterDlg.h"
#include "ParameterEditor.h"
#include "PolygonNumInputDlg.h"
#include "SubShapeMeshParameterDlg.h"
#include "TruncatedConeInputDlg.h"
#include "WedgeInputDlg.h"
#include "frequencySetting.h"
#include "rotateInputDlg.h"
#include "sphereParaInputdlg.h"
#include "torusParaInputDlg.h"

#include <QDialog>

#include <type_traits>

/// The two measurements for a dialog: constructing and destroying it, and the same for a bare
/// dialog with its form as the reference. The stores must be empty and the working directory must
/// contain no files, so that only the dialog itself is measured.

template<class Dialog>
struct WholeDialog
{
    static void Construct()
    {
        if constexpr (std::is_same_v<Dialog, OneParameterDlg>)
            Dialog(nullptr, QStringLiteral("a"));
        else
            Dialog(nullptr);
    }
};

template<class Form>
struct BareForm
{
    static void Construct()
    {
        QDialog dialog;
        Form form;
        form.setupUi(&dialog);
    }
};

/// Calls @p visit for every dialog, with its name and the functions that construct the dialog and
/// its bare form.
template<class Visit>
void ForEachDialog(const Visit& visit)
{
    visit("ArcArrayDlg", WholeDialog<ArcArrayDlg>::Construct, BareForm<Ui::ArcArrayDlg>::Construct);
    visit("CAnalysisTypeGUI", WholeDialog<CAnalysisTypeGUI>::Construct,
          BareForm<Ui::CAnalysisTypeGUI>::Construct);
    visit("CQLTConstrainEditor", WholeDialog<CQLTConstrainEditor>::Construct,
          BareForm<Ui::QLTConstrainEditor>::Construct);
    visit("CQLTElePropertyEditor", WholeDialog<CQLTElePropertyEditor>::Construct,
          BareForm<Ui::QLTElemProperty>::Construct);
    visit("CQLTLoadForceEditor", WholeDialog<CQLTLoadForceEditor>::Construct,
          BareForm<Ui::QLTLoadForceEditor>::Construct);
    visit("DOEDlg", WholeDialog<DOEDlg>::Construct, BareForm<Ui::DOEDlg>::Construct);
    visit("ELementPropGUI", WholeDialog<ELementPropGUI>::Construct,
          BareForm<Ui::ELementPropGUI>::Construct);
    visit("ExternalSolverOption", WholeDialog<ExternalSolverOption>::Construct,
          BareForm<Ui::ExternalSolverOption>::Construct);
    visit("ExtrudInputDlg", WholeDialog<ExtrudInputDlg>::Construct,
          BareForm<Ui::ExtrudInputDlg>::Construct);
    visit("KVMaterialLibrary", WholeDialog<KVMaterialLibrary>::Construct,
          BareForm<Ui::KVMaterialLibrary>::Construct);
    visit("MatrixArrayDlg", WholeDialog<MatrixArrayDlg>::Construct,
          BareForm<Ui::MatrixArrayDlg>::Construct);
    visit("MeshSizeInput", WholeDialog<MeshSizeInput>::Construct,
          BareForm<Ui::MeshSizeInput>::Construct);
    visit("MirrorDialog", WholeDialog<MirrorDialog>::Construct,
          BareForm<Ui::MirrorDialog>::Construct);
    visit("MoveInput", WholeDialog<MoveInput>::Construct, BareForm<Ui::MoveInput>::Construct);
    visit("OneParameterDlg", WholeDialog<OneParameterDlg>::Construct,
          BareForm<Ui::OneParameterDlg>::Construct);
    visit("ParameterEditor", WholeDialog<ParameterEditor>::Construct,
          BareForm<Ui::ParameterEditor>::Construct);
    visit("PolygonNumInputDlg", WholeDialog<PolygonNumInputDlg>::Construct,
          BareForm<Ui::PolygonNumInputDlg>::Construct);
    visit("SubShapeMeshParameterDlg", WholeDialog<SubShapeMeshParameterDlg>::Construct,
          BareForm<Ui::SubShapeMeshParameterDlg>::Construct);
    visit("TruncatedConeInputDlg", WholeDialog<TruncatedConeInputDlg>::Construct,
          BareForm<Ui::TruncatedConeInputDlg>::Construct);
    visit("WedgeInputDlg", WholeDialog<WedgeInputDlg>::Construct,
          BareForm<Ui::WedgeInputDlg>::Construct);
    visit("frequencySetting", WholeDialog<frequencySetting>::Construct,
          BareForm<Ui::frequencySetting>::Construct);
    visit("rotateInputDlg", WholeDialog<rotateInputDlg>::Construct,
          BareForm<Ui::rotateInputDlg>::Construct);
    visit("sphereParaInputdlg", WholeDialog<sphereParaInputdlg>::Construct,
          BareForm<Ui::sphereParaInputdlg>::Construct);
    visit("torusParaInputDlg", WholeDialog<torusParaInputDlg>::Construct,
          BareForm<Ui::torusParaInputDlg>::Construct);
}
