#include "EmptyDesignStores.h"
#include "ParameterRows.h"

#include <QComboBox>
#include <QHeaderView>
#include <QSignalSpy>

class tst_ParameterTable : public With<TestCase, EmptyDesignStores>
{
    Q_OBJECT

private Q_SLOTS:
    void ARecordIsShownInFull();
    void TheTypeIsAWord_data();
    void TheTypeIsAWord();
    void AnyNumberOrExpressionIsTaken_data();
    void AnyNumberOrExpressionIsTaken();
    void AValueThatIsMissingSaysWhyInPlace_data();
    void AValueThatIsMissingSaysWhyInPlace();
    void ARefusedTextStaysWithItsReason();
    void ANewNameIsFollowedByExpressions();
    void AVectorHasThreeCells();
    void ABoolHasATickBox();
    void TheTypeIsChosenInAList();
    void UnitAndDescriptionAreEdited();
    void EachEditIsOneChange();
    void RefreshFollowsTheStore();
    void TheColumnsFillTheTable();
};

namespace {

struct Shown
{
    Shown()
    {
        model.Open({});
        table.resize(900, 300);
        table.show();
        table.activateWindow();
        if (!QTest::qWaitForWindowActive(&table))
            FailTest("The table does not become active");
    }

    ParametersDef Record(const QString& name) const
    {
        return GlobalParaMeterMgr::m_nameMapParameters.at(name);
    }

    DesignModel model;
    ParameterTable table{model, nullptr};
};

} // namespace

void tst_ParameterTable::ARecordIsShownInFull()
{
    Store("半径", "1.25");
    Store("长度", "半径*2");
    GlobalParaMeterMgr::m_nameMapParameters["长度"].m_strDescription = "the length";
    DesignModel model;
    model.Open({{"长度", "mm"}});
    const ParameterTable table(model, nullptr);
    QStringList cells;
    for (int column = 0; column < table.columnCount(); ++column)
        cells << CellText(table, 1, column);
    QCOMPARE(cells,
             QStringList({"长度", "Scalar", "半径*2", "", "", "mm", "2.5 mm", "the length"}));
    QVERIFY(table.isColumnHidden(ParameterTable::YColumn));
}

void tst_ParameterTable::TheTypeIsAWord_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("word");
    QTest::newRow("0") << 0 << "Bool";
    QTest::newRow("1") << 1 << "Scalar";
    QTest::newRow("2") << 2 << "Vector";
    QTest::newRow("3") << 3 << "Tensor";
    QTest::newRow("none of these") << -1 << "unknown (-1)";
}

void tst_ParameterTable::TheTypeIsAWord()
{
    QFETCH(int, code);
    QFETCH(QString, word);
    Store("a", "1");
    GlobalParaMeterMgr::m_nameMapParameters["a"].m_nType = code;
    const Shown shown;
    QCOMPARE(CellText(shown.table, 0, ParameterTable::TypeColumn), word);
}

void tst_ParameterTable::AnyNumberOrExpressionIsTaken_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("uses");
    NewRow("negative", QString("-15"), -15.0, QString());
    NewRow("power of ten", QString("1e-3"), 0.001, QString());
    NewRow("seventeen digits", QString("0.30000000000000004"), 0.1 + 0.2, QString());
    NewRow("expression", QString("length/4"), 25.0, QString("length"));
    NewRow("function", QString("max(length, width) + pi*0"), 100.0, QString("length,width"));
}

void tst_ParameterTable::AnyNumberOrExpressionIsTaken()
{
    QFETCH(QString, text);
    QFETCH(double, value);
    QFETCH(QString, uses);
    Store("length", "100");
    Store("width", "8");
    Store("a", "1");
    Shown shown;
    TypeIntoCell(shown.table, 2, ParameterTable::ValueColumn, text);
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue("a").toDouble(), value);
    QCOMPARE(shown.Record("a").m_strExpressPara, uses);
    QCOMPARE(shown.Record("a").m_strExpression.empty(), uses.isEmpty());
    QCOMPARE(CellText(shown.table, 2, ParameterTable::ValueColumn), text.replace("1e-3", "0.001"));
}

void tst_ParameterTable::AValueThatIsMissingSaysWhyInPlace_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reason");
    NewRow("unknown name", QString("gone*2"),
           QString("its expression uses \"gone\", which is not a parameter"));
    NewRow("itself", QString("a+1"), QString("Circular reference: a -> a"));
    NewRow("decimal comma", QString("12,5"), QString("decimal sign is the full stop"));
    NewRow("no end", QString("2*("), QString("Position"));
}

void tst_ParameterTable::AValueThatIsMissingSaysWhyInPlace()
{
    QFETCH(QString, text);
    QFETCH(QString, reason);
    Store("a", "1");
    Shown shown;
    TypeIntoCell(shown.table, 0, ParameterTable::ValueColumn, text);
    QVERIFY2(CellText(shown.table, 0, ParameterTable::ResultColumn).contains(reason),
             qPrintable(CellText(shown.table, 0, ParameterTable::ResultColumn)));
    TypeIntoCell(shown.table, 0, ParameterTable::ValueColumn, "2");
    QCOMPARE(CellText(shown.table, 0, ParameterTable::ResultColumn), QString("2"));
}

