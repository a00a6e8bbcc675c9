#include "BuildError.h"
#include "FeatureList.h"
#include "JsonSection.h"
#include "NewFeature.h"
#include "TestCase.h"

#include <QJsonDocument>

class tst_FeatureList : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AFeatureIsReadWithAllItsEntries();
    void WrittenContentReadsBackUnchanged();
    void NumbersAreWrittenAsNumbersAndTextsUnchanged();
    void BadJsonIsReportedInOneLine_data();
    void BadJsonIsReportedInOneLine();
    void AnInvalidListNamesTheFeature_data();
    void AnInvalidListNamesTheFeature();
    void FeaturesAreFoundByName();
    void FeaturesAtFacesReferToTheirMakers();
    void NewNamesAreUnique();
    void ARenamedFeatureKeepsItsUsers();
    void FeaturesAreMovedUpAndDown();
    void FeaturesAreSuppressedAndRemoved();
};

Q_DECLARE_METATYPE(FeatureList)

static QJsonArray Json(const QByteArray& features)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson("[" + features + "]", &error);
    if (error.error != QJsonParseError::NoError)
        FailTest(QString("The test's list is not JSON: %1").arg(QString(features)));
    return document.array();
}

static FeatureList List(const QByteArray& features)
{
    return FeatureList::FromJson(Json(features));
}

// Boxes "a" and "b", "b" moved as "c", and "a" less "c" as "d".
static FeatureList FourFeatures()
{
    FeatureList list;
    list.Append(NewFeature("a", "box"));
    list.Append(NewFeature("b", "box"));
    list.Append(NewFeature("c", "move", {"b"}));
    list.Append(NewFeature("d", "cut", {"a", "c"}));
    return list;
}

static QString Names(const FeatureList& list)
{
    QStringList names;
    for (const Feature& feature : list.Features())
        names << feature.name;
    return names.join(' ');
}

static QString Reason(const FeatureList& list)
{
    try {
        list.Check();
    } catch (const BuildError& error) {
        return error.Reason();
    }
    return "nothing is wrong";
}

void tst_FeatureList::AFeatureIsReadWithAllItsEntries()
{
    const FeatureList list = List(
        R"({"name": "板", "kind": "box", "fields": {"y": "2 * 宽", "x": 2.5}, "suppressed": true},
           {"name": "b", "kind": "move", "inputs": ["板"]},
           {"name": "c", "kind": "import", "file": "parts/c.step"})");
    QCOMPARE(list.Size(), 3);
    QCOMPARE(list.At(0).name, QString("板"));
    QCOMPARE(list.At(0).kind, &KindOf("box"));
    QVERIFY(list.At(0).suppressed);
    QCOMPARE(list.At(0).fields.mid(0, 3), QStringList({"2.5", "2 * 宽", "10"}));
    QCOMPARE(list.At(1).inputs, QStringList("板"));
    QVERIFY(!list.At(1).suppressed);
    QCOMPARE(list.At(2).file, QString("parts/c.step"));
    QVERIFY(List("").IsEmpty());
}

void tst_FeatureList::WrittenContentReadsBackUnchanged()
{
    FeatureList list;
    for (const FeatureKind& kind : FeatureKinds::All()) {
        Feature feature(kind);
        feature.name = QString("%1 of all").arg(kind.word);
        for (int input = 0; input < kind.minInputs; ++input)
            feature.inputs << list.At(input).name;
        for (QString& field : feature.fields)
            field += " * p";
        feature.suppressed = list.Size() % 2 == 1;
        if (kind.readsFile)
            feature.file = "a.step";
        list.Append(feature);
    }
    QVERIFY(FeatureList::FromJson(list.ToJson()) == list);
    QVERIFY(FeatureList::FromJson(FourFeatures().ToJson()) == FourFeatures());
    QVERIFY(FourFeatures() != list);
}

void tst_FeatureList::NumbersAreWrittenAsNumbersAndTextsUnchanged()
{
    FeatureList list;
    for (const QStringList& fields :
         {QStringList({"0.1", "1e+06", "-3"}), QStringList({" 5", "5.0", "1e400"}),
          QStringList({"nan", "", "r / 2"})}) {
        Feature box = NewFeature(list.UniqueName("a"), "box");
        for (int side = 0; side < fields.size(); ++side)
            box.fields[side] = fields[side];
        list.Append(box);
    }
    const QJsonArray json = list.ToJson();
    const auto fields = [&](int index) {
        return QJsonDocument(json[index].toObject()["fields"].toObject())
            .toJson(QJsonDocument::Compact);
    };
    QCOMPARE(fields(0), QByteArray(R"({"x":0.1,"y":1000000,"z":-3})"));
    QCOMPARE(fields(1), QByteArray(R"({"x":" 5","y":"5.0","z":"1e400"})"));
    QCOMPARE(fields(2), QByteArray(R"({"x":"nan","y":"","z":"r / 2"})"));
    QVERIFY(FeatureList::FromJson(json) == list);
}

