#include "DrawerOutput.h"
#include "EmptyDesignStores.h"
#include "FeatureDialog.h"
#include "FeatureDialogs.h"
#include "HostApplication.h"
#include "MessageLevel.h"
#include "ModalDriver.h"
#include "NewFeature.h"
#include "TestCase.h"

#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>

#include <utility>
#include <vector>

// What is typed into one dialog: object names of line edits, and texts.
using Typed = std::vector<std::pair<QString, QString>>;
Q_DECLARE_METATYPE(Typed)

class tst_FeatureDialogs : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void KindsWithoutADialogAreTold();
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
    void WhatTheDialogDoesNotAskIsKept();
    void AZeroDirectionIsToldAndTheDialogWaits_data();
    void AZeroDirectionIsToldAndTheDialogWaits();
    void AfterAZeroDirectionTheDialogCanBeCancelled();
    void ANumberOutOfRangeIsToldAndTheDialogWaits_data();
    void ANumberOutOfRangeIsToldAndTheDialogWaits();
    void TheSecondDialogOfAPolygonCanBeCancelled();
    void TheModesOfTheMirrorAreKinds_data();
    void TheModesOfTheMirrorAreKinds();
    void AMirrorOpensInItsMode_data();
    void AMirrorOpensInItsMode();
    void APointMirrorIsAtTheOrigin();
    void ThePointOfAPointMirrorSurvives();
    void AnotherModeStartsWithItsDefaults();

private:
    static void AddKindRows();
};

namespace {

const std::vector<const char*> DialogKinds = {
    "sphere", "torus",  "cone",       "wedge",      "polygon",
    "move",   "rotate", "mirrorAxis", "polarArray", "rectangularArray"};

void PressOK(const QDialog& dialog)
{
    const bool isArray = dialog.findChild<QWidget*>("pushButtonOK") != nullptr;
    Click(dialog, isArray ? "pushButtonOK" : "pushButton_OK");
}

void Fill(const QDialog& dialog, const Typed& typed)
{
    for (const auto& [edit, text] : typed)
        Find<QLineEdit>(dialog, edit.toLatin1().constData()).setText(text);
}

void FillAndPressOK(ModalDriver& user, const Typed& typed)
{
    user.Then([typed](QDialog& dialog) {
        Fill(dialog, typed);
        PressOK(dialog);
    });
}

// The dialogs of a kind one after another, with what they must be given before OK.
void PressThrough(ModalDriver& user, const QByteArray& kind, bool isNew)
{
    if (kind == "polygon")
        FillAndPressOK(user, isNew ? Typed{{"lineEdit_EdgeNumber", "6"}} : Typed{});
    FillAndPressOK(user, {});
}

QString Shown(const QDialog& dialog, const char* edit)
{
    return Find<QLineEdit>(dialog, edit).text();
}

void SetParameter(const QString& name, double value)
{
    ParametersDef record;
    record.m_strName = name;
    record.m_nType = ParametersDef::ScalarType;
    record.m_dValue = value;
    GlobalParaMeterMgr::AddParameter(name, record);
}

struct Asked
{
    EmptyDesignStores stores;
    QWidget window;
    FeatureDialogs dialogs{&window};
    ModalDriver user;
    QSignalSpy posted{DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage};
};

} // namespace

void tst_FeatureDialogs::AddKindRows()
{
    QTest::addColumn<QByteArray>("kind");
    for (const char* const kind : DialogKinds)
        QTest::newRow(kind) << QByteArray(kind);
}

void tst_FeatureDialogs::KindsWithoutADialogAreTold()
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
    // Whatever the fields are before: the dialog's own defaults count.
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
        QCOMPARE(result->fields.join(' '), fields);
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

void tst_FeatureDialogs::WhatTheDialogDoesNotAskIsKept()
{
    Asked asked;
    FillAndPressOK(asked.user, {{"lineEdit_Angle2", "45"}});
    const std::optional<Feature> result =
        asked.dialogs.AskChanges(NewFeature("ball", "sphere", {}, {{"radius", "unknown / 2"}}));
    QVERIFY(result.has_value());
    QCOMPARE(FieldText(*result, "radius"), QString("unknown / 2"));
    QCOMPARE(FieldText(*result, "angle2"), QString("45"));
}

