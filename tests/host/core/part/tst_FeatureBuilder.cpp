#include "BodyFormulas.h"
#include "EmptyDesignStores.h"
#include "FeatureBuilder.h"
#include "FeatureList.h"
#include "GlobalParaMeterMgr.h"
#include "NewFeature.h"
#include "ParameterEvaluator.h"
#include "Project.h"
#include "RandomList.h"
#include "TestCase.h"

#include <TopoDS_Iterator.hxx>
#include <TopoDS_Shape.hxx>

#include <array>

class tst_FeatureBuilder : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheSampleFlangeHasTheVolumeOfItsFormula_data();
    void TheSampleFlangeHasTheVolumeOfItsFormula();
    void ThePartConsistsOfTheUnusedFeatures();
    void SuppressedFeaturesAreNotEvaluated_data();
    void SuppressedFeaturesAreNotEvaluated();
    void EveryNumericFieldTakesAnExpression_data();
    void EveryNumericFieldTakesAnExpression();
    void RandomListsAreBuiltTheSameTwice();
    void TooManyBodiesInAllAreRefused();
    void AFailureChangesNothing();
};

// Plate and hub less bore and holes, and the ring that the fillet fills between hub and plate.
static double FlangeVolume(double bore, double count, double fillet)
{
    const double outer = 200.0 * 200.0;
    const double hub = 112.0 * 112.0;
    const double ring =
        2.0 * Pi *
        ((56.0 + fillet) * fillet * fillet * (1.0 - Pi / 4.0) - fillet * fillet * fillet / 6.0);
    return Pi / 4.0 *
               ((outer - bore * bore - count * 18.0 * 18.0) * 20.0 + (hub - bore * bore) * 30.0) +
           ring;
}

void tst_FeatureBuilder::TheSampleFlangeHasTheVolumeOfItsFormula_data()
{
    QTest::addColumn<double>("count");
    QTest::addColumn<double>("fillet");
    QTest::addColumn<int>("faces");
    QTest::newRow("one hole") << 1.0 << 0.0 << 7;
    QTest::newRow("seven holes") << 7.0 << 0.0 << 13;
    QTest::newRow("four holes, fillet") << 4.0 << 5.0 << 11;
    QTest::newRow("two holes, large fillet") << 2.0 << 12.0 << 9;
    QTest::newRow("holes side by side") << 27.0 << 5.0 << 34;
}

void tst_FeatureBuilder::TheSampleFlangeHasTheVolumeOfItsFormula()
{
    const EmptyDesignStores stores;
    QFETCH(double, count);
    QFETCH(double, fillet);
    const Project project = Project::Load(Project::SamplePath());
    project.FillParameterStore();
    StoreScalar("bolt_count", count);
    StoreScalar("fillet_radius", fillet);
    QVERIFY(ParameterEvaluator::Evaluate().messages.empty());
    const TopoDS_Shape flange = FeatureBuilder::Build(project.Features()).shape;
    const double expected = FlangeVolume(70.0, count, fillet);
    const double built = MassOf(flange).volume;
    QVERIFY2(std::abs(built - expected) <= 1e-9 * expected,
             qPrintable(QString::number(built, 'g', 17)));
    QCOMPARE(flange.ShapeType(), TopAbs_SOLID);
    QTEST(Count(flange, TopAbs_FACE), "faces");
}

