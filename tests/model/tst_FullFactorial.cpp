#include "FullFactorial.h"
#include "TestCase.h"

#include <limits>

// tst_DesignRules checks that the DOE dialog agrees.

namespace {

using Values = std::vector<double>;
using Lists = std::vector<Values>;

Lists OfLengths(const QVector<int>& lengths)
{
    Lists lists;
    for (const int length : lengths) {
        Values list;
        for (int i = 0; i < length; ++i)
            list.push_back(i);
        lists.push_back(list);
    }
    return lists;
}

} // namespace

Q_DECLARE_METATYPE(Lists)

class tst_FullFactorial : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheLastListTurnsFastest_data();
    void TheLastListTurnsFastest();
    void WithoutListsOrSamplesThereAreNoRuns_data();
    void WithoutListsOrSamplesThereAreNoRuns();
    void EachRunIsThereOnce();
    void OneRunOrValueMoreExceedsTheLimits_data();
    void OneRunOrValueMoreExceedsTheLimits();
    void ACountThatOverflowsIsTheMaximum_data();
    void ACountThatOverflowsIsTheMaximum();
};

void tst_FullFactorial::TheLastListTurnsFastest_data()
{
    QTest::addColumn<Lists>("lists");
    QTest::addColumn<Lists>("runs");
    const auto row = [](const char* name, const Lists& lists, const Lists& runs) {
        QTest::newRow(name) << lists << runs;
    };
    row("one list", {{3, 1, 2}}, {{3}, {1}, {2}});
    row("two lists", {{1, 2}, {10, 20, 30}},
        {{1, 10}, {1, 20}, {1, 30}, {2, 10}, {2, 20}, {2, 30}});
    row("three lists", {{1, 2}, {3}, {4, 5}}, {{1, 3, 4}, {1, 3, 5}, {2, 3, 4}, {2, 3, 5}});
    row("equal samples", {{1, 1}, {2, 2}}, {{1, 2}, {1, 2}, {1, 2}, {1, 2}});
}

void tst_FullFactorial::TheLastListTurnsFastest()
{
    QFETCH(Lists, lists);
    const FullFactorial design(lists);
    QCOMPARE(design.ListCount(), lists.size());
    Lists runs;
    for (std::size_t run = 0; run < design.RunCount(); ++run)
        runs.push_back(design.Run(run));
    QTEST(runs, "runs");
}

void tst_FullFactorial::WithoutListsOrSamplesThereAreNoRuns_data()
{
    QTest::addColumn<QVector<int>>("lengths");
    QTest::newRow("no list") << QVector<int>();
    QTest::newRow("an empty list") << QVector<int>({0});
    QTest::newRow("empty first") << QVector<int>({0, 70000, 70000});
    QTest::newRow("empty last") << QVector<int>({70000, 70000, 70000, 70000, 70000, 0});
}

void tst_FullFactorial::WithoutListsOrSamplesThereAreNoRuns()
{
    QFETCH(QVector<int>, lengths);
    const FullFactorial design(OfLengths(lengths));
    QCOMPARE(design.RunCount(), std::size_t(0));
    QVERIFY(!design.IsTooLarge());
}

void tst_FullFactorial::EachRunIsThereOnce()
{
    const FullFactorial design(OfLengths({7, 1, 5, 3}));
    QCOMPARE(design.RunCount(), std::size_t(105));
    for (std::size_t index = 0; index < design.RunCount(); ++index) {
        const Values run = design.Run(index);
        QCOMPARE(std::size_t(((run[0] + run[1]) * 5 + run[2]) * 3 + run[3]), index);
    }
}

void tst_FullFactorial::OneRunOrValueMoreExceedsTheLimits_data()
{
    QTest::addColumn<QVector<int>>("lengths");
    QTest::addColumn<bool>("isTooLarge");
    QTest::newRow("a million runs") << QVector<int>({1000, 1000}) << false;
    QTest::newRow("a run more") << QVector<int>({1000001}) << true;
    QTest::newRow("single samples") << QVector<int>({1001, 1000, 1}) << true;
    QTest::newRow("20 million values") << QVector<int>({1000, 1000}) + QVector<int>(18, 1) << false;
    QTest::newRow("more values") << QVector<int>({1000, 1000}) + QVector<int>(19, 1) << true;
}

void tst_FullFactorial::OneRunOrValueMoreExceedsTheLimits()
{
    QFETCH(QVector<int>, lengths);
    QTEST(FullFactorial(OfLengths(lengths)).IsTooLarge(), "isTooLarge");
}

void tst_FullFactorial::ACountThatOverflowsIsTheMaximum_data()
{
    QTest::addColumn<QVector<int>>("lengths");
    QTest::newRow("0 in as many bits") << QVector<int>({65536, 65536, 65536, 65536});
    QTest::newRow("beyond all bits") << QVector<int>(200, 2);
    QTest::newRow("single samples behind") << QVector<int>(64, 2) + QVector<int>(3, 1);
}

void tst_FullFactorial::ACountThatOverflowsIsTheMaximum()
{
    QFETCH(QVector<int>, lengths);
    const FullFactorial design(OfLengths(lengths));
    QCOMPARE(design.RunCount(), std::numeric_limits<std::size_t>::max());
    QVERIFY(design.IsTooLarge());
    QCOMPARE(FullFactorial(OfLengths(QVector<int>(63, 2))).RunCount(), std::size_t(1) << 63);
}

TARN_TEST_MAIN(tst_FullFactorial)
#include "tst_FullFactorial.moc"
