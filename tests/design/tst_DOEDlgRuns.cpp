#include "DOEDlg.h"
#include "EmptyDesignStores.h"
#include "ModalDriver.h"
#include "TestCase.h"

#include <QCheckBox>
#include <QPointer>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTimer>

#include <limits>

// The run table and "Generate". The window stands in tst_DOEDlg.

namespace {

using Boxes = QVector<ShownBox>;
using Values = std::vector<double>;

const ShownBox NotEqual = ShownBox::Notice("Notify", "Number not equal");
const ShownBox TooMany = ShownBox::Notice("Notify", "Too many runs");

ShownBox NoRow(QWidget* parent)
{
    return {"Warning", "Select one row first", QMessageBox::Information, QMessageBox::Ok, parent};
}

void Tick(const QString& name, const Values& values, bool ticked = true)
{
    sParaArrayData& record = g_mapParaArrays[name];
    record.bChecked = ticked ? 1 : 0;
    record.strName = name;
    record.vecValues = values;
}

void AddParameter(const QString& name, double value = 5.0)
{
    ParametersDef record;
    record.m_strName = name;
    record.m_nType = ParametersDef::ScalarType;
    record.m_dValue = value;
    record.m_varRawValue = value;
    record.m_strValue = QString::number(value);
    GlobalParaMeterMgr::AddParameter(name, record);
}

const ParametersDef& Stored(const QString& name)
{
    return GlobalParaMeterMgr::m_nameMapParameters.at(name);
}

QTableWidget& Runs(const QWidget& dialog)
{
    return Find<QTableWidget>(dialog, "tableWidget_Final");
}

QSize Size(const QWidget& dialog)
{
    return {Runs(dialog).columnCount(), Runs(dialog).rowCount()};
}

QStringList Header(const QWidget& dialog)
{
    QStringList texts;
    for (int column = 0; column < Runs(dialog).columnCount(); ++column)
        texts << Runs(dialog).horizontalHeaderItem(column)->text();
    return texts;
}

QStringList Rows(const QWidget& dialog)
{
    QStringList rows;
    for (int row = 0; row < Runs(dialog).rowCount(); ++row) {
        QStringList texts;
        for (int column = 0; column < Runs(dialog).columnCount(); ++column)
            texts << Runs(dialog).item(row, column)->text();
        rows << texts.join(' ');
    }
    return rows;
}

void Refresh(const QWidget& dialog)
{
    Click(dialog, "pushButton_RefreshData");
}

void Generate(const QWidget& dialog, int row)
{
    Runs(dialog).setCurrentCell(row, 0);
    Click(dialog, "pushButton_GenGeo");
}

Values Counted(int count)
{
    Values values;
    for (int i = 0; i < count; ++i)
        values.push_back(i);
    return values;
}

} // namespace

class tst_DOEDlgRuns : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheRunsAreTheFullFactorial_data();
    void TheRunsAreTheFullFactorial();
    void TheColumnsStandInTheOrderOfTheNames();
    void TheHeaderShowsTheNamesOfTheRecords();
    void TheRegistryAloneDecides();
    void NumbersAreShownWithSixDigits();
    void CellsAreOrdinaryItems();
    void TheTableMayBeBuiltAgainAndAgain();
    void TheViewsFollowTheTable();
    void TheViewForgetsTheCurrentRow();
    void TwoDialogsDoNotDisturbEachOther();
    void VeryManyParametersMayBeTicked();

    void AMillionRunsAreTheLimit();
    void TooManyRunsAreRefused_data();
    void TooManyRunsAreRefused();
    void TooManyRunsAreRefusedAtTheConstruction();
    void AnEmptyListOutweighsAllOthers_data();
    void AnEmptyListOutweighsAllOthers();
    void RefusedRunsCountAsColumnsOfTheDialog();

    void GenerateWritesTheRunIntoTheStore();
    void GenerateSetsAllOtherParametersToZero();
    void GenerateLeavesTheOtherFieldsAlone();
    void GenerateWritesWhatTheCellsShow();
    void GenerateReadsEditedCells_data();
    void GenerateReadsEditedCells();
    void GenerateOfAnAddedRowWritesZeros();
    void GenerateReadsTheRowsAsSorted();
    void GenerateTakesTheCurrentRow();
    void GenerateWithoutARowIsRefused();
    void TheHostMayDestroyTheDialogBehindTheRefusal();
    void NothingTickedIsRefusedForTheRow();
    void FewerColumnsThanBeforeAreRefusedUntilReopened();
    void FewerColumnsWithoutARowAskForTheRowFirst();
    void MoreColumnsThanBeforeAreTaken();
    void OtherColumnsThanBeforeAreTaken();
    void AHandMadeColumnIsRefused();
    void TheLastOfTwoColumnsOfOneNameCounts();
    void AParameterAddedSinceIsSetToZero();
    void AParameterRemovedSinceIsNotEntered();
    void TheSignalComesAfterTheStoreIsWritten();
    void TheSignalIsConnectedByItsSignature();
    void TheHostMayRefreshFromTheSignal();
};

