#include "OneParameterDlgTable.h"

#include <limits>

// The samples that a range and a type generate. tst_OneParameterDlg tests the window.

namespace {

// Leaves a field with Tab without changing it.
void FinishEdit(const QWidget& dialog, const char* name)
{
    auto& edit = Find<QLineEdit>(dialog, name);
    edit.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(edit.window()));
    edit.setFocus();
    QTest::keyClick(&edit, Qt::Key_Tab);
}

} // namespace

class tst_OneParameterDlgSamples : public With<DialogTest, EmptyDesignStores>
{
    Q_OBJECT

private Q_SLOTS:
    void TheRangeGeneratesTheSamples_data();
    void TheRangeGeneratesTheSamples();
    void ABadRangeIsRefused_data();
    void ABadRangeIsRefused();
    void AStoredBadRangeIsRefusedAtTheOpening_data();
    void AStoredBadRangeIsRefusedAtTheOpening();
    void TheLimitIsAMillionRows();
    void EachFieldRegeneratesWhenItIsLeft_data();
    void EachFieldRegeneratesWhenItIsLeft();
    void LinearAndLogRegenerateAtOnce();
    void LnAndGaussWaitForTheNextEdit();
    void GaussIsRememberedWithoutRows();
    void WithoutATypeNothingIsGenerated();
    void ARefusedRangeKeepsTheType();

    void ABadEditShowsOneBox_data();
    void ABadEditShowsOneBox();
    void TheNextBadEditIsReportedAgain();
    void LeavingWithABadEditShowsNoFurtherBox_data();
    void LeavingWithABadEditShowsNoFurtherBox();
    void EnterInAFieldFinishesTheEditOnly();
    void EnterInACellFinishesTheEditOnly();
};

void tst_OneParameterDlgSamples::TheRangeGeneratesTheSamples_data()
{
    QTest::addColumn<QString>("min");
    QTest::addColumn<QString>("max");
    QTest::addColumn<QString>("step");
    QTest::addColumn<int>("type");
    QTest::addColumn<QStringList>("rows");
    NewRow("the end is reached", "0", "1", "0.25", int(Linear),
           QStringList({"0", "0.25", "0.5", "0.75", "1"}));
    NewRow("the end is not reached", "0", "1", "0.3", int(Linear),
           QStringList({"0", "0.3", "0.6", "0.9"}));
    // Ten steps of 0.1 give slightly less than 1, three steps slightly more than 0.3.
    NewRow("added up below the end", "0", "1", "0.1", int(Linear),
           QStringList({"0", "0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7", "0.8", "0.9", "1"}));
    NewRow("added up beyond the end", "0", "0.3", "0.1", int(Linear),
           QStringList({"0", "0.1", "0.2"}));
    NewRow("step as wide as the range", "5", "6", "1", int(Linear), QStringList({"5", "6"}));
    NewRow("negative", "-2", "0", "1", int(Linear), QStringList({"-2", "-1", "0"}));
    NewRow("six digits", "0.1234567", "2", "1.5", int(Linear),
           QStringList({"0.123457", "1.62346"}));
    NewRow("exponents", "1e6", "3e6", "1234567", int(Linear),
           QStringList({"1e+06", "2.23457e+06"}));
    NewRow("text is 0", "min", "1", "1", int(Linear), QStringList({"0", "1"}));
    NewRow("huge range", "-1.7e308", "1.7e308", "1.7e308", int(Linear),
           QStringList({"-1.7e+308", "0", "1.7e+308"}));
    NewRow("Log10", "1", "100", "99", int(Log10), QStringList({"0", "2"}));
    NewRow("Log10 is spaced linearly", "10", "30", "10", int(Log10),
           QStringList({"1", "1.30103", "1.47712"}));
    NewRow("Log10 of 0", "0", "1", "1", int(Log10), QStringList({"-inf", "0"}));
    NewRow("Log10 of a negative number", "-1", "1", "1", int(Log10),
           QStringList({"nan", "-inf", "0"}));
    NewRow("Ln", "1", "2", "1", int(Ln), QStringList({"0", "0.693147"}));
    NewRow("Ln of 0", "0", "1", "1", int(Ln), QStringList({"-inf", "0"}));
    NewRow("Ln of a negative number", "-1", "1", "1", int(Ln), QStringList({"nan", "-inf", "0"}));
}

