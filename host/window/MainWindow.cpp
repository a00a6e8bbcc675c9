#include "MainWindow.h"

#include "AnalysisActions.h"
#include "AnalysisMarks.h"
#include "AnalysisRecords.h"
#include "AnalysisTargets.h"
#include "AnalysisTree.h"
#include "DesignActions.h"
#include "FeatureFields.h"
#include "FeatureTree.h"
#include "MessageDock.h"
#include "MessageLevel.h"
#include "ParameterOverview.h"
#include "PartActions.h"
#include "PartModel.h"
#include "PartPanel.h"
#include "PartView.h"
#include "PositionDock.h"
#include "Project.h"
#include "ProjectActions.h"
#include "SetupCheckDock.h"
#include "ShapePicker.h"
#include "SolverActions.h"
#include "ViewActions.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QToolBar>

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_analysis(new AnalysisRecords(this))
    , m_part(new PartModel(this))
    , m_summary(new PartPanel(this))
{
    setObjectName(QStringLiteral("MainWindow"));
    setWindowTitle(tr("Tarn host"));
    resize(1440, 940);
    setCentralWidget(m_summary);
    CreateDocks();
    CreateMenus();
    ConnectPart();
}

MainWindow::~MainWindow() = default;

void MainWindow::CreateDocks()
{
    m_features = new FeatureTree(*m_part, this);
    m_fields = new FeatureFields(*m_part, this);
    m_position = new PositionDock(m_summary->View(), this);
    m_messages = new MessageDock(this);
    m_tree = new AnalysisTree(*m_analysis, this);
    m_check = new SetupCheckDock(this);
    m_overview = new ParameterOverview(this);
    addDockWidget(Qt::LeftDockWidgetArea, m_features);
    addDockWidget(Qt::LeftDockWidgetArea, m_fields);
    addDockWidget(Qt::LeftDockWidgetArea, m_position);
    tabifyDockWidget(m_features, m_tree);
    m_features->raise();
    addDockWidget(Qt::BottomDockWidgetArea, m_overview);
    addDockWidget(Qt::BottomDockWidgetArea, m_messages);
    tabifyDockWidget(m_messages, m_check);
    m_check->hide();
    resizeDocks({m_features}, {470}, Qt::Horizontal);
    resizeDocks({m_features, m_fields, m_position}, {265, 275, 50}, Qt::Vertical);
    resizeDocks({m_overview, m_messages}, {820, 620}, Qt::Horizontal);
    resizeDocks({m_messages}, {260}, Qt::Vertical);
    m_overview->Refresh();
}

void MainWindow::CreateMenus()
{
    m_projectActions = new ProjectActions(*m_part, this);
    m_projectActions->FillMenu(*menuBar()->addMenu(tr("&File")));
    m_designActions = new DesignActions(this);
    m_designActions->FillMenu(*menuBar()->addMenu(tr("&Design")));
    m_partActions = new PartActions(*m_part, *m_features, *m_fields, m_summary->View(), this);
    m_partActions->FillMenu(*menuBar()->addMenu(tr("&Model")));
    auto* const analysis = new AnalysisActions(*m_analysis, *m_tree, *m_check, *m_part, this);
    m_picker = new ShapePicker(*m_part, m_summary->View(), m_summary);
    m_summary->AddBar(m_picker);
    auto* const targets = new AnalysisTargets(*m_analysis, *m_tree, *m_picker, this);
    connect(analysis, &AnalysisActions::EntryAdded, targets, &AnalysisTargets::Pick);
    m_marks = new AnalysisMarks(*m_analysis, *m_tree, *m_part, m_summary->View(), this);
    analysis->FillMenu(*menuBar()->addMenu(tr("&Analysis")));
    auto* const solver = new SolverActions(this);
    solver->FillMenu(*menuBar()->addMenu(tr("&Solver")));

    QMenu& view = *menuBar()->addMenu(tr("&View"));
    const ViewActions* const viewActions = new ViewActions(m_summary->View(), this);
    viewActions->FillMenu(view);
    view.addSeparator();
    const QList<QDockWidget*> docks = {m_features, m_fields,   m_position, m_tree,
                                       m_overview, m_messages, m_check};
    for (const QDockWidget* const dock : docks)
        view.addAction(dock->toggleViewAction());
    QToolBar* const toolBar = addToolBar(tr("View"));
    toolBar->setObjectName(QStringLiteral("viewToolBar"));
    viewActions->FillToolBar(*toolBar);
    toolBar->setVisible(m_summary->View() != nullptr);

    connect(m_projectActions, &ProjectActions::Opened, this, &MainWindow::StartProject);
    connect(m_projectActions, &ProjectActions::Saved, m_designActions,
            &DesignActions::WarnIfRunIsStored);
    connect(m_designActions, &DesignActions::ParametersChanged, this, &MainWindow::ApplyParameters);
    connect(m_overview, &ParameterOverview::RemovalWanted, m_designActions,
            &DesignActions::RemoveParameters);
    connect(m_designActions, &DesignActions::SamplesEdited, m_projectActions,
            &ProjectActions::UpdateModified);
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
    connect(m_picker, &ShapePicker::Ended, this, &MainWindow::ShowSelectedFeature);
    connect(m_features, &FeatureTree::SelectionChanged, this, &MainWindow::ShowSelectedFeature);
    connect(m_position, &PositionDock::PointEntered, m_partActions, &PartActions::TakePoint);
}

void MainWindow::OpenProject(const Project& project)
{
    m_projectActions->Open(project);
}

void MainWindow::StartProject()
{
    m_analysis->Clear();
    m_summary->Clear();
    m_designActions->Start();
    m_overview->Refresh();
}

void MainWindow::ApplyParameters()
{
    m_projectActions->UpdateModified();
    m_overview->Refresh();
    m_part->Rebuild();
}

void MainWindow::ShowBuiltPart()
{
    if (m_part->Shape().IsNull())
        m_summary->Clear();
    else
        m_summary->ShowShape(m_part->Shape(), m_part->Measures(), m_projectActions->Density());
    PostMessageToChannel(InfoLevel, tr("The part was built"));
}

void MainWindow::ShowFailure(const QString& reason)
{
    m_summary->ShowFailure(reason);
    PostMessageToChannel(ErrorLevel, tr("The part cannot be built: %1").arg(reason));
}

void MainWindow::ShowSelectedFeature()
{
    const QStringList& selected = m_features->Selected();
    m_fields->ShowFeature(selected.size() == 1 ? selected.first() : QString());
    if (PartView* const view = m_summary->View())
        view->HighlightShape(selected.isEmpty() ? TopoDS_Shape()
                                                : m_part->ShapeOf(selected.last()));
    m_marks->Refresh();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(m_projectActions->ConfirmDiscard());
}
