#include "EmptyDesignStores.h"
#include "ParameterOverview.h"
#include "TestCase.h"

#include <QAction>
#include <QItemSelectionModel>
#include <QSignalSpy>
#include <QTableWidget>

#include <limits>

class tst_ParameterOverview : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AnEmptyStoreGivesNoRows();
    void ARecordIsShownInFull();
    void RowsAreInTheOrderOfTheStore();
    void TheTypeIsAWord_data();
    void TheTypeIsAWord();
    void TheRawValueCanBeReadBackExactly_data();
    void TheRawValueCanBeReadBackExactly();
    void ARawValueThatIsNotSetIsTheNumericValue();
    void AVectorShowsItsComponents();
    void RefreshFollowsTheStore();
    void NothingCanBeEdited();
    void SelectedParametersCanBeRemoved();
    void WithoutASelectionNothingIsRemoved();

private:
    static QString Cell(const ParameterOverview& overview, int row, int column)
    {
        return Find<QTableWidget>(overview, "parameterTable").item(row, column)->text();
    }
};

namespace {

void Store(const QString& name, double value, int type = 1)
{
    ParametersDef record;
    record.m_strName = name;
    record.m_nType = type;
    record.m_dValue = value;
    record.m_strValue = QString::number(value);
    GlobalParaMeterMgr::AddParameter(name, record);
}

} // namespace

void tst_ParameterOverview::AnEmptyStoreGivesNoRows()
{
    const EmptyDesignStores stores;
    ParameterOverview overview(nullptr);
    overview.Refresh();
    QCOMPARE(Find<QTableWidget>(overview, "parameterTable").rowCount(), 0);
}

void tst_ParameterOverview::ARecordIsShownInFull()
{
    const EmptyDesignStores stores;
    ParametersDef record;
    record.m_strName = "长度";
    record.m_nType = ParametersDef::ScalarType;
    record.m_strExpression = "半径*2";
    record.m_strExpressPara = "半径";
    record.m_dValue = 1.0;
    record.m_varRawValue = 2.5;
    record.m_strValue = "typed";
    record.m_strDescription = "the length";
    GlobalParaMeterMgr::AddParameter(record.m_strName, record);

    ParameterOverview overview(nullptr);
    overview.Refresh();
    QCOMPARE(Cell(overview, 0, ParameterOverview::NameColumn), QStringLiteral("长度"));
    QCOMPARE(Cell(overview, 0, ParameterOverview::TypeColumn), QStringLiteral("Scalar"));
    QCOMPARE(Cell(overview, 0, ParameterOverview::ValueColumn), QStringLiteral("typed"));
    QCOMPARE(Cell(overview, 0, ParameterOverview::RawValueColumn), QStringLiteral("2.5"));
    QCOMPARE(Cell(overview, 0, ParameterOverview::ExpressionColumn), QStringLiteral("半径*2"));
    QCOMPARE(Cell(overview, 0, ParameterOverview::DescriptionColumn), QStringLiteral("the length"));
}

void tst_ParameterOverview::RowsAreInTheOrderOfTheStore()
{
    const EmptyDesignStores stores;
    Store("z", 1);
    Store("a", 2);
    Store("m", 3);
    ParameterOverview overview(nullptr);
    overview.Refresh();
    QCOMPARE(Cell(overview, 0, ParameterOverview::NameColumn), QStringLiteral("z"));
    QCOMPARE(Cell(overview, 1, ParameterOverview::NameColumn), QStringLiteral("a"));
    QCOMPARE(Cell(overview, 2, ParameterOverview::NameColumn), QStringLiteral("m"));
}

void tst_ParameterOverview::TheTypeIsAWord_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("word");
    QTest::newRow("0") << 0 << "Bool";
    QTest::newRow("1") << 1 << "Scalar";
    QTest::newRow("2") << 2 << "Vector";
    QTest::newRow("3") << 3 << "Tensor";
    QTest::newRow("none of these") << -1 << "unknown (-1)";
}

void tst_ParameterOverview::TheTypeIsAWord()
{
    const EmptyDesignStores stores;
    QFETCH(int, code);
    QFETCH(QString, word);
    Store("a", 1, code);
    ParameterOverview overview(nullptr);
    overview.Refresh();
    QCOMPARE(Cell(overview, 0, ParameterOverview::TypeColumn), word);
}

