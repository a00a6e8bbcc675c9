#include "ModesTable.h"
#include "TestCase.h"

class tst_ModesTable : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void FrequenciesAndMassesAreRead();
    void ARigidBodyModeBelowZeroHasTheFrequency0();
    void WithoutATableThereAreNoModes_data();
    void WithoutATableThereAreNoModes();
    void DamagedTablesAreRefused_data();
    void DamagedTablesAreRefused();
    void ACutTableIsReadOrRefused();
};

namespace {

const QByteArray Frequencies = R"(
     E I G E N V A L U E   O U T P U T

 MODE NO    EIGENVALUE                       FREQUENCY   
                                     REAL PART            IMAGINARY PART
                           (RAD/TIME)      (CYCLES/TIME     (RAD/TIME)

      1   0.1185350E+07   0.1088738E+04   0.1732780E+03   0.0000000E+00
      2   0.1568493E+08   0.3960420E+04   0.6303205E+03   0.0000000E+00
)";
const QByteArray Masses = R"(
     P A R T I C I P A T I O N   F A C T O R S

MODE NO.   X-COMPONENT     Y-COMPONENT     Z-COMPONENT     X-ROTATION      Y-ROTATION      Z-ROTATION

      1  -0.9193054E-16   0.1880900E-14  -0.7565165E-02  -0.2268980E+00   0.5514224E+00   0.1426821E-12
      2   0.1627812E-16   0.6176657E-15   0.1297618E-05  -0.1428192E+00   0.9779002E-04   0.4590706E-13

     E F F E C T I V E   M O D A L   M A S S

MODE NO.   X-COMPONENT     Y-COMPONENT     Z-COMPONENT     X-ROTATION      Y-ROTATION      Z-ROTATION

      1   0.1000000E+01   0.2000000E+01   0.3000000E+01   0.4000000E+01   0.5000000E+01   0.6000000E+01
      2   0.2649772E-33   0.3815109E-30   0.1683811E-11   0.2039731E-01   0.9562887E-08   0.2107458E-26
TOTAL     0.3096888E-31   0.1132407E-28   0.8123901E-04   0.9643257E-01   0.3135105E+00   0.6646208E-25

     T O T A L   E F F E C T I V E   M A S S

MODE NO.   X-COMPONENT     Y-COMPONENT     Z-COMPONENT     X-ROTATION      Y-ROTATION      Z-ROTATION

          0.9248854E-04   0.9248854E-04   0.9279481E-04   0.1114273E+00   0.3144008E+00   0.4246369E+00

)";

QString Refusal(const QByteArray& text)
{
    try {
        ReadModesTable(text);
        return "read";
    } catch (const ResultError& error) {
        return error.Reason();
    }
}

const QString Damaged = "The solver's table of modes is damaged.";

} // namespace

void tst_ModesTable::FrequenciesAndMassesAreRead()
{
    const ModesTable table = ReadModesTable(Frequencies + Masses);
    QCOMPARE(table.modes.size(), std::size_t(2));
    QCOMPARE(table.modes[0].frequency, 173.2780);
    QCOMPARE(table.modes[1].frequency, 630.3205);
    QVERIFY((table.modes[0].effectiveMass == Mode::Masses{1, 2, 3, 4, 5, 6}));
    QCOMPARE(table.modes[1].effectiveMass[2], 0.1683811e-11);
    QCOMPARE(table.totalMass[2], 0.9279481e-04);
}

void tst_ModesTable::ARigidBodyModeBelowZeroHasTheFrequency0()
{
    QByteArray text = Frequencies;
    text.replace("0.1185350E+07   0.1088738E+04   0.1732780E+03   0.0000000E+00",
                 "-0.1185350E-06   0.0000000E+00   0.0000000E+00   0.3442891E-03");
    QCOMPARE(ReadModesTable(text).modes[0].frequency, 0.0);
}

void tst_ModesTable::WithoutATableThereAreNoModes_data()
{
    QTest::addColumn<QByteArray>("text");
    NewRow("nothing", QByteArray());
    NewRow("no rows", Frequencies.left(Frequencies.indexOf("      1 ")));
    NewRow("another table", QByteArray("\n displacements (vx,vy,vz) for set NALL\n\n 1 2 3\n"));
}

void tst_ModesTable::WithoutATableThereAreNoModes()
{
    QFETCH(QByteArray, text);
    QVERIFY(ReadModesTable(text).modes.empty());
}

void tst_ModesTable::DamagedTablesAreRefused_data()
{
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    NewRow("not a number", QByteArray("0.1732780E+03"), QByteArray("          NaN"));
    NewRow("stars", QByteArray("0.1732780E+03"), QByteArray("*************"));
    NewRow("comma", QByteArray("0.1732780E+03"), QByteArray("0,1732780E+03"));
    NewRow("below 0", QByteArray("0.1732780E+03"), QByteArray("-0.173278E+03"));
    NewRow("a column too few", QByteArray("   0.0000000E+00\n      2"), QByteArray("\n      2"));
    NewRow("a row missing", QByteArray("\n      1   0.11"), QByteArray("\n      3   0.11"));
    NewRow("a mass missing", QByteArray("   0.6000000E+01"), QByteArray(""));
}

void tst_ModesTable::DamagedTablesAreRefused()
{
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QByteArray text = Frequencies + Masses;
    QVERIFY(text.contains(from));
    QCOMPARE(Refusal(text.replace(from, to)), Damaged);
}

void tst_ModesTable::ACutTableIsReadOrRefused()
{
    const QByteArray text = Frequencies + Masses;
    for (int length = 0; length < text.size(); ++length) {
        const QString refusal = Refusal(text.left(length));
        QVERIFY(refusal == "read" || refusal == Damaged);
    }
}

TARN_TEST_MAIN(tst_ModesTable)
#include "tst_ModesTable.moc"
