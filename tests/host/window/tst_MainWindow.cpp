#include "AnalysisRecords.h"
#include "DrawerOutput.h"
#include "EmptyAttributeNames.h"
#include "EmptyDesignStores.h"
#include "FeatureTree.h"
#include "HostApplication.h"
#include "MainWindow.h"
#include "MessageLevel.h"
#include "ModalDriver.h"
#include "ParameterOverview.h"
#include "PartModel.h"
#include "Project.h"
#include "TestCase.h"

#include <QAction>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTableView>
#include <QTableWidget>
#include <QTreeWidget>

#include <set>

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

class tst_MainWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheMenusOfferTheDialogs();
    void TheDocksStandRoundTheShape();
    void ANewWindowHasNoShape();
    void AnOpenedProjectIsShownAndBuilt();
    void TheEditorOpensFilledAndBelongsToTheWindow();
    void ApplySettlesTheExpressionsAndRebuilds();
    void ApplyRefreshesTheEditorWithTheSettledValues();
    void CancelChangesNothing();
    void AnExpressionThatCannotBeSettledIsToldOnce();
    void APartThatCannotBeBuiltIsToldOnceAndTheLastGoodShapeStays();
    void GenerateBuildsTheChosenRun();
    void GenerateGivesParametersOutsideTheRunTheirRecordsBack();
    void TicksStandAtTheirParametersByName();
    void RestoreBringsAllParametersBack();
    void RestoreBringsARemovedParameterBack();
    void RestoreSettlesWhatCameLater();
    void RestoreAfterSeveralRunsBringsTheDesignBack();
    void RestoreIsOfferedOnlyAfterARun();
    void AppliedValuesAreTheDesignOfTheNextRun();
    void DialogsAreGoneAfterTheirRun();
    void AnotherProjectReplacesTheFirst();
    void AnotherProjectHasAnAnalysisOfItsOwn();
    void ABadProjectIsToldAndChangesNothing();
    void ACancelledFileDialogChangesNothing();
    void QuitClosesTheWindow();
    void TheFeaturesOfTheProjectAreShown();
    void ASelectedFeatureShowsItsFields();
    void UndoAndRedoHaveTheirKeys();
    void DeletingAUsedFeatureIsRefused();
    void SuppressingRebuilds();
    void AFailedRebuildMarksTheFeatureAndKeepsTheShape();
    void AnEmptyPartIsNoFailure();
    void AZeroDirectionIsToldInPlainWords();
    void ASavedProjectIsReadAsItWas();
    void SaveWritesWhereTheProjectIs();
    void TheSampleIsSavedUnderAnotherName();
    void ASavedRunIsTold();
    void AFileThatCannotBeWrittenIsTold();
    void TheTitleTellsOfChanges();
    void ChangesAreNotLostUnasked_data();
    void ChangesAreNotLostUnasked();
    void OpeningAsksForChangesToo();
    void WithoutChangesNothingIsAsked();
};

namespace {

// The columns of the editor that users type into, and of the experiments' parameters.
enum EditorColumn
{
    EditorName,
    EditorValue,
    EditorExpression = 3
};
enum ExperimentColumn
{
    ExperimentName,
    ExperimentStatus
};

void Trigger(MainWindow& window, const char* name)
{
    auto* const action = window.findChild<QAction*>(name);
    if (action == nullptr)
        qFatal("There is no action named \"%s\"", name);
    QVERIFY2(action->isEnabled(), name);
    action->trigger();
}

QString Shown(const MainWindow& window, const char* label)
{
    return Find<QLabel>(window, label).text();
}

double Stored(const QString& name)
{
    return GlobalParaMeterMgr::GetParameterRawValue(name).toDouble();
}

int RowOf(const QTableWidget& table, const QString& name)
{
    for (int row = 0; row < table.rowCount(); ++row) {
        if (table.item(row, 0)->text() == name)
            return row;
    }
    return -1;
}

// Types into a cell as a user does: a click, the text, Enter.
void TypeIntoCell(QTableWidget& table, int row, int column, const QString& text)
{
    table.scrollToItem(table.item(row, column));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                      table.visualItemRect(table.item(row, column)).center());
    QTest::keyClick(table.viewport(), Qt::Key_F2);
    QLineEdit* edit = nullptr;
    // An editor that is done is hidden first and deleted later.
    const QList<QLineEdit*> edits = table.viewport()->findChildren<QLineEdit*>();
    for (QLineEdit* const child : edits) {
        if (child->isVisible())
            edit = child;
    }
    QVERIFY(edit != nullptr);
    edit->selectAll();
    QTest::keyClicks(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
    // Enter commits through a posted event.
    QCoreApplication::sendPostedEvents();
    QCOMPARE(table.item(row, column)->text(), text);
}

void TypeValue(QDialog& editor, const QString& name, const QString& value)
{
    auto& table = Find<QTableWidget>(editor, "tableWidget");
    TypeIntoCell(table, RowOf(table, name), EditorValue, value);
}

void Choose(QTableWidget& table, int row)
{
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                      table.visualItemRect(table.item(row, 0)).center());
    QCOMPARE(table.currentRow(), row);
}