void tst_FeatureBuilder::ThePartConsistsOfTheUnusedFeatures()
{
    const EmptyDesignStores stores;
    QVERIFY(FeatureBuilder::Build(FeatureList()).shape.IsNull());

    const BuiltPart one = FeatureBuilder::Build(List(A10));
    QVERIFY(one.shape.IsEqual(one.shapes[0]));
    QCOMPARE(one.shape.ShapeType(), TopAbs_SOLID);

    const BuiltPart two = FeatureBuilder::Build(List(A10 + R"(, {"name": "b", "kind": "sphere"},
                        {"name": "c", "kind": "move", "inputs": ["a"], "fields": {"dx": 50}})"));
    QCOMPARE(two.shapes.size(), std::size_t(3));
    QCOMPARE(two.shape.ShapeType(), TopAbs_COMPOUND);
    TopoDS_Iterator it(two.shape);
    QVERIFY(it.Value().IsEqual(two.shapes[1]));
    it.Next();
    QVERIFY(it.Value().IsEqual(two.shapes[2]));
    it.Next();
    QVERIFY(!it.More());
}

void tst_FeatureBuilder::SuppressedFeaturesAreNotEvaluated_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<double>("volume"); // 0 where there is no part.
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QByteArray& list, double volume,
                        const char* reason = "it was built") {
        QTest::newRow(name) << list << volume << QString(reason);
    };
    const QByteArray off = "\"suppressed\": true, ";
    const auto list = [](const QByteArray& a, const QByteArray& b, const QByteArray& c,
                         const QByteArray& d) {
        return "{" + a + R"("name": "a", "kind": "box"}, {)" + b +
               R"("name": "b", "kind": "box", "fields": {"x": 5}}, {)" + c +
               R"("name": "c", "kind": "move", "inputs": ["b"], "fields": {"dz": 5}}, {)" + d +
               R"("name": "d", "kind": "cut", "inputs": ["a", "c"]})";
    };
    row("nothing", list("", "", "", ""), 750.0);
    row("the cut", list("", "", "", off), 1000.0);
    row("the move of the tool", list("", "", off, ""), 500.0);
    row("the tool", list("", off, "", ""), 0.0, "c: its input \"b\" is suppressed.");
    row("the tool and its move", list("", off, off, ""), 1000.0);
    row("the first input", list(off, "", "", ""), 0.0, "d: its input \"a\" is suppressed.");
    row("the first input and the cut", list(off, "", "", off), 0.0);
    row("everything", list(off, off, off, off), 0.0);
    row("what could not be built",
        A10 + R"(, {"name": "b", "kind": "fillet", "inputs": ["a"], "suppressed": true,
                    "fields": {"radius": -1, "x": "no such name"}})",
        1000.0);
}

void tst_FeatureBuilder::SuppressedFeaturesAreNotEvaluated()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, list);
    QFETCH(double, volume);
    QFETCH(QString, reason);
    QCOMPARE(Reason(List(list)), reason);
    if (reason != "it was built")
        return;
    const TopoDS_Shape shape = FeatureBuilder::Build(List(list)).shape;
    QCOMPARE(shape.IsNull(), volume == 0.0);
    if (volume > 0.0)
        QVERIFY(std::abs(MassOf(shape).volume - volume) <= 1e-9 * volume);
}

void tst_FeatureBuilder::EveryNumericFieldTakesAnExpression_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<int>("field");
    for (const FeatureKind& kind : FeatureKinds::All()) {
        for (std::size_t field = 0; field < kind.fields.size(); ++field)
            QTest::addRow("%s, %s", kind.word.data(), kind.fields[field].key.data())
                << QByteArray(kind.word.data()) << int(field);
    }
}

// A list that ends with a feature of this kind, which can be built.
static FeatureList ListWith(const FeatureKind& kind)
{
    FeatureList list;
    Feature feature(kind);
    feature.name = "feature";
    for (int input = 0; input < kind.minInputs; ++input) {
        const Feature box = NewFeature(QString("box %1").arg(input), "box");
        list.Append(box);
        feature.inputs << box.name;
    }
    if (kind.isAtFace)
        feature.fields = QStringList({"4", "3", "10"});
    if (kind.isAtEdges)
        feature.fields = QStringList({"2", "0", "10", "5"});
    list.Append(feature);
    return list;
}

