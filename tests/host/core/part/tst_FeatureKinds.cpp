#include "FeatureKinds.h"
#include "TestCase.h"

#include <QSet>

#include <cmath>
#include <limits>
#include <utility>

class tst_FeatureKinds : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheTableIsInTheOrderOfTheKinds();
    void EveryKindHasItsFields_data();
    void EveryKindHasItsFields();
    void WordsAreFoundAsTheyAreWritten();
    void DefaultsAreWithinTheirRules();
    void ANewFeatureHasTheDefaults();
    void ARuleTellsWhatItAllows_data();
    void ARuleTellsWhatItAllows();
};

void tst_FeatureKinds::TheTableIsInTheOrderOfTheKinds()
{
    QCOMPARE(FeatureKinds::All().size(), std::size_t(FeatureKind::StepImport) + 1);
    QSet<QString> words;
    for (std::size_t index = 0; index < FeatureKinds::All().size(); ++index) {
        const FeatureKinds::Entry& entry = FeatureKinds::All()[index];
        QCOMPARE(std::size_t(entry.kind), index);
        QVERIFY(!FeatureKinds::Title(entry.kind).isEmpty());
        words.insert(entry.word);
        QSet<QString> keys;
        for (const FieldKind& field : entry.fields) {
            keys.insert(field.key);
            QVERIFY(!FeatureKinds::Label(field).isEmpty());
        }
        QCOMPARE(keys.size(), int(entry.fields.size()));
    }
    QCOMPARE(words.size(), int(FeatureKinds::All().size()));
}

void tst_FeatureKinds::EveryKindHasItsFields_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("inputs");
    const auto row = [](const char* word, const char* keys, const char* inputs) {
        QTest::newRow(word) << QString(keys) << QString(inputs);
    };
    row("box", "x y z", "none");
    row("cylinder", "radius height angle", "none");
    row("sphere", "radius angle1 angle2 angle3", "none");
    row("torus", "radius sweepRadius angle1 angle2 angle3", "none");
    row("cone", "baseRadius topRadius height angle", "none");
    row("wedge", "x z height xmin xmax zmin zmax", "none");
    row("polygon", "edges radius length dx dy dz", "none");
    row("move", "dx dy dz", "one");
    row("rotate", "x y z dx dy dz angle", "one");
    row("mirrorPoint", "x y z", "one");
    row("mirrorAxis", "x y z dx dy dz", "one");
    row("mirrorFace", "x y z", "one");
    row("polarArray", "x y z dx dy dz angle number", "one");
    row("rectangularArray", "xNumber yNumber xDistance yDistance", "one");
    row("fuse", "", "two or more");
    row("cut", "", "two or more");
    row("fillet", "radius x y z", "one");
    row("import", "", "none");
}

void tst_FeatureKinds::EveryKindHasItsFields()
{
    const std::optional<FeatureKind> kind = FeatureKinds::FromWord(QTest::currentDataTag());
    QVERIFY(kind.has_value());
    const FeatureKinds::Entry& entry = FeatureKinds::Of(*kind);
    QStringList keys;
    for (const FieldKind& field : entry.fields)
        keys << field.key;
    QTEST(keys.join(' '), "keys");
    const QString inputs = entry.mostInputs == FeatureKinds::AnyNumber ? "two or more"
                           : entry.mostInputs == 1                     ? "one"
                                                                       : "none";
    QTEST(inputs, "inputs");
    QCOMPARE(entry.leastInputs, entry.mostInputs == FeatureKinds::AnyNumber ? 2 : entry.mostInputs);
}

void tst_FeatureKinds::WordsAreFoundAsTheyAreWritten()
{
    QVERIFY(FeatureKinds::FromWord("polarArray") == FeatureKind::PolarArray);
    for (const char* const word : {"", "Box", "box ", "extrusion"})
        QVERIFY(!FeatureKinds::FromWord(word).has_value());
}

