#include "SampleList.h"
#include "SampleSpacing.h"
#include "TestCase.h"

#include <cmath>

namespace {

using Fault = SampleRange::Fault;
using Values = std::vector<double>;

} // namespace

Q_DECLARE_METATYPE(SampleRange)
Q_DECLARE_METATYPE(Values)

class tst_SampleList : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ARangeGivesItsSamples();
    void SingleValuesOutweighTheRange();
    void ARangeWithAFaultIsAProblem();
    void EveryFaultHasAText();
    void ValuesMatchTheirRange_data();
    void ValuesMatchTheirRange();
};

void tst_SampleList::ARangeGivesItsSamples()
{
    const SampleList list = {"a", {1.0, 2.0, 1.0, SampleSpacing::Ln}, {}};
    QCOMPARE(list.Samples(), Values({0.0, std::log(2.0)}));
    QCOMPARE(list.Problem(), QString());
    QVERIFY(list.ticked);
}

void tst_SampleList::SingleValuesOutweighTheRange()
{
    const SampleList list = {"a", {2.0, 1.0, 1.0}, {8.0, 4.123456789, 8.0}};
    QCOMPARE(list.Samples(), Values({8.0, 4.123456789, 8.0}));
    QCOMPARE(list.Problem(), QString());
}

void tst_SampleList::ARangeWithAFaultIsAProblem()
{
    const SampleList list = {"a", {0.0, 1.0, 1.0, SampleSpacing::Gauss}, {}};
    QVERIFY(list.Samples().empty());
    QCOMPARE(list.Problem(),
             QString("the sample list of \"a\" has Gauss spacing, which is not implemented"));
}

void tst_SampleList::EveryFaultHasAText()
{
    QCOMPARE(FaultText(Fault::None), QString());
    QStringList texts;
    for (const Fault fault :
         {Fault::NotFinite, Fault::Empty, Fault::StepNotAbove0, Fault::StepTooWide,
          Fault::TooManySamples, Fault::SpacingNotImplemented})
        texts << FaultText(fault);
    QVERIFY(!texts.contains(QString()));
    QCOMPARE(texts.removeDuplicates(), 0);
}

void tst_SampleList::ValuesMatchTheirRange_data()
{
    QTest::addColumn<Values>("values");
    QTest::addColumn<SampleRange>("range");
    QTest::addColumn<bool>("match");
    const auto row = [](const char* name, const Values& values, const SampleRange& range,
                        bool match) {
        QTest::newRow(name) << values << range << match;
    };
    row("Linear", {0, 0.1, 0.2}, {0, 0.25, 0.1}, true);
    row("Log10", {0, 2}, {1, 100, 99, SampleSpacing::Log10}, true);
    row("Ln in full precision", {0, std::log(2.0)}, {1, 2, 1, SampleSpacing::Ln}, true);
    row("Ln in six digits", {0, 0.693147}, {1, 2, 1, SampleSpacing::Ln}, true);
    row("Ln in seven digits", {0, 0.6931472}, {1, 2, 1, SampleSpacing::Ln}, false);
    row("three steps of 0.1", {0, 0.1, 0.2, 0.3}, {0, 0.35, 0.1}, true);
    row("logarithms of no number", {std::nan(""), -HUGE_VAL, 0}, {-1, 1, 1, SampleSpacing::Ln},
        true);
    row("equal in six digits only", {0, 1.0000004}, {0, 1, 1}, false);
    row("neighbours", {200.0001, 200.0002, 200.0003}, {200.0001, 200.00031, 0.0001}, true);
    row("neighbours cut", {200, 200, 200}, {200.0001, 200.00031, 0.0001}, false);
    row("a limit that was cut", {0, 1}, {0, 1.0000004, 1.0000004}, false);
    row("one changed", {0, 0.1, 0.3}, {0, 0.25, 0.1}, false);
    row("one more", {0, 0.1, 0.2, 0.3}, {0, 0.25, 0.1}, false);
    row("one less", {0, 0.1}, {0, 0.25, 0.1}, false);
    row("none", {}, {0, 0.25, 0.1}, false);
    row("other spacing", {0, 0.1, 0.2}, {0, 0.25, 0.1, SampleSpacing::Log10}, false);
    row("Gauss", {0, 0.1, 0.2}, {0, 0.25, 0.1, SampleSpacing::Gauss}, false);
    row("none of no range", {}, {0, 0.25, 0.1, SampleSpacing::Gauss}, false);
    row("no step", {1}, {1, 2, 0}, false);
    row("step without effect", {1e9}, {1e9, 1e9 + 1, 1e-30}, false);
}

void tst_SampleList::ValuesMatchTheirRange()
{
    QFETCH(Values, values);
    QFETCH(SampleRange, range);
    QTEST(MatchesRange(values, range), "match");
}

TARN_TEST_MAIN(tst_SampleList)
#include "tst_SampleList.moc"