void tst_DOEDlgRuns::TheRunsAreTheFullFactorial_data()
{
    QTest::addColumn<QVector<Values>>("lists");
    QTest::addColumn<QStringList>("rows");
    using Lists = QVector<Values>;
    QTest::newRow("nothing ticked") << Lists() << QStringList();
    QTest::newRow("one parameter") << Lists({{3, 1, 2}}) << QStringList({"3", "1", "2"});
    QTest::newRow("one run") << Lists({{1}, {2}}) << QStringList({"1 2"});
    QTest::newRow("the last turns fastest")
        << Lists({{1, 2}, {10, 20, 30}})
        << QStringList({"1 10", "1 20", "1 30", "2 10", "2 20", "2 30"});
    QTest::newRow("three parameters")
        << Lists({{1, 2}, {3, 4}, {5, 6}})
        << QStringList({"1 3 5", "1 3 6", "1 4 5", "1 4 6", "2 3 5", "2 3 6", "2 4 5", "2 4 6"});
    QTest::newRow("one of many") << Lists({{1, 2}, {9}, {3, 4}})
                                 << QStringList({"1 9 3", "1 9 4", "2 9 3", "2 9 4"});
    QTest::newRow("duplicates stay")
        << Lists({{1, 1}, {2, 2}}) << QStringList({"1 2", "1 2", "1 2", "1 2"});
    QTest::newRow("first list empty") << Lists({{}, {1, 2}}) << QStringList();
    QTest::newRow("last list empty") << Lists({{1, 2}, {}}) << QStringList();
    QTest::newRow("middle list empty") << Lists({{1}, {}, {2}}) << QStringList();
    QTest::newRow("only list empty") << Lists({{}}) << QStringList();
}

void tst_DOEDlgRuns::TheRunsAreTheFullFactorial()
{
    const EmptyDesignStores stores;
    QFETCH(QVector<Values>, lists);
    QFETCH(QStringList, rows);
    for (int i = 0; i < lists.size(); ++i)
        Tick(QStringLiteral("p%1").arg(i), lists[i]);
    const DOEDlg dialog(nullptr);
    QCOMPARE(Rows(dialog), rows);
    QCOMPARE(Runs(dialog).columnCount(), rows.isEmpty() ? 0 : lists.size());
    Refresh(dialog);
    QCOMPARE(Rows(dialog), rows);
}

void tst_DOEDlgRuns::TheColumnsStandInTheOrderOfTheNames()
{
    const EmptyDesignStores stores;
    Tick("b", {1});
    Tick("a10", {2});
    Tick("a2", {3});
    Tick("B", {4});
    Tick("c", {5}, false);
    Tick("长", {6});
    const DOEDlg dialog(nullptr);
    QCOMPARE(Header(dialog), QStringList({"B", "a10", "a2", "b", "长"}));
    QCOMPARE(Rows(dialog), QStringList({"4 2 3 1 6"}));
}

void tst_DOEDlgRuns::TheHeaderShowsTheNamesOfTheRecords()
{
    const EmptyDesignStores stores;
    Tick("a", {1});
    Tick("b", {2});
    g_mapParaArrays["a"].strName = "other";
    g_mapParaArrays["b"].strName = "";
    const DOEDlg dialog(nullptr);
    QCOMPARE(Header(dialog), QStringList({"other", ""}));
}

