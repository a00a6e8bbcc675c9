#include "HostApplication.h"
#include "HostTestMain.h"
#include "OpenWindow.h"
#include "TestFiles.h"

#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTableView>
#include <QTableWidget>
#include <QTreeWidget>

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

class tst_MainWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheMenusOfferTheDialogs();
    void TheDocksSurroundTheShape();
    void ANewWindowHasNoShape();
    void AnOpenedProjectIsShownAndBuilt();
    void DialogsAreDestroyedAfterTheirRun();
    void QuitClosesTheWindow();
    void ClosingAsksBeforeDiscardingChanges_data();
    void ClosingAsksBeforeDiscardingChanges();
    void WithoutChangesNothingIsAsked();
};

void tst_MainWindow::TheMenusOfferTheDialogs()
{
    const EmptyDesignStores stores;
    MainWindow window;
    QStringList texts;
    const QList<QAction*> menus = window.menuBar()->actions();
    for (const QAction* const menu : menus) {
        const QList<QAction*> actions = menu->menu()->actions();
        for (const QAction* const action : actions) {
            if (!action->isSeparator())
                texts << QString(menu->text() + "/" + action->text()).remove('&');
        }
    }
    QCOMPARE(texts, QStringList({"File/New project",
                                 "File/Open project",
                                 "File/Open recent",
                                 "File/Save project",
                                 "File/Save project as",
                                 "File/Revert",
                                 "File/Project properties",
                                 "File/Quit",
                                 "Design/Parameters",
                                 "Design/Design of Experiments",
                                 "Design/Back to the design",
                                 "Model/Add body",
                                 "Model/Transform",
                                 "Model/Combine",
                                 "Model/Edit feature",
                                 "Model/Move up",
                                 "Model/Move down",
                                 "Model/Suppress",
                                 "Model/Delete feature",
                                 "Model/Copy features",
                                 "Model/Paste features",
                                 "Model/Undo",
                                 "Model/Redo",
                                 "Model/Export STEP",
                                 "Model/Limits of building",
                                 "Analysis/Analysis type",
                                 "Analysis/Boundary condition",
                                 "Analysis/Load force",
                                 "Analysis/Edit entry",
                                 "Analysis/Pick faces and edges",
                                 "Analysis/Delete entry",
                                 "Analysis/New element property",
                                 "Analysis/Element properties",
                                 "Analysis/Material library",
                                 "Analysis/Frequency range",
                                 "Analysis/Mesh size",
                                 "Analysis/Sub-shape mesh",
                                 "Analysis/Check Set-up",
                                 "Analysis/Mesh",
                                 "Analysis/Solve vibration",
                                 "Analysis/Solve static",
                                 "Analysis/Read results of a solver",
                                 "Solver/Run Nastran",
                                 "Solver/Open results in HyperView",
                                 "Solver/Solver paths",
                                 "Study/Study",
                                 "Study/Study results",
                                 "Study/Start",
                                 "Study/Pause or continue",
                                 "Study/Stop",
                                 "Study/Open study folder",
                                 "Study/Show this run",
                                 "Study/Make this the design",
                                 "Study/Export CSV",
                                 "Study/Export picture",
                                 "Study/Copy picture",
                                 "View/Fit",
                                 "View/Front",
                                 "View/Back",
                                 "View/Left",
                                 "View/Right",
                                 "View/Top",
                                 "View/Bottom",
                                 "View/Isometric",
                                 "View/Shaded with edges",
                                 "View/Wireframe",
                                 "View/No section",
                                 "View/Section across x",
                                 "View/Section across y",
                                 "View/Section across z",
                                 "View/Measure",
                                 "View/Features",
                                 "View/Fields of the feature",
                                 "View/Position",
                                 "View/Analysis model",
                                 "View/Parameters",
                                 "View/Messages",
                                 "View/Set-up check",
                                 "View/Solve",
                                 "View/Results",
                                 "View/Study",
                                 "View/Study results"}));
}

void tst_MainWindow::TheDocksSurroundTheShape()
{
    const EmptyDesignStores stores;
    MainWindow window;
    window.show();
    QVERIFY(Find<QTableView>(window, "messageView").isVisible());
    QVERIFY(Find<QTableWidget>(window, "parameterTable").isVisible());
    QVERIFY(Find<QTreeWidget>(window, "featureTree").isVisible());
    QVERIFY(Find<QLabel>(window, "fieldsHint").isVisible());
    // It shares the tabs of the features.
    QCOMPARE(window.tabifiedDockWidgets(window.findChild<QDockWidget*>("featureDock")),
             QList<QDockWidget*>({window.findChild<QDockWidget*>("modelTreeDock")}));
    QVERIFY(window.centralWidget()->isVisible());
}

