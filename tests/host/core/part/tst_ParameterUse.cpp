#include "NewFeature.h"
#include "ParameterUse.h"
#include "TestCase.h"

class tst_ParameterUse : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void UsesAreFound();
    void ExpressionsFollowANewName();
};

static Feature Box(const QString& x)
{
    Feature feature = NewFeature("plate", "box");
    feature.fields[0] = x;
    return feature;
}

void tst_ParameterUse::UsesAreFound()
{
    QVERIFY(UsesParameter(Box("2*a"), {"b", "a"}));
    QVERIFY(!UsesParameter(Box("2*aa"), {"a"}));
    QVERIFY(UsesParameter(Condition{"a > 2", "too small"}, {"a"}));
    QVERIFY(!UsesParameter(Condition{"b > 2", "a"}, {"a"}));
}

void tst_ParameterUse::ExpressionsFollowANewName()
{
    FeatureList features;
    features.Append(Box("2*a"));
    features = WithRenamedParameter(features, "a", "width");
    QCOMPARE(features.At(0).fields[0], QString("2*width"));
    Feature extrude = NewFeature("rib", "extrude");
    extrude.profile = {{"a", "0", "", ""}, {"1", "a", "a/2", "1"}, {"0", "2", "", ""}};
    Feature fillet = NewFeature("round", "fillet");
    fillet.edges = {{{{"plate.xmin", {}}, {QString(), {"a", "0", "0"}}}, {}}};
    fillet.face = FaceReference{QString(), {"0", "a", "0"}};
    FeatureList others;
    others.Append(extrude);
    others.Append(fillet);
    others = WithRenamedParameter(others, "a", "width");
    QCOMPARE(others.At(0).profile[1].viaX, QString("width/2"));
    QCOMPARE(others.At(1).edges[0].between[1].at[0], QString("width"));
    QCOMPARE(others.At(1).face->at[1], QString("width"));
    const std::vector<Condition> conditions =
        WithRenamedParameter({{"a > b", "a is less than b"}}, "a", "width");
    QCOMPARE(conditions[0].expression, QString("width > b"));
    QCOMPARE(conditions[0].message, QString("a is less than b"));
}

TARN_TEST_MAIN(tst_ParameterUse)
#include "tst_ParameterUse.moc"