void tst_DOEDlgRuns::TheRegistryAloneDecides()
{
    // Neither the store nor the ticks that the window shows.
    const EmptyDesignStores stores;
    AddParameter("x");
    Tick("a", {1, 2});
    const DOEDlg dialog(nullptr);
    QCOMPARE(Header(dialog), QStringList({"a"}));
    g_mapParaArrays["a"].bChecked = 0;
    Tick("b", {3});
    QCOMPARE(Rows(dialog), QStringList({"1", "2"}));
    Refresh(dialog);
    QCOMPARE(Header(dialog), QStringList({"b"}));
    QCOMPARE(Rows(dialog), QStringList({"3"}));
}

void tst_DOEDlgRuns::NumbersAreShownWithSixDigits()
{
    const EmptyDesignStores stores;
    const double inf = std::numeric_limits<double>::infinity();
    Tick("a", {0.1, 1234567, 1.0 / 3, -0.00001234567, 100000, 1e300, inf, -inf});
    const DOEDlg dialog(nullptr);
    QCOMPARE(Rows(dialog), QStringList({"0.1", "1.23457e+06", "0.333333", "-1.23457e-05", "100000",
                                        "1e+300", "inf", "-inf"}));
}

void tst_DOEDlgRuns::CellsAreOrdinaryItems()
{
    const EmptyDesignStores stores;
    Tick("a", {9, 10});
    const DOEDlg dialog(nullptr);
    QTableWidget& table = Runs(dialog);
    const QTableWidgetItem ordinary("9");
    QCOMPARE(table.item(0, 0)->flags(), ordinary.flags());
    QCOMPARE(table.item(0, 0)->type(), ordinary.type());
    QCOMPARE(table.item(0, 0)->data(Qt::EditRole), ordinary.data(Qt::EditRole));
    QCOMPARE(table.findItems("10", Qt::MatchExactly).size(), 1);
    QSignalSpy changed(&table, SIGNAL(cellChanged(int, int)));
    table.item(1, 0)->setText("9.50");
    QCOMPARE(changed.count(), 1);
    QCOMPARE(Rows(dialog), QStringList({"9", "9.50"}));
}

void tst_DOEDlgRuns::TheTableMayBeBuiltAgainAndAgain()
{
    const EmptyDesignStores stores;
    Tick("a", {1, 2});
    const DOEDlg dialog(nullptr);
    Runs(dialog).item(0, 0)->setText("edited");
    for (int i = 0; i < 3; ++i) {
        Refresh(dialog);
        QCOMPARE(Rows(dialog), QStringList({"1", "2"}));
    }
}

void tst_DOEDlgRuns::TheViewsFollowTheTable()
{
    // The cells come in silence; the counts must not.
    const EmptyDesignStores stores;
    Tick("a", {1, 2, 3});
    DOEDlg dialog(nullptr);
    dialog.show();
    QTableWidget& table = Runs(dialog);
    QSignalSpy rows(table.model(), SIGNAL(rowsInserted(QModelIndex, int, int)));
    QSignalSpy columns(table.model(), SIGNAL(columnsInserted(QModelIndex, int, int)));
    QSignalSpy cells(table.model(), SIGNAL(dataChanged(QModelIndex, QModelIndex, QVector<int>)));
    Tick("b", {4, 5});
    Refresh(dialog);
    QCOMPARE(rows.count(), 1);
    QCOMPARE(columns.count(), 1);
    QCOMPARE(cells.count(), 0);
    QVERIFY(!table.model()->signalsBlocked());
    QCOMPARE(table.verticalHeader()->count(), 6);
    QCOMPARE(table.horizontalHeader()->count(), 2);
    QVERIFY(table.visualItemRect(table.item(5, 1)).isValid());
}

void tst_DOEDlgRuns::TheViewForgetsTheCurrentRow()
{
    const EmptyDesignStores stores;
    Tick("a", {1, 2});
    const DOEDlg dialog(nullptr);
    Runs(dialog).setCurrentCell(1, 0);
    Refresh(dialog);
    QCOMPARE(Runs(dialog).currentRow(), -1);
    QVERIFY(Runs(dialog).selectedItems().isEmpty());
}