void Generate(QDialog& dialog, int row)
{
    Choose(Find<QTableWidget>(dialog, "tableWidget_Final"), row);
    Click(dialog, "pushButton_GenGeo");
}

void SelectFeature(MainWindow& window, const QString& name)
{
    window.Features().Select(name);
    QCOMPARE(window.Features().Selected(), QStringList(name));
}

/// The messages at a level, in their order.
QStringList Messages(const QSignalSpy& posted, MessageLevel level)
{
    QStringList texts;
    for (const QList<QVariant>& message : posted) {
        if (message[0].toInt() == level)
            texts << message[1].toString();
    }
    return texts;
}

/// The sample project in a window of its own.
struct OpenWindow
{
    OpenWindow()
    {
        window.show();
        window.OpenProject(Project::Load(Project::SamplePath()));
    }

    EmptyDesignStores stores;
    MainWindow window;
};

void WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

// Answers the file dialog with @p path, through its own field.
void ChooseFile(ModalDriver& user, const QString& path)
{
    user.Then([path](QDialog& dialog) {
        Find<QLineEdit>(dialog, "fileNameEdit").setText(path);
        auto& buttons = Find<QDialogButtonBox>(dialog, "buttonBox");
        const bool isOpen = buttons.button(QDialogButtonBox::Open) != nullptr;
        QTest::mouseClick(buttons.button(isOpen ? QDialogButtonBox::Open : QDialogButtonBox::Save),
                          Qt::LeftButton);
    });
}

