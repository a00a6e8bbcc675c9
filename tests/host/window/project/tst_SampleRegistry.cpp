#include "DrawerOutput.h"
#include "EmptyDesignStores.h"
#include "MessageLevel.h"
#include "ModalDriver.h"
#include "OneParameterDlg.h"
#include "SampleRegistry.h"
#include "SampleSpacing.h"
#include "TestCase.h"

#include <QSignalSpy>

#include <cmath>

class tst_SampleRegistry : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheRegistryIsReplaced();
    void ARangeIsKeptWithItsSamples_data();
    void ARangeIsKeptWithItsSamples();
    void SingleValuesAreKeptExactly();
    void AProblemIsReportedAndLeavesNoSamples();
    void FilledInSamplesAreRegistered();
    void SamplesOfTheDialogAreARange();
    void RecordsWithoutParameterOrSamplesAreLeftOut();
};

using Values = std::vector<double>;

void tst_SampleRegistry::TheRegistryIsReplaced()
{
    const EmptyDesignStores stores;
    g_mapParaArrays["old"].bChecked = 1;
    FillSampleRegistry({});
    QVERIFY(g_mapParaArrays.empty());
}

void tst_SampleRegistry::ARangeIsKeptWithItsSamples_data()
{
    QTest::addColumn<int>("spacing");
    QTest::addColumn<QVector<double>>("samples");
    QTest::newRow("Linear") << int(SampleSpacing::Linear) << QVector<double>({1, 10});
    QTest::newRow("Log10") << int(SampleSpacing::Log10) << QVector<double>({0, 1});
    QTest::newRow("Ln") << int(SampleSpacing::Ln) << QVector<double>({0, std::log(10.0)});
}

void tst_SampleRegistry::ARangeIsKeptWithItsSamples()
{
    const EmptyDesignStores stores;
    QFETCH(int, spacing);
    QFETCH(QVector<double>, samples);
    FillSampleRegistry({{"a", {1.0, 10.0, 9.0, spacing}, {}, false}});
    const sParaArrayData& record = g_mapParaArrays.at("a");
    QCOMPARE(record.strName, QString("a"));
    QCOMPARE(record.bChecked, 0);
    QCOMPARE(record.vecValues, Values(samples.begin(), samples.end()));
    QCOMPARE(record.dMin, 1.0);
    QCOMPARE(record.dMax, 10.0);
    QCOMPARE(record.dDelta, 9.0);
    QCOMPARE(record.nSampleType, spacing);
}

void tst_SampleRegistry::SingleValuesAreKeptExactly()
{
    const EmptyDesignStores stores;
    FillSampleRegistry({{"a", {}, {8, 4.123456789, 8}}});
    const sParaArrayData& record = g_mapParaArrays.at("a");
    QCOMPARE(record.vecValues, Values({8, 4.123456789, 8}));
    QCOMPARE(record.bChecked, 1);
    // The sampling dialog opens with the range of a new parameter.
    QCOMPARE(record.dMax, sParaArrayData().dMax);
}

void tst_SampleRegistry::AProblemIsReportedAndLeavesNoSamples()
{
    const EmptyDesignStores stores;
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    FillSampleRegistry({{"a", {0.0, 1.0, 1.0, SampleSpacing::Gauss}, {}}});
    QVERIFY(g_mapParaArrays.at("a").vecValues.empty());
    QCOMPARE(g_mapParaArrays.at("a").nSampleType, int(SampleSpacing::Gauss));
    QCOMPARE(posted.size(), 1);
    QCOMPARE(posted[0][0].toInt(), int(WarningLevel));
    QVERIFY(posted[0][1].toString().contains("\"a\" has Gauss spacing"));
}

void tst_SampleRegistry::FilledInSamplesAreRegistered()
{
    const EmptyDesignStores stores;
    GlobalParaMeterMgr::AddParameter("a", {});
    GlobalParaMeterMgr::AddParameter("b", {});
    FillSampleRegistry(
        {{"b", {0.0, 1.0, 0.3, SampleSpacing::Log10}, {}, false}, {"a", {}, {0.0, 1.0000004}}});
    const std::vector<SampleList> lists = RegisteredSamples();
    QCOMPARE(lists.size(), std::size_t(2));
    QCOMPARE(lists[0].parameter, QString("a"));
    QCOMPARE(lists[0].values, Values({0.0, 1.0000004}));
    QVERIFY(lists[0].ticked);
    QCOMPARE(lists[1].parameter, QString("b"));
    QVERIFY(lists[1].values.empty());
    QCOMPARE(lists[1].range.step, 0.3);
    QCOMPARE(lists[1].range.spacing, int(SampleSpacing::Log10));
    QVERIFY(!lists[1].ticked);
}

void tst_SampleRegistry::SamplesOfTheDialogAreARange()
{
    const EmptyDesignStores stores;
    GlobalParaMeterMgr::AddParameter("a", {});
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    const auto run = [&](bool addsARow) {
        user.Then([=](QDialog& shown) {
            Type(shown, "lineEdit_Deta", "0.1");
            if (addsARow)
                Click(shown, "pushButton_Add");
            Click(shown, "pushButton_OK");
        });
        dialog.exec();
        return RegisteredSamples();
    };
    const std::vector<SampleList> lists = run(false);
    QVERIFY(g_mapParaArrays.at("a").vecValues != SampleRange({0.0, 1.0, 0.1}).Samples());
    QCOMPARE(lists.size(), std::size_t(1));
    QVERIFY(lists[0].values.empty());
    QCOMPARE(lists[0].range.step, 0.1);
    QCOMPARE(run(true)[0].values.size(), std::size_t(12));
    QVERIFY(user.IsDone());
}

void tst_SampleRegistry::RecordsWithoutParameterOrSamplesAreLeftOut()
{
    const EmptyDesignStores stores;
    GlobalParaMeterMgr::AddParameter("a", {});
    g_mapParaArrays["a"].bChecked = 1;
    g_mapParaArrays["gone"].vecValues = {1.0, 2.0};
    QVERIFY(RegisteredSamples().empty());
}

TARN_TEST_MAIN(tst_SampleRegistry)
#include "tst_SampleRegistry.moc"