void tst_DOEDlgRuns::TwoDialogsDoNotDisturbEachOther()
{
    const EmptyDesignStores stores;
    Tick("a", {1, 2});
    const DOEDlg first(nullptr);
    Tick("b", {3});
    {
        const DOEDlg second(nullptr);
        QCOMPARE(Rows(second), QStringList({"1 3", "2 3"}));
        QCOMPARE(Rows(first), QStringList({"1", "2"}));
    }
    Refresh(first);
    QCOMPARE(Rows(first), QStringList({"1 3", "2 3"}));
}

void tst_DOEDlgRuns::VeryManyParametersMayBeTicked()
{
    const EmptyDesignStores stores;
    constexpr int Count = 200000;
    for (int i = 0; i < Count; ++i)
        Tick(QStringLiteral("p%1").arg(i, 6, 10, QLatin1Char('0')), {double(i)});
    const DOEDlg dialog(nullptr);
    QCOMPARE(Size(dialog), QSize(Count, 1));
    QCOMPARE(Runs(dialog).item(0, 0)->text(), QStringLiteral("0"));
    QCOMPARE(Runs(dialog).item(0, Count - 1)->text(), QStringLiteral("199999"));
    QCOMPARE(Runs(dialog).horizontalHeaderItem(Count - 1)->text(), QStringLiteral("p199999"));
}

void tst_DOEDlgRuns::AMillionRunsAreTheLimit()
{
    const EmptyDesignStores stores;
    QCOMPARE(DOEDlg::MaximumRuns, 1000000);
    Tick("a", Counted(1000));
    Tick("b", Counted(1000));
    ModalDriver user;
    const DOEDlg dialog(nullptr);
    QCOMPARE(user.Boxes(), Boxes());
    QCOMPARE(Size(dialog), QSize(2, 1000000));
    QCOMPARE(Runs(dialog).item(123456, 0)->text(), QStringLiteral("123"));
    QCOMPARE(Runs(dialog).item(123456, 1)->text(), QStringLiteral("456"));
}

void tst_DOEDlgRuns::TooManyRunsAreRefused_data()
{
    QTest::addColumn<QVector<int>>("lengths");
    QTest::newRow("one more than the limit") << QVector<int>({1000001});
    QTest::newRow("a little above") << QVector<int>({1000, 1001});
    QTest::newRow("beyond 32 bits") << QVector<int>({70000, 70000});
    QTest::newRow("0 in 32 bits") << QVector<int>({65536, 65536});
    QTest::newRow("0 in 64 bits") << QVector<int>({65536, 65536, 65536, 65536});
    QTest::newRow("beyond all bits") << QVector<int>(200, 2);
    QTest::newRow("one run at the end") << QVector<int>({1001, 1000, 1, 1});
    QTest::newRow("too many cells") << QVector<int>({1000, 1000}) + QVector<int>(19, 1);
}

void tst_DOEDlgRuns::TooManyRunsAreRefused()
{
    const EmptyDesignStores stores;
    QFETCH(QVector<int>, lengths);
    Tick("a", {1, 2});
    ModalDriver user;
    const DOEDlg dialog(nullptr);
    g_mapParaArrays.clear();
    for (int i = 0; i < lengths.size(); ++i)
        Tick(QStringLiteral("p%1").arg(i), Counted(lengths[i]));
    user.WhileBoxOpen([&](QMessageBox&) { QCOMPARE(Size(dialog), QSize(0, 0)); });
    Refresh(dialog);
    QCOMPARE(user.Boxes(), Boxes({TooMany}));
    QVERIFY(user.IsDone());
    QCOMPARE(Size(dialog), QSize(0, 0));
}

void tst_DOEDlgRuns::TooManyRunsAreRefusedAtTheConstruction()
{
    const EmptyDesignStores stores;
    Tick("a", Counted(2000));
    Tick("b", Counted(2000));
    AddParameter("a");
    ModalDriver user;
    // The host takes the tick back behind the box.
    user.WhileBoxOpen([](QMessageBox&) { g_mapParaArrays.erase("b"); });
    const DOEDlg dialog(nullptr);
    QCOMPARE(user.Boxes(), Boxes({TooMany}));
    QCOMPARE(Size(dialog), QSize(0, 0));
    Refresh(dialog);
    QCOMPARE(Size(dialog), QSize(1, 2000));
    QCOMPARE(user.Boxes(), Boxes({TooMany}));
}