void tst_FeatureBuilder::EveryNumericFieldTakesAnExpression()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, kind);
    QFETCH(int, field);
    const FeatureList plain = ListWith(KindOf(kind));
    const int last = plain.Size() - 1;
    Feature feature = plain.At(last);
    StoreScalar("p", feature.fields[field].toDouble() - 1.0);
    // The raw value is what expressions see.
    StoreScalar("raw", 1e9);
    GlobalParaMeterMgr::m_nameMapParameters["raw"].m_varRawValue = 2.0;
    feature.fields[field] = "p + raw - 1";
    FeatureList list = plain;
    list.Replace(last, feature);
    QVERIFY(AreClose(MassOf(FeatureBuilder::Build(list).shape),
                     MassOf(FeatureBuilder::Build(plain).shape)));

    // And it is this field that the expression is for.
    feature.fields[field] = "p + nothing";
    list.Replace(last, feature);
    const FieldDefinition& entry = KindOf(kind).fields[std::size_t(field)];
    QCOMPARE(Reason(list), QString("feature: %1 (\"p + nothing\") has no value: Position 5: the "
                                   "name 'nothing' is unknown.")
                               .arg(entry.label));
}

void tst_FeatureBuilder::RandomListsAreBuiltTheSameTwice()
{
    const EmptyDesignStores stores;
    int built = 0;
    for (unsigned seed = 0; seed < 200; ++seed) {
        const FeatureList list = RandomList(seed);
        const QByteArray where = "seed " + QByteArray::number(seed);
        std::array<TopoDS_Shape, 2> shapes;
        std::array<QString, 2> reasons;
        for (std::size_t time = 0; time < shapes.size(); ++time) {
            try {
                shapes[time] = FeatureBuilder::Build(list).shape;
            } catch (const FeatureError& error) {
                reasons[time] = error.Reason();
            }
        }
        QCOMPARE(reasons[0], reasons[1]);
        if (!reasons[0].isEmpty())
            continue;
        ++built;
        const Mass first = MassOf(shapes[0]);
        const Mass second = MassOf(shapes[1]);
        QVERIFY2(first.volume == second.volume && first.centre == second.centre, where);
        QVERIFY2(Count(shapes[0], TopAbs_FACE) == Count(shapes[1], TopAbs_FACE), where);
        QVERIFY2(Text(shapes[0]) == Text(shapes[1]), where);
    }
    // Some of them cut everything away.
    QVERIFY2(built >= 180, QByteArray::number(built));
}

void tst_FeatureBuilder::TooManyBodiesInAllAreRefused()
{
    const EmptyDesignStores stores;
    FeatureList list = List(A10);
    Feature array(KindOf("rectangularArray"));
    array.inputs = QStringList("a");
    array.fields = QStringList({"100", "100", "20", "20"});
    for (int i = 0; i < 10; ++i) {
        array.name = QString("array_%1").arg(i);
        list.Append(array);
    }
    QCOMPARE(Reason(list),
             QString("array_9: this feature would exceed the limit of 100000 bodies."));
}

void tst_FeatureBuilder::AFailureChangesNothing()
{
    const EmptyDesignStores stores;
    StoreScalar("size", 10.0);
    const FeatureList good = List(R"({"name": "a", "kind": "box", "fields": {"x": "size"}})");
    BuiltPart part = FeatureBuilder::Build(good);
    const std::string before = Text(part.shape);
    FeatureList bad = good;
    Feature sphere(KindOf("sphere"));
    sphere.name = "b";
    sphere.fields[0] = "-size";
    bad.Append(sphere);
    QVERIFY_EXCEPTION_THROWN(part = FeatureBuilder::Build(bad), FeatureError);
    QCOMPARE(Text(part.shape), before);
    QCOMPARE(part.shapes.size(), std::size_t(1));
    QCOMPARE(GlobalParaMeterMgr::GetAllParametersName(), std::vector<QString>({"size"}));
    QCOMPARE(Text(FeatureBuilder::Build(good).shape), before);
}

TARN_TEST_MAIN(tst_FeatureBuilder)
#include "tst_FeatureBuilder.moc"
