#include "SampleRange.h"
#include "SampleSpacing.h"
#include "TestCase.h"

#include <cmath>
#include <limits>

// tst_DesignRules checks that the sampling dialog agrees.

namespace {

using Fault = SampleRange::Fault;
using Samples = std::vector<double>;

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

} // namespace

Q_DECLARE_METATYPE(SampleRange::Fault)
Q_DECLARE_METATYPE(SampleRange)
Q_DECLARE_METATYPE(Samples)

class tst_SampleRange : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheDefaultRangeIsThatOfANewRecord();
    void TheStepIsAddedAgainAndAgain_data();
    void TheStepIsAddedAgainAndAgain();
    void ALogarithmIsTakenOfEachSample_data();
    void ALogarithmIsTakenOfEachSample();
    void TheSamplesHaveAllTheirDigits();
    void ABadRangeGivesNoSamples_data();
    void ABadRangeGivesNoSamples();
    void TheLimitIsAMillionSamples();
};

void tst_SampleRange::TheDefaultRangeIsThatOfANewRecord()
{
    QCOMPARE(SampleRange().FindFault(), Fault::None);
    QCOMPARE(SampleRange().Samples(), Samples({0.0, 1.0}));
}

void tst_SampleRange::TheStepIsAddedAgainAndAgain_data()
{
    QTest::addColumn<SampleRange>("range");
    QTest::addColumn<Samples>("samples");
    const auto row = [](const char* name, double min, double max, double step,
                        const Samples& samples) {
        QTest::newRow(name) << SampleRange{min, max, step} << samples;
    };
    row("the maximum is reached", 0.0, 1.0, 0.25, {0.0, 0.25, 0.5, 0.75, 1.0});
    row("the step does not divide", 0.0, 1.0, 0.4, {0.0, 0.4, 0.8});
    row("one step", 5.0, 6.0, 1.0, {5.0, 6.0});
    row("negative", -2.0, 0.0, 1.0, {-2.0, -1.0, 0.0});
    row("rounded beyond the maximum", 0.0, 0.3, 0.1, {0.0, 0.1, 0.2});
    row("rounded below the maximum", 0.0, 1.0, 0.1,
        {0.0, 0.1, 0.2, 0.30000000000000004, 0.4, 0.5, 0.6, 0.7, 0.7999999999999999,
         0.8999999999999999, 0.9999999999999999});
    row("wider than any number", -1.7e308, 1.7e308, 1.7e308, {-1.7e308, 0.0, 1.7e308});
    row("beyond any number", 0.0, 1.7e308, 1.0e308, {0.0, 1.0e308});
    row("denormal", 0.0, 1e-323, 5e-324, {0.0, 5e-324, 1e-323});
    row("steps that grow by rounding", 1e16, 1e16 + 8.0, 3.0, {1e16, 1e16 + 4.0, 1e16 + 8.0});
}

void tst_SampleRange::TheStepIsAddedAgainAndAgain()
{
    QFETCH(SampleRange, range);
    QCOMPARE(range.FindFault(), Fault::None);
    QTEST(range.Samples(), "samples");
}

void tst_SampleRange::ALogarithmIsTakenOfEachSample_data()
{
    QTest::addColumn<int>("spacing");
    QTest::addColumn<double>("ten");
    QTest::newRow("Log10") << int(SampleSpacing::Log10) << 1.0;
    QTest::newRow("Ln") << int(SampleSpacing::Ln) << std::log(10.0);
}

void tst_SampleRange::ALogarithmIsTakenOfEachSample()
{
    QFETCH(int, spacing);
    QFETCH(double, ten);
    QCOMPARE((SampleRange{1.0, 10.0, 9.0, spacing}.Samples()), Samples({0.0, ten}));
    const Samples samples = SampleRange{-1.0, 1.0, 1.0, spacing}.Samples();
    QCOMPARE(samples.size(), std::size_t(3));
    QVERIFY(std::isnan(samples[0]));
    QVERIFY(samples[1] == -Infinity);
    QVERIFY(samples[2] == 0.0);
}

void tst_SampleRange::TheSamplesHaveAllTheirDigits()
{
    const Samples samples = SampleRange{200.0001, 200.0003, 0.0001}.Samples();
    QVERIFY(samples.size() >= 2);
    QVERIFY(samples[0] == 200.0001);
    QVERIFY(samples[1] == 200.0001 + 0.0001);
}

void tst_SampleRange::ABadRangeGivesNoSamples_data()
{
    QTest::addColumn<SampleRange>("range");
    QTest::addColumn<SampleRange::Fault>("fault");
    const auto row = [](const char* name, double min, double max, double step, Fault fault,
                        int spacing = SampleSpacing::Linear) {
        QTest::newRow(name) << SampleRange{min, max, step, spacing} << fault;
    };
    row("minimum infinite", -Infinity, 1.0, 1.0, Fault::NotFinite);
    row("maximum infinite", 0.0, Infinity, 1.0, Fault::NotFinite);
    row("step infinite", 0.0, 1.0, Infinity, Fault::NotFinite);
    row("minimum no number", NoNumber, 1.0, 1.0, Fault::NotFinite);
    row("maximum no number", 0.0, NoNumber, 1.0, Fault::NotFinite);
    row("step no number", 0.0, 1.0, NoNumber, Fault::NotFinite);
    row("maximum below minimum", 2.0, 1.0, 1.0, Fault::Empty);
    row("maximum at minimum", 1.0, 1.0, 1.0, Fault::Empty);
    row("step 0", 0.0, 1.0, 0.0, Fault::StepNotAbove0);
    row("step negative", 0.0, 1.0, -1.0, Fault::StepNotAbove0);
    row("step wider than the range", 0.0, 1.0, 1.0000000000000002, Fault::StepTooWide);
    row("too many samples", 0.0, 1.0, 1e-9, Fault::TooManySamples);
    row("step without effect", 1e300, 2e300, 1.0, Fault::TooManySamples);
    row("Gauss", 0.0, 1.0, 1.0, Fault::SpacingNotImplemented, SampleSpacing::Gauss);
    row("unknown spacing", 0.0, 1.0, 1.0, Fault::SpacingNotImplemented, 4);
    row("negative spacing", 0.0, 1.0, 1.0, Fault::SpacingNotImplemented, -1);
    row("Gauss after the range", 2.0, 1.0, 1.0, Fault::Empty, SampleSpacing::Gauss);
}

void tst_SampleRange::ABadRangeGivesNoSamples()
{
    QFETCH(SampleRange, range);
    QTEST(range.FindFault(), "fault");
    QVERIFY(range.Samples().empty());
}

void tst_SampleRange::TheLimitIsAMillionSamples()
{
    const double count = double(SampleRange::MaximumSamples);
    QCOMPARE((SampleRange{1.0, count, 1.0}.Samples().size()), SampleRange::MaximumSamples);
    QCOMPARE((SampleRange{1.0, count + 1.0, 1.0}.FindFault()), Fault::TooManySamples);
    // A million steps of 0.1 give more than 100000.
    QCOMPARE((SampleRange{0.0, 100000.0, 0.1}.Samples().size()), SampleRange::MaximumSamples);
}

TARN_TEST_MAIN(tst_SampleRange)
#include "tst_SampleRange.moc"