void tst_DOEDlgRuns::AnEmptyListOutweighsAllOthers_data()
{
    QTest::addColumn<QString>("empty");
    QTest::newRow("first") << "a";
    QTest::newRow("middle") << "m";
    QTest::newRow("last") << "z";
}

void tst_DOEDlgRuns::AnEmptyListOutweighsAllOthers()
{
    const EmptyDesignStores stores;
    QFETCH(QString, empty);
    for (const char* const name : {"b", "c", "x", "y"})
        Tick(name, Counted(70000));
    Tick(empty, {});
    ModalDriver user;
    const DOEDlg dialog(nullptr);
    QCOMPARE(user.Boxes(), Boxes());
    QCOMPARE(Size(dialog), QSize(0, 0));
}

void tst_DOEDlgRuns::RefusedRunsCountAsColumnsOfTheDialog()
{
    // As with an empty list: the names were collected, so fewer columns are refused later.
    const EmptyDesignStores stores;
    Tick("a", Counted(2000));
    Tick("b", Counted(2000));
    ModalDriver user;
    const DOEDlg dialog(nullptr);
    g_mapParaArrays["b"].bChecked = 0;
    Refresh(dialog);
    Generate(dialog, 0);
    QCOMPARE(user.Boxes(), Boxes({TooMany, NotEqual}));
}

void tst_DOEDlgRuns::GenerateWritesTheRunIntoTheStore()
{
    const EmptyDesignStores stores;
    AddParameter("b");
    AddParameter("a");
    Tick("a", {1, 2});
    Tick("b", {0.1, 1234567});
    ModalDriver user;
    const DOEDlg dialog(nullptr);
    QSignalSpy spy(&dialog, &DOEDlg::m_Signal_RegenerateGeo);
    Generate(dialog, 2);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(user.Boxes(), Boxes());
    QCOMPARE(Stored("a").m_dValue, 2.0);
    QCOMPARE(Stored("a").m_varRawValue, QVariant(2.0));
    QCOMPARE(Stored("a").m_varRawValue.type(), QVariant::Double);
    QCOMPARE(Stored("a").m_strValue, QStringLiteral("2"));
    QCOMPARE(Stored("b").m_dValue, 0.1);
    QCOMPARE(Stored("b").m_varRawValue, QVariant(0.1));
    QCOMPARE(Stored("b").m_strValue, QStringLiteral("0.1"));
    QCOMPARE(Size(dialog), QSize(2, 4));
}

void tst_DOEDlgRuns::GenerateSetsAllOtherParametersToZero()
{
    const EmptyDesignStores stores;
    AddParameter("a");
    AddParameter("other", 7);
    AddParameter("untaken", 8);
    Tick("a", {1});
    Tick("untaken", {9}, false);
    const DOEDlg dialog(nullptr);
    Generate(dialog, 0);
    for (const char* const name : {"other", "untaken"}) {
        QCOMPARE(Stored(name).m_dValue, 0.0);
        QCOMPARE(Stored(name).m_varRawValue, QVariant(0.0));
        QCOMPARE(Stored(name).m_strValue, QStringLiteral("0"));
    }
    QCOMPARE(Stored("a").m_dValue, 1.0);
}

void tst_DOEDlgRuns::GenerateLeavesTheOtherFieldsAlone()
{
    const EmptyDesignStores stores;
    AddParameter("v");
    ParametersDef& vector = GlobalParaMeterMgr::m_nameMapParameters["v"];
    vector.m_nType = ParametersDef::VectorType;
    vector.m_dX = 1;
    vector.m_dY = 2;
    vector.m_dZ = 3;
    vector.m_strValue = "1,2,3";
    vector.m_strExpression = "a*2";
    vector.m_strExpressPara = "a";
    vector.m_strDescription = "text";
    Tick("a", {1});
    const DOEDlg dialog(nullptr);
    Generate(dialog, 0);
    const ParametersDef& stored = Stored("v");
    // A number for every parameter, also for a Vector.
    QCOMPARE(stored.m_strValue, QStringLiteral("0"));
    QCOMPARE(stored.m_nType, int(ParametersDef::VectorType));
    QCOMPARE(Values({stored.m_dX, stored.m_dY, stored.m_dZ}), Values({1, 2, 3}));
    QCOMPARE(stored.m_strExpression, std::string("a*2"));
    QCOMPARE(stored.m_strExpressPara, QStringLiteral("a"));
    QCOMPARE(stored.m_strDescription, QStringLiteral("text"));
    QCOMPARE(stored.m_strName, QStringLiteral("v"));
    QCOMPARE(GlobalParaMeterMgr::m_nameMapParameters.size(), std::size_t(1));
}