void tst_FeatureList::BadJsonIsReportedInOneLine_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const char* json, const char* reason) {
        QTest::newRow(name) << QByteArray(json) << QString(reason);
    };
    row("no object", "5", "feature 1 must be an object");
    row("no name", R"({"kind": "box"})", "feature 1 has no \"name\"");
    row("empty name", R"({"name": "", "kind": "box"})", "feature 1 has no \"name\"");
    row("blank name", R"({"name": " ", "kind": "box"})", "features: ?: the feature has no name.");
    row("no kind", R"({"name": "a"})", "feature 1, \"a\", has no \"kind\"");
    row("unknown error", R"({"name": "a", "kind": "Box"})",
        "feature 1, \"a\", has the unknown kind \"Box\"");
    row("kind is a number", R"({"name": "a", "kind": 1})",
        "feature 1, \"a\", has a \"kind\" that is not a text");
    row("unknown entry", R"({"name": "a", "kind": "box", "input": []})",
        "feature 1 has the unknown entry \"input\"");
    row("unknown field", R"({"name": "a", "kind": "box", "fields": {"radius": 1}})",
        "feature 1, \"a\", in its \"fields\" has the unknown entry \"radius\"");
    row("fields are a list", R"({"name": "a", "kind": "box", "fields": [1, 2, 3]})",
        "feature 1, \"a\", in its \"fields\" must be an object");
    row("field is a list", R"({"name": "a", "kind": "box", "fields": {"x": [1]}})",
        "feature 1, \"a\", in its \"fields\" has a \"x\" that is not a number or an expression");
    row("field is null", R"({"name": "a", "kind": "box", "fields": {"x": null}})",
        "feature 1, \"a\", in its \"fields\" has a \"x\" that is not a number or an expression");
    row("suppressed is a number", R"({"name": "a", "kind": "box", "suppressed": 1})",
        "feature 1, \"a\", has a \"suppressed\" that is not true or false");
    row("inputs are a text",
        R"({"name": "a", "kind": "box"}, {"name": "b", "kind": "move", "inputs": "a"})",
        "feature 2, \"b\", has a \"inputs\" that is not a list");
    row("input is a number",
        R"({"name": "a", "kind": "box"}, {"name": "b", "kind": "move", "inputs": [1]})",
        "feature 2, \"b\", has a \"inputs\" that is not a list of texts");
    row("file is a number", R"({"name": "a", "kind": "import", "file": 1})",
        "feature 1, \"a\", has a \"file\" that is not a text");
    row("no file", R"({"name": "a", "kind": "import"})",
        "features: a: the path of the file to import is empty.");
    row("two of a name", R"({"name": "a", "kind": "box"}, {"name": "a", "kind": "box"})",
        "features: a: another feature has the same name.");
}

void tst_FeatureList::BadJsonIsReportedInOneLine()
{
    QFETCH(QByteArray, json);
    QString reason = "it was read";
    try {
        List(json);
    } catch (const JsonError& error) {
        reason = error.Reason();
    }
    QTEST(reason, "reason");
}

