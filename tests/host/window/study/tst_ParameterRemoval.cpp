#include "NewFeature.h"
#include "ParameterRemoval.h"
#include "TestCase.h"

class tst_ParameterRemoval : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void UsersOfUsersGoToo();
    void WhatUsesNothingOfItStays();
};

static ParameterEntry Entry(const QString& name, const QString& value)
{
    ParameterEntry entry = NewParameter(name);
    entry.SetValueText(value);
    return entry;
}

static Feature Box(const QString& name, const QString& x)
{
    Feature feature = NewFeature(name, "box");
    feature.fields[0] = x;
    return feature;
}

void tst_ParameterRemoval::UsersOfUsersGoToo()
{
    AnalysisDefinition analysis;
    analysis.meshSize = "c/2";
    FeatureList features;
    features.Append(Box("plate", "c"));
    features.Append(Box("rib", "1"));
    Feature fuse = NewFeature("both", "fuse");
    fuse.inputs = QStringList({"rib", "plate"});
    features.Append(fuse);
    // Against their order.
    const ParameterRemoval removal =
        FindRemoval({"a"}, {Entry("c", "b+1"), Entry("b", "a+1"), Entry("a", "1")}, features,
                    {{"b > 1", "b is small"}}, analysis);
    QCOMPARE(removal.parameters, QSet<QString>({"a", "b", "c"}));
    QCOMPARE(removal.users, QStringList({"parameter \"b\"", "parameter \"c\"", "feature \"plate\"",
                                         "feature \"both\"", "condition \"b > 1\"", "mesh size"}));
    QVERIFY(removal.leftParameters.empty());
    QCOMPARE(removal.leftFeatures.Size(), 1);
    QVERIFY(removal.leftConditions.empty());
    QVERIFY(removal.leftAnalysis == AnalysisDefinition());
}

void tst_ParameterRemoval::WhatUsesNothingOfItStays()
{
    AnalysisDefinition analysis;
    analysis.meshSize = "b/2";
    FeatureList features;
    features.Append(Box("plate", "b"));
    const ParameterRemoval removal = FindRemoval({"a"}, {Entry("a", "1"), Entry("b", "1")},
                                                 features, {{"b > 1", "b is small"}}, analysis);
    QVERIFY(removal.users.isEmpty());
    QCOMPARE(removal.leftParameters.size(), std::size_t(1));
    QCOMPARE(removal.leftFeatures.Size(), 1);
    QCOMPARE(removal.leftConditions.size(), std::size_t(1));
    QVERIFY(removal.leftAnalysis == analysis);
}

TARN_TEST_MAIN(tst_ParameterRemoval)
#include "tst_ParameterRemoval.moc"
