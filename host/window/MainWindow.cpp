#include "MainWindow.h"

#include "AnalysisActions.h"
#include "AnalysisMarks.h"
#include "AnalysisRecords.h"
#include "AnalysisTargets.h"
#include "AnalysisTree.h"
#include "DesignActions.h"
#include "DesignModel.h"
#include "FaceClicks.h"
#include "FeatureFields.h"
#include "FeaturePlacing.h"
#include "FeatureTree.h"
#include "MeasureTool.h"
#include "MessageDock.h"
#include "MessageLevel.h"
#include "ParameterPanel.h"
#include "PartActions.h"
#include "PartModel.h"
#include "PartPanel.h"
#include "PartView.h"
#include "PositionDock.h"
#include "Project.h"
#include "ProjectActions.h"
#include "ProjectSession.h"
#include "ResultsDock.h"
#include "RunBar.h"
#include "SetupCheckDock.h"
#include "ShapePicker.h"
#include "SolveActions.h"
#include "SolveDock.h"
#include "SolverActions.h"
#include "StudyActions.h"
#include "StudyPanel.h"
#include "StudyResults.h"
#include "ViewActions.h"
#include "WindowState.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QIcon>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace {

// Below, the docks do not fit above each other.
constexpr int LowScreen = 600;
// Below, the docks at the bottom leave the view more room.
constexpr int RoomyScreen = 900;

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_analysis(new AnalysisRecords(this))
    , m_design(new DesignModel(this))
    , m_part(new PartModel(this))
    , m_session(new ProjectSession(*m_design, *m_part, *m_analysis, this))
    , m_summary(new PartPanel(this))
{
    setObjectName(QStringLiteral("MainWindow"));
    setWindowTitle(tr("Tarn host"));
    CreateDocks();
    CreateMenus();
    CreateToolBars();
    CreateViewMenu();
    ConnectPart();
    WindowState::Restore(*this);
}

MainWindow::~MainWindow()
{
    // Before the docks, which it fills.
    delete m_study;
    // Before the part: the steps on its undo stack are the session's.
    delete m_projectActions;
    delete m_session;
}

void MainWindow::CreateDocks()
{
    auto* const centre = new QWidget(this);
    auto* const layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const bar = new RunBar(*m_design, centre);
    connect(bar, &RunBar::BackWanted, m_design, &DesignModel::BackToDesign);
    layout->addWidget(bar);
    layout->addWidget(m_summary, 1);
    setCentralWidget(centre);

    m_features = new FeatureTree(*m_part, this);
    m_fields = new FeatureFields(*m_part, this);
    m_position = new PositionDock(m_summary->View(), this);
    m_messages = new MessageDock(this);
    m_tree = new AnalysisTree(*m_analysis, this);
    m_check = new SetupCheckDock(this);
    m_parameters = new ParameterPanel(*m_design, this);
    m_study = new StudyActions(*m_session, *m_design, *m_part, this);
    addDockWidget(Qt::LeftDockWidgetArea, m_features);
    addDockWidget(Qt::LeftDockWidgetArea, m_fields);
    tabifyDockWidget(m_features, m_tree);
    addDockWidget(Qt::RightDockWidgetArea, m_study->Panel());
    m_study->Panel()->hide();
    m_features->raise();
    // Empty until a feature is selected or the cursor is on the part.
    tabifyDockWidget(m_fields, m_position);
    m_fields->raise();
    addDockWidget(Qt::BottomDockWidgetArea, m_parameters);
    addDockWidget(Qt::BottomDockWidgetArea, m_messages);
    tabifyDockWidget(m_messages, m_check);
    m_check->hide();
    m_solve = new SolveActions(*m_session, *m_design, *m_part, m_summary->View(), this);
    tabifyDockWidget(m_messages, &m_solve->Progress());
    addDockWidget(Qt::RightDockWidgetArea, &m_solve->Results());
    m_solve->Progress().hide();
    m_solve->Results().hide();
    tabifyDockWidget(m_parameters, m_study->Results());
    m_study->Results()->hide();
    resizeDocks({m_features, &m_solve->Results()}, {400, 380}, Qt::Horizontal);
    resizeDocks({m_features, m_fields}, {250, 320}, Qt::Vertical);
    resizeDocks({m_parameters, m_messages}, {820, 620}, Qt::Horizontal);
    const int height = QGuiApplication::primaryScreen()->availableSize().height();
    resizeDocks({m_messages}, {height < RoomyScreen ? 210 : 250}, Qt::Vertical);
    if (height < LowScreen)
        StackDocks();
}