void tst_FeatureKinds::DefaultsAreWithinTheirRules()
{
    for (const FeatureKinds::Entry& entry : FeatureKinds::All()) {
        for (const FieldKind& field : entry.fields) {
            bool isNumber = false;
            const double value = QString(field.defaultText).toDouble(&isNumber);
            QVERIFY2(isNumber && field.rule.Allows(value), field.key.data());
        }
    }
}

void tst_FeatureKinds::ANewFeatureHasTheDefaults()
{
    const Feature torus = FeatureKinds::MakeFeature(FeatureKind::Torus);
    QCOMPARE(torus.kind, FeatureKind::Torus);
    QCOMPARE(torus.fields, QStringList({"10", "3", "-180", "180", "360"}));
    QVERIFY(torus.name.isEmpty() && torus.inputs.isEmpty() && torus.file.isEmpty());
    QVERIFY(!torus.suppressed);
}

void tst_FeatureKinds::ARuleTellsWhatItAllows_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("field");
    QTest::addColumn<QVector<double>>("allowed");
    QTest::addColumn<QVector<double>>("refused");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const char* kind, int field,
                        const QVector<double>& allowed, const QVector<double>& refused,
                        const char* text) {
        QTest::newRow(name) << QString(kind) << field << allowed << refused << QString(text);
    };
    row("length", "box", 0, {1e-4, 1e6}, {0, -1, 9.99e-5, 1000001}, "from 0.0001 to 1000000 mm");
    row("length or zero", "cone", 1, {0, 1e-4, 1e6}, {-1, 1e-5, 1000001},
        "0 or from 0.0001 to 1000000 mm");
    row("coordinate", "move", 0, {-1e6, 0, 1e-300, 1e6}, {1000001, -1000001},
        "from -1000000 to 1000000 mm");
    row("direction", "polygon", 3, {-1e6, 0, 1e6}, {1000001}, "from -1000000 to 1000000");
    row("sweep", "cylinder", 2, {1e-9, 360}, {0, -1, 360.001}, "above 0 and at most 360 degrees");
    row("latitude, from", "sphere", 1, {-90, 89.9}, {90, -90.1},
        "at least -90 and below 90 degrees");
    row("latitude, to", "sphere", 2, {-89.9, 90}, {-90, 90.1}, "above -90 and at most 90 degrees");
    row("tube, from", "torus", 2, {-180, -0.1}, {0, -180.1}, "at least -180 and below 0 degrees");
    row("tube, to", "torus", 3, {0.1, 180}, {0, 180.1}, "above 0 and at most 180 degrees");
    row("turn", "rotate", 6, {-360, 0, 360}, {-360.1, 360.1}, "from -360 to 360 degrees");
    row("edges", "polygon", 0, {3, 1000}, {2, 3.5, 1001}, "a whole number from 3 to 1000");
    row("instances", "polarArray", 7, {1, 10000}, {0, -1, 1.5, 10001},
        "a whole number from 1 to 10000");
}

void tst_FeatureKinds::ARuleTellsWhatItAllows()
{
    QFETCH(QString, kind);
    QFETCH(int, field);
    QFETCH(QVector<double>, allowed);
    QFETCH(QVector<double>, refused);
    const FieldRule& rule =
        FeatureKinds::Of(*FeatureKinds::FromWord(kind)).fields[std::size_t(field)].rule;
    for (const double value : allowed)
        QVERIFY2(rule.Allows(value), QByteArray::number(value));
    refused << std::numeric_limits<double>::quiet_NaN() << std::numeric_limits<double>::infinity()
            << -std::numeric_limits<double>::infinity();
    for (const double value : std::as_const(refused))
        QVERIFY2(!rule.Allows(value), QByteArray::number(value));
    QTEST(rule.Text(), "text");
}

TARN_TEST_MAIN(tst_FeatureKinds)
#include "tst_FeatureKinds.moc"
