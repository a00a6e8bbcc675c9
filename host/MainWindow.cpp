#include "MainWindow.h"

#include "AnalysisActions.h"
#include "AnalysisModel.h"
#include "DOEDlg.h"
#include "DialogTables.h"
#include "DoeSession.h"
#include "FeatureBuilder.h"
#include "GlobalParaMeterMgr.h"
#include "MessageDock.h"
#include "MessageLevel.h"
#include "ModelTree.h"
#include "ParameterEditor.h"
#include "ParameterOverview.h"
#include "ParameterSettler.h"
#include "ShapeSummary.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMenuBar>
#include <TopoDS_Shape.hxx>

namespace {

QAction* AddAction(QMenu& menu, const QString& text, const char* name)
{
    QAction* const action = menu.addAction(text);
    action->setObjectName(QString::fromLatin1(name));
    return action;
}

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_analysis(new AnalysisModel(this))
    , m_summary(new ShapeSummary(this))
{
    setObjectName(QStringLiteral("MainWindow"));
    setWindowTitle(tr("Tarn host"));
    resize(1360, 760);
    setCentralWidget(m_summary);
    CreateDocks();
    CreateMenus();
}

MainWindow::~MainWindow() = default;

void MainWindow::CreateDocks()
{
    m_messages = new MessageDock(this);
    m_overview = new ParameterOverview(this);
    addDockWidget(Qt::BottomDockWidgetArea, m_messages);
    addDockWidget(Qt::LeftDockWidgetArea, m_overview);
    m_tree = new ModelTree(*m_analysis, this);
    addDockWidget(Qt::LeftDockWidgetArea, m_tree);
    resizeDocks({m_overview}, {820}, Qt::Horizontal);
    resizeDocks({m_messages}, {170}, Qt::Vertical);
    m_overview->Refresh();
}

void MainWindow::CreateMenus()
{
    QMenu& file = *menuBar()->addMenu(tr("&File"));
    QAction* const open = AddAction(file, tr("&Open project"), "action_OpenProject");
    open->setShortcut(QKeySequence::Open);
    file.addSeparator();
    QAction* const quit = AddAction(file, tr("&Quit"), "action_Quit");
    quit->setShortcut(QKeySequence::Quit);

    QMenu& design = *menuBar()->addMenu(tr("&Design"));
    QAction* const parameters = AddAction(design, tr("&Parameters"), "action_Parameters");
    QAction* const experiments =
        AddAction(design, tr("Design of &Experiments"), "action_DesignOfExperiments");
    design.addSeparator();
    m_restore = AddAction(design, tr("&Restore parameters"), "action_RestoreParameters");
    m_restore->setEnabled(false);

    auto* const analysis = new AnalysisActions(*m_analysis, *m_tree, this);
    analysis->FillMenu(*menuBar()->addMenu(tr("&Analysis")));

    QMenu& view = *menuBar()->addMenu(tr("&View"));
    view.addAction(m_overview->toggleViewAction());
    view.addAction(m_tree->toggleViewAction());
    view.addAction(m_messages->toggleViewAction());

    connect(open, &QAction::triggered, this, &MainWindow::AskForProject);
    connect(quit, &QAction::triggered, this, &MainWindow::close);
    connect(parameters, &QAction::triggered, this, &MainWindow::EditParameters);
    connect(experiments, &QAction::triggered, this, &MainWindow::DesignExperiments);
    connect(m_restore, &QAction::triggered, this, &MainWindow::RestoreParameters);
}

void MainWindow::AskForProject()
{
    QString directory;
    if (m_project.has_value() && m_project->Path() != Project::SamplePath())
        directory = QFileInfo(m_project->Path()).absolutePath();
    const QString path = QFileDialog::getOpenFileName(this, tr("Open project"), directory,
                                                      tr("Projects (*.json);;All files (*)"));
    if (path.isEmpty())
        return;
    try {
        OpenProject(Project::Load(path));
    } catch (const ProjectError& error) {
        PostMessageToChannel(ErrorLevel, error.Reason());
    }
}

void MainWindow::OpenProject(const Project& project)
{
    m_project = project;
    m_project->FillStores();
    m_analysis->Clear();
    m_design.clear();
    m_storeIsRun = false;
    m_restore->setEnabled(false);
    m_summary->Clear();
    setWindowTitle(tr("%1 - Tarn host").arg(m_project->Title()));
    PostMessageToChannel(InfoLevel, tr("Opened the project \"%1\"").arg(m_project->Title()));
    SettleExpressions();
    Rebuild();
}

void MainWindow::EditParameters()
{
    ParameterEditor editor(this);
    editor.m_Slot_RefreshGUI();
    FitTables(editor);
    connect(&editor, &ParameterEditor::m_Signal_Apply, this, [this, &editor] {
        // What the user applied is the design from now on.
        m_storeIsRun = false;
        SettleExpressions();
        editor.m_Slot_RefreshGUI();
        Rebuild();
    });
    editor.exec();
}

void MainWindow::DesignExperiments()
{
    DOEDlg dialog(this);
    const DoeSession session(dialog);
    FitTables(dialog);
    connect(&session, &DoeSession::RunReady, this, [this, &session] {
        KeepDesign(session.Remembered());
        Rebuild();
    });
    dialog.exec();
}

void MainWindow::KeepDesign(const ParameterMap& records)
{
    // Of several runs in a row the first one has replaced the design.
    if (!m_storeIsRun)
        m_design = records;
    m_storeIsRun = true;
    m_restore->setEnabled(true);
}

void MainWindow::RestoreParameters()
{
    for (const auto& [name, record] : m_design)
        GlobalParaMeterMgr::AddParameter(name, record);
    m_storeIsRun = false;
    m_restore->setEnabled(false);
    PostMessageToChannel(InfoLevel, tr("The parameters are as before the design of experiments"));
    // For the expressions of parameters that came later.
    SettleExpressions();
    Rebuild();
}

void MainWindow::SettleExpressions()
{
    for (const QString& problem : SettleParameters())
        PostMessageToChannel(ErrorLevel, problem);
}

void MainWindow::Rebuild()
{
    m_overview->Refresh();
    try {
        if (!m_project.has_value())
            throw BuildError(tr("There is no project."));
        m_summary->ShowShape(m_project->Build().shape, m_project->Density());
        PostMessageToChannel(InfoLevel, tr("The part was built"));
    } catch (const BuildError& error) {
        const QString reason = error.Reason();
        m_summary->ShowFailure(reason);
        PostMessageToChannel(ErrorLevel, tr("The part cannot be built: %1").arg(reason));
    }
}
