#include "SolveTables.h"
#include "TestCase.h"

class tst_SolveTables : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ModesAreNumbered();
    void StaticResultsHaveTheirUnits();
    void AGermanLocaleWritesAPoint();
};

void tst_SolveTables::ModesAreNumbered()
{
    SolveResult result;
    QCOMPARE(ModesCsv(result), QByteArray("mode,frequency_hz\n"));
    result.modes = {{12.5, {}}, {1e6, {}}};
    QCOMPARE(ModesCsv(result), QByteArray("mode,frequency_hz\n1,12.5\n2,1000000\n"));
}

void tst_SolveTables::StaticResultsHaveTheirUnits()
{
    SolveResult result;
    result.statics.maximumDisplacement = 0.25;
    result.statics.maximumStress = 120.0;
    result.reaction = {-1.0, 0.0, 1000.0};
    QCOMPARE(StaticCsv(result),
             QByteArray("quantity,unit,value\nmax_displacement,mm,0.25\nmax_von_mises,MPa,120\n"
                        "reaction_x,N,-1\nreaction_y,N,0\nreaction_z,N,1000\n"));
}

void tst_SolveTables::AGermanLocaleWritesAPoint()
{
    UseLocale("de_DE.UTF-8");
    SolveResult result;
    result.modes = {{12.5, {}}};
    QVERIFY(ModesCsv(result).contains("12.5"));
}

TARN_TEST_MAIN(tst_SolveTables)
#include "tst_SolveTables.moc"