void MainWindow::StackDocks()
{
    for (QDockWidget* const dock : std::initializer_list<QDockWidget*>{
             m_fields, m_position, m_parameters, m_messages, m_check, &m_solve->Progress(),
             &m_solve->Results(), m_study->Panel(), m_study->Results()})
        tabifyDockWidget(m_tree, dock);
    resizeDocks({m_features}, {280}, Qt::Horizontal);
    m_features->raise();
}

void MainWindow::CreateMenus()
{
    m_projectActions = new ProjectActions(*m_session, this);
    m_projectActions->FillMenu(*menuBar()->addMenu(tr("&File")));
    m_designActions = new DesignActions(*m_design, *m_part, *m_analysis, m_summary, this);
    m_designActions->FillMenu(*menuBar()->addMenu(tr("&Design")));
    m_picker = new ShapePicker(*m_part, m_summary->View(), m_summary);
    m_summary->AddBar(m_picker);
    auto* const placing = new FeaturePlacing(*m_part, m_summary->View(), *m_picker, this);
    connect(m_position, &PositionDock::PointEntered, placing, &FeaturePlacing::TakePoint);
    m_partActions = new PartActions(*m_part, *m_features, *m_fields, *placing, this);
    m_partActions->FillMenu(*menuBar()->addMenu(tr("&Model")));
    auto* const analysis = new AnalysisActions(*m_analysis, *m_tree, *m_check, *m_part, this);
    analysis->SetPartMaterial([this] { return m_session->Current().Material(); });
    auto* const targets = new AnalysisTargets(*m_analysis, *m_tree, *m_picker, this);
    connect(analysis, &AnalysisActions::EntryAdded, targets, &AnalysisTargets::Pick);
    m_marks = new AnalysisMarks(*m_analysis, *m_tree, *m_part, m_summary->View(), this);
    QMenu& analysisMenu = *menuBar()->addMenu(tr("&Analysis"));
    analysis->FillMenu(analysisMenu);
    m_solve->FillMenu(analysisMenu);
    auto* const solver = new SolverActions(this);
    solver->FillMenu(*menuBar()->addMenu(tr("&Solver")));
    m_study->FillMenu(*menuBar()->addMenu(tr("S&tudy")));

    // Dialogs write to the shared stores, which emit no signals: whatever an action has changed is
    // a step of its own.
    const QList<QAction*> menus = menuBar()->actions();
    for (const QAction* const menu : menus) {
        connect(menu->menu(), &QMenu::triggered, m_session, [this](const QAction* action) {
            m_session->TakeChange(action->text().remove(QLatin1Char('&')));
        });
    }
    connect(m_designActions, &DesignActions::SamplesEdited, m_session, &ProjectSession::TakeChange);
    connect(m_parameters, &ParameterPanel::RemovalWanted, m_designActions,
            &DesignActions::RemoveParameters);
    connect(m_session, &ProjectSession::Opened, m_summary, &PartPanel::Clear);
}

void MainWindow::CreateToolBars()
{
    QToolBar* const toolBar = addToolBar(tr("Project"));
    toolBar->setObjectName(QStringLiteral("projectToolBar"));
    const struct
    {
        const char* name;
        const char* icon;
        QString text; // Where the theme has no such icon.
    } actions[] = {{"action_NewProject", "document-new", tr("New")},
                   {"action_OpenProject", "document-open", tr("Open")},
                   {"action_SaveProject", "document-save", tr("Save")},
                   {"action_Undo", "edit-undo", tr("Undo")},
                   {"action_Redo", "edit-redo", tr("Redo")}};
    for (const auto& [name, icon, text] : actions) {
        auto* const action = findChild<QAction*>(QLatin1String(name));
        action->setIcon(QIcon::fromTheme(QLatin1String(icon)));
        action->setIconText(text);
        toolBar->addAction(action);
    }
    statusBar()->addPermanentWidget(
        new QLabel(tr("Lengths in mm, angles in degrees, forces in N, masses in kg"), this));
}

