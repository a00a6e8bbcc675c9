#include "FileChoice.h"
#include "HostApplication.h"
#include "HostTestMain.h"
#include "OpenWindow.h"
#include "ParameterTable.h"

#include <QTableWidget>

class tst_MainWindowParameters : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheEditorOpensFilledAndBelongsToTheWindow();
    void ApplyEvaluatesTheExpressionsAndRebuilds();
    void ApplyRefreshesTheEditorWithTheEvaluatedValues();
    void CancelChangesNothing();
    void AnEmptyRowCanBeSavedAndRemoved();
    void ABadExpressionIsReportedOnce();
    void AFailedBuildIsReportedOnceAndKeepsTheLastShape();
};

void tst_MainWindowParameters::TheEditorOpensFilledAndBelongsToTheWindow()
{
    OpenWindow open;
    open.user.Then([&open](QDialog& editor) {
        QCOMPARE(editor.parentWidget(), static_cast<QWidget*>(&open.window));
        const auto& table = Find<QTableWidget>(editor, "tableWidget");
        QCOMPARE(table.rowCount(), int(GlobalParaMeterMgr::m_nameMapParameters.size()));
        QCOMPARE(table.item(0, EditorName)->text(), QStringLiteral("outer_diameter"));
        Click(editor, "pushButton_Cancel");
    });
    open.Trigger("action_Parameters");
    QVERIFY(open.user.IsDone());
}

void tst_MainWindowParameters::ApplyEvaluatesTheExpressionsAndRebuilds()
{
    OpenWindow open;
    const QString before = open.Shown("label_Mass");
    open.user.Then([](QDialog& editor) {
        TypeValue(editor, "outer_diameter", "240");
        TypeValue(editor, "bore_diameter", "80");
        Click(editor, "pushButton_Apply");
        Click(editor, "pushButton_Cancel");
    });
    open.Trigger("action_Parameters");
    QVERIFY(open.user.IsDone());
    QCOMPARE(open.user.Boxes(), QVector<ShownBox>());
    QCOMPARE(Stored("hub_diameter"), 128.0);
    QCOMPARE(Stored("bolt_circle"), 184.0);
    QCOMPARE(open.Shown("label_BoundingBox"), QStringLiteral("240 × 240 × 50 mm"));
    QVERIFY(open.Shown("label_Mass") != before);
    const auto& overview = Find<QTableWidget>(open.window, "parameterTable");
    QCOMPARE(overview.item(RowOf(overview, "bolt_circle"), ParameterTable::ResultColumn)->text(),
             QStringLiteral("184 mm"));
}

void tst_MainWindowParameters::ApplyRefreshesTheEditorWithTheEvaluatedValues()
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

    open.user.Then([](QDialog& editor) {
        Click(editor, "pushButton_Apply");
        const auto& table = Find<QTableWidget>(editor, "tableWidget");
        QCOMPARE(table.item(RowOf(table, "outer_diameter"), EditorValue)->text(),
                 QStringLiteral("220"));
        Click(editor, "pushButton_OK");
    });
    open.Trigger("action_Parameters");
    QVERIFY(open.user.IsDone());
    QCOMPARE(open.Shown("label_BoundingBox"), QStringLiteral("220 × 220 × 50 mm"));
}

void tst_MainWindowParameters::AnEmptyRowCanBeSavedAndRemoved()
{
    OpenWindow open;
    const QString directory = EnterTemporaryDirectory();
    open.user.Then([](QDialog& editor) {
        Click(editor, "pushButton_Add");
        Click(editor, "pushButton_OK");
    });
    open.Trigger("action_Parameters");
    QVERIFY(open.user.IsDone());
    QVERIFY(open.window.isWindowModified());
    auto& overview = Find<QTableWidget>(open.window, "parameterTable");
    const int rows = overview.rowCount();
    QCOMPARE(overview.item(rows - 1, ParameterTable::NameColumn)->text(), QString());

    ChooseFile(open.user, directory + "/saved.json");
    open.Trigger("action_SaveProject");
    QVERIFY(open.user.IsDone());
    QVERIFY(!open.window.isWindowModified());

    overview.selectRow(rows - 1);
    open.Trigger("action_RemoveParameters");
    QCOMPARE(overview.rowCount(), rows - 1);
    QCOMPARE(GlobalParaMeterMgr::m_nameMapParameters.count(QString()), std::size_t(0));
    QVERIFY(open.window.isWindowModified());
}

void tst_MainWindowParameters::CancelChangesNothing()
{
    OpenWindow open;
    const QString before = open.Shown("label_BoundingBox");
    open.user.Then([](QDialog& editor) {
        TypeValue(editor, "outer_diameter", "240");
        Click(editor, "pushButton_Cancel");
    });
    open.Trigger("action_Parameters");
    QVERIFY(open.user.IsDone());
    QCOMPARE(Stored("outer_diameter"), 200.0);
    QCOMPARE(open.Shown("label_BoundingBox"), before);
}

void tst_MainWindowParameters::ABadExpressionIsReportedOnce()
{
    OpenWindow open;
    const PostedMessages posted;
    open.user.Then([](QDialog& editor) {
        auto& table = Find<QTableWidget>(editor, "tableWidget");
        TypeIntoCell(table, RowOf(table, "hub_diameter"), EditorExpression, "1.6 *");
        Click(editor, "pushButton_OK");
    });
    open.Trigger("action_Parameters");
    QVERIFY(open.user.IsDone());
    const QStringList errors = posted.At(ErrorLevel);
    QVERIFY2(errors.filter("hub_diameter = ").size() == 1, qPrintable(errors.join('\n')));
}

void tst_MainWindowParameters::AFailedBuildIsReportedOnceAndKeepsTheLastShape()
{
    OpenWindow open;
    const QString volume = open.Shown("label_Volume");
    const QString box = open.Shown("label_BoundingBox");
    const PostedMessages posted;
    open.user.Then([](QDialog& editor) {
        TypeValue(editor, "bore_diameter", "400");
        Click(editor, "pushButton_OK");
    });
    open.Trigger("action_Parameters");
    QVERIFY(open.user.IsDone());
    const QStringList errors = posted.At(ErrorLevel);
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors[0].startsWith("The part cannot be built: "), qPrintable(errors[0]));
    QVERIFY2(errors[0].size() > 30, qPrintable(errors[0]));

    QVERIFY(open.Shown("label_Status").startsWith("Not built: "));
    QVERIFY(open.Shown("label_Status").contains("last valid shape"));
    QCOMPARE(open.Shown("label_Volume"), volume);
    QCOMPARE(open.Shown("label_BoundingBox"), box);
    const auto& overview = Find<QTableWidget>(open.window, "parameterTable");
    QCOMPARE(overview.item(RowOf(overview, "bore_diameter"), ParameterTable::ValueColumn)->text(),
             QStringLiteral("400"));

    open.user.Then([](QDialog& editor) {
        TypeValue(editor, "bore_diameter", "70");
        Click(editor, "pushButton_OK");
    });
    open.Trigger("action_Parameters");
    QVERIFY(open.Shown("label_Status").startsWith("Built at "));
}

TARN_HOST_TEST_MAIN(tst_MainWindowParameters, HostApplication)
#include "tst_MainWindowParameters.moc"