void tst_FeatureList::AnInvalidListNamesTheFeature_data()
{
    QTest::addColumn<FeatureList>("list");
    QTest::addColumn<QString>("reason");
    const auto with = [](const char* name, const Feature& feature, const char* reason) {
        FeatureList list = FourFeatures();
        list.Append(feature);
        QTest::newRow(name) << list << QString(reason);
    };
    QTest::newRow("nothing") << FourFeatures() << "nothing is wrong";
    with("primitive with input", NewFeature("e", "box", {"a"}),
         "e: a feature of kind \"box\" takes no input, but has 1.");
    with("move without input", NewFeature("e", "move"),
         "e: a feature of kind \"move\" takes one input, but has 0.");
    with("move of two", NewFeature("e", "move", {"a", "b"}),
         "e: a feature of kind \"move\" takes one input, but has 2.");
    with("fuse of one", NewFeature("e", "fuse", {"a"}),
         "e: a feature of kind \"fuse\" takes at least 2 inputs, but has 1.");
    with("the same twice", NewFeature("e", "fuse", {"a", "a"}), "e: it has the input \"a\" twice.");
    with("unknown input", NewFeature("e", "move", {"x"}), "e: its input \"x\" does not exist.");
    with("itself", NewFeature("e", "move", {"e"}), "e: its input \"e\" is not an earlier feature.");
    Feature few = NewFeature("e", "box");
    few.fields.removeLast();
    with("too few fields", few, "e: a feature of kind \"box\" needs 9 fields, but has 8.");
    Feature file = NewFeature("e", "box");
    file.file = "a.step";
    Feature edges = NewFeature("e", "box");
    edges.edges = {{{}, {"1", "2", "3"}}};
    with("edges for a box", edges, "e: a feature of kind \"box\" has no edges.");
    Feature face = NewFeature("e", "fillet", {"a"});
    face.face = FaceReference{"a.xmin", {}};
    with("face for a fillet", face, "e: a feature of kind \"fillet\" has no face.");
    Feature profile = NewFeature("e", "box");
    profile.profile = SquareProfile();
    with("profile for a box", profile, "e: a feature of kind \"box\" has no profile.");
    Feature empty = NewFeature("e", "extrude");
    empty.profile.clear();
    with("no profile", empty, "e: a feature of kind \"extrude\" needs a profile.");
    with("file for a box", file, "e: a feature of kind \"box\" has no file.");

    FeatureList list = FourFeatures();
    list.Move(2, 1);
    QTest::newRow("user before its input")
        << list << "c: its input \"b\" is not an earlier feature.";
    list = FourFeatures();
    list.Replace(1, NewFeature("b", "move", {"d"}));
    QTest::newRow("in a circle") << list << "b: its input \"d\" is not an earlier feature.";
    list = FourFeatures();
    list.Remove(1);
    QTest::newRow("removed input") << list << "c: its input \"b\" does not exist.";
    list = FeatureList();
    for (int i = 0; i <= FeatureList::MaximumSize; ++i)
        list.Append(NewFeature(QString::number(i), "box"));
    QTest::newRow("too many") << list << "Too many features: 1001 (maximum 1000).";
}

void tst_FeatureList::AnInvalidListNamesTheFeature()
{
    QFETCH(FeatureList, list);
    QTEST(Reason(list), "reason");
}

void tst_FeatureList::FeaturesAreFoundByName()
{
    const FeatureList list = FourFeatures();
    QCOMPARE(list.Find("a"), 0);
    QCOMPARE(list.Find("d"), 3);
    QCOMPARE(list.Find("D"), -1);
    QCOMPARE(list.UsersOf("b"), QStringList("c"));
    QCOMPARE(list.UsersOf("d"), QStringList());
}

void tst_FeatureList::FeaturesAtFacesReferToTheirMakers()
{
    FeatureList list = FourFeatures();
    Feature image = NewFeature("image", "mirrorFace", {"d"});
    image.face = FaceReference{"a.xmax", {}};
    list.Append(image);
    QCOMPARE(list.UsersOf("a").contains("image"), false);
    QCOMPARE(list.ReferrersOf("a").contains("image"), true);
    QCOMPARE(list.ReferrersOf("d"), QStringList("image"));
    QCOMPARE(list.ReferrersOf("image"), QStringList());
}

void tst_FeatureList::NewNamesAreUnique()
{
    FeatureList list = FourFeatures();
    QCOMPARE(list.UniqueName("e"), QString("e"));
    QCOMPARE(list.UniqueName("a"), QString("a_2"));
    list.Append(NewFeature("a_2", "box"));
    QCOMPARE(list.UniqueName("a"), QString("a_3"));
}

void tst_FeatureList::ARenamedFeatureKeepsItsUsers()
{
    FeatureList list = FourFeatures();
    Feature moved = list.At(2);
    moved.name = "tool";
    list.Replace(2, moved);
    QCOMPARE(list.At(3).inputs, QStringList({"a", "tool"}));
    QCOMPARE(Reason(list), QString("nothing is wrong"));
}

void tst_FeatureList::FeaturesAreMovedUpAndDown()
{
    FeatureList list = FourFeatures();
    list.Move(0, 2);
    QCOMPARE(Names(list), QString("b c a d"));
    QCOMPARE(Reason(list), QString("nothing is wrong"));
    list.Move(3, 0);
    QCOMPARE(Names(list), QString("d b c a"));
    list.Move(1, 1);
    QCOMPARE(Names(list), QString("d b c a"));
}

void tst_FeatureList::FeaturesAreSuppressedAndRemoved()
{
    FeatureList list = FourFeatures();
    list.SetSuppressed(3, true);
    QVERIFY(list.At(3).suppressed);
    QVERIFY(list != FourFeatures());
    list.SetSuppressed(3, false);
    QVERIFY(list == FourFeatures());
    list.Remove(3);
    QCOMPARE(Names(list), QString("a b c"));
    list.Insert(1, NewFeature("x", "sphere"));
    QCOMPARE(Names(list), QString("a x b c"));
}

TARN_TEST_MAIN(tst_FeatureList)
#include "tst_FeatureList.moc"