void tst_FeatureDialogs::AZeroDirectionIsToldAndTheDialogWaits_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QString>("zEdit");
    QTest::addColumn<bool>("byEnter");
    const std::pair<const char*, const char*> rows[] = {
        {"rotate", "lineEdit_zDir"},
        {"mirrorAxis", "lineEdit_axisZ"},
        {"polarArray", "lineEdit_Dirz"},
        {"polygon", "lineEdit_ZDir"},
    };
    for (const auto& [kind, edit] : rows) {
        QTest::addRow("%s, by the mouse", kind) << QByteArray(kind) << QString(edit) << false;
        QTest::addRow("%s, by Enter", kind) << QByteArray(kind) << QString(edit) << true;
    }
}

void tst_FeatureDialogs::AZeroDirectionIsToldAndTheDialogWaits()
{
    QFETCH(QByteArray, kind);
    QFETCH(QString, zEdit);
    QFETCH(bool, byEnter);
    Asked asked;
    if (kind == "polygon")
        FillAndPressOK(asked.user, {{"lineEdit_EdgeNumber", "6"}});
    QDialog* shown = nullptr;
    asked.user.Then([&](QDialog& dialog) {
        shown = &dialog;
        auto& edit = Find<QLineEdit>(dialog, zEdit.toLatin1().constData());
        edit.setText("0");
        edit.setFocus();
        if (byEnter)
            QTest::keyClick(&edit, Qt::Key_Return);
        else
            PressOK(dialog);
    });
    asked.user.Then([&](QDialog& dialog) {
        QCOMPARE(&dialog, shown);
        QVERIFY(dialog.isVisible());
        QCOMPARE(Shown(dialog, zEdit.toLatin1().constData()), QString("0"));
        QCOMPARE(asked.posted.count(), 1);
        Fill(dialog, {{zEdit, "-2"}});
        PressOK(dialog);
    });
    const std::optional<Feature> result = asked.dialogs.AskNew(Feature(KindOf(kind)));
    QVERIFY(asked.user.IsDone());
    QVERIFY(result.has_value());
    // The mirror's direction is taken as typed, the others as the dialogs give it.
    QCOMPARE(FieldText(*result, "dz"), QString(kind == "mirrorAxis" ? "-2" : "-1"));
    QCOMPARE(asked.posted.count(), 1);
    QCOMPARE(asked.posted[0][0].toInt(), int(WarningLevel));
    QVERIFY(asked.posted[0][1].toString().contains("direction"));
}

void tst_FeatureDialogs::AfterAZeroDirectionTheDialogCanBeCancelled()
{
    Asked asked;
    FillAndPressOK(asked.user, {{"lineEdit_zDir", "0"}});
    asked.user.Then([](QDialog& dialog) { Click(dialog, "pushButton_Cancel"); });
    QVERIFY(!asked.dialogs.AskNew(Feature(KindOf("rotate"))).has_value());
    QVERIFY(asked.user.IsDone());
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void tst_FeatureDialogs::ANumberOutOfRangeIsToldAndTheDialogWaits_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("bad");
    QTest::addColumn<QString>("good");
    QTest::addColumn<QString>("key");
    QTest::newRow("no instance") << QByteArray("polarArray") << "lineEdit_Num"
                                 << "0"
                                 << "1"
                                 << "number";
    QTest::newRow("too many instances") << QByteArray("polarArray") << "lineEdit_Num"
                                        << "10001"
                                        << "10000"
                                        << "number";
    QTest::newRow("no column") << QByteArray("rectangularArray") << "lineEdit_XNum"
                               << ""
                               << "2"
                               << "xNumber";
    QTest::newRow("empty sweep") << QByteArray("cone") << "lineEdit_Angle"
                                 << "0"
                                 << "360"
                                 << "angle";
    QTest::newRow("infinite") << QByteArray("move") << "lineEdit_Dx"
                              << "inf"
                              << "5"
                              << "dx";
    QTest::newRow("far away") << QByteArray("mirrorAxis") << "lineEdit_axisPtX"
                              << "1e7"
                              << "1e5"
                              << "x";
}

void tst_FeatureDialogs::ANumberOutOfRangeIsToldAndTheDialogWaits()
{
    QFETCH(QByteArray, kind);
    QFETCH(QString, edit);
    QFETCH(QString, bad);
    QFETCH(QString, good);
    QFETCH(QString, key);
    Asked asked;
    FillAndPressOK(asked.user, {{edit, bad}});
    asked.user.Then([&](QDialog& dialog) {
        QCOMPARE(Shown(dialog, edit.toLatin1().constData()), bad);
        QCOMPARE(asked.posted.count(), 1);
        Fill(dialog, {{edit, good}});
        PressOK(dialog);
    });
    const std::optional<Feature> result = asked.dialogs.AskNew(Feature(KindOf(kind)));
    QVERIFY(asked.user.IsDone());
    QVERIFY(result.has_value());
    QCOMPARE(FieldText(*result, key.toLatin1().constData()).toDouble(), good.toDouble());
    QCOMPARE(asked.posted.count(), 1);
    QVERIFY(asked.posted[0][1].toString().contains("has to be"));
}

