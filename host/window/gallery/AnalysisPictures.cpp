#include "AnalysisPictures.h"

#include "AnalysisFiles.h"
#include "AnalysisRecords.h"
#include "CAnalysisTypeGUI.h"
#include "CQLTConstrainEditor.h"
#include "CQLTElePropertyEditor.h"
#include "CQLTElemPropDef.h"
#include "CQLTLoadForceEditor.h"
#include "ELementPropGUI.h"
#include "KVMaterialData.h"
#include "KVMaterialLibrary.h"
#include "KVPropertyData.h"
#include "MeshSizeInput.h"
#include "SubShapeMeshParameterDlg.h"
#include "frequencySetting.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QPixmap>
#include <QTimer>

namespace {

constexpr int ByComponents = 1; // The kind of the sample load.
constexpr int ShellType = 2;    // The type of the sample properties.
const char* const SampleMaterial = "Steel S355";

CQLTElemPropDef SampleProperty(const QString& name, double thickness)
{
    CQLTElemPropDef property;
    property.m_strName = name;
    property.m_strMaterialName = QString::fromLatin1(SampleMaterial);
    property.m_dThickness = thickness;
    property.m_strTypeName = QStringLiteral("Shell");
    property.m_nTypeCode = ShellType;
    return property;
}

sLoadForceData SampleLoad()
{
    sLoadForceData load;
    load.m_strName = "boltPull";
    load.m_nKind = ByComponents;
    load.m_dFX = 1000.0;
    load.m_dFZ = -250.5;
    return load;
}

std::unique_ptr<KVMaterialLibrary> NewMaterialLibrary()
{
    auto library = std::make_unique<KVMaterialLibrary>(nullptr);
    library->SetComToItemData(QString::fromLatin1(SampleMaterial));
    library->Reset();
    return library;
}

} // namespace

std::unique_ptr<QWidget> PictureOfAnalysisType()
{
    return std::make_unique<CAnalysisTypeGUI>(nullptr);
}

std::unique_ptr<QWidget> PictureOfConstrainEditor()
{
    return std::make_unique<CQLTConstrainEditor>(nullptr);
}

std::unique_ptr<QWidget> PictureOfFrequencies()
{
    return std::make_unique<frequencySetting>(nullptr);
}

std::unique_ptr<QWidget> PictureOfLoadEditor()
{
    auto editor = std::make_unique<CQLTLoadForceEditor>(nullptr);
    editor->InitData(SampleLoad());
    return editor;
}

std::unique_ptr<QWidget> PictureOfMaterialEditor()
{
    // Only the library can show it: there it is pictured in its modal run, and closed.
    const std::unique_ptr<KVMaterialLibrary> library = NewMaterialLibrary();
    auto picture = std::make_unique<QLabel>();
    QTimer::singleShot(0, picture.get(), [&picture] {
        QWidget* const editor = QApplication::activeModalWidget();
        if (editor == nullptr)
            return;
        picture->setPixmap(editor->grab());
        picture->setFixedSize(editor->size());
        editor->close();
    });
    library->findChild<QPushButton*>(QStringLiteral("pushButton"))->click();
    return picture;
}

std::unique_ptr<QWidget> PictureOfMaterialLibrary()
{
    return NewMaterialLibrary();
}

std::unique_ptr<QWidget> PictureOfMeshSize()
{
    return std::make_unique<MeshSizeInput>(0.25, nullptr);
}

std::unique_ptr<QWidget> PictureOfPropertyEditor()
{
    auto editor = std::make_unique<CQLTElePropertyEditor>(nullptr);
    CQLTElemPropDef property = SampleProperty(QStringLiteral("flange"), 0.018);
    editor->SetPropData(&property);
    editor->SetPropData(nullptr); // Shown is shown; the record ends here.
    return editor;
}

std::unique_ptr<QWidget> PictureOfPropertyManager()
{
    return std::make_unique<ELementPropGUI>(nullptr);
}

std::unique_ptr<QWidget> PictureOfSubShapeMesh()
{
    auto dialog = std::make_unique<SubShapeMeshParameterDlg>(nullptr);
    dialog->ui.lineEdit_MeshSize->setText(QStringLiteral("0.05"));
    dialog->ui.lineEdit_MeshNumber->setText(QStringLiteral("12"));
    return dialog;
}

void FillSampleAnalysis(AnalysisRecords& model)
{
    sConstrainData bolts;
    bolts.m_strName = "boltCircle";
    bolts.m_bXD = bolts.m_bYD = bolts.m_bZD = true;
    model.AddConstraint(bolts);
    model.AddLoad(SampleLoad());
    model.SetMeshSize(0.25);
    model.SetSubShape({0.05, 12});
}

SampleAnalysisFiles::SampleAnalysisFiles()
    : m_before(QDir::currentPath())
{
    QDir::setCurrent(m_directory.path());
    KVPropertyData& properties = *KVPropertyData::GetInstance();
    properties.Clear();
    properties.AddPropInfo(new CQLTElemPropDef(SampleProperty(QStringLiteral("flange"), 0.018)));
    properties.AddPropInfo(new CQLTElemPropDef(SampleProperty(QStringLiteral("hub"), 0.012)));
    KVMaterialData::GetInstance()->ClearInfo();
    ReadAnalysisFiles();
}

SampleAnalysisFiles::~SampleAnalysisFiles()
{
    KVPropertyData::GetInstance()->Clear();
    KVMaterialData::GetInstance()->ClearInfo();
    QDir::setCurrent(m_before);
}
