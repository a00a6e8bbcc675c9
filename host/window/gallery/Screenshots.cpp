#include "Screenshots.h"

#include "AnalysisTree.h"
#include "AnalysisType.h"
#include "BuildLimitsDialog.h"
#include "DOEDlg.h"
#include "DesignModel.h"
#include "DialogCatalogue.h"
#include "DialogTables.h"
#include "DoeSession.h"
#include "FeatureKind.h"
#include "FeatureTree.h"
#include "HostError.h"
#include "KVMaterialLibrary.h"
#include "MainWindow.h"
#include "NoticeWatcher.h"
#include "OneParameterDlg.h"
#include "ParameterEditor.h"
#include "ParameterPanel.h"
#include "PartModel.h"
#include "PartPanel.h"
#include "PositionDock.h"
#include "Project.h"
#include "ProjectProperties.h"
#include "ResultsDock.h"
#include "SampleAnalysis.h"
#include "SampleRecords.h"
#include "SampleResults.h"
#include "SampleStudy.h"
#include "SetupCheckDock.h"
#include "SolveActions.h"
#include "SolveDock.h"
#include "StudyActions.h"
#include "StudyPanel.h"
#include "StudyResults.h"
#include "WholeFile.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QFont>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPixmap>
#include <QTabWidget>
#include <QTimer>

#include <memory>
#include <utility>
#include <vector>

namespace {

constexpr int PointSize = 9;           // The default of a system without a desktop is unusual.
constexpr QSize WindowSize(1440, 940); // Whatever the screen and the last session.
constexpr QSize DockSize(460, 480);
constexpr QSize StudyPanelSize(400, 720);
constexpr QSize StudyResultsSize(900, 560);
constexpr QSize ParameterPanelSize(820, 320);
constexpr QSize PositionSize(320, 220);
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

std::unique_ptr<MainWindow> NewMainWindow(const Project& project)
{
    auto window = std::make_unique<MainWindow>();
    window->resize(WindowSize);
    window->OpenProject(project);
    window->Part().WaitUntilIdle();
    FillSampleAnalysis(window->Analysis());
    // A feature with fields, so that the dock shows them.
    for (const Feature& feature : window->Part().Features().Features()) {
        if (feature.kind->word == QLatin1String("polarArray"))
            window->Features().Select(feature.name);
    }
    return window;
}

// Prepares the dialog as this host does before it shows it.
void Prepare(QWidget& dialog)
{
    if (auto* const experiments = qobject_cast<DOEDlg*>(&dialog)) {
        DesignModel design;
        const DoeSession ticksByName(*experiments, design);
        FitTables(*experiments);
    } else if (auto* const editor = qobject_cast<ParameterEditor*>(&dialog)) {
        FitTables(*editor);
    } else if (qobject_cast<OneParameterDlg*>(&dialog) != nullptr) {
        dialog.resize(RoomySampling);
    }
}

// The results of a study, with one plot after the other.
void VisitPlots(StudyTable& table, QWidget& results,
                const std::function<void(const QString& name, QWidget& window)>& visit)
{
    const std::initializer_list<std::pair<const char*, const char*>> pictures = {
        {"StudyResults", "scatterMatrix"},
        {"StudyScatter", "scatterPlot"},
        {"StudyMainEffects", "mainEffectsPlot"},
        {"StudyOptimum", "optimumPage"}};
    auto* const tabs = results.findChild<QTabWidget*>();
    for (const auto& [name, plot] : pictures) {
        if (QLatin1String(plot) == QLatin1String("optimumPage"))
            AddVerifyingRun(table);
        tabs->setCurrentWidget(tabs->findChild<QWidget*>(QString::fromLatin1(plot)));
        visit(QString::fromLatin1(name), results);
        results.hide();
    }
}

// What the docks of a study hold, as windows of their own. Destroys the window.
void VisitStudy(std::unique_ptr<MainWindow> window,
                const std::function<void(const QString& name, QWidget& window)>& visit)
{
    FillSampleStudy(window->Study().Table());
    PrepareSamplePlots(*window->Study().Results());
    const std::initializer_list<std::pair<QDockWidget*, QSize>> docks = {
        {window->Study().Panel(), StudyPanelSize}, {window->Study().Results(), StudyResultsSize}};
    // They outlive the docks, which use them.
    std::vector<std::unique_ptr<QWidget>> contents;
    for (const auto& [dock, size] : docks) {
        contents.emplace_back(dock->widget());
        QWidget& content = *contents.back();
        content.setParent(nullptr);
        content.setWindowTitle(dock->windowTitle());
        content.resize(size);
        if (dock == window->Study().Results())
            VisitPlots(window->Study().Table(), content, visit);
        else
            visit(QString::fromLatin1(dock->metaObject()->className()), content);
        content.hide();
    }
    window.reset();
}

// Only the library can run this dialog, so the picture is taken during a run.
std::unique_ptr<QWidget> PictureOfMaterialEditor()
{
    KVMaterialLibrary library;
    library.SetComToItemData(SampleMaterial());
    library.Reset();
    auto picture = std::make_unique<QLabel>();
    QTimer::singleShot(0, picture.get(), [&picture] {
        QWidget* const editor = QApplication::activeModalWidget();
        if (editor == nullptr)
            return;
        picture->setPixmap(editor->grab());
        picture->setFixedSize(editor->size());
        editor->close();
    });
    library.findChild<QPushButton*>(QStringLiteral("pushButton"))->click();
    return picture;
}

/// A dock in a window of its own.
class DockWindow : public QMainWindow
{
public:
    explicit DockWindow(QDockWidget& dock)
    {
        addDockWidget(Qt::RightDockWidgetArea, &dock);
        resize(DockSize);
    }
};

// What asks for a project and for a check has no entry in the catalogue: these are not dialogs of
// the library.
void VisitProject(const Project& project,
                  const std::function<void(const QString& name, QWidget& window)>& visit)
{
    ProjectProperties properties(project, nullptr);
    visit(QStringLiteral("ProjectProperties"), properties);
    BuildLimitsDialog limits(BuildLimits::Stored(), nullptr);
    visit(QStringLiteral("BuildLimitsDialog"), limits);

    AnalysisDefinition analysis = project.Analysis();
    analysis.constraints.clear();
    analysis.meshSize.clear();
    analysis.type.kind = AnalysisType::StaticKind;
    auto* const check = new SetupCheckDock(nullptr);
    DockWindow checkWindow(*check);
    check->ShowProblems(CheckSetup(analysis, {}));
    visit(QStringLiteral("SetupCheckDock"), checkWindow);

    DesignModel design;
    design.Open(project.Units());
    auto* const parameters = new ParameterPanel(design, nullptr);
    DockWindow parametersWindow(*parameters);
    parametersWindow.resize(ParameterPanelSize);
    visit(QStringLiteral("ParameterPanel"), parametersWindow);
}

// The view with the bar above it, which asks for faces of the first boundary condition.
QWidget& WithPicking(MainWindow& window)
{
    Q_EMIT window.findChild<AnalysisTree*>()->PickWanted({AnalysisEntry::Constraint, 0});
    return *window.findChild<PartPanel*>();
}

void VisitDocks(const std::function<void(const QString& name, QWidget& window)>& visit)
{
    auto* const results = new ResultsDock(nullptr, nullptr);
    DockWindow resultsWindow(*results);
    results->ShowReport(SampleResults());
    visit(QStringLiteral("ResultsDock"), resultsWindow);

    auto* const position = new PositionDock(nullptr, nullptr);
    DockWindow positionWindow(*position);
    positionWindow.resize(PositionSize);
    const QList<QLineEdit*> fields = position->findChildren<QLineEdit*>();
    for (QLineEdit* const field : fields)
        field->setText(QStringLiteral("12.5"));
    visit(QStringLiteral("PositionDock"), positionWindow);

    SolveProcess process;
    auto* const progress = new SolveDock(process, nullptr);
    DockWindow progressWindow(*progress);
    progress->Begin(SolveActions::tr("Vibration"));
    Q_EMIT process.Told({SolveMessage::Stage, SolveStage::Solving, {}});
    for (const QString& line : {SolveJob::tr("building the part"), SolveJob::tr("solving")})
        Q_EMIT process.Told({SolveMessage::Line, {}, line});
    visit(QStringLiteral("SolveDock"), progressWindow);
}

QByteArray PictureOf(QWidget& window)
{
    window.show();
    QCoreApplication::processEvents();
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    window.grab().save(&buffer, "PNG");
    return png;
}

} // namespace

