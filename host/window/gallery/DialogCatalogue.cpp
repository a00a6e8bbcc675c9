#include "DialogCatalogue.h"

#include "ArcArrayDlg.h"
#include "CAnalysisTypeGUI.h"
#include "CQLTConstrainEditor.h"
#include "CQLTElePropertyEditor.h"
#include "CQLTLoadForceEditor.h"
#include "DOEDlg.h"
#include "ELementPropGUI.h"
#include "ExternalSolver.h"
#include "ExternalSolverOption.h"
#include "ExtrudInputDlg.h"
#include "GlobalParaMeterMgr.h"
#include "KVMaterialLibrary.h"
#include "MatrixArrayDlg.h"
#include "MeshSizeInput.h"
#include "MirrorDialog.h"
#include "MoveInput.h"
#include "OneParameterDlg.h"
#include "ParameterEditor.h"
#include "PolygonNumInputDlg.h"
#include "PosInputDlg.h"
#include "SampleRecords.h"
#include "SubShapeMeshParameterDlg.h"
#include "TruncatedConeInputDlg.h"
#include "WedgeInputDlg.h"
#include "frequencySetting.h"
#include "rotateInputDlg.h"
#include "sphereParaInputdlg.h"
#include "torusParaInputDlg.h"

#include <QLineEdit>
#include <QTableWidget>

#include <type_traits>

namespace {

/// Owns the sample and the record that OK allocates, as a host does.
class PropertyEditor : public CQLTElePropertyEditor
{
public:
    using CQLTElePropertyEditor::CQLTElePropertyEditor;
    ~PropertyEditor() override
    {
        if (GetPropData() != &m_sample)
            delete GetPropData();
    }
    Q_DISABLE_COPY(PropertyEditor)

    void ShowSample() { SetPropData(&m_sample); }

private:
    CQLTElemPropDef m_sample = SampleProperty(QStringLiteral("flange"), 20.0);
};

/// For the first stored parameter.
class SamplingDialog : public OneParameterDlg
{
public:
    explicit SamplingDialog(QWidget* parent)
        : OneParameterDlg(parent, ParameterName())
    {
    }

private:
    static QString ParameterName()
    {
        const std::vector<QString> names = GlobalParaMeterMgr::GetAllParametersName();
        return names.empty() ? QStringLiteral("length") : names.front();
    }
};

void SetText(const QWidget& dialog, const char* field, const char* text)
{
    dialog.findChild<QLineEdit*>(QLatin1String(field))->setText(QString::fromLatin1(text));
}

void ShowSampleProperty(PropertyEditor& editor)
{
    editor.ShowSample();
}

void ShowSampleLoad(CQLTLoadForceEditor& editor)
{
    editor.InitData(SampleLoad());
}

void SelectARun(DOEDlg& dialog)
{
    dialog.findChild<QTableWidget*>(QStringLiteral("tableWidget_Final"))->selectRow(4);
}

void SelectSampleMaterial(KVMaterialLibrary& library)
{
    library.SetComToItemData(SampleMaterial());
    library.Reset();
}

void SetMeshSize(MeshSizeInput& dialog)
{
    SetText(dialog, "lineEdit_MeshSize", "8");
}

void EnterRange(SamplingDialog& dialog)
{
    SetText(dialog, "lineEdit_Min", "16");
    SetText(dialog, "lineEdit_Max", "24");
    SetText(dialog, "lineEdit_Deta", "4");
    // Only now: the dialog would refuse a range that is half entered.
    Q_EMIT dialog.findChild<QLineEdit*>(QStringLiteral("lineEdit_Deta"))->editingFinished();
}

void ShowStoredParameters(ParameterEditor& editor)
{
    editor.m_Slot_RefreshGUI();
}

void SetSubShapeMesh(SubShapeMeshParameterDlg& dialog)
{
    SetText(dialog, "lineEdit_MeshSize", "2");
    SetText(dialog, "lineEdit_MeshNumber", "12");
}

template<class Dialog>
std::unique_ptr<QWidget> Make()
{
    return std::make_unique<Dialog>(nullptr);
}

template<QDialog* (*Create)(QWidget*)>
std::unique_ptr<QWidget> Make()
{
    return std::unique_ptr<QWidget>(Create(nullptr));
}

template<class Dialog, class Form>
void MakeForm()
{
    std::conditional_t<std::is_base_of_v<QDialog, Dialog>, QDialog, QWidget> window;
    Form form;
    form.setupUi(&window);
}

template<class Dialog, void (*FillDialog)(Dialog&)>
void Fill(QWidget& dialog)
{
    FillDialog(static_cast<Dialog&>(dialog));
}

template<class Dialog, class Form>
CatalogueEntry Entry(void (*fill)(QWidget&) = nullptr)
{
    return {Dialog::staticMetaObject.className(), Make<Dialog>, MakeForm<Dialog, Form>, fill};
}

} // namespace

const std::vector<CatalogueEntry>& DialogCatalogue()
{
    static const std::vector<CatalogueEntry> entries = {
        Entry<ArcArrayDlg, Ui::ArcArrayDlg>(),
        Entry<CAnalysisTypeGUI, Ui::CAnalysisTypeGUI>(),
        Entry<CQLTConstrainEditor, Ui::QLTConstrainEditor>(),
        Entry<PropertyEditor, Ui::QLTElemProperty>(Fill<PropertyEditor, ShowSampleProperty>),
        Entry<CQLTLoadForceEditor, Ui::QLTLoadForceEditor>(
            Fill<CQLTLoadForceEditor, ShowSampleLoad>),
        Entry<DOEDlg, Ui::DOEDlg>(Fill<DOEDlg, SelectARun>),
        Entry<ELementPropGUI, Ui::ELementPropGUI>(),
        Entry<ExternalSolverOption, Ui::ExternalSolverOption>(),
        Entry<ExtrudInputDlg, Ui::ExtrudInputDlg>(),
        Entry<KVMaterialLibrary, Ui::KVMaterialLibrary>(
            Fill<KVMaterialLibrary, SelectSampleMaterial>),
        Entry<MatrixArrayDlg, Ui::MatrixArrayDlg>(),
        Entry<MeshSizeInput, Ui::MeshSizeInput>(Fill<MeshSizeInput, SetMeshSize>),
        Entry<MirrorDialog, Ui::MirrorDialog>(),
        Entry<MoveInput, Ui::MoveInput>(),
        Entry<SamplingDialog, Ui::OneParameterDlg>(Fill<SamplingDialog, EnterRange>),
        Entry<ParameterEditor, Ui::ParameterEditor>(Fill<ParameterEditor, ShowStoredParameters>),
        Entry<PolygonNumInputDlg, Ui::PolygonNumInputDlg>(),
        Entry<PosInputDlg, Ui::PosInputDlg>(),
        {"ResultSetting", Make<CreateResultSetting>, nullptr, nullptr},
        {"SolverSetting", Make<CreateSolverSetting>, nullptr, nullptr},
        Entry<SubShapeMeshParameterDlg, Ui::SubShapeMeshParameterDlg>(
            Fill<SubShapeMeshParameterDlg, SetSubShapeMesh>),
        Entry<TruncatedConeInputDlg, Ui::TruncatedConeInputDlg>(),
        Entry<WedgeInputDlg, Ui::WedgeInputDlg>(),
        Entry<frequencySetting, Ui::frequencySetting>(),
        Entry<rotateInputDlg, Ui::rotateInputDlg>(),
        Entry<sphereParaInputdlg, Ui::sphereParaInputdlg>(),
        Entry<torusParaInputDlg, Ui::torusParaInputDlg>(),
    };
    return entries;
}