void MainWindow::CreateViewMenu()
{
    QMenu& view = *menuBar()->addMenu(tr("&View"));
    auto* const viewActions = new ViewActions(m_summary->View(), this);
    viewActions->FillMenu(view);
    view.addAction((new MeasureTool(*m_part, *m_picker, this))->Action());
    view.addSeparator();
    const QList<QDockWidget*> docks = {
        m_features,          m_fields,         m_position,        m_tree,
        m_parameters,        m_messages,       m_check,           &m_solve->Progress(),
        &m_solve->Results(), m_study->Panel(), m_study->Results()};
    for (const QDockWidget* const dock : docks)
        view.addAction(dock->toggleViewAction());
    QToolBar* const toolBar = addToolBar(tr("View"));
    toolBar->setObjectName(QStringLiteral("viewToolBar"));
    viewActions->FillToolBar(*toolBar);
    toolBar->setVisible(m_summary->View() != nullptr);
}

void MainWindow::ConnectPart()
{
    connect(m_part, &PartModel::PartBuilt, this, &MainWindow::ShowBuiltPart);
    connect(m_part, &PartModel::BuildFailed, this, &MainWindow::ShowFailure);
    connect(m_part, &PartModel::Progressed, m_summary, &PartPanel::ShowProgress);
    connect(m_part, &PartModel::PartBuilt, m_summary, &PartPanel::EndProgress);
    connect(m_part, &PartModel::BuildFailed, m_summary, &PartPanel::EndProgress);
    connect(m_part, &PartModel::Exported, m_summary, &PartPanel::EndProgress);
    connect(m_part, &PartModel::ExportFailed, m_summary, &PartPanel::EndProgress);
    connect(m_summary, &PartPanel::CancelWanted, m_part, &PartModel::Cancel);
    connect(m_summary, &PartPanel::LinesWanted, m_part, &PartModel::WantLines);
    if (m_summary->HasPicture())
        m_part->WantLines();
    new FaceClicks(*m_part, *m_features, m_summary->View(), this);
    connect(m_picker, &ShapePicker::Ended, this, &MainWindow::ShowSelectedFeature);
    connect(m_features, &FeatureTree::SelectionChanged, this, &MainWindow::ShowSelectedFeature);
}

void MainWindow::OpenProject(const Project& project)
{
    m_projectActions->Open(project);
}

bool MainWindow::OfferAbandonedProject()
{
    return m_projectActions->OfferAbandoned();
}

void MainWindow::ShowBuiltPart()
{
    if (m_part->Shape().IsNull())
        m_summary->Clear();
    else
        m_summary->ShowShape(m_part->Shape(), m_part->Lines(), m_part->Measures(),
                             m_session->Density());
    HighlightSelectedFeature();
    PastFailure();
    if (!m_part->Shape().IsNull())
        PostMessageToChannel(InfoLevel, tr("The part was built"));
}

// A message about a part that is built now, or fails elsewhere.
void MainWindow::PastFailure()
{
    if (!m_failure.isEmpty())
        m_messages->MarkPast(m_failure);
    m_failure.clear();
}

void MainWindow::ShowFailure(const QString& reason)
{
    m_summary->ShowFailure(reason);
    PastFailure();
    m_failure = tr("The part cannot be built: %1").arg(reason);
    PostMessageToChannel(ErrorLevel, m_failure);
}

void MainWindow::ShowSelectedFeature()
{
    const QStringList& selected = m_features->Selected();
    m_fields->ShowFeature(selected.size() == 1 ? selected.first() : QString());
    HighlightSelectedFeature();
}

void MainWindow::HighlightSelectedFeature()
{
    const QStringList& selected = m_features->Selected();
    if (PartView* const view = m_summary->View())
        view->HighlightShape(selected.isEmpty() ? TopoDS_Shape()
                                                : m_part->ShapeOf(selected.last()));
    m_marks->Refresh();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(m_projectActions->ConfirmDiscard());
    if (!event->isAccepted())
        return;
    m_solve->Stop();
    m_projectActions->Close();
    WindowState::Store(*this);
}
