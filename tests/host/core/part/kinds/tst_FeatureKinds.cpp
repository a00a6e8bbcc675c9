#include "NewFeature.h"
#include "TestCase.h"

#include <QFile>
#include <QJsonDocument>
#include <QSet>

class tst_FeatureKinds : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void WordsAndKeysAreUnique();
    void EveryKindHasItsFields_data();
    void EveryKindHasItsFields();
    void EveryKindIsInTheTestOfItsFields();
    void TheManualHasEveryKind();
    void TheSchemaHasEveryKind();
    void KindsAreFoundByTheirExactWord();
    void DefaultsAreWithinTheirRules();
    void ANewFeatureHasTheDefaults();
};

void tst_FeatureKinds::WordsAndKeysAreUnique()
{
    QSet<QString> words;
    for (const FeatureKind& kind : FeatureKinds::All()) {
        QVERIFY(!kind.Title().isEmpty());
        QVERIFY(kind.build != nullptr);
        words.insert(kind.word);
        QSet<QString> keys;
        for (const FieldDefinition& field : kind.fields) {
            keys.insert(field.key);
            QVERIFY(!field.Label().isEmpty());
        }
        QCOMPARE(keys.size(), int(kind.fields.size()));
    }
    QCOMPARE(words.size(), int(FeatureKinds::All().size()));
}

namespace {

struct KindRow
{
    const char* word;
    const char* keys;
    int minInputs;
    int maxInputs;
};

constexpr int Any = FeatureKind::Unlimited;

const std::vector<KindRow> Rows = {
    {"box", "x y z moveX moveY moveZ turnX turnY turnZ", 0, 0},
    {"cylinder", "radius height angle moveX moveY moveZ turnX turnY turnZ", 0, 0},
    {"sphere", "radius angle1 angle2 angle3 moveX moveY moveZ turnX turnY turnZ", 0, 0},
    {"torus", "radius sweepRadius angle1 angle2 angle3 moveX moveY moveZ turnX turnY turnZ", 0, 0},
    {"cone", "baseRadius topRadius height angle moveX moveY moveZ turnX turnY turnZ", 0, 0},
    {"wedge", "x z height xmin xmax zmin zmax moveX moveY moveZ turnX turnY turnZ", 0, 0},
    {"polygon", "edges radius length dx dy dz moveX moveY moveZ turnX turnY turnZ", 0, 0},
    {"extrude", "length moveX moveY moveZ turnX turnY turnZ", 0, 0},
    {"revolve", "angle moveX moveY moveZ turnX turnY turnZ", 0, 0},
    {"import", "", 0, 0},
    {"move", "dx dy dz", 1, 1},
    {"rotate", "x y z dx dy dz angle", 1, 1},
    {"mirrorPoint", "x y z", 1, 1},
    {"mirrorAxis", "x y z dx dy dz", 1, 1},
    {"mirrorFace", "x y z", 1, 1},
    {"polarArray", "x y z dx dy dz angle number", 1, 1},
    {"rectangularArray", "xNumber yNumber xDistance yDistance", 1, 1},
    {"fuse", "", 2, Any},
    {"cut", "", 2, Any},
    {"common", "", 2, Any},
    {"fillet", "radius x y z", 1, 1},
    {"chamfer", "distance x y z", 1, 1},
};

QStringList Words()
{
    QStringList words;
    for (const FeatureKind& kind : FeatureKinds::All())
        words << kind.word;
    return words;
}

QByteArray Content(const QString& place)
{
    QFile file(SourcePath(place));
    if (!file.open(QIODevice::ReadOnly))
        FailTest(place + " cannot be read");
    return file.readAll();
}

} // namespace

void tst_FeatureKinds::EveryKindHasItsFields_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<int>("minInputs");
    QTest::addColumn<int>("maxInputs");
    for (const KindRow& row : Rows)
        QTest::newRow(row.word) << QString(row.keys) << row.minInputs << row.maxInputs;
}

void tst_FeatureKinds::EveryKindHasItsFields()
{
    const FeatureKind& kind = KindOf(QTest::currentDataTag());
    QStringList keys;
    for (const FieldDefinition& field : kind.fields)
        keys << field.key;
    QTEST(keys.join(' '), "keys");
    QTEST(kind.minInputs, "minInputs");
    QTEST(kind.maxInputs, "maxInputs");
}

void tst_FeatureKinds::EveryKindIsInTheTestOfItsFields()
{
    QStringList tested;
    for (const KindRow& row : Rows)
        tested << row.word;
    QCOMPARE(Words().join(' '), tested.join(' '));
}

void tst_FeatureKinds::TheManualHasEveryKind()
{
    const QByteArray page = Content("docs/manual/modelling.md");
    const QStringList words = Words();
    for (const QString& word : words)
        QVERIFY2(page.contains("\n| `" + word.toUtf8() + "` |"),
                 qPrintable("Add to the kinds in docs/manual/modelling.md: " + word));
}

void tst_FeatureKinds::TheSchemaHasEveryKind()
{
    const QJsonValue feature =
        QJsonDocument::fromJson(Content("docs/schemas/Project.schema.json"))["$defs"]["feature"];
    const QStringList listed = feature["properties"]["kind"]["enum"].toVariant().toStringList();
    const QStringList words = Words();
    for (const QString& word : words)
        QVERIFY2(listed.contains(word),
                 qPrintable("Add to the kinds in docs/schemas/Project.schema.json: " + word));
    QCOMPARE(listed.size(), words.size());
}

void tst_FeatureKinds::KindsAreFoundByTheirExactWord()
{
    QVERIFY(FeatureKinds::Find("polarArray") != nullptr);
    for (const char* const word : {"", "Box", "box ", "extrusion"})
        QVERIFY(FeatureKinds::Find(word) == nullptr);
}

void tst_FeatureKinds::DefaultsAreWithinTheirRules()
{
    for (const FeatureKind& kind : FeatureKinds::All()) {
        for (const FieldDefinition& field : kind.fields) {
            bool isNumber = false;
            const double value = QString(field.defaultText).toDouble(&isNumber);
            QVERIFY2(isNumber && field.rule.Allows(value), field.key.data());
        }
    }
}

void tst_FeatureKinds::ANewFeatureHasTheDefaults()
{
    const Feature torus(KindOf("torus"));
    QCOMPARE(torus.kind, &KindOf("torus"));
    QCOMPARE(torus.fields,
             QStringList({"10", "3", "-180", "180", "360", "0", "0", "0", "0", "0", "0"}));
    QVERIFY(torus.name.isEmpty() && torus.inputs.isEmpty() && torus.file.isEmpty());
    QVERIFY(!torus.suppressed && !torus.HasReferences() && torus.profile.empty());
    QCOMPARE(Feature(KindOf("extrude")).profile.size(), std::size_t(4));
}

TARN_TEST_MAIN(tst_FeatureKinds)
#include "tst_FeatureKinds.moc"