QByteArray SampleProject()
{
    QFile file(Project::SamplePath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

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
    QCOMPARE(texts, QStringList({"File/Open project",
                                 "File/Save project",
                                 "File/Save project as",
                                 "File/Quit",
                                 "Design/Parameters",
                                 "Design/Design of Experiments",
                                 "Design/Restore parameters",
                                 "Model/Add body",
                                 "Model/Transform",
                                 "Model/Combine",
                                 "Model/Edit feature",
                                 "Model/Move up",
                                 "Model/Move down",
                                 "Model/Suppress",
                                 "Model/Delete feature",
                                 "Model/Undo",
                                 "Model/Redo",
                                 "Model/Export STEP",
                                 "Analysis/Analysis type",
                                 "Analysis/Boundary condition",
                                 "Analysis/Load force",
                                 "Analysis/Delete boundary condition or load",
                                 "Analysis/New element property",
                                 "Analysis/Element properties",
                                 "Analysis/Material library",
                                 "Analysis/Frequency range",
                                 "Analysis/Mesh size",
                                 "Analysis/Sub-shape mesh",
                                 "Analysis/Is the set-up complete?",
                                 "Solver/Run Nastran",
                                 "Solver/Open results in HyperView",
                                 "Solver/Solver paths",
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
                                 "View/Features",
                                 "View/Fields of the feature",
                                 "View/Position",
                                 "View/Analysis model",
                                 "View/Stored parameters",
                                 "View/Messages"}));
}

void tst_MainWindow::TheDocksStandRoundTheShape()
{
    const EmptyDesignStores stores;
    MainWindow window;
    window.show();
    QVERIFY(Find<QTableView>(window, "messageView").isVisible());
    QVERIFY(Find<QTableWidget>(window, "parameterTable").isVisible());
    QVERIFY(Find<QTreeWidget>(window, "featureTree").isVisible());
    QVERIFY(Find<QTableWidget>(window, "fieldTable").isVisible());
    // A tab behind the features.
    QCOMPARE(window.tabifiedDockWidgets(window.findChild<QDockWidget*>("featureDock")),
             QList<QDockWidget*>({window.findChild<QDockWidget*>("modelTreeDock")}));
    QVERIFY(window.centralWidget()->isVisible());
}

void tst_MainWindow::ANewWindowHasNoShape()
{
    const EmptyDesignStores stores;
    MainWindow window;
    QCOMPARE(Shown(window, "label_Status"), QStringLiteral("There is no shape yet"));
    QCOMPARE(Shown(window, "label_Volume"), QStringLiteral("none"));
}

void tst_MainWindow::AnOpenedProjectIsShownAndBuilt()
{
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    const OpenWindow open;
    QVERIFY(open.window.windowTitle().contains("Bolted flange"));
    QVERIFY(Shown(open.window, "label_Status").startsWith("Built at "));
    QVERIFY(Shown(open.window, "label_Volume").endsWith(" cm³"));
    QVERIFY(Shown(open.window, "label_Area").endsWith(" cm²"));
    QVERIFY(Shown(open.window, "label_Mass").endsWith(" kg"));
    QCOMPARE(Shown(open.window, "label_BoundingBox"), QStringLiteral("200 × 200 × 50 mm"));
    QCOMPARE(Shown(open.window, "label_BoundingBoxPosition"),
             QStringLiteral("(-100, -100, 0), (100, 100, 50) mm"));
    QCOMPARE(Find<QTableWidget>(open.window, "parameterTable").rowCount(),
             int(GlobalParaMeterMgr::m_nameMapParameters.size()));
    QCOMPARE(Stored("hub_diameter"), 112.0);
    QCOMPARE(Messages(posted, ErrorLevel), QStringList());
    QVERIFY(Messages(posted, InfoLevel).contains("The part was built"));
}

void tst_MainWindow::TheEditorOpensFilledAndBelongsToTheWindow()
{
    OpenWindow open;
    ModalDriver user;
    user.Then([&open](QDialog& editor) {
        QCOMPARE(editor.parentWidget(), static_cast<QWidget*>(&open.window));
        const auto& table = Find<QTableWidget>(editor, "tableWidget");
        QCOMPARE(table.rowCount(), int(GlobalParaMeterMgr::m_nameMapParameters.size()));
        QCOMPARE(table.item(0, EditorName)->text(), QStringLiteral("outer_diameter"));
        Click(editor, "pushButton_Cancel");
    });
    Trigger(open.window, "action_Parameters");
    QVERIFY(user.IsDone());
}

void tst_MainWindow::ApplySettlesTheExpressionsAndRebuilds()
{
    OpenWindow open;
    const QString before = Shown(open.window, "label_Mass");
    ModalDriver user;
    user.Then([](QDialog& editor) {
        TypeValue(editor, "outer_diameter", "240");
        TypeValue(editor, "bore_diameter", "80");
        Click(editor, "pushButton_Apply");
        Click(editor, "pushButton_Cancel");
    });
    Trigger(open.window, "action_Parameters");
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
    QCOMPARE(Stored("hub_diameter"), 128.0);
    QCOMPARE(Stored("bolt_circle"), 184.0);
    QCOMPARE(Shown(open.window, "label_BoundingBox"), QStringLiteral("240 × 240 × 50 mm"));
    QVERIFY(Shown(open.window, "label_Mass") != before);
    const auto& overview = Find<QTableWidget>(open.window, "parameterTable");
    QCOMPARE(
        overview.item(RowOf(overview, "bolt_circle"), ParameterOverview::RawValueColumn)->text(),
        QStringLiteral("184"));
}

void tst_MainWindow::ApplyRefreshesTheEditorWithTheSettledValues()
{
    OpenWindow open;
    // Stored before the parameter that it needs: one pass over the store does not settle it.
    ParametersDef late = GlobalParaMeterMgr::m_nameMapParameters.at("outer_diameter");
    GlobalParaMeterMgr::m_nameMapParameters["outer_diameter"].m_strExpression = "late * 2";
    GlobalParaMeterMgr::m_nameMapParameters["outer_diameter"].m_strExpressPara = "late";
    late.m_strName = "late";
    late.m_strExpression = "50 * 2.2 + 0 * thickness";
    late.m_strExpressPara = "thickness";
    GlobalParaMeterMgr::AddParameter("late", late);

    ModalDriver user;
    user.Then([](QDialog& editor) {
        Click(editor, "pushButton_Apply");
        const auto& table = Find<QTableWidget>(editor, "tableWidget");
        QCOMPARE(table.item(RowOf(table, "outer_diameter"), EditorValue)->text(),
                 QStringLiteral("220"));
        Click(editor, "pushButton_OK");
    });
    Trigger(open.window, "action_Parameters");
    QVERIFY(user.IsDone());
    QCOMPARE(Shown(open.window, "label_BoundingBox"), QStringLiteral("220 × 220 × 50 mm"));
}

void tst_MainWindow::CancelChangesNothing()
{
    OpenWindow open;
    const QString before = Shown(open.window, "label_BoundingBox");
    ModalDriver user;
    user.Then([](QDialog& editor) {
        TypeValue(editor, "outer_diameter", "240");
        Click(editor, "pushButton_Cancel");
    });
    Trigger(open.window, "action_Parameters");
    QVERIFY(user.IsDone());
    QCOMPARE(Stored("outer_diameter"), 200.0);
    QCOMPARE(Shown(open.window, "label_BoundingBox"), before);
}

void tst_MainWindow::AnExpressionThatCannotBeSettledIsToldOnce()
{
    OpenWindow open;
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    ModalDriver user;
    user.Then([](QDialog& editor) {
        auto& table = Find<QTableWidget>(editor, "tableWidget");
        TypeIntoCell(table, RowOf(table, "hub_diameter"), EditorExpression, "1.6 *");
        Click(editor, "pushButton_OK");
    });
    Trigger(open.window, "action_Parameters");
    QVERIFY(user.IsDone());
    const QStringList errors = Messages(posted, ErrorLevel);
    QVERIFY2(errors.filter("hub_diameter = ").size() == 1, qPrintable(errors.join('\n')));
}

void tst_MainWindow::APartThatCannotBeBuiltIsToldOnceAndTheLastGoodShapeStays()
{
    OpenWindow open;
    const QString volume = Shown(open.window, "label_Volume");
    const QString box = Shown(open.window, "label_BoundingBox");
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    ModalDriver user;
    user.Then([](QDialog& editor) {
        TypeValue(editor, "bore_diameter", "400");
        Click(editor, "pushButton_OK");
    });
    Trigger(open.window, "action_Parameters");
    QVERIFY(user.IsDone());
    const QStringList errors = Messages(posted, ErrorLevel);
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors[0].startsWith("The part cannot be built: "), qPrintable(errors[0]));
    QVERIFY2(errors[0].size() > 30, qPrintable(errors[0]));

    QVERIFY(Shown(open.window, "label_Status").startsWith("Not built: "));
    QVERIFY(Shown(open.window, "label_Status").contains("last good shape"));
    QCOMPARE(Shown(open.window, "label_Volume"), volume);
    QCOMPARE(Shown(open.window, "label_BoundingBox"), box);
    const auto& overview = Find<QTableWidget>(open.window, "parameterTable");
    QCOMPARE(
        overview.item(RowOf(overview, "bore_diameter"), ParameterOverview::ValueColumn)->text(),
        QStringLiteral("400"));

    user.Then([](QDialog& editor) {
        TypeValue(editor, "bore_diameter", "70");
        Click(editor, "pushButton_OK");
    });
    Trigger(open.window, "action_Parameters");
    QVERIFY(Shown(open.window, "label_Status").startsWith("Built at "));
}

