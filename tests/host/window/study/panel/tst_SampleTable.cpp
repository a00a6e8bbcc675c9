#include "DesignModel.h"
#include "EmptyDesignStores.h"
#include "OpenWindow.h"
#include "SampleTable.h"
#include "TestCase.h"

#include <QSignalSpy>

class tst_SampleTable : public With<TestCase, EmptyDesignStores>
{
    Q_OBJECT

private Q_SLOTS:
    void TheTableShowsTheRegistry();
    void ATickIsStored();
    void AFirstTickBringsSamples();
    void SamplesAreTyped();
    void ARangeIsTyped();
    void BadSamplesAreRefused_data();
    void BadSamplesAreRefused();
    void AListIsRead_data();
    void AListIsRead();
};

namespace {

struct Shown
{
    Shown()
    {
        ParameterEntry width = NewParameter("width");
        width.SetNumber(50.0);
        width.unit = "mm";
        ParameterEntry axis = NewParameter("axis");
        axis.SetType(ParametersDef::VectorType);
        design.Replace({width, axis});
        g_mapParaArrays["width"] = {0, "width", {40.0, 50.0, 60.0}, 40.0, 60.0, 10.0, 0};
        table.resize(500, 200);
        table.show();
        table.Refresh(design);
    }

    QString Cell(int column) const { return table.item(0, column)->text(); }

    DesignModel design;
    SampleTable table;
    QSignalSpy edited{&table, &SampleTable::SamplesEdited};
    QSignalSpy refused{&table, &SampleTable::Refused};
};

} // namespace

void tst_SampleTable::TheTableShowsTheRegistry()
{
    Shown shown;
    QCOMPARE(shown.table.rowCount(), 1); // Vectors cannot vary.
    QCOMPARE(shown.Cell(SampleTable::NameColumn), QString("width"));
    QCOMPARE(shown.Cell(SampleTable::UnitColumn), QString("mm"));
    QVERIFY(!shown.table.item(0, SampleTable::UnitColumn)->flags().testFlag(Qt::ItemIsEditable));
    QCOMPARE(shown.Cell(SampleTable::FromColumn), QString("40"));
    QCOMPARE(shown.Cell(SampleTable::ToColumn), QString("60"));
    QCOMPARE(shown.Cell(SampleTable::StepColumn), QString("10"));
    QCOMPARE(shown.Cell(SampleTable::ValuesColumn), QString("40, 50, 60"));
    QCOMPARE(shown.table.item(0, 0)->checkState(), Qt::Unchecked);
    g_mapParaArrays["width"].vecValues = {1.5, 7.0};
    g_mapParaArrays["width"].bChecked = 1;
    shown.table.Refresh(shown.design);
    QCOMPARE(shown.Cell(SampleTable::FromColumn), QString());
    QCOMPARE(shown.Cell(SampleTable::ValuesColumn), QString("1.5, 7"));
    QCOMPARE(shown.table.item(0, 0)->checkState(), Qt::Checked);
}

void tst_SampleTable::ATickIsStored()
{
    Shown shown;
    shown.table.setCurrentCell(0, 0);
    QTest::keyClick(&shown.table, Qt::Key_Space);
    QCOMPARE(g_mapParaArrays["width"].bChecked, 1);
    QCOMPARE(shown.edited.count(), 1);
    QCOMPARE(shown.edited[0][0].toString(), QString("Tick \"width\""));
    QTest::keyClick(&shown.table, Qt::Key_Space);
    QCOMPARE(g_mapParaArrays["width"].bChecked, 0);
    QCOMPARE(shown.edited[1][0].toString(), QString("Untick \"width\""));
}

void tst_SampleTable::AFirstTickBringsSamples()
{
    Shown shown;
    g_mapParaArrays.clear();
    shown.table.Refresh(shown.design);
    shown.table.setCurrentCell(0, 0);
    QTest::keyClick(&shown.table, Qt::Key_Space);
    QCOMPARE(g_mapParaArrays["width"].vecValues, std::vector<double>({45.0, 50.0, 55.0}));
}

void tst_SampleTable::SamplesAreTyped()
{
    Shown shown;
    TypeIntoCell(shown.table, 0, SampleTable::ValuesColumn, "1, 2.5,3");
    QCOMPARE(g_mapParaArrays["width"].vecValues, std::vector<double>({1.0, 2.5, 3.0}));
    QCOMPARE(shown.edited.count(), 1);
}

void tst_SampleTable::ARangeIsTyped()
{
    Shown shown;
    TypeIntoCell(shown.table, 0, SampleTable::ToColumn, "70");
    QCOMPARE(g_mapParaArrays["width"].vecValues, std::vector<double>({40.0, 50.0, 60.0, 70.0}));
    QCOMPARE(shown.refused.count(), 0);
}

void tst_SampleTable::BadSamplesAreRefused_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("text");
    NewRow("words", int(SampleTable::ValuesColumn), QString("a, b"));
    NewRow("no end", int(SampleTable::ValuesColumn), QString("1, inf"));
    NewRow("a comma too many", int(SampleTable::ValuesColumn), QString("1,"));
    NewRow("no number", int(SampleTable::FromColumn), QString("x"));
    NewRow("an empty range", int(SampleTable::FromColumn), QString("60"));
    NewRow("a step of 0", int(SampleTable::StepColumn), QString("0"));
    NewRow("too many samples", int(SampleTable::StepColumn), QString("1e-9"));
}

void tst_SampleTable::BadSamplesAreRefused()
{
    QFETCH(int, column);
    QFETCH(QString, text);
    Shown shown;
    TypeIntoCell(shown.table, 0, column, text);
    QCOMPARE(shown.refused.count(), 1);
    QCOMPARE(shown.edited.count(), 0);
    QCOMPARE(g_mapParaArrays["width"].vecValues, std::vector<double>({40.0, 50.0, 60.0}));
}

void tst_SampleTable::AListIsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<std::vector<double>>("samples");
    using Samples = std::vector<double>;
    NewRow("one", QString("7"), Samples{7.0});
    NewRow("blanks", QString(" 1 ,  2e3"), Samples{1.0, 2000.0});
    NewRow("nothing", QString(), Samples{});
    NewRow("a word", QString("1, two"), Samples{});
}

void tst_SampleTable::AListIsRead()
{
    QFETCH(QString, text);
    QFETCH(std::vector<double>, samples);
    QCOMPARE(SampleTable::SamplesIn(text), samples);
}

TARN_TEST_MAIN(tst_SampleTable)
#include "tst_SampleTable.moc"
