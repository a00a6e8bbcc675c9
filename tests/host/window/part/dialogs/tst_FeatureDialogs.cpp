#include "AskedDialogs.h"
#include "FeatureDialog.h"
#include "HostApplication.h"

class tst_FeatureDialogs : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void SomeKindsHaveNoDialog();
    void OKTakesTheDialogsDefaults_data() { AddKindRows(); }
    void OKTakesTheDialogsDefaults();
    void CancelGivesNothing_data() { AddKindRows(); }
    void CancelGivesNothing();
    void TheDialogBelongsToTheWindow_data() { AddKindRows(); }
    void TheDialogBelongsToTheWindow();
    void ChangedNumbersAreTaken_data();
    void ChangedNumbersAreTaken();
    void ExpressionsSurviveAnUnchangedDialog_data() { AddKindRows(); }
    void ExpressionsSurviveAnUnchangedDialog();
    void AnExpressionIsShownAsItsNumber();
    void OnlyTheChangedNumberIsReplaced();
    void AnExpressionWithoutAValueSurvives();
    void ADirectionIsReplacedAsAWhole();
    void FieldsThatTheDialogLacksAreKept();

private:
    static void AddKindRows();
};

namespace {

const std::vector<const char*> DialogKinds = {
    "sphere", "torus",  "cone",       "wedge",      "polygon",
    "move",   "rotate", "mirrorAxis", "polarArray", "rectangularArray"};

// Presses OK in the dialogs of a kind, one after the other, with the texts that they require.
void PressThrough(ModalDriver& user, const QByteArray& kind, bool isNew)
{
    if (kind == "polygon")
        FillAndPressOK(user, isNew ? Typed{{"lineEdit_EdgeNumber", "6"}} : Typed{});
    FillAndPressOK(user, {});
}

void SetParameter(const QString& name, double value)
{
    ParametersDef record;
    record.m_strName = name;
    record.m_nType = ParametersDef::ScalarType;
    record.m_dValue = value;
    GlobalParaMeterMgr::AddParameter(name, record);
}

} // namespace

void tst_FeatureDialogs::AddKindRows()
{
    QTest::addColumn<QByteArray>("kind");
    for (const char* const kind : DialogKinds)
        QTest::newRow(kind) << QByteArray(kind);
}

void tst_FeatureDialogs::SomeKindsHaveNoDialog()
{
    for (const FeatureKind& kind : FeatureKinds::All()) {
        const bool isMirror =
            kind.word == QLatin1String("mirrorPoint") || kind.word == QLatin1String("mirrorFace");
        const bool hasDialog =
            isMirror || std::any_of(DialogKinds.begin(), DialogKinds.end(), [&](const char* word) {
                return kind.word == QLatin1String(word);
            });
        QCOMPARE(FeatureDialogs::Find(kind) != nullptr, hasDialog);
    }
    Asked asked;
    const Feature box = NewFeature("box", "box");
    QVERIFY(asked.dialogs.AskNew(box) == box);
}

void tst_FeatureDialogs::OKTakesTheDialogsDefaults()
{
    QFETCH(QByteArray, kind);
    Asked asked;
    PressThrough(asked.user, kind, true);
    // The dialog's own defaults replace the fields.
    Feature feature(KindOf(kind));
    const std::optional<Feature> result = asked.dialogs.AskNew(feature);
    QVERIFY(asked.user.IsDone());
    QVERIFY(result.has_value());
    QCOMPARE(result->fields, feature.fields);
    QCOMPARE(result->kind, feature.kind);
    QCOMPARE(asked.posted.count(), 0);
}