void tst_MainWindow::GenerateBuildsTheChosenRun()
{
    OpenWindow open;
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    ModalDriver user;
    user.Then([&open](QDialog& dialog) {
        QCOMPARE(dialog.parentWidget(), static_cast<QWidget*>(&open.window));
        const auto& runs = Find<QTableWidget>(dialog, "tableWidget_Final");
        QCOMPARE(runs.rowCount(), 18);
        // bolt_count 8, bore_diameter 80, thickness 24
        Generate(dialog, 17);
        dialog.reject();
    });
    Trigger(open.window, "action_DesignOfExperiments");
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
    QCOMPARE(Stored("thickness"), 24.0);
    QCOMPARE(Stored("bore_diameter"), 80.0);
    QCOMPARE(Shown(open.window, "label_BoundingBox"), QStringLiteral("200 × 200 × 54 mm"));
    QVERIFY(Shown(open.window, "label_Status").startsWith("Built at "));
    QCOMPARE(Messages(posted, ErrorLevel), QStringList());
}

void tst_MainWindow::GenerateGivesParametersOutsideTheRunTheirRecordsBack()
{
    OpenWindow open;
    ModalDriver user;
    user.Then([](QDialog& dialog) {
        Generate(dialog, 17);
        dialog.reject();
    });
    Trigger(open.window, "action_DesignOfExperiments");
    QCOMPARE(Stored("outer_diameter"), 200.0);
    QCOMPARE(Stored("hub_height"), 30.0);
    // Settled anew from the run's bore.
    QCOMPARE(Stored("hub_diameter"), 128.0);
    const auto& overview = Find<QTableWidget>(open.window, "parameterTable");
    QCOMPARE(
        overview.item(RowOf(overview, "outer_diameter"), ParameterOverview::ValueColumn)->text(),
        QStringLiteral("200"));
    QCOMPARE(overview.item(RowOf(overview, "thickness"), ParameterOverview::ValueColumn)->text(),
             QStringLiteral("24"));
}

void tst_MainWindow::TicksStandAtTheirParametersByName()
{
    OpenWindow open;
    ModalDriver user;
    std::set<QString> ticked;
    user.Then([&ticked](QDialog& dialog) {
        const auto& table = Find<QTableWidget>(dialog, "tableWidget_Parameters");
        for (int row = 0; row < table.rowCount(); ++row) {
            const auto* const check =
                qobject_cast<QCheckBox*>(table.cellWidget(row, ExperimentStatus));
            if (check->isChecked())
                ticked.insert(table.item(row, ExperimentName)->text());
        }
        dialog.reject();
    });
    Trigger(open.window, "action_DesignOfExperiments");
    QCOMPARE(ticked, std::set<QString>({"bolt_count", "bore_diameter", "thickness"}));
}