void tst_OneParameterDlgSamples::TheRangeGeneratesTheSamples()
{
    QFETCH(QString, min);
    QFETCH(QString, max);
    QFETCH(QString, step);
    QFETCH(int, type);
    QFETCH(QStringList, rows);
    OneParameterDlg dialog(nullptr, "a");
    Then([&](QDialog& shown) {
        SetFields(shown, min, max, step);
        Find<QRadioButton>(shown, TypeButtons[type]).setChecked(true);
        FinishEdit(shown, "lineEdit_Deta");
        QCOMPARE(Rows(shown), rows);
        Click(shown, "pushButton_OK");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(g_mapParaArrays["a"].nSampleType, type);
}

namespace {

void AddBadRanges()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<double>("step");
    const double inf = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    NewRow("max below min", 2.0, 1.0, 0.5);
    NewRow("max below min, step wide", 2.0, 1.0, 1.0);
    NewRow("empty range", 1.0, 1.0, 0.0);
    NewRow("step too wide", 0.0, 1.0, 2.0);
    NewRow("step 0", 0.0, 1.0, 0.0);
    NewRow("step negative", 0.0, 1.0, -1.0);
    NewRow("step cannot move the start", 1e17, 2e17, 1.0);
    NewRow("step cannot reach the end", 9007.0, 1e17, 1e11 / 7.0);
    NewRow("step cannot move a large negative start", -1e17, 1.0, 1.0);
    NewRow("step tiny", 0.0, 1.0, 1e-300);
    NewRow("too many rows", 0.0, 1e6, 1.0);
    NewRow("min not finite", -inf, 1.0, 1.0);
    NewRow("max not finite", 0.0, inf, 1.0);
    NewRow("step not finite", 0.0, 1.0, inf);
    NewRow("all infinite", -inf, inf, inf);
    NewRow("min not a number", nan, 1.0, 1.0);
    NewRow("max not a number", 0.0, nan, 1.0);
    NewRow("step not a number", 0.0, 1.0, nan);
}

} // namespace

void tst_OneParameterDlgSamples::ABadRangeIsRefused_data()
{
    AddBadRanges();
}

void tst_OneParameterDlgSamples::ABadRangeIsRefused()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, step);
    for (const int type : {Linear, Log10, Ln, Gauss}) {
        OneParameterDlg dialog(nullptr, "a");
        SetFields(dialog, QString::number(min), QString::number(max), QString::number(step));
        Find<QRadioButton>(dialog, TypeButtons[type]).setChecked(true);
        dialog.RefreshTableData();
        QCOMPARE(Rows(dialog), QStringList());
    }
    QCOMPARE(Boxes(), ShownBoxes(4, BadInput));
}

void tst_OneParameterDlgSamples::AStoredBadRangeIsRefusedAtTheOpening_data()
{
    AddBadRanges();
}

void tst_OneParameterDlgSamples::AStoredBadRangeIsRefusedAtTheOpening()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(double, step);
    StoreRange("a", min, max, step);
    const OneParameterDlg dialog(nullptr, "a");
    QCOMPARE(Boxes(), ShownBoxes({BadInput}));
    QCOMPARE(Fields(dialog),
             QStringList({QString::number(min), QString::number(max), QString::number(step)}));
    QCOMPARE(Rows(dialog), QStringList());
}

void tst_OneParameterDlgSamples::TheLimitIsAMillionRows()
{
    OneParameterDlg dialog(nullptr, "a");
    SetFields(dialog, "1", "1000000", "1");
    dialog.RefreshTableData();
    QCOMPARE(Boxes(), ShownBoxes());
    QCOMPARE(Table(dialog).rowCount(), 1000000);
    QCOMPARE(Table(dialog).item(999998, 0)->text(), QStringLiteral("999999"));
    SetFields(dialog, "0", "1000000", "1");
    dialog.RefreshTableData();
    QCOMPARE(Boxes(), ShownBoxes({BadInput}));
    QCOMPARE(Table(dialog).rowCount(), 0);
}