void tst_ParameterTable::ARefusedTextStaysWithItsReason()
{
    Store("a", "1");
    Store("b", "2");
    Shown shown;
    const QSignalSpy edited(&shown.model, &DesignModel::Edited);
    TypeIntoCell(shown.table, 0, ParameterTable::NameColumn, "b");
    QCOMPARE(CellText(shown.table, 0, ParameterTable::NameColumn), QString("b"));
    QCOMPARE(CellText(shown.table, 0, ParameterTable::ResultColumn),
             QString("not taken: there is already a parameter \"b\""));
    TypeIntoCell(shown.table, 0, ParameterTable::NameColumn, "wall thickness");
    QVERIFY(CellText(shown.table, 0, ParameterTable::ResultColumn).contains("is not a name"));
    QCOMPARE(edited.count(), 0);
    TypeIntoCell(shown.table, 0, ParameterTable::NameColumn, "c");
    QCOMPARE(CellText(shown.table, 0, ParameterTable::ResultColumn), QString("1"));
    QCOMPARE(GlobalParaMeterMgr::GetAllParametersName(), std::vector<QString>({"c", "b"}));
}

void tst_ParameterTable::ANewNameIsFollowedByExpressions()
{
    Store("a", "3");
    Store("b", "a+aa*2");
    Store("aa", "1");
    g_mapParaArrays["a"] = {1, "a", {1, 2}};
    Shown shown;
    TypeIntoCell(shown.table, 0, ParameterTable::NameColumn, "宽");
    QCOMPARE(QString::fromStdString(shown.Record("b").m_strExpression), QString("宽+aa*2"));
    QCOMPARE(shown.Record("b").m_strExpressPara, QString("宽,aa"));
    QCOMPARE(g_mapParaArrays.count("a"), std::size_t(0));
    QCOMPARE(g_mapParaArrays.at("宽").strName, QString("宽"));
    QCOMPARE(CellText(shown.table, 1, ParameterTable::ResultColumn), QString("5"));
}

void tst_ParameterTable::AVectorHasThreeCells()
{
    Store("v", "1, 2, 3", ParametersDef::VectorType);
    Store("a", "1");
    Shown shown;
    QVERIFY(!shown.table.isColumnHidden(ParameterTable::ZColumn));
    TypeIntoCell(shown.table, 0, ParameterTable::ValueColumn, "-0.5");
    TypeIntoCell(shown.table, 0, ParameterTable::YColumn, "2e3");
    TypeIntoCell(shown.table, 0, ParameterTable::ZColumn, "x");
    QCOMPARE(shown.Record("v").m_dX, -0.5);
    QCOMPARE(shown.Record("v").m_dY, 2000.0);
    QCOMPARE(shown.Record("v").m_dZ, 3.0);
    QVERIFY(CellText(shown.table, 0, ParameterTable::ResultColumn).contains("is not a number"));
    QVERIFY((shown.table.item(1, ParameterTable::YColumn)->flags() & Qt::ItemIsEditable) == 0);
}

void tst_ParameterTable::ABoolHasATickBox()
{
    Store("on", "true", ParametersDef::BoolType);
    Shown shown;
    QTableWidgetItem& tick = *shown.table.item(0, ParameterTable::ValueColumn);
    QCOMPARE(tick.checkState(), Qt::Checked);
    const QRect cell = shown.table.visualItemRect(&tick);
    QTest::mouseClick(shown.table.viewport(), Qt::LeftButton, {},
                      QPoint(cell.left() + 10, cell.center().y()));
    QCOMPARE(GlobalParaMeterMgr::GetParameterRawValue("on").toDouble(), 0.0);
    QCOMPARE(shown.table.item(0, ParameterTable::ValueColumn)->checkState(), Qt::Unchecked);
}

void tst_ParameterTable::TheTypeIsChosenInAList()
{
    Store("a", "4");
    Shown shown;
    shown.table.setCurrentCell(0, ParameterTable::TypeColumn);
    QTest::keyClick(shown.table.viewport(), Qt::Key_F2);
    auto* const combo = shown.table.viewport()->findChild<QComboBox*>();
    QVERIFY(combo != nullptr);
    QTest::keyClick(combo, Qt::Key_Down);
    QTest::keyClick(combo, Qt::Key_Return);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(shown.Record("a").m_nType, int(ParametersDef::VectorType));
    QCOMPARE(shown.Record("a").m_dX, 4.0);
}

void tst_ParameterTable::UnitAndDescriptionAreEdited()
{
    Store("a", "4");
    Shown shown;
    TypeIntoCell(shown.table, 0, ParameterTable::UnitColumn, "mm");
    TypeIntoCell(shown.table, 0, ParameterTable::DescriptionColumn, "of the plate");
    QCOMPARE(CellText(shown.table, 0, ParameterTable::ResultColumn), QString("4 mm"));
    QCOMPARE(shown.model.Design()[0].unit, QString("mm"));
    QCOMPARE(shown.Record("a").m_strDescription, QString("of the plate"));
}

void tst_ParameterTable::EachEditIsOneChange()
{
    Store("a", "4");
    Shown shown;
    const QSignalSpy edited(&shown.model, &DesignModel::Edited);
    TypeIntoCell(shown.table, 0, ParameterTable::ValueColumn, "5");
    QCOMPARE(edited.count(), 1);
    TypeIntoCell(shown.table, 0, ParameterTable::ValueColumn, "5");
    QCOMPARE(edited.count(), 1);
}

void tst_ParameterTable::RefreshFollowsTheStore()
{
    Store("a", "1");
    Store("b", "2");
    Shown shown;
    shown.model.Edit({NewParameter("c")}, "test");
    QCOMPARE(shown.table.rowCount(), 1);
    QCOMPARE(CellText(shown.table, 0, ParameterTable::NameColumn), QString("c"));
}

void tst_ParameterTable::TheColumnsFillTheTable()
{
    Shown shown;
    shown.model.Edit({NewParameter("c")}, "test");
    QCOMPARE(shown.table.horizontalHeader()->length(), shown.table.viewport()->width());
}

TARN_TEST_MAIN(tst_ParameterTable)
#include "tst_ParameterTable.moc"