void tst_FeatureDialogs::TheSecondDialogOfAPolygonCanBeCancelled()
{
    Asked asked;
    FillAndPressOK(asked.user, {{"lineEdit_EdgeNumber", "5"}});
    asked.user.Then([](QDialog& dialog) { Click(dialog, "pushButton_Cancel"); });
    QVERIFY(!asked.dialogs.AskNew(Feature(KindOf("polygon"))).has_value());
    QVERIFY(asked.user.IsDone());
}

void tst_FeatureDialogs::TheModesOfTheMirrorAreKinds_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QByteArray>("kind");
    QTest::newRow("point") << "radioButton" << QByteArray("mirrorPoint");
    QTest::newRow("axis") << "radioButton_2" << QByteArray("mirrorAxis");
    QTest::newRow("face") << "radioButton_3" << QByteArray("mirrorFace");
}

void tst_FeatureDialogs::TheModesOfTheMirrorAreKinds()
{
    QFETCH(QString, button);
    QFETCH(QByteArray, kind);
    Asked asked;
    asked.user.Then([&](QDialog& dialog) {
        Find<QRadioButton>(dialog, button.toLatin1().constData()).setChecked(true);
        PressOK(dialog);
    });
    const std::optional<Feature> result =
        asked.dialogs.AskNew(NewFeature("x", "mirrorAxis", {"body"}));
    QVERIFY(result.has_value());
    QVERIFY(*result == NewFeature("x", kind.constData(), {"body"}));
}

void tst_FeatureDialogs::AMirrorOpensInItsMode_data()
{
    TheModesOfTheMirrorAreKinds_data();
}

void tst_FeatureDialogs::AMirrorOpensInItsMode()
{
    QFETCH(QString, button);
    QFETCH(QByteArray, kind);
    Asked asked;
    asked.user.Then([&](QDialog& dialog) {
        QVERIFY(Find<QRadioButton>(dialog, button.toLatin1().constData()).isChecked());
        PressOK(dialog);
    });
    const Feature feature =
        NewFeature("x", kind.constData(), {"body"}, {{"x", "1 + 1"}, {"y", "3"}});
    QVERIFY(asked.dialogs.AskChanges(feature) == feature);
    QVERIFY(asked.user.IsDone());
}

void tst_FeatureDialogs::APointMirrorIsAtTheOrigin()
{
    // The dialog gives the origin whatever is typed: the point is for the fields of the feature.
    Asked asked;
    asked.user.Then([](QDialog& dialog) {
        Find<QRadioButton>(dialog, "radioButton").setChecked(true);
        Fill(dialog, {{"lineEdit_Ptx", "5"}, {"lineEdit_Pty", "5"}, {"lineEdit_Ptz", "5"}});
        PressOK(dialog);
    });
    const std::optional<Feature> result = asked.dialogs.AskNew(NewFeature("x", "mirrorAxis"));
    QVERIFY(result.has_value());
    QCOMPARE(result->fields, QStringList({"0", "0", "0"}));
}

void tst_FeatureDialogs::ThePointOfAPointMirrorSurvives()
{
    Asked asked;
    asked.user.Then([](QDialog& dialog) {
        QCOMPARE(Shown(dialog, "lineEdit_Ptx"), QString("5"));
        PressOK(dialog);
    });
    const Feature feature = NewFeature("x", "mirrorPoint", {}, {{"x", "2 + 3"}});
    QVERIFY(asked.dialogs.AskChanges(feature) == feature);
}

void tst_FeatureDialogs::AnotherModeStartsWithItsDefaults()
{
    Asked asked;
    asked.user.Then([](QDialog& dialog) {
        Find<QRadioButton>(dialog, "radioButton_2").setChecked(true);
        Fill(dialog, {{"lineEdit_axisPtX", "9"}});
        PressOK(dialog);
    });
    const std::optional<Feature> result =
        asked.dialogs.AskChanges(NewFeature("x", "mirrorPoint", {"body"}, {{"y", "5"}}));
    QVERIFY(result.has_value());
    QVERIFY(*result == NewFeature("x", "mirrorAxis", {"body"}, {{"x", "9"}}));
}

TARN_TEST_MAIN(tst_FeatureDialogs, HostApplication)
#include "tst_FeatureDialogs.moc"