void tst_OneParameterDlgSamples::EachFieldRegeneratesWhenItIsLeft_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("rows");
    NewRow("lineEdit_Min", "-1", QStringList({"-1", "0", "1"}));
    NewRow("lineEdit_Max", "2", QStringList({"0", "1", "2"}));
    NewRow("lineEdit_Deta", "0.5", QStringList({"0", "0.5", "1"}));
}

void tst_OneParameterDlgSamples::EachFieldRegeneratesWhenItIsLeft()
{
    QFETCH(QString, text);
    QFETCH(QStringList, rows);
    OneParameterDlg dialog(nullptr, "a");
    Then([&](QDialog& shown) {
        Type(shown, QTest::currentDataTag(), text);
        QCOMPARE(Rows(shown), rows);
        shown.reject();
    });
    dialog.exec();
}

void tst_OneParameterDlgSamples::LinearAndLogRegenerateAtOnce()
{
    StoreRange("a", 1, 100, 99);
    OneParameterDlg dialog(nullptr, "a");
    Then([](QDialog& shown) {
        Click(shown, "radioButton_Log");
        QCOMPARE(Rows(shown), QStringList({"0", "2"}));
        Click(shown, "radioButton_Linear");
        QCOMPARE(Rows(shown), QStringList({"1", "100"}));
        shown.reject();
    });
    dialog.exec();
}

void tst_OneParameterDlgSamples::LnAndGaussWaitForTheNextEdit()
{
    StoreRange("a", 1, 2, 1);
    OneParameterDlg dialog(nullptr, "a");
    Then([&](QDialog& shown) {
        Click(shown, "radioButton_Ln");
        QCOMPARE(CheckedTypes(shown), QStringList({"Ln"}));
        QCOMPARE(Rows(shown), QStringList({"1", "2"}));
        FinishEdit(shown, "lineEdit_Min");
        QCOMPARE(Rows(shown), QStringList({"0", "0.693147"}));
        Click(shown, "radioButton_Gauss");
        QCOMPARE(Rows(shown), QStringList({"0", "0.693147"}));
        // The type of the last generation counts, not the button that is now checked.
        Click(shown, "pushButton_OK");
    });
    dialog.exec();
    QCOMPARE(g_mapParaArrays["a"].nSampleType, int(Ln));
}

