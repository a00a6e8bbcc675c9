#include "Screenshots.h"

#include "AnalysisPictures.h"
#include "ArcArrayDlg.h"
#include "DOEDlg.h"
#include "DialogTables.h"
#include "DoeSession.h"
#include "ExternalSolver.h"
#include "ExternalSolverOption.h"
#include "ExtrudInputDlg.h"
#include "FeatureTree.h"
#include "GlobalParaMeterMgr.h"
#include "MainWindow.h"
#include "MatrixArrayDlg.h"
#include "MirrorDialog.h"
#include "MoveInput.h"
#include "NoticeWatcher.h"
#include "OneParameterDlg.h"
#include "ParameterEditor.h"
#include "PartModel.h"
#include "PolygonNumInputDlg.h"
#include "PosInputDlg.h"
#include "Project.h"
#include "TruncatedConeInputDlg.h"
#include "WedgeInputDlg.h"
#include "rotateInputDlg.h"
#include "sphereParaInputdlg.h"
#include "torusParaInputDlg.h"

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QPixmap>
#include <QTableWidget>

#include <memory>
#include <vector>

namespace {

using Window = std::unique_ptr<QWidget>;

constexpr int PointSize = 9; // Without a desktop the toolkit takes a size that no desktop has.
constexpr int ChosenRow = 4;
constexpr QSize RoomySampling(360, 460); // The form's own size shows one sample.

class PictureFont
{
public:
    PictureFont()
    {
        QFont font = m_before;
        font.setPointSize(PointSize);
        QApplication::setFont(font);
    }
    ~PictureFont() { QApplication::setFont(m_before); }
    Q_DISABLE_COPY(PictureFont)

private:
    QFont m_before = QApplication::font();
};

Window NewMainWindow(const Project& project)
{
    auto window = std::make_unique<MainWindow>();
    window->OpenProject(project);
    FillSampleAnalysis(window->Analysis());
    // A feature with fields, so that they show.
    for (const Feature& feature : window->Part().Features().Features()) {
        if (feature.kind == FeatureKind::PolarArray)
            window->Features().Select(feature.name);
    }
    return window;
}

Window NewParameterEditor(const Project&)
{
    auto editor = std::make_unique<ParameterEditor>(nullptr);
    editor->m_Slot_RefreshGUI();
    FitTables(*editor);
    return editor;
}

Window NewOneParameterDlg(const Project& project)
{
    const std::vector<QString> names = GlobalParaMeterMgr::GetAllParametersName();
    QString name = names.empty() ? QStringLiteral("length") : names.front();
    // A range shows more of the dialog than samples given one by one.
    for (const Project::Samples& samples : project.SampleLists()) {
        if (samples.values.empty())
            name = samples.name;
    }
    auto dialog = std::make_unique<OneParameterDlg>(nullptr, name);
    dialog->resize(RoomySampling);
    return dialog;
}

Window NewDOEDlg(const Project&)
{
    auto dialog = std::make_unique<DOEDlg>(nullptr);
    const DoeSession ticksByName(*dialog);
    FitTables(*dialog);
    dialog->findChild<QTableWidget*>(QStringLiteral("tableWidget_Final"))->selectRow(ChosenRow);
    return dialog;
}

template<class Dialog>
Window NewDialog(const Project&)
{
    return std::make_unique<Dialog>(nullptr);
}

template<QDialog* (*create)(QWidget*)>
Window NewDialog(const Project&)
{
    return Window(create(nullptr));
}

struct Picture
{
    const char* name;
    Window (*make)(const Project&);
};

template<Window (*Make)()>
Window NewAnalysisDialog(const Project&)
{
    return Make();
}

// A new dialog gets a line here. The main window comes first: it fills the stores.
const Picture Pictures[] = {
    {"MainWindow", NewMainWindow},
    {"ArcArrayDlg", NewDialog<ArcArrayDlg>},
    {"CAnalysisTypeGUI", NewAnalysisDialog<PictureOfAnalysisType>},
    {"CQLTConstrainEditor", NewAnalysisDialog<PictureOfConstrainEditor>},
    {"CQLTElePropertyEditor", NewAnalysisDialog<PictureOfPropertyEditor>},
    {"CQLTLoadForceEditor", NewAnalysisDialog<PictureOfLoadEditor>},
    {"DOEDlg", NewDOEDlg},
    {"ELementPropGUI", NewAnalysisDialog<PictureOfPropertyManager>},
    {"ExternalSolverOption", NewDialog<ExternalSolverOption>},
    {"ExtrudInputDlg", NewDialog<ExtrudInputDlg>},
    {"KVMaterialLibrary", NewAnalysisDialog<PictureOfMaterialLibrary>},
    {"MaterialEditer", NewAnalysisDialog<PictureOfMaterialEditor>},
    {"MatrixArrayDlg", NewDialog<MatrixArrayDlg>},
    {"MeshSizeInput", NewAnalysisDialog<PictureOfMeshSize>},
    {"MirrorDialog", NewDialog<MirrorDialog>},
    {"MoveInput", NewDialog<MoveInput>},
    {"OneParameterDlg", NewOneParameterDlg},
    {"ParameterEditor", NewParameterEditor},
    {"PolygonNumInputDlg", NewDialog<PolygonNumInputDlg>},
    {"PosInputDlg", NewDialog<PosInputDlg>},
    {"ResultSetting", NewDialog<CreateResultSetting>},
    {"SolverSetting", NewDialog<CreateSolverSetting>},
    {"SubShapeMeshParameterDlg", NewAnalysisDialog<PictureOfSubShapeMesh>},
    {"TruncatedConeInputDlg", NewDialog<TruncatedConeInputDlg>},
    {"WedgeInputDlg", NewDialog<WedgeInputDlg>},
    {"frequencySetting", NewAnalysisDialog<PictureOfFrequencies>},
    {"rotateInputDlg", NewDialog<rotateInputDlg>},
    {"sphereParaInputdlg", NewDialog<sphereParaInputdlg>},
    {"torusParaInputDlg", NewDialog<torusParaInputDlg>},
};

bool WritePicture(QWidget& window, const QString& path)
{
    window.show();
    QCoreApplication::processEvents();
    return window.grab().save(path, "PNG");
}

} // namespace

QPalette DarkPalette()
{
    const QColor ground(48, 48, 48);
    QPalette palette(ground, ground); // Of buttons and windows; the rest follows.
    // Fields are lighter than the window: the style draws the frame of a check box darker than it,
    // which would not be seen on black.
    palette.setColor(QPalette::Base, QColor(68, 68, 68));
    palette.setColor(QPalette::AlternateBase, QColor(76, 76, 76));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

void VisitWindows(const Project& project,
                  const std::function<void(const QString& name, QWidget& window)>& visit)
{
    const NoticeWatcher notices;
    const SampleAnalysisFiles files;
    for (const Picture& picture : Pictures)
        visit(QString::fromLatin1(picture.name), *picture.make(project));
}

void WriteScreenshots(const Project& project, const QString& directory)
{
    if (!QDir().mkpath(directory))
        throw ScreenshotError(QStringLiteral("%1: the folder cannot be made").arg(directory));
    // The working directory changes while the pictures are made.
    const QDir pictures(QDir(directory).absolutePath());

    const PictureFont font;
    VisitWindows(project, [&directory, &pictures](const QString& name, QWidget& window) {
        const QString file = name + QStringLiteral(".png");
        if (!WritePicture(window, pictures.filePath(file)))
            throw ScreenshotError(
                QStringLiteral("%1: cannot be written").arg(QDir(directory).filePath(file)));
    });
}