void tst_FeatureDialogs::CancelGivesNothing()
{
    QFETCH(QByteArray, kind);
    Asked asked;
    for (const bool isNew : {true, false}) {
        asked.user.Then([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        const Feature feature = NewFeature("x", kind);
        const std::optional<Feature> result =
            isNew ? asked.dialogs.AskNew(feature) : asked.dialogs.AskChanges(feature);
        QVERIFY(asked.user.IsDone());
        QVERIFY(!result.has_value());
    }
}

void tst_FeatureDialogs::TheDialogBelongsToTheWindow()
{
    QFETCH(QByteArray, kind);
    Asked asked;
    asked.user.Then([&asked](QDialog& dialog) {
        QCOMPARE(dialog.parentWidget(), &asked.window);
        QVERIFY(dialog.isWindow());
        dialog.reject();
    });
    asked.dialogs.AskNew(Feature(KindOf(kind)));
    QVERIFY(asked.user.IsDone());
    QVERIFY(asked.window.findChildren<QDialog*>().isEmpty());
}

void tst_FeatureDialogs::ChangedNumbersAreTaken_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<Typed>("first");
    QTest::addColumn<Typed>("second");
    QTest::addColumn<QString>("fields");
    const auto row = [](const char* kind, const Typed& first, const Typed& second,
                        const QString& fields) {
        QTest::newRow(kind) << QByteArray(kind) << first << second << fields;
    };
    row("sphere",
        {{"lineEdit_Angle1", "-45.5"}, {"lineEdit_Angle2", "30"}, {"lineEdit_Angle3", "1e2"}}, {},
        "10 -45.5 30 100");
    row("torus",
        {{"lineEdit_RadiusSweep", "2.5"},
         {"lineEdit_Angle1", "-90"},
         {"lineEdit_Angle2", "60"},
         {"lineEdit_Angle3", "180"}},
        {}, "10 2.5 -90 60 180");
    row("cone", {{"lineEdit_Height", "7"}, {"lineEdit_TopRadius", "0"}, {"lineEdit_Angle", "90"}},
        {}, "10 0 7 90");
    row("wedge",
        {{"lineEdit_Height", "1"},
         {"lineEdit_xmin", "2"},
         {"lineEdit_xmax", "3"},
         {"lineEdit_zmin", "4"},
         {"lineEdit_zmax", "5"}},
        {}, "20 30 1 2 3 4 5");
    row("polygon", {{"lineEdit_EdgeNumber", "8"}},
        {{"lineEdit_Height", "12"},
         {"lineEdit_XDir", "0"},
         {"lineEdit_YDir", "3"},
         {"lineEdit_ZDir", "4"}},
        "8 10 12 0 0.6 0.8");
    row("move", {{"lineEdit_Dx", "1"}, {"lineEdit_Dy", "-2"}, {"lineEdit_Dz", "0.1"}}, {},
        "1 -2 0.1");
    row("rotate",
        {{"lineEdit_xPt", "1"},
         {"lineEdit_yPt", "2"},
         {"lineEdit_zPt", "3"},
         {"lineEdit_xDir", "0"},
         {"lineEdit_yDir", "-5"},
         {"lineEdit_zDir", "0"},
         {"lineEdit_Degree", "-33.3"}},
        {}, "1 2 3 0 -1 0 -33.3");
    row("mirrorAxis",
        {{"lineEdit_axisPtX", "1"},
         {"lineEdit_axisPtY", "2"},
         {"lineEdit_axisPtZ", "3"},
         {"lineEdit_axisX", "0"},
         {"lineEdit_axisY", "5"},
         {"lineEdit_axisZ", "0"}},
        {}, "1 2 3 0 5 0");
    row("polarArray",
        {{"lineEdit_AxisPtx", "1"},
         {"lineEdit_AxisPty", "2"},
         {"lineEdit_AxisPtz", "3"},
         {"lineEdit_Dirx", "7"},
         {"lineEdit_Diry", "0"},
         {"lineEdit_Dirz", "0"},
         {"lineEdit_Angle", "360"},
         {"lineEdit_Num", "12"}},
        {}, "1 2 3 1 0 0 360 12");
    row("rectangularArray",
        {{"lineEdit_XNum", "3"},
         {"lineEdit_YNum", "1"},
         {"lineEdit_XDis", "12.5"},
         {"lineEdit_YDis", "-8"}},
        {}, "3 1 12.5 -8");
}

void tst_FeatureDialogs::ChangedNumbersAreTaken()
{
    QFETCH(QByteArray, kind);
    QFETCH(Typed, first);
    QFETCH(Typed, second);
    QFETCH(QString, fields);
    for (const bool isNew : {true, false}) {
        Asked asked;
        FillAndPressOK(asked.user, first);
        if (!second.empty())
            FillAndPressOK(asked.user, second);
        const Feature feature = NewFeature("x", kind.constData(), {"body"});
        const std::optional<Feature> result =
            isNew ? asked.dialogs.AskNew(feature) : asked.dialogs.AskChanges(feature);
        QVERIFY(asked.user.IsDone());
        QVERIFY(result.has_value());
        // Dialogs do not ask for the placement.
        QCOMPARE(result->fields.mid(0, fields.split(' ').size()).join(' '), fields);
        QCOMPARE(result->inputs, QStringList("body"));
        QCOMPARE(result->name, QString("x"));
    }
}

void tst_FeatureDialogs::ExpressionsSurviveAnUnchangedDialog()
{
    QFETCH(QByteArray, kind);
    Asked asked;
    SetParameter("one", 1.0);
    Feature feature(KindOf(kind));
    for (QString& text : feature.fields)
        text = QString("%1 * one / 3 * 3").arg(text);
    // Components that their direction's length does not leave as they are.
    for (const char* const key : {"dx", "dy", "dz"}) {
        const std::size_t index = feature.kind->IndexOf(key);
        if (index < feature.kind->fields.size())
            feature.fields[int(index)] = "7 * one / 3";
    }
    PressThrough(asked.user, kind, false);
    const std::optional<Feature> result = asked.dialogs.AskChanges(feature);
    QVERIFY(asked.user.IsDone());
    QVERIFY(result.has_value());
    QCOMPARE(result->fields, feature.fields);
    QCOMPARE(asked.posted.count(), 0);
}

void tst_FeatureDialogs::AnExpressionIsShownAsItsNumber()
{
    Asked asked;
    SetParameter("length", 12.5);
    asked.user.Then([](QDialog& dialog) {
        QCOMPARE(Shown(dialog, "lineEdit_Dx"), QString("25"));
        QCOMPARE(Shown(dialog, "lineEdit_Dy"), QString("0.1"));
        dialog.reject();
    });
    asked.dialogs.AskChanges(NewFeature("x", "move", {}, {{"dx", "2 * length"}, {"dy", "0.1"}}));
    QVERIFY(asked.user.IsDone());
}

void tst_FeatureDialogs::OnlyTheChangedNumberIsReplaced()
{
    Asked asked;
    SetParameter("length", 12.5);
    FillAndPressOK(asked.user, {{"lineEdit_Dy", "7"}});
    const std::optional<Feature> result = asked.dialogs.AskChanges(
        NewFeature("x", "move", {}, {{"dx", "2 * length"}, {"dy", "length"}, {"dz", "-length"}}));
    QVERIFY(result.has_value());
    QCOMPARE(result->fields, QStringList({"2 * length", "7", "-length"}));
}

void tst_FeatureDialogs::AnExpressionWithoutAValueSurvives()
{
    Asked asked;
    asked.user.Then([](QDialog& dialog) {
        QCOMPARE(Shown(dialog, "lineEdit_Dx"), QString("nuts"));
        Fill(dialog, {{"lineEdit_Dy", "7"}});
        PressOK(dialog);
    });
    const std::optional<Feature> result =
        asked.dialogs.AskChanges(NewFeature("x", "move", {}, {{"dx", "nuts"}}));
    QVERIFY(result.has_value());
    QCOMPARE(result->fields, QStringList({"nuts", "7", "0"}));
}

void tst_FeatureDialogs::ADirectionIsReplacedAsAWhole()
{
    Asked asked;
    SetParameter("one", 1.0);
    FillAndPressOK(asked.user, {{"lineEdit_xDir", "3"}});
    const std::optional<Feature> result = asked.dialogs.AskChanges(
        NewFeature("x", "rotate", {},
                   {{"dy", "4 * one"}, {"dz", "0 * one"}, {"x", "one"}, {"angle", "10 * one"}}));
    QVERIFY(result.has_value());
    QCOMPARE(result->fields, QStringList({"one", "0", "0", "0.6", "0.8", "0", "10 * one"}));
}

void tst_FeatureDialogs::FieldsThatTheDialogLacksAreKept()
{
    Asked asked;
    FillAndPressOK(asked.user, {{"lineEdit_Angle2", "45"}});
    const std::optional<Feature> result =
        asked.dialogs.AskChanges(NewFeature("ball", "sphere", {}, {{"radius", "unknown / 2"}}));
    QVERIFY(result.has_value());
    QCOMPARE(FieldText(*result, "radius"), QString("unknown / 2"));
    QCOMPARE(FieldText(*result, "angle2"), QString("45"));
}

TARN_TEST_MAIN(tst_FeatureDialogs, HostApplication)
#include "tst_FeatureDialogs.moc"