QPalette DarkPalette()
{
    const QColor ground(48, 48, 48);
    QPalette palette(ground, ground); // Of buttons and windows; the rest follows.
    // Fields are lighter than the window: the style draws the frame of a check box darker than its
    // ground, which would be invisible on black.
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
    // First: it fills the stores.
    std::unique_ptr<MainWindow> window = NewMainWindow(project);
    visit(QStringLiteral("MainWindow"), *window);
    visit(QStringLiteral("ShapePicker"), WithPicking(*window));
    VisitStudy(std::move(window), visit);
    for (const CatalogueEntry& entry : DialogCatalogue()) {
        const std::unique_ptr<QWidget> dialog = entry.make();
        if (entry.fill != nullptr)
            entry.fill(*dialog);
        Prepare(*dialog);
        visit(QString::fromLatin1(entry.name), *dialog);
    }
    VisitProject(project, visit);
    VisitDocks(visit);
    visit(QStringLiteral("MaterialEditer"), *PictureOfMaterialEditor());
}

void WriteScreenshots(const Project& project, const QString& directory)
{
    if (!QDir().mkpath(directory))
        throw HostError(QStringLiteral("%1: cannot create the folder").arg(directory));
    // VisitWindows() changes the working directory.
    const QDir pictures(QDir(directory).absolutePath());

    const PictureFont font;
    VisitWindows(project, [&directory, &pictures](const QString& name, QWidget& window) {
        const QString file = name + QStringLiteral(".png");
        tarn::WholeFile picture(pictures.filePath(file));
        if (!picture.Write(PictureOf(window)))
            throw HostError(
                QStringLiteral("%1: %2").arg(QDir(directory).filePath(file), picture.Error()));
    });
}