void tst_MainWindow::ANewWindowHasNoShape()
{
    const EmptyDesignStores stores;
    MainWindow window;
    QCOMPARE(Find<QLabel>(window, "label_Status").text(),
             QStringLiteral("The part has no shape yet"));
    QCOMPARE(Find<QLabel>(window, "label_Volume").text(), QStringLiteral("none"));
}

void tst_MainWindow::AnOpenedProjectIsShownAndBuilt()
{
    const PostedMessages posted;
    const OpenWindow open;
    QVERIFY(open.window.windowTitle().contains("Bolted flange"));
    QVERIFY(open.Shown("label_Status").startsWith("Built at "));
    QVERIFY(open.Shown("label_Volume").endsWith(" cm³"));
    QVERIFY(open.Shown("label_Area").endsWith(" cm²"));
    QVERIFY(open.Shown("label_Mass").endsWith(" kg"));
    QCOMPARE(open.Shown("label_BoundingBox"), QStringLiteral("200 × 200 × 50 mm"));
    QCOMPARE(open.Shown("label_BoundingBoxPosition"),
             QStringLiteral("(-100, -100, 0), (100, 100, 50) mm"));
    QCOMPARE(Find<QTableWidget>(open.window, "parameterTable").rowCount(),
             int(GlobalParaMeterMgr::m_nameMapParameters.size()));
    QCOMPARE(Stored("hub_diameter"), 112.0);
    QCOMPARE(posted.At(ErrorLevel), QStringList());
    QVERIFY(posted.At(InfoLevel).contains("The part was built"));
}

void tst_MainWindow::DialogsAreDestroyedAfterTheirRun()
{
    OpenWindow open;
    for (const char* const action : {"action_Parameters", "action_DesignOfExperiments"}) {
        open.user.Then([](QDialog& dialog) { dialog.reject(); });
        open.Trigger(action);
    }
    QVERIFY(open.user.IsDone());
    QVERIFY(open.window.findChildren<QDialog*>().isEmpty());
}

void tst_MainWindow::QuitClosesTheWindow()
{
    OpenWindow open;
    QVERIFY(open.window.isVisible());
    open.Trigger("action_Quit");
    QVERIFY(!open.window.isVisible());
}

void tst_MainWindow::ClosingAsksBeforeDiscardingChanges_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::addColumn<bool>("isClosed");
    QTest::addColumn<bool>("isSaved");
    QTest::newRow("save") << QMessageBox::Save << true << true;
    QTest::newRow("discard") << QMessageBox::Discard << true << false;
    QTest::newRow("cancel") << QMessageBox::Cancel << false << false;
}

void tst_MainWindow::ClosingAsksBeforeDiscardingChanges()
{
    QFETCH(QMessageBox::StandardButton, answer);
    QFETCH(bool, isClosed);
    QFETCH(bool, isSaved);
    OpenWindow open;
    const QString directory = EnterTemporaryDirectory();
    Put("mine.json", SampleProject());
    open.OpenProject(directory + "/mine.json");
    open.Trigger("action_Add_box");
    open.user.Answer(answer);
    open.window.close();
    QVERIFY(open.user.IsDone());
    QCOMPARE(open.user.Boxes().size(), 1);
    QVERIFY(open.user.Boxes()[0].text.contains("Bolted flange"));
    QCOMPARE(open.window.isVisible(), !isClosed);
    QCOMPARE(Project::Load("mine.json").Features().Find("box") >= 0, isSaved);
}

void tst_MainWindow::WithoutChangesNothingIsAsked()
{
    OpenWindow open;
    open.user.Then([](QDialog& dialog) { dialog.reject(); });
    open.Trigger("action_OpenProject");
    open.window.close();
    QVERIFY(open.user.IsDone());
    QCOMPARE(open.user.Boxes(), QVector<ShownBox>());
    QVERIFY(!open.window.isVisible());
}

TARN_HOST_TEST_MAIN(tst_MainWindow, HostApplication)
#include "tst_MainWindow.moc"
