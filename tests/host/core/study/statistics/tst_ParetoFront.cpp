#include "ParetoFront.h"
#include "TestCase.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <random>

Q_DECLARE_METATYPE(Aim)

class tst_ParetoFront : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TwoParabolasAreAsPublished();
    void EachResponseHasItsAim_data();
    void EachResponseHasItsAim();
    void NoRunOfTheFrontIsBeaten();
    void EqualRunsAreAllThere();
    void RunsWithoutBothValuesDoNotCount();
};

// Schaffer (1985), "Multiple objective optimization with vector evaluated genetic algorithms":
// x^2 and (x - 2)^2 are both to be small; the front is the x from 0 to 2.
void tst_ParetoFront::TwoParabolasAreAsPublished()
{
    Column first;
    Column second;
    std::vector<int> expected;
    for (int i = 0; i <= 40; ++i) {
        const double x = -5.0 + 0.25 * i;
        first.push_back(x * x);
        second.push_back((x - 2.0) * (x - 2.0));
        if (x >= 0.0 && x <= 2.0)
            expected.push_back(i);
    }
    QCOMPARE(ParetoFront(first, Aim::Least, second, Aim::Least), expected);
}

void tst_ParetoFront::EachResponseHasItsAim_data()
{
    QTest::addColumn<Aim>("firstAim");
    QTest::addColumn<Aim>("secondAim");
    QTest::addColumn<std::vector<int>>("expected");
    QTest::newRow("least and least") << Aim::Least << Aim::Least << std::vector<int>{1, 2};
    QTest::newRow("least and greatest") << Aim::Least << Aim::Greatest << std::vector<int>{1};
    QTest::newRow("greatest and least") << Aim::Greatest << Aim::Least << std::vector<int>{3, 4, 2};
    QTest::newRow("both greatest") << Aim::Greatest << Aim::Greatest << std::vector<int>{3, 0, 1};
}

void tst_ParetoFront::EachResponseHasItsAim()
{
    QFETCH(Aim, firstAim);
    QFETCH(Aim, secondAim);
    const Column first = {8, 2, 6, 18, 14};
    const Column second = {5, 6, 1, 4, 2};
    QTEST(ParetoFront(first, firstAim, second, secondAim), "expected");
}

void tst_ParetoFront::NoRunOfTheFrontIsBeaten()
{
    std::mt19937 generator(5);
    Column first;
    Column second;
    constexpr int Runs = 300;
    for (int i = 0; i < Runs; ++i) {
        first.push_back(double(generator() % 50));
        second.push_back(double(generator() % 50));
    }
    const std::vector<int> front = ParetoFront(first, Aim::Least, second, Aim::Least);
    for (std::size_t i = 0; i < first.size(); ++i) {
        bool isBeaten = false;
        for (std::size_t j = 0; j < first.size(); ++j)
            isBeaten |= first[j] <= first[i] && second[j] <= second[i] &&
                        (first[j] < first[i] || second[j] < second[i]);
        const bool isThere = std::find(front.begin(), front.end(), int(i)) != front.end();
        QCOMPARE(isThere, !isBeaten);
    }
}

void tst_ParetoFront::EqualRunsAreAllThere()
{
    QCOMPARE(ParetoFront({1, 1, 2, 1}, Aim::Least, {1, 1, 0, 2}, Aim::Least),
             (std::vector<int>{0, 1, 2}));
}

void tst_ParetoFront::RunsWithoutBothValuesDoNotCount()
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    QCOMPARE(ParetoFront({none, 1, 0}, Aim::Least, {0, 1, none}, Aim::Least), std::vector<int>{1});
    QVERIFY(ParetoFront({}, Aim::Least, {}, Aim::Least).empty());
}

QTEST_GUILESS_MAIN(tst_ParetoFront)
#include "tst_ParetoFront.moc"