void tst_MainWindow::RestoreBringsAllParametersBack()
{
    OpenWindow open;
    const ParameterMap before = GlobalParaMeterMgr::m_nameMapParameters;
    const QString mass = Shown(open.window, "label_Mass");
    ModalDriver user;
    user.Then([](QDialog& dialog) {
        Generate(dialog, 17);
        dialog.reject();
    });
    Trigger(open.window, "action_DesignOfExperiments");
    QVERIFY(Shown(open.window, "label_Mass") != mass);

    Trigger(open.window, "action_RestoreParameters");
    QCOMPARE(Shown(open.window, "label_Mass"), mass);
    for (const auto& [name, record] : before) {
        const ParametersDef& restored = GlobalParaMeterMgr::m_nameMapParameters.at(name);
        QCOMPARE(restored.m_dValue, record.m_dValue);
        QCOMPARE(restored.m_varRawValue, record.m_varRawValue);
        QCOMPARE(restored.m_strValue, record.m_strValue);
        QCOMPARE(restored.m_strExpression, record.m_strExpression);
    }
    const auto& overview = Find<QTableWidget>(open.window, "parameterTable");
    QCOMPARE(overview.item(RowOf(overview, "thickness"), ParameterOverview::ValueColumn)->text(),
             QStringLiteral("20"));
}

void tst_MainWindow::RestoreBringsARemovedParameterBack()
{
    OpenWindow open;
    ModalDriver user;
    user.Then([](QDialog& dialog) {
        Generate(dialog, 17);
        dialog.reject();
    });
    Trigger(open.window, "action_DesignOfExperiments");
    GlobalParaMeterMgr::m_nameMapParameters.erase("fillet_radius");
    Trigger(open.window, "action_RestoreParameters");
    QCOMPARE(Stored("fillet_radius"), 5.0);
}

void tst_MainWindow::RestoreSettlesWhatCameLater()
{
    OpenWindow open;
    ModalDriver user;
    user.Then([](QDialog& dialog) {
        Generate(dialog, 17);
        dialog.reject();
    });
    Trigger(open.window, "action_DesignOfExperiments");
    ParametersDef later;
    later.m_strName = "later";
    later.m_nType = ParametersDef::ScalarType;
    later.m_strExpression = "thickness * 2";
    later.m_strExpressPara = "thickness";
    GlobalParaMeterMgr::AddParameter("later", later);
    Trigger(open.window, "action_RestoreParameters");
    QCOMPARE(Stored("later"), 40.0);
}

void tst_MainWindow::RestoreAfterSeveralRunsBringsTheDesignBack()
{
    OpenWindow open;
    ModalDriver user;
    for (const int run : {17, 5}) {
        user.Then([run](QDialog& dialog) {
            Generate(dialog, run);
            Generate(dialog, run - 1);
            dialog.reject();
        });
        Trigger(open.window, "action_DesignOfExperiments");
    }
    QVERIFY(user.IsDone());
    QCOMPARE(Stored("bolt_count"), 4.0);
    Trigger(open.window, "action_RestoreParameters");
    QCOMPARE(Stored("thickness"), 20.0);
    QCOMPARE(Stored("bore_diameter"), 70.0);
    QCOMPARE(Stored("bolt_count"), 8.0);
}

void tst_MainWindow::RestoreIsOfferedOnlyAfterARun()
{
    OpenWindow open;
    const auto* const restore = open.window.findChild<QAction*>("action_RestoreParameters");
    QVERIFY(!restore->isEnabled());
    ModalDriver user;
    user.Then([](QDialog& dialog) { dialog.reject(); });
    Trigger(open.window, "action_DesignOfExperiments");
    QVERIFY(!restore->isEnabled());
    user.Then([](QDialog& dialog) {
        Generate(dialog, 0);
        dialog.reject();
    });
    Trigger(open.window, "action_DesignOfExperiments");
    QVERIFY(restore->isEnabled());
    Trigger(open.window, "action_RestoreParameters");
    QVERIFY(!restore->isEnabled());
}

void tst_MainWindow::AppliedValuesAreTheDesignOfTheNextRun()
{
    OpenWindow open;
    ModalDriver user;
    const auto generate = [&user, &open] {
        user.Then([](QDialog& dialog) {
            Generate(dialog, 17);
            dialog.reject();
        });
        Trigger(open.window, "action_DesignOfExperiments");
    };
    generate();
    user.Then([](QDialog& editor) {
        TypeValue(editor, "thickness", "33");
        Click(editor, "pushButton_OK");
    });
    Trigger(open.window, "action_Parameters");
    generate();
    Trigger(open.window, "action_RestoreParameters");
    QVERIFY(user.IsDone());
    QCOMPARE(Stored("thickness"), 33.0);
}

void tst_MainWindow::DialogsAreGoneAfterTheirRun()
{
    OpenWindow open;
    ModalDriver user;
    for (const char* const action : {"action_Parameters", "action_DesignOfExperiments"}) {
        user.Then([](QDialog& dialog) { dialog.reject(); });
        Trigger(open.window, action);
    }
    QVERIFY(user.IsDone());
    QVERIFY(open.window.findChildren<QDialog*>().isEmpty());
}

void tst_MainWindow::AnotherProjectReplacesTheFirst()
{
    OpenWindow open;
    const QString directory = EnterTemporaryDirectory();
    QByteArray project = SampleProject();
    project.replace("Bolted flange", "Another flange");
    project.replace("\"value\": 200", "\"value\": 260");
    WriteFile("other.json", project);
    ModalDriver user;
    ChooseFile(user, directory + "/other.json");
    Trigger(open.window, "action_OpenProject");
    QVERIFY(user.IsDone());
    QVERIFY(open.window.windowTitle().contains("Another flange"));
    QCOMPARE(Shown(open.window, "label_BoundingBox"), QStringLiteral("260 × 260 × 50 mm"));
}