void tst_ParameterOverview::TheRawValueCanBeReadBackExactly_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << 0.1 << "0.1";
    QTest::newRow("sum") << 0.1 + 0.2 << "0.30000000000000004";
    QTest::newRow("third") << 1.0 / 3.0 << "0.3333333333333333";
    QTest::newRow("large") << 1234567.0 << "1234567";
    QTest::newRow("negative") << -2.5e-300 << "-2.5e-300";
    QTest::newRow("nan") << std::numeric_limits<double>::quiet_NaN() << "nan";
}

void tst_ParameterOverview::TheRawValueCanBeReadBackExactly()
{
    const EmptyDesignStores stores;
    QFETCH(double, value);
    QFETCH(QString, text);
    Store("a", value);
    GlobalParaMeterMgr::m_nameMapParameters["a"].m_varRawValue = value;
    ParameterOverview overview(nullptr);
    overview.Refresh();
    QCOMPARE(Cell(overview, 0, ParameterOverview::RawValueColumn), text);
    QCOMPARE(text.toDouble(), value);
}

void tst_ParameterOverview::ARawValueThatIsNotSetIsTheNumericValue()
{
    const EmptyDesignStores stores;
    Store("a", 3.5);
    ParameterOverview overview(nullptr);
    overview.Refresh();
    QCOMPARE(Cell(overview, 0, ParameterOverview::RawValueColumn), QStringLiteral("3.5"));
}

void tst_ParameterOverview::AVectorShowsItsComponents()
{
    const EmptyDesignStores stores;
    Store("v", 0.0, 2);
    ParametersDef& record = GlobalParaMeterMgr::m_nameMapParameters["v"];
    record.m_dX = 1.0;
    record.m_dY = 0.1;
    record.m_dZ = -3.0;
    ParameterOverview overview(nullptr);
    overview.Refresh();
    QCOMPARE(Cell(overview, 0, ParameterOverview::RawValueColumn), QStringLiteral("(1, 0.1, -3)"));
}

void tst_ParameterOverview::RefreshFollowsTheStore()
{
    const EmptyDesignStores stores;
    Store("a", 1);
    Store("b", 2);
    ParameterOverview overview(nullptr);
    overview.Refresh();
    GlobalParaMeterMgr::m_nameMapParameters.erase("a");
    GlobalParaMeterMgr::m_nameMapParameters["b"].m_strValue = "7";
    overview.Refresh();
    QCOMPARE(Find<QTableWidget>(overview, "parameterTable").rowCount(), 1);
    QCOMPARE(Cell(overview, 0, ParameterOverview::NameColumn), QStringLiteral("b"));
    QCOMPARE(Cell(overview, 0, ParameterOverview::ValueColumn), QStringLiteral("7"));
}

void tst_ParameterOverview::NothingCanBeEdited()
{
    const EmptyDesignStores stores;
    ParameterOverview overview(nullptr);
    QCOMPARE(Find<QTableWidget>(overview, "parameterTable").editTriggers(),
             QAbstractItemView::EditTriggers(QAbstractItemView::NoEditTriggers));
}

void tst_ParameterOverview::SelectedParametersCanBeRemoved()
{
    const EmptyDesignStores stores;
    for (const QString& name : {QString("a"), QString(), QString("b,c"), QString("d\ne")})
        Store(name, 1);
    ParameterOverview overview(nullptr);
    overview.Refresh();
    QSignalSpy wanted(&overview, &ParameterOverview::RemovalWanted);
    auto& table = Find<QTableWidget>(overview, "parameterTable");
    for (int row = 1; row < 4; ++row)
        table.selectionModel()->select(table.model()->index(row, 0),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    overview.show();
    QVERIFY(QTest::qWaitForWindowActive(&overview));
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Delete);
    QCOMPARE(wanted.count(), 1);
    QStringList names = wanted[0][0].toStringList();
    names.sort();
    QCOMPARE(names, QStringList({"", "b,c", "d\ne"}));
}

void tst_ParameterOverview::WithoutASelectionNothingIsRemoved()
{
    const EmptyDesignStores stores;
    Store("a", 1);
    ParameterOverview overview(nullptr);
    overview.Refresh();
    QSignalSpy wanted(&overview, &ParameterOverview::RemovalWanted);
    overview.findChild<QAction*>("action_RemoveParameters")->trigger();
    QCOMPARE(wanted.count(), 0);
}

TARN_TEST_MAIN(tst_ParameterOverview)
#include "tst_ParameterOverview.moc"
