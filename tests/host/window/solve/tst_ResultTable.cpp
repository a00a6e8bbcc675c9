#include "ReportSamples.h"
#include "ResultTable.h"
#include "TestCase.h"

class tst_ResultTable : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ModesHaveFrequenciesAndMasses();
    void StaticResultsHaveUnitsAndPlaces();
    void AMeshHasItsNumbers();
    void AGermanLocaleWritesAPoint();
};

void tst_ResultTable::ModesHaveFrequenciesAndMasses()
{
    const ResultTable table(ModesReport());
    QCOMPARE(table.headings.mid(0, 2), QStringList({"Mode", "Frequency (Hz)"}));
    QCOMPARE(table.rows.size(), std::size_t(2));
    QCOMPARE(table.rows[0], QStringList({"1", "1234.57", "1.0000", "0.0000", "12.5000"}));
    QCOMPARE(table.csv, QString("mode,frequency_hz,mass_x_kg,mass_y_kg,mass_z_kg\n"
                                "1,1234.56789,1,0,12.5\n2,2000,0,0,0\n"));
}

void tst_ResultTable::StaticResultsHaveUnitsAndPlaces()
{
    const ResultTable table(StaticReport());
    QCOMPARE(table.rows.size(), std::size_t(5));
    QCOMPARE(table.rows[0], QStringList({"Greatest displacement", "0.5 mm", "(20, 0, 0)"}));
    QCOMPARE(table.rows[1], QStringList({"Greatest von Mises stress", "40 MPa", "(0, 20, 0)"}));
    QCOMPARE(table.rows[4], QStringList({"Support force along z", "-7.5 N", ""}));
    QVERIFY(table.csv.startsWith("quantity,unit,value,x_mm,y_mm,z_mm\n"
                                 "max_displacement,mm,0.5,20,0,0\n"));
    QVERIFY(table.csv.endsWith("reaction_z,N,-7.5,,,\n"));
}

void tst_ResultTable::AMeshHasItsNumbers()
{
    const ResultTable table(MeshReport());
    QCOMPARE(table.rows[0], QStringList({"Nodes", "6", ""}));
    QCOMPARE(table.rows[1], QStringList({"Elements", "1", ""}));
    QCOMPARE(table.rows[2], QStringList({"Worst element", "0.25", "(1.5, 2, 3)"}));
    QVERIFY(MeshText(MeshReport()).startsWith("Mesh: 6 nodes, 1 elements; "));
    QVERIFY(MeshText(MeshReport()).endsWith("0.25 of its greatest value, near (1.5, 2, 3) mm"));
}

void tst_ResultTable::AGermanLocaleWritesAPoint()
{
    UseLocale("de_DE.UTF-8");
    QVERIFY(ResultTable(ModesReport()).csv.contains("1234.56789"));
}

TARN_TEST_MAIN(tst_ResultTable)
#include "tst_ResultTable.moc"