void tst_MainWindow::AnotherProjectHasAnAnalysisOfItsOwn()
{
    const EmptyAttributeNames names;
    OpenWindow open;
    ModalDriver user;
    const auto accept = [](QDialog& dialog) {
        Click(dialog, "okButton");
    };
    user.Then(accept);
    Trigger(open.window, "action_LoadForce");
    QCOMPARE(open.window.Analysis().Loads().size(), std::size_t(1));
    open.window.OpenProject(Project::Load(Project::SamplePath()));
    QVERIFY(open.window.Analysis().Loads().empty());
    user.Then(accept);
    Trigger(open.window, "action_LoadForce");
    QCOMPARE(open.window.Analysis().Loads().size(), std::size_t(1));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
}

void tst_MainWindow::ABadProjectIsToldAndChangesNothing()
{
    OpenWindow open;
    const QString directory = EnterTemporaryDirectory();
    WriteFile("bad.json", "{ 100% nonsense");
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    ModalDriver user;
    ChooseFile(user, directory + "/bad.json");
    Trigger(open.window, "action_OpenProject");
    QVERIFY(user.IsDone());
    const QStringList errors = Messages(posted, ErrorLevel);
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors[0].contains("bad.json"), qPrintable(errors[0]));
    QVERIFY(open.window.windowTitle().contains("Bolted flange"));
    QCOMPARE(Stored("outer_diameter"), 200.0);
}

void tst_MainWindow::ACancelledFileDialogChangesNothing()
{
    OpenWindow open;
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    ModalDriver user;
    user.Then([](QDialog& dialog) { dialog.reject(); });
    Trigger(open.window, "action_OpenProject");
    QVERIFY(user.IsDone());
    QCOMPARE(posted.count(), 0);
}

void tst_MainWindow::QuitClosesTheWindow()
{
    OpenWindow open;
    QVERIFY(open.window.isVisible());
    Trigger(open.window, "action_Quit");
    QVERIFY(!open.window.isVisible());
}

void tst_MainWindow::TheFeaturesOfTheProjectAreShown()
{
    const OpenWindow open;
    const auto& tree = Find<QTreeWidget>(open.window, "featureTree");
    QCOMPARE(tree.topLevelItemCount(), Project::Load(Project::SamplePath()).Features().Size());
    QCOMPARE(tree.topLevelItem(0)->text(0), QString("plate"));
}

void tst_MainWindow::ASelectedFeatureShowsItsFields()
{
    OpenWindow open;
    SelectFeature(open.window, "plate");
    const auto& fields = Find<QTableWidget>(open.window, "fieldTable");
    QCOMPARE(fields.item(0, 1)->text(), QString("plate"));
    QCOMPARE(fields.item(2, 1)->text(), QString("outer_diameter / 2"));
    QCOMPARE(fields.item(2, 2)->text(), QString("100"));
    ModalDriver user;
    user.Then([](QDialog& editor) {
        TypeValue(editor, "outer_diameter", "240");
        Click(editor, "pushButton_OK");
    });
    Trigger(open.window, "action_Parameters");
    QCOMPARE(fields.item(2, 2)->text(), QString("120"));
}

void tst_MainWindow::UndoAndRedoHaveTheirKeys()
{
    OpenWindow open;
    open.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&open.window));
    const QString box = Shown(open.window, "label_BoundingBox");
    auto& fields = Find<QTableWidget>(open.window, "fieldTable");
    SelectFeature(open.window, "plate");
    fields.item(2, 1)->setText("150");
    QCOMPARE(Shown(open.window, "label_BoundingBox"), QString("300 × 300 × 50 mm"));
    QTest::keyClick(&open.window, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(Shown(open.window, "label_BoundingBox"), box);
    QCOMPARE(fields.item(2, 1)->text(), QString("outer_diameter / 2"));
    QTest::keyClick(&open.window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(Shown(open.window, "label_BoundingBox"), QString("300 × 300 × 50 mm"));
}

void tst_MainWindow::DeletingAUsedFeatureIsRefused()
{
    OpenWindow open;
    auto& tree = Find<QTreeWidget>(open.window, "featureTree");
    const int count = tree.topLevelItemCount();
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    open.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&open.window));
    SelectFeature(open.window, "plate");
    tree.setFocus();
    QTest::keyClick(&tree, Qt::Key_Delete);
    QCOMPARE(Messages(posted, ErrorLevel), QStringList("\"plate\" stays: it is used by \"body\""));
    QCOMPARE(tree.topLevelItemCount(), count);
    // The last one is used by none.
    SelectFeature(open.window, "flange");
    QTest::keyClick(&tree, Qt::Key_Delete);
    QCOMPARE(tree.topLevelItemCount(), count - 1);
}