void tst_DOEDlgRuns::GenerateWritesWhatTheCellsShow()
{
    // The text counts, with its six digits, and not the number that it was made from.
    const EmptyDesignStores stores;
    AddParameter("a");
    Tick("a", {1.0 / 3});
    const DOEDlg dialog(nullptr);
    Generate(dialog, 0);
    QCOMPARE(Stored("a").m_dValue, 0.333333);
    QCOMPARE(Stored("a").m_strValue, QStringLiteral("0.333333"));
}

void tst_DOEDlgRuns::GenerateReadsEditedCells_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("number") << "7.50" << 7.5 << "7.5";
    QTest::newRow("many digits") << "0.123456789" << 0.123456789 << "0.123457";
    QTest::newRow("exponent") << "-1e3" << -1000.0 << "-1000";
    QTest::newRow("comma") << "1,5" << 0.0 << "0";
    QTest::newRow("no number") << "seven" << 0.0 << "0";
}

void tst_DOEDlgRuns::GenerateReadsEditedCells()
{
    const EmptyDesignStores stores;
    QFETCH(QString, typed);
    QFETCH(double, value);
    QFETCH(QString, text);
    AddParameter("a");
    Tick("a", {1, 2});
    ModalDriver user;
    DOEDlg dialog(nullptr);
    user.Then([&](QDialog& shown) {
        shown.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&shown));
        QTableWidget& table = Runs(shown);
        table.setFocus();
        table.setCurrentCell(1, 0);
        QTest::keyClick(&table, Qt::Key_F2);
        QWidget* const editor = QApplication::focusWidget();
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, typed);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_COMPARE(Rows(shown), QStringList({"1", typed}));
        Click(shown, "pushButton_GenGeo");
        shown.reject();
    });
    dialog.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(Stored("a").m_dValue, value);
    QCOMPARE(Stored("a").m_strValue, text);
    QCOMPARE(g_mapParaArrays["a"].vecValues, Values({1, 2}));
}

void tst_DOEDlgRuns::GenerateOfAnAddedRowWritesZeros()
{
    const EmptyDesignStores stores;
    AddParameter("a");
    AddParameter("b");
    Tick("a", {1});
    Tick("b", {2});
    const DOEDlg dialog(nullptr);
    QSignalSpy spy(&dialog, &DOEDlg::m_Signal_RegenerateGeo);
    Click(dialog, "pushButton_Add");
    Runs(dialog).setItem(1, 1, new QTableWidgetItem("4"));
    Generate(dialog, 1);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(Stored("a").m_dValue, 0.0);
    QCOMPARE(Stored("a").m_strValue, QStringLiteral("0"));
    QCOMPARE(Stored("b").m_dValue, 4.0);
}

void tst_DOEDlgRuns::GenerateReadsTheRowsAsSorted()
{
    const EmptyDesignStores stores;
    AddParameter("a");
    Tick("a", {3, 1, 2});
    const DOEDlg dialog(nullptr);
    Runs(dialog).sortItems(0);
    QCOMPARE(Rows(dialog), QStringList({"1", "2", "3"}));
    Generate(dialog, 0);
    QCOMPARE(Stored("a").m_dValue, 1.0);
}

void tst_DOEDlgRuns::GenerateTakesTheCurrentRow()
{
    const EmptyDesignStores stores;
    AddParameter("a");
    Tick("a", {1, 2, 3});
    const DOEDlg dialog(nullptr);
    Runs(dialog).setCurrentCell(0, 0);
    Click(dialog, "pushButton_Delete");
    Generate(dialog, 0);
    QCOMPARE(Stored("a").m_dValue, 2.0);
    Generate(dialog, 1);
    QCOMPARE(Stored("a").m_dValue, 3.0);
}