void tst_OneParameterDlgSamples::GaussIsRememberedWithoutRows()
{
    OneParameterDlg dialog(nullptr, "a");
    Then([&](QDialog& shown) {
        Click(shown, "radioButton_Gauss");
        FinishEdit(shown, "lineEdit_Max");
        QCOMPARE(Boxes(), ShownBoxes({NoGauss}));
        QCOMPARE(Rows(shown), QStringList());
        Click(shown, "pushButton_OK");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(g_mapParaArrays["a"].nSampleType, int(Gauss));
    QVERIFY(g_mapParaArrays["a"].vecValues.empty());
    QCOMPARE(g_mapParaArrays["a"].bChecked, 1);
}

void tst_OneParameterDlgSamples::WithoutATypeNothingIsGenerated()
{
    OneParameterDlg dialog(nullptr, "a");
    auto& linear = Find<QRadioButton>(dialog, "radioButton_Linear");
    linear.setAutoExclusive(false);
    linear.setChecked(false);
    dialog.RefreshTableData();
    QCOMPARE(Rows(dialog), QStringList());
}

void tst_OneParameterDlgSamples::ARefusedRangeKeepsTheType()
{
    StoreRange("a", 1, 2, 1, Ln);
    OneParameterDlg dialog(nullptr, "a");
    SetFields(dialog, "3", "2", "1");
    Find<QRadioButton>(dialog, "radioButton_Log").setChecked(true);
    dialog.RefreshTableData();
    dialog.m_Slot_OK();
    QCOMPARE(Boxes(), ShownBoxes({BadInput}));
    QCOMPARE(g_mapParaArrays["a"].nSampleType, int(Ln));
}

void tst_OneParameterDlgSamples::ABadEditShowsOneBox_data()
{
    QTest::addColumn<int>("key");
    NewRow("Tab", int(Qt::Key_Tab));
    NewRow("Return", int(Qt::Key_Return));
    NewRow("Enter", int(Qt::Key_Enter));
}

void tst_OneParameterDlgSamples::ABadEditShowsOneBox()
{
    QFETCH(int, key);
    OneParameterDlg dialog(nullptr, "a");
    Then([&](QDialog& shown) {
        QVERIFY(QTest::qWaitForWindowActive(&shown));
        auto& edit = Find<QLineEdit>(shown, "lineEdit_Max");
        edit.setFocus();
        QVERIFY(edit.hasFocus());
        edit.selectAll();
        QTest::keyClicks(&edit, "-5");
        User().WhileBoxOpen([&](QMessageBox& box) {
            QVERIFY(QTest::qWaitForWindowActive(&box));
            QVERIFY(!edit.hasFocus());
        });
        QTest::keyClick(&edit, Qt::Key(key));
        QCOMPARE(Boxes(), ShownBoxes({BadInput}));
        QCOMPARE(Fields(shown), QStringList({"0", "-5", "1"}));
        QCOMPARE(Rows(shown), QStringList());
        edit.setText("2");
        shown.reject();
    });
    dialog.exec();
    QCOMPARE(Boxes(), ShownBoxes({BadInput}));
}

void tst_OneParameterDlgSamples::TheNextBadEditIsReportedAgain()
{
    OneParameterDlg dialog(nullptr, "a");
    Then([&](QDialog& shown) {
        Type(shown, "lineEdit_Max", "-5");
        QCOMPARE(Boxes(), ShownBoxes({BadInput}));
        Type(shown, "lineEdit_Deta", "7");
        QCOMPARE(Boxes(), ShownBoxes({BadInput, BadInput}));
        shown.reject();
    });
    dialog.exec();
}

void tst_OneParameterDlgSamples::LeavingWithABadEditShowsNoFurtherBox_data()
{
    QTest::addColumn<bool>("escape");
    NewRow("Escape", true);
    NewRow("window closed", false);
}

void tst_OneParameterDlgSamples::LeavingWithABadEditShowsNoFurtherBox()
{
    QFETCH(bool, escape);
    OneParameterDlg dialog(nullptr, "a");
    Then([&](QDialog& shown) {
        QVERIFY(QTest::qWaitForWindowActive(&shown));
        auto& edit = Find<QLineEdit>(shown, "lineEdit_Max");
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, "-5");
        if (escape)
            QTest::keyClick(&edit, Qt::Key_Escape);
        else
            shown.close();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    // A box would come when the field loses the focus.
    QTRY_VERIFY(QApplication::focusWidget() == nullptr);
    DeliverEvents();
}

void tst_OneParameterDlgSamples::EnterInAFieldFinishesTheEditOnly()
{
    OneParameterDlg dialog(nullptr, "a");
    Then([](QDialog& shown) {
        QVERIFY(QTest::qWaitForWindowActive(&shown));
        auto& edit = Find<QLineEdit>(shown, "lineEdit_Deta");
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, "0.5");
        QCOMPARE(Rows(shown), QStringList({"0", "1"}));
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(Rows(shown), QStringList({"0", "0.5", "1"}));
        QTest::keyClick(&edit, Qt::Key_Enter);
        QCOMPARE(Rows(shown), QStringList({"0", "0.5", "1"}));
        QVERIFY(shown.isVisible());
        shown.reject();
    });
    dialog.exec();
}

void tst_OneParameterDlgSamples::EnterInACellFinishesTheEditOnly()
{
    OneParameterDlg dialog(nullptr, "a");
    Then([](QDialog& shown) {
        QTableWidget& table = Table(shown);
        TypeIntoCell(table, 1, 0, "7.50");
        QCOMPARE(Rows(shown), QStringList({"0", "7.50"}));
        QTest::keyClick(&table, Qt::Key_Return);
        QVERIFY(shown.isVisible());
        QCOMPARE(Rows(shown), QStringList({"0", "7.50"}));
        shown.reject();
    });
    dialog.exec();
}

TARN_TEST_MAIN(tst_OneParameterDlgSamples)
#include "tst_OneParameterDlgSamples.moc"