void tst_MainWindow::SuppressingRebuilds()
{
    OpenWindow open;
    const QString mass = Shown(open.window, "label_Mass");
    SelectFeature(open.window, "flange");
    Trigger(open.window, "action_Suppress");
    QVERIFY(Shown(open.window, "label_Mass") != mass);
    QVERIFY(Find<QTreeWidget>(open.window, "featureTree").selectedItems()[0]->font(0).strikeOut());
    Trigger(open.window, "action_Suppress");
    QCOMPARE(Shown(open.window, "label_Mass"), mass);
}

void tst_MainWindow::AFailedRebuildMarksTheFeatureAndKeepsTheShape()
{
    OpenWindow open;
    const QString mass = Shown(open.window, "label_Mass");
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    SelectFeature(open.window, "flange");
    Find<QTableWidget>(open.window, "fieldTable").item(2, 1)->setText("80");
    const QStringList errors = Messages(posted, ErrorLevel);
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors[0].startsWith("The part cannot be built: flange: "), qPrintable(errors[0]));
    QVERIFY(Shown(open.window, "label_Status").contains("last good shape"));
    QCOMPARE(Shown(open.window, "label_Mass"), mass);
    const auto& tree = Find<QTreeWidget>(open.window, "featureTree");
    QVERIFY(!tree.selectedItems()[0]->icon(0).isNull());
    Trigger(open.window, "action_Undo");
    QVERIFY(tree.selectedItems()[0]->icon(0).isNull());
    QVERIFY(Shown(open.window, "label_Status").startsWith("Built at "));
}

void tst_MainWindow::AnEmptyPartIsNoFailure()
{
    OpenWindow open;
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    Find<QTreeWidget>(open.window, "featureTree").selectAll();
    Trigger(open.window, "action_DeleteFeature");
    QCOMPARE(Messages(posted, ErrorLevel), QStringList());
    QCOMPARE(Shown(open.window, "label_Status"), QString("There is no shape yet"));
    Trigger(open.window, "action_Undo");
    QVERIFY(Shown(open.window, "label_Status").startsWith("Built at "));
}

void tst_MainWindow::AZeroDirectionIsToldInPlainWords()
{
    OpenWindow open;
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    ModalDriver user;
    user.Then([](QDialog& dialog) {
        Type(dialog, "lineEdit_zDir", "0");
        Click(dialog, "pushButton_OK");
    });
    user.Then([](QDialog& dialog) {
        Type(dialog, "lineEdit_xDir", "1");
        Click(dialog, "pushButton_OK");
    });
    Trigger(open.window, "action_Add_rotate");
    QVERIFY(user.IsDone());
    QCOMPARE(Messages(posted, ErrorLevel), QStringList());
    QCOMPARE(Messages(posted, WarningLevel).filter("direction").size(), 1);
    QCOMPARE(Shown(open.window, "label_BoundingBox"), QString("200 × 50 × 200 mm"));
}

void tst_MainWindow::ASavedProjectIsReadAsItWas()
{
    OpenWindow open;
    const QString directory = EnterTemporaryDirectory();
    SelectFeature(open.window, "flange");
    Trigger(open.window, "action_Suppress");
    Find<QTableWidget>(open.window, "fieldTable").item(0, 1)->setText("rounded");
    ModalDriver user;
    user.Then([](QDialog& editor) {
        TypeValue(editor, "outer_diameter", "240");
        Click(editor, "pushButton_OK");
    });
    Trigger(open.window, "action_Parameters");
    const FeatureList features = open.window.Part().Features();
    const QString mass = Shown(open.window, "label_Mass");
    ChooseFile(user, directory + "/saved");
    Trigger(open.window, "action_SaveProjectAs");
    QVERIFY(user.IsDone());
    QVERIFY(!open.window.isWindowModified());

    open.window.OpenProject(Project::Load(Project::SamplePath()));
    QVERIFY(Shown(open.window, "label_Mass") != mass);
    open.window.OpenProject(Project::Load(directory + "/saved.json"));
    QVERIFY(open.window.Part().Features() == features);
    QCOMPARE(Shown(open.window, "label_Mass"), mass);
    QCOMPARE(Stored("outer_diameter"), 240.0);
}

void tst_MainWindow::SaveWritesWhereTheProjectIs()
{
    OpenWindow open;
    const QString directory = EnterTemporaryDirectory();
    WriteFile("mine.json", SampleProject());
    open.window.OpenProject(Project::Load(directory + "/mine.json"));
    SelectFeature(open.window, "flange");
    Trigger(open.window, "action_DeleteFeature");
    QVERIFY(open.window.isWindowModified());
    Trigger(open.window, "action_SaveProject");
    QVERIFY(!open.window.isWindowModified());
    QCOMPARE(Project::Load("mine.json").Features().Find("flange"), -1);
    // Undone, it is no longer what was saved.
    Trigger(open.window, "action_Undo");
    QVERIFY(open.window.isWindowModified());
    Trigger(open.window, "action_Redo");
    QVERIFY(!open.window.isWindowModified());
}