void tst_DOEDlgRuns::GenerateWithoutARowIsRefused()
{
    const EmptyDesignStores stores;
    AddParameter("a");
    Tick("a", {1, 2});
    ModalDriver user;
    DOEDlg dialog(nullptr);
    QSignalSpy spy(&dialog, &DOEDlg::m_Signal_RegenerateGeo);
    Click(dialog, "pushButton_GenGeo");
    QCOMPARE(user.Boxes(), Boxes({NoRow(&dialog)}));
    QCOMPARE(spy.count(), 0);
    QCOMPARE(Stored("a").m_dValue, 5.0);
}

void tst_DOEDlgRuns::TheHostMayDestroyTheDialogBehindTheRefusal()
{
    const EmptyDesignStores stores;
    auto* const dialog = new DOEDlg(nullptr);
    const QPointer<QWidget> watched = dialog;
    QPointer<QMessageBox> box;
    QTimer::singleShot(0, this, [&] {
        box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box != nullptr);
        delete dialog;
    });
    Click(*dialog, "pushButton_GenGeo");
    QVERIFY(watched == nullptr);
    QVERIFY(box == nullptr);
}

void tst_DOEDlgRuns::NothingTickedIsRefusedForTheRow()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    DOEDlg dialog(nullptr);
    Click(dialog, "pushButton_GenGeo");
    QCOMPARE(user.Boxes(), Boxes({NoRow(&dialog)}));
    QCOMPARE(Size(dialog), QSize(0, 0));
}

void tst_DOEDlgRuns::FewerColumnsThanBeforeAreRefusedUntilReopened()
{
    const EmptyDesignStores stores;
    for (const char* const name : {"a", "b", "c"}) {
        AddParameter(name);
        Tick(name, {1, 2});
    }
    ModalDriver user;
    {
        const DOEDlg dialog(nullptr);
        QSignalSpy spy(&dialog, &DOEDlg::m_Signal_RegenerateGeo);
        auto* const check = qobject_cast<QCheckBox*>(
            Find<QTableWidget>(dialog, "tableWidget_Parameters").cellWidget(0, 1));
        check->click();
        QCOMPARE(Header(dialog), QStringList({"b", "c"}));
        Generate(dialog, 3);
        QCOMPARE(user.Boxes(), Boxes({NotEqual}));
        Refresh(dialog);
        Generate(dialog, 3);
        QCOMPARE(user.Boxes(), Boxes({NotEqual, NotEqual}));
        QCOMPARE(spy.count(), 0);
        QCOMPARE(Stored("b").m_dValue, 5.0);
        // As wide as before, it works again.
        check->click();
        Generate(dialog, 0);
        QCOMPARE(spy.count(), 1);
        check->click();
    }
    const DOEDlg dialog(nullptr);
    Generate(dialog, 3);
    QCOMPARE(user.Boxes().size(), 2);
    QCOMPARE(Stored("a").m_dValue, 0.0);
    QCOMPARE(Stored("b").m_dValue, 2.0);
    QCOMPARE(Stored("c").m_dValue, 2.0);
}

void tst_DOEDlgRuns::FewerColumnsWithoutARowAskForTheRowFirst()
{
    const EmptyDesignStores stores;
    Tick("a", {1});
    Tick("b", {1});
    ModalDriver user;
    DOEDlg dialog(nullptr);
    g_mapParaArrays["a"].bChecked = 0;
    Refresh(dialog);
    Click(dialog, "pushButton_GenGeo");
    QCOMPARE(user.Boxes(), Boxes({NoRow(&dialog)}));
}

void tst_DOEDlgRuns::MoreColumnsThanBeforeAreTaken()
{
    const EmptyDesignStores stores;
    AddParameter("a");
    AddParameter("b");
    Tick("b", {1});
    ModalDriver user;
    const DOEDlg dialog(nullptr);
    Tick("a", {3});
    Refresh(dialog);
    Generate(dialog, 0);
    QCOMPARE(user.Boxes(), Boxes());
    QCOMPARE(Stored("a").m_dValue, 3.0);
    QCOMPARE(Stored("b").m_dValue, 1.0);
}

