#include "FeatureCopy.h"
#include "JsonSection.h"
#include "NewFeature.h"
#include "TestCase.h"

class tst_FeatureCopy : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void CopiesComeBehindInTheOrderOfTheList();
    void CopiesFollowEachOther();
    void CopiesKeepInputsThatAreNotCopied();
    void NumbersOfNamesDoNotGrowLonger();
    void AnotherProjectTakesTheNamesAsTheyAre();
    void OtherTextsAreRefused_data();
    void OtherTextsAreRefused();
};

// A plate with a rounded hole.
static FeatureList Plate()
{
    FeatureList list;
    list.Append(NewFeature("plate", "box"));
    list.Append(NewFeature("hole", "cylinder", {}, {{"radius", "width / 4"}}));
    list.Append(NewFeature("body", "cut", {"plate", "hole"}));
    Feature rounding = NewFeature("rounding", "fillet", {"body"});
    EdgeReference edge;
    edge.between = {{"body/hole.side", {}}, {"plate.zmax", {}}};
    rounding.edges = {edge};
    list.Append(rounding);
    return list;
}

static QStringList NamesOf(const FeatureList& list)
{
    QStringList names;
    for (const Feature& feature : list.Features())
        names << feature.name;
    return names;
}

void tst_FeatureCopy::CopiesComeBehindInTheOrderOfTheList()
{
    QStringList names;
    const FeatureList list =
        WithPastedFeatures(Plate(), CopiedFeatures(Plate(), {"hole", "plate"}), names);
    QCOMPARE(names, QStringList({"plate_2", "hole_2"}));
    QCOMPARE(NamesOf(list),
             QStringList({"plate", "hole", "body", "rounding", "plate_2", "hole_2"}));
    QCOMPARE(FieldText(list.At(5), "radius"), QString("width / 4"));
}

void tst_FeatureCopy::CopiesFollowEachOther()
{
    QStringList names;
    const FeatureList list = WithPastedFeatures(
        Plate(), CopiedFeatures(Plate(), {"plate", "hole", "body", "rounding"}), names);
    QCOMPARE(list.At(6).inputs, QStringList({"plate_2", "hole_2"}));
    QCOMPARE(list.At(7).inputs, QStringList("body_2"));
    QCOMPARE(list.At(7).edges[0].Text(), QString("body_2/hole_2.side | plate_2.zmax"));
    list.Check();
}

void tst_FeatureCopy::CopiesKeepInputsThatAreNotCopied()
{
    QStringList names;
    const FeatureList list =
        WithPastedFeatures(Plate(), CopiedFeatures(Plate(), {"rounding"}), names);
    QCOMPARE(list.At(4).inputs, QStringList("body"));
    QCOMPARE(list.At(4).edges, list.At(3).edges);
}

void tst_FeatureCopy::NumbersOfNamesDoNotGrowLonger()
{
    FeatureList list = Plate();
    for (int copies = 0; copies < 2; ++copies) {
        QStringList names;
        list = WithPastedFeatures(list, CopiedFeatures(list, {NamesOf(list).last()}), names);
    }
    QCOMPARE(NamesOf(list).mid(4), QStringList({"rounding_2", "rounding_3"}));
}

void tst_FeatureCopy::AnotherProjectTakesTheNamesAsTheyAre()
{
    QStringList names;
    const QString text = CopiedFeatures(Plate(), NamesOf(Plate()));
    QCOMPARE(WithPastedFeatures({}, text, names), Plate());
    QCOMPARE(names, NamesOf(Plate()));
}

void tst_FeatureCopy::OtherTextsAreRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reason");
    const QString none = "The clipboard has no copied features. Copy features first.";
    QTest::newRow("nothing") << QString() << none;
    QTest::newRow("a word") << QString("plate") << none;
    QTest::newRow("other JSON") << QString("{\"a\": 1}") << none;
    QTest::newRow("a list") << QString("[1]") << none;
    QTest::newRow("more than features") << QString("{\"features\": [], \"a\": 1}")
                                        << QString("the clipboard has the unknown entry \"a\"");
    QTest::newRow("an unknown kind")
        << QString("{\"features\": [{\"name\": \"a\", \"kind\": \"blob\"}]}")
        << QString("feature 1, \"a\", has the unknown kind \"blob\"");
}

void tst_FeatureCopy::OtherTextsAreRefused()
{
    QFETCH(QString, text);
    QFETCH(QString, reason);
    QStringList names;
    try {
        WithPastedFeatures(Plate(), text, names);
        QFAIL("the text was taken");
    } catch (const JsonError& error) {
        QCOMPARE(error.Reason(), reason);
    }
}

QTEST_GUILESS_MAIN(tst_FeatureCopy)
#include "tst_FeatureCopy.moc"