void tst_MainWindow::TheSampleIsSavedUnderAnotherName()
{
    OpenWindow open;
    const QString directory = EnterTemporaryDirectory();
    ModalDriver user;
    user.Then([](QDialog& dialog) { dialog.reject(); });
    Trigger(open.window, "action_SaveProject");
    QVERIFY(user.IsDone());
    ChooseFile(user, directory + "/flange.json");
    Trigger(open.window, "action_SaveProject");
    QVERIFY(user.IsDone());
    QVERIFY(QFile::exists("flange.json"));
    // From now on without a question.
    Trigger(open.window, "action_SaveProject");
}

void tst_MainWindow::ASavedRunIsTold()
{
    OpenWindow open;
    const QString directory = EnterTemporaryDirectory();
    ModalDriver user;
    user.Then([](QDialog& dialog) {
        Generate(dialog, 17);
        dialog.reject();
    });
    Trigger(open.window, "action_DesignOfExperiments");
    QVERIFY(open.window.isWindowModified());
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    ChooseFile(user, directory + "/run.json");
    Trigger(open.window, "action_SaveProject");
    QCOMPARE(Messages(posted, WarningLevel).filter("a run").size(), 1);
    Trigger(open.window, "action_RestoreParameters");
    QVERIFY(open.window.isWindowModified());
}

void tst_MainWindow::AFileThatCannotBeWrittenIsTold()
{
    OpenWindow open;
    const QString directory = EnterTemporaryDirectory();
    QVERIFY(QDir().mkpath("gone"));
    WriteFile("gone/mine.json", SampleProject());
    open.window.OpenProject(Project::Load(directory + "/gone/mine.json"));
    SelectFeature(open.window, "flange");
    Trigger(open.window, "action_DeleteFeature");
    QVERIFY(QDir("gone").removeRecursively());
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    Trigger(open.window, "action_SaveProject");
    const QStringList errors = Messages(posted, ErrorLevel);
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors[0].contains("mine.json"), qPrintable(errors[0]));
    QVERIFY(open.window.isWindowModified());
}

void tst_MainWindow::TheTitleTellsOfChanges()
{
    OpenWindow open;
    QVERIFY(!open.window.isWindowModified());
    Trigger(open.window, "action_Add_box");
    QVERIFY(open.window.isWindowModified());
    Trigger(open.window, "action_Undo");
    QVERIFY(!open.window.isWindowModified());
    ModalDriver user;
    for (const char* const value : {"33", "20"}) {
        user.Then([value](QDialog& editor) {
            TypeValue(editor, "thickness", value);
            Click(editor, "pushButton_OK");
        });
        Trigger(open.window, "action_Parameters");
        QCOMPARE(open.window.isWindowModified(), QString(value) == "33");
    }
}

void tst_MainWindow::ChangesAreNotLostUnasked_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::addColumn<bool>("isClosed");
    QTest::addColumn<bool>("isSaved");
    QTest::newRow("save") << QMessageBox::Save << true << true;
    QTest::newRow("discard") << QMessageBox::Discard << true << false;
    QTest::newRow("cancel") << QMessageBox::Cancel << false << false;
}

void tst_MainWindow::ChangesAreNotLostUnasked()
{
    QFETCH(QMessageBox::StandardButton, answer);
    QFETCH(bool, isClosed);
    QFETCH(bool, isSaved);
    OpenWindow open;
    const QString directory = EnterTemporaryDirectory();
    WriteFile("mine.json", SampleProject());
    open.window.OpenProject(Project::Load(directory + "/mine.json"));
    Trigger(open.window, "action_Add_box");
    ModalDriver user;
    user.Answer(answer);
    open.window.close();
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes().size(), 1);
    QVERIFY(user.Boxes()[0].text.contains("Bolted flange"));
    QCOMPARE(open.window.isVisible(), !isClosed);
    QCOMPARE(Project::Load("mine.json").Features().Find("box") >= 0, isSaved);
}

void tst_MainWindow::OpeningAsksForChangesToo()
{
    OpenWindow open;
    Trigger(open.window, "action_Add_box");
    ModalDriver user;
    user.Answer(QMessageBox::Cancel);
    Trigger(open.window, "action_OpenProject");
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes().size(), 1);
    QVERIFY(open.window.Part().Features().Find("box") >= 0);
}

void tst_MainWindow::WithoutChangesNothingIsAsked()
{
    OpenWindow open;
    ModalDriver user;
    user.Then([](QDialog& dialog) { dialog.reject(); });
    Trigger(open.window, "action_OpenProject");
    open.window.close();
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
    QVERIFY(!open.window.isVisible());
}

TARN_TEST_MAIN(tst_MainWindow, HostApplication)
#include "tst_MainWindow.moc"