void tst_DOEDlgRuns::OtherColumnsThanBeforeAreTaken()
{
    // As many as before; nothing is left of the parameter that was a column then.
    const EmptyDesignStores stores;
    AddParameter("a");
    AddParameter("b");
    Tick("a", {1});
    Tick("b", {2}, false);
    ModalDriver user;
    const DOEDlg dialog(nullptr);
    Generate(dialog, 0);
    QCOMPARE(Stored("a").m_dValue, 1.0);
    QCOMPARE(Stored("b").m_dValue, 0.0);
    g_mapParaArrays["a"].bChecked = 0;
    g_mapParaArrays["b"].bChecked = 1;
    Refresh(dialog);
    Generate(dialog, 0);
    QCOMPARE(user.Boxes(), Boxes());
    QCOMPARE(Stored("a").m_dValue, 0.0);
    QCOMPARE(Stored("b").m_dValue, 2.0);
}

void tst_DOEDlgRuns::AHandMadeColumnIsRefused()
{
    const EmptyDesignStores stores;
    Tick("a", {1});
    ModalDriver user;
    const DOEDlg dialog(nullptr);
    Runs(dialog).setColumnCount(2);
    Generate(dialog, 0);
    QCOMPARE(user.Boxes(), Boxes({NotEqual}));
}

void tst_DOEDlgRuns::TheLastOfTwoColumnsOfOneNameCounts()
{
    const EmptyDesignStores stores;
    AddParameter("a");
    Tick("a", {1});
    Tick("b", {2});
    g_mapParaArrays["b"].strName = "a";
    const DOEDlg dialog(nullptr);
    Generate(dialog, 0);
    QCOMPARE(Stored("a").m_dValue, 2.0);
}

void tst_DOEDlgRuns::AParameterAddedSinceIsSetToZero()
{
    const EmptyDesignStores stores;
    Tick("a", {1});
    const DOEDlg dialog(nullptr);
    AddParameter("late");
    AddParameter("a");
    Generate(dialog, 0);
    QCOMPARE(Stored("late").m_dValue, 0.0);
    QCOMPARE(Stored("a").m_dValue, 1.0);
}

void tst_DOEDlgRuns::AParameterRemovedSinceIsNotEntered()
{
    const EmptyDesignStores stores;
    AddParameter("a");
    AddParameter("b");
    Tick("a", {1});
    const DOEDlg dialog(nullptr);
    QSignalSpy spy(&dialog, &DOEDlg::m_Signal_RegenerateGeo);
    GlobalParaMeterMgr::m_nameMapParameters.erase("a");
    Generate(dialog, 0);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(GlobalParaMeterMgr::GetAllParametersName(), std::vector<QString>({"b"}));
}

void tst_DOEDlgRuns::TheSignalComesAfterTheStoreIsWritten()
{
    const EmptyDesignStores stores;
    for (const char* const name : {"a", "b", "c"})
        AddParameter(name);
    Tick("b", {9});
    const DOEDlg dialog(nullptr);
    Values seen;
    connect(&dialog, &DOEDlg::m_Signal_RegenerateGeo, this, [&] {
        for (const auto& entry : GlobalParaMeterMgr::m_nameMapParameters)
            seen.push_back(entry.second.m_varRawValue.toDouble());
    });
    Generate(dialog, 0);
    QCOMPARE(seen, Values({0, 9, 0}));
}

void tst_DOEDlgRuns::TheSignalIsConnectedByItsSignature()
{
    const EmptyDesignStores stores;
    Tick("a", {1});
    const DOEDlg dialog(nullptr);
    QSignalSpy spy(&dialog, SIGNAL(m_Signal_RegenerateGeo()));
    QVERIFY(spy.isValid());
    Generate(dialog, 0);
    Generate(dialog, 0);
    QCOMPARE(spy.count(), 2);
}

void tst_DOEDlgRuns::TheHostMayRefreshFromTheSignal()
{
    const EmptyDesignStores stores;
    AddParameter("a");
    Tick("a", {1, 2});
    const DOEDlg dialog(nullptr);
    connect(&dialog, &DOEDlg::m_Signal_RegenerateGeo, this, [&] {
        GlobalParaMeterMgr::m_nameMapParameters.clear();
        g_mapParaArrays.clear();
        Refresh(dialog);
    });
    Generate(dialog, 1);
    QCOMPARE(Size(dialog), QSize(0, 0));
}

TARN_TEST_MAIN(tst_DOEDlgRuns)
#include "tst_DOEDlgRuns.moc"
