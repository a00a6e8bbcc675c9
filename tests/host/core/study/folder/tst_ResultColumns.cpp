#include "ResultColumns.h"
#include "TestCase.h"

class tst_ResultColumns : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ARunIsReplacedByItsNumber();
    void TheRunsOfOthersAreTaken();
    void ARowThatIsRefusedChangesNothing();
    void TitlesBearUnits();
};

using Cells = std::vector<QByteArray>;

void tst_ResultColumns::ARunIsReplacedByItsNumber()
{
    ResultColumns columns({"a"}, {"f"});
    QCOMPARE(columns.Take(Cells{"7", "1", "", "failed", "too thin"}), QString());
    QCOMPARE(columns.Take(Cells{"2", "3", "4", "ok", ""}), QString());
    QCOMPARE(columns.Take(Cells{"7", "1", "9", "ok", ""}), QString());
    QCOMPARE(columns.Count(), 2);
    QCOMPARE(columns.Run(0), 7);
    QCOMPARE(columns.Value(1, 0), 9.0);
    QVERIFY(columns.IsOk(0));
    QCOMPARE(columns.Error(0), QString());
}

void tst_ResultColumns::TheRunsOfOthersAreTaken()
{
    ResultColumns columns({"a"}, {"f"});
    QCOMPARE(columns.Take(Cells{"1", "1", "", "failed", "too thin"}), QString());
    ResultColumns more({"a"}, {"f"});
    QCOMPARE(more.Take(Cells{"2", "3", "4", "ok", ""}), QString());
    QCOMPARE(more.Take(Cells{"1", "1", "5", "ok", ""}), QString());
    columns.Take(more);
    QCOMPARE(columns.Count(), 2);
    QCOMPARE(columns.Value(1, 0), 5.0);
    QVERIFY(columns.IsOk(0));
    QCOMPARE(columns.Run(1), 2);
    QCOMPARE(columns.Column(0), std::vector<double>({1.0, 3.0}));
}

void tst_ResultColumns::ARowThatIsRefusedChangesNothing()
{
    ResultColumns columns({"a"}, {"f"});
    QCOMPARE(columns.Take(Cells{"1", "1", "2", "ok", ""}), QString());
    QCOMPARE(columns.Take(Cells{"1", "1", "x", "ok", ""}),
             QString("\"x\" in the column f is not a number"));
    QCOMPARE(columns.Take(Cells{"2", "1", "2", "ok"}), QString("has 4 cells instead of 5"));
    QCOMPARE(columns.Count(), 1);
    QCOMPARE(columns.Value(1, 0), 2.0);
}

void tst_ResultColumns::TitlesBearUnits()
{
    ResultColumns columns({"a", "b"}, {"mass_kg", "z_max", "ratio"}, {{"a", "mm"}, {"ratio", "?"}});
    QCOMPARE(columns.Take(Cells{"1", "1", "2", "3", "4", "5", "ok", ""}), QString());
    const ResultColumns copy = columns.WithoutRuns();
    QCOMPARE(copy.Names(), columns.Names());
    QCOMPARE(copy.Count(), 0);
    QStringList titles;
    for (int column = 0; column < copy.Names().size(); ++column)
        titles << copy.Title(column);
    QCOMPARE(titles, QStringList({"a (mm)", "b", "mass_kg", "z_max (mm)", "ratio"}));
}

TARN_TEST_MAIN(tst_ResultColumns)
#include "tst_ResultColumns.moc"
