#include "DrawerOutput.h"
#include "EmptyDesignStores.h"
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
Q_DECLARE_METATYPE(FeatureKind)

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

const std::vector<FeatureKind> DialogKinds = {
    FeatureKind::Sphere,          FeatureKind::Torus,      FeatureKind::Cone,
    FeatureKind::Wedge,           FeatureKind::Polygon,    FeatureKind::Move,
    FeatureKind::Rotate,          FeatureKind::MirrorAxis, FeatureKind::PolarArray,
    FeatureKind::RectangularArray};

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
void PressThrough(ModalDriver& user, FeatureKind kind, bool isNew)
{
    if (kind == FeatureKind::Polygon)
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
    QTest::addColumn<FeatureKind>("kind");
    for (const FeatureKind kind : DialogKinds)
        QTest::newRow(FeatureKinds::Of(kind).word.data()) << kind;
}

void tst_FeatureDialogs::KindsWithoutADialogAreTold()
{
    for (const FeatureKinds::Entry& entry : FeatureKinds::All()) {
        const bool isMirror =
            entry.kind == FeatureKind::MirrorPoint || entry.kind == FeatureKind::MirrorFace;
        const bool hasDialog = isMirror || std::find(DialogKinds.begin(), DialogKinds.end(),
                                                     entry.kind) != DialogKinds.end();
        QCOMPARE(FeatureDialogs::HasDialogFor(entry.kind), hasDialog);
    }
    Asked asked;
    const Feature box = NewFeature("box", FeatureKind::Box);
    QVERIFY(asked.dialogs.AskNew(box) == box);
}

void tst_FeatureDialogs::OKTakesTheDialogsDefaults()
{
    QFETCH(FeatureKind, kind);
    Asked asked;
    PressThrough(asked.user, kind, true);
    // Whatever the fields are before: the dialog's own defaults count.
    Feature feature = FeatureKinds::MakeFeature(kind);
    const std::optional<Feature> result = asked.dialogs.AskNew(feature);
    QVERIFY(asked.user.IsDone());
    QVERIFY(result.has_value());
    QCOMPARE(result->fields, feature.fields);
    QCOMPARE(result->kind, kind);
    QCOMPARE(asked.posted.count(), 0);
}

void tst_FeatureDialogs::CancelGivesNothing()
{
    QFETCH(FeatureKind, kind);
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
    QFETCH(FeatureKind, kind);
    Asked asked;
    asked.user.Then([&asked](QDialog& dialog) {
        QCOMPARE(dialog.parentWidget(), &asked.window);
        QVERIFY(dialog.isWindow());
        dialog.reject();
    });
    asked.dialogs.AskNew(FeatureKinds::MakeFeature(kind));
    QVERIFY(asked.user.IsDone());
    QVERIFY(asked.window.findChildren<QDialog*>().isEmpty());
}

void tst_FeatureDialogs::ChangedNumbersAreTaken_data()
{
    QTest::addColumn<FeatureKind>("kind");
    QTest::addColumn<Typed>("first");
    QTest::addColumn<Typed>("second");
    QTest::addColumn<QString>("fields");
    const auto row = [](FeatureKind kind, const Typed& first, const Typed& second,
                        const QString& fields) {
        QTest::newRow(FeatureKinds::Of(kind).word.data()) << kind << first << second << fields;
    };
    row(FeatureKind::Sphere,
        {{"lineEdit_Angle1", "-45.5"}, {"lineEdit_Angle2", "30"}, {"lineEdit_Angle3", "1e2"}}, {},
        "10 -45.5 30 100");
    row(FeatureKind::Torus,
        {{"lineEdit_RadiusSweep", "2.5"},
         {"lineEdit_Angle1", "-90"},
         {"lineEdit_Angle2", "60"},
         {"lineEdit_Angle3", "180"}},
        {}, "10 2.5 -90 60 180");
    row(FeatureKind::Cone,
        {{"lineEdit_Height", "7"}, {"lineEdit_TopRadius", "0"}, {"lineEdit_Angle", "90"}}, {},
        "10 0 7 90");
    row(FeatureKind::Wedge,
        {{"lineEdit_Height", "1"},
         {"lineEdit_xmin", "2"},
         {"lineEdit_xmax", "3"},
         {"lineEdit_zmin", "4"},
         {"lineEdit_zmax", "5"}},
        {}, "20 30 1 2 3 4 5");
    row(FeatureKind::Polygon, {{"lineEdit_EdgeNumber", "8"}},
        {{"lineEdit_Height", "12"},
         {"lineEdit_XDir", "0"},
         {"lineEdit_YDir", "3"},
         {"lineEdit_ZDir", "4"}},
        "8 10 12 0 0.6 0.8");
    row(FeatureKind::Move, {{"lineEdit_Dx", "1"}, {"lineEdit_Dy", "-2"}, {"lineEdit_Dz", "0.1"}},
        {}, "1 -2 0.1");
    row(FeatureKind::Rotate,
        {{"lineEdit_xPt", "1"},
         {"lineEdit_yPt", "2"},
         {"lineEdit_zPt", "3"},
         {"lineEdit_xDir", "0"},
         {"lineEdit_yDir", "-5"},
         {"lineEdit_zDir", "0"},
         {"lineEdit_Degree", "-33.3"}},
        {}, "1 2 3 0 -1 0 -33.3");
    row(FeatureKind::MirrorAxis,
        {{"lineEdit_axisPtX", "1"},
         {"lineEdit_axisPtY", "2"},
         {"lineEdit_axisPtZ", "3"},
         {"lineEdit_axisX", "0"},
         {"lineEdit_axisY", "5"},
         {"lineEdit_axisZ", "0"}},
        {}, "1 2 3 0 5 0");
    row(FeatureKind::PolarArray,
        {{"lineEdit_AxisPtx", "1"},
         {"lineEdit_AxisPty", "2"},
         {"lineEdit_AxisPtz", "3"},
         {"lineEdit_Dirx", "7"},
         {"lineEdit_Diry", "0"},
         {"lineEdit_Dirz", "0"},
         {"lineEdit_Angle", "360"},
         {"lineEdit_Num", "12"}},
        {}, "1 2 3 1 0 0 360 12");
    row(FeatureKind::RectangularArray,
        {{"lineEdit_XNum", "3"},
         {"lineEdit_YNum", "1"},
         {"lineEdit_XDis", "12.5"},
         {"lineEdit_YDis", "-8"}},
        {}, "3 1 12.5 -8");
}

void tst_FeatureDialogs::ChangedNumbersAreTaken()
{
    QFETCH(FeatureKind, kind);
    QFETCH(Typed, first);
    QFETCH(Typed, second);
    QFETCH(QString, fields);
    for (const bool isNew : {true, false}) {
        Asked asked;
        FillAndPressOK(asked.user, first);
        if (!second.empty())
            FillAndPressOK(asked.user, second);
        const Feature feature = NewFeature("x", kind, {"body"});
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
    QFETCH(FeatureKind, kind);
    Asked asked;
    SetParameter("one", 1.0);
    Feature feature = FeatureKinds::MakeFeature(kind);
    for (QString& text : feature.fields)
        text = QString("%1 * one / 3 * 3").arg(text);
    // Components that their direction's length does not leave as they are.
    for (const char* const key : {"dx", "dy", "dz"}) {
        for (std::size_t i = 0; i < FeatureKinds::Of(kind).fields.size(); ++i) {
            if (FeatureKinds::Of(kind).fields[i].key == QLatin1String(key))
                feature.fields[int(i)] = "7 * one / 3";
        }
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
    asked.dialogs.AskChanges(
        NewFeature("x", FeatureKind::Move, {}, {{"dx", "2 * length"}, {"dy", "0.1"}}));
    QVERIFY(asked.user.IsDone());
}

void tst_FeatureDialogs::OnlyTheChangedNumberIsReplaced()
{
    Asked asked;
    SetParameter("length", 12.5);
    FillAndPressOK(asked.user, {{"lineEdit_Dy", "7"}});
    const std::optional<Feature> result = asked.dialogs.AskChanges(NewFeature(
        "x", FeatureKind::Move, {}, {{"dx", "2 * length"}, {"dy", "length"}, {"dz", "-length"}}));
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
        asked.dialogs.AskChanges(NewFeature("x", FeatureKind::Move, {}, {{"dx", "nuts"}}));
    QVERIFY(result.has_value());
    QCOMPARE(result->fields, QStringList({"nuts", "7", "0"}));
}

void tst_FeatureDialogs::ADirectionIsReplacedAsAWhole()
{
    Asked asked;
    SetParameter("one", 1.0);
    FillAndPressOK(asked.user, {{"lineEdit_xDir", "3"}});
    const std::optional<Feature> result = asked.dialogs.AskChanges(
        NewFeature("x", FeatureKind::Rotate, {},
                   {{"dy", "4 * one"}, {"dz", "0 * one"}, {"x", "one"}, {"angle", "10 * one"}}));
    QVERIFY(result.has_value());
    QCOMPARE(result->fields, QStringList({"one", "0", "0", "0.6", "0.8", "0", "10 * one"}));
}

void tst_FeatureDialogs::WhatTheDialogDoesNotAskIsKept()
{
    Asked asked;
    FillAndPressOK(asked.user, {{"lineEdit_Angle2", "45"}});
    const std::optional<Feature> result = asked.dialogs.AskChanges(
        NewFeature("ball", FeatureKind::Sphere, {}, {{"radius", "unknown / 2"}}));
    QVERIFY(result.has_value());
    QCOMPARE(FieldText(*result, "radius"), QString("unknown / 2"));
    QCOMPARE(FieldText(*result, "angle2"), QString("45"));
}

void tst_FeatureDialogs::AZeroDirectionIsToldAndTheDialogWaits_data()
{
    QTest::addColumn<FeatureKind>("kind");
    QTest::addColumn<QString>("zEdit");
    QTest::addColumn<bool>("byEnter");
    const std::pair<FeatureKind, const char*> rows[] = {
        {FeatureKind::Rotate, "lineEdit_zDir"},
        {FeatureKind::MirrorAxis, "lineEdit_axisZ"},
        {FeatureKind::PolarArray, "lineEdit_Dirz"},
        {FeatureKind::Polygon, "lineEdit_ZDir"},
    };
    for (const auto& [kind, edit] : rows) {
        const char* const word = FeatureKinds::Of(kind).word.data();
        QTest::addRow("%s, by the mouse", word) << kind << QString(edit) << false;
        QTest::addRow("%s, by Enter", word) << kind << QString(edit) << true;
    }
}

void tst_FeatureDialogs::AZeroDirectionIsToldAndTheDialogWaits()
{
    QFETCH(FeatureKind, kind);
    QFETCH(QString, zEdit);
    QFETCH(bool, byEnter);
    Asked asked;
    if (kind == FeatureKind::Polygon)
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
    const std::optional<Feature> result = asked.dialogs.AskNew(FeatureKinds::MakeFeature(kind));
    QVERIFY(asked.user.IsDone());
    QVERIFY(result.has_value());
    // The mirror's direction is taken as typed, the others as the dialogs give it.
    QCOMPARE(FieldText(*result, "dz"), QString(kind == FeatureKind::MirrorAxis ? "-2" : "-1"));
    QCOMPARE(asked.posted.count(), 1);
    QCOMPARE(asked.posted[0][0].toInt(), int(WarningLevel));
    QVERIFY(asked.posted[0][1].toString().contains("direction"));
}

void tst_FeatureDialogs::AfterAZeroDirectionTheDialogCanBeCancelled()
{
    Asked asked;
    FillAndPressOK(asked.user, {{"lineEdit_zDir", "0"}});
    asked.user.Then([](QDialog& dialog) { Click(dialog, "pushButton_Cancel"); });
    QVERIFY(!asked.dialogs.AskNew(FeatureKinds::MakeFeature(FeatureKind::Rotate)).has_value());
    QVERIFY(asked.user.IsDone());
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void tst_FeatureDialogs::ANumberOutOfRangeIsToldAndTheDialogWaits_data()
{
    QTest::addColumn<FeatureKind>("kind");
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("bad");
    QTest::addColumn<QString>("good");
    QTest::addColumn<QString>("key");
    QTest::newRow("no instance") << FeatureKind::PolarArray << "lineEdit_Num"
                                 << "0"
                                 << "1"
                                 << "number";
    QTest::newRow("too many instances") << FeatureKind::PolarArray << "lineEdit_Num"
                                        << "10001"
                                        << "10000"
                                        << "number";
    QTest::newRow("no column") << FeatureKind::RectangularArray << "lineEdit_XNum"
                               << ""
                               << "2"
                               << "xNumber";
    QTest::newRow("empty sweep") << FeatureKind::Cone << "lineEdit_Angle"
                                 << "0"
                                 << "360"
                                 << "angle";
    QTest::newRow("infinite") << FeatureKind::Move << "lineEdit_Dx"
                              << "inf"
                              << "5"
                              << "dx";
    QTest::newRow("far away") << FeatureKind::MirrorAxis << "lineEdit_axisPtX"
                              << "1e7"
                              << "1e5"
                              << "x";
}

void tst_FeatureDialogs::ANumberOutOfRangeIsToldAndTheDialogWaits()
{
    QFETCH(FeatureKind, kind);
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
    const std::optional<Feature> result = asked.dialogs.AskNew(FeatureKinds::MakeFeature(kind));
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
    QVERIFY(!asked.dialogs.AskNew(FeatureKinds::MakeFeature(FeatureKind::Polygon)).has_value());
    QVERIFY(asked.user.IsDone());
}

void tst_FeatureDialogs::TheModesOfTheMirrorAreKinds_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<FeatureKind>("kind");
    QTest::newRow("point") << "radioButton" << FeatureKind::MirrorPoint;
    QTest::newRow("axis") << "radioButton_2" << FeatureKind::MirrorAxis;
    QTest::newRow("face") << "radioButton_3" << FeatureKind::MirrorFace;
}

void tst_FeatureDialogs::TheModesOfTheMirrorAreKinds()
{
    QFETCH(QString, button);
    QFETCH(FeatureKind, kind);
    Asked asked;
    asked.user.Then([&](QDialog& dialog) {
        Find<QRadioButton>(dialog, button.toLatin1().constData()).setChecked(true);
        PressOK(dialog);
    });
    const std::optional<Feature> result =
        asked.dialogs.AskNew(NewFeature("x", FeatureKind::MirrorAxis, {"body"}));
    QVERIFY(result.has_value());
    QVERIFY(*result == NewFeature("x", kind, {"body"}));
}

void tst_FeatureDialogs::AMirrorOpensInItsMode_data()
{
    TheModesOfTheMirrorAreKinds_data();
}

void tst_FeatureDialogs::AMirrorOpensInItsMode()
{
    QFETCH(QString, button);
    QFETCH(FeatureKind, kind);
    Asked asked;
    asked.user.Then([&](QDialog& dialog) {
        QVERIFY(Find<QRadioButton>(dialog, button.toLatin1().constData()).isChecked());
        PressOK(dialog);
    });
    const Feature feature = NewFeature("x", kind, {"body"}, {{"x", "1 + 1"}, {"y", "3"}});
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
    const std::optional<Feature> result =
        asked.dialogs.AskNew(NewFeature("x", FeatureKind::MirrorAxis));
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
    const Feature feature = NewFeature("x", FeatureKind::MirrorPoint, {}, {{"x", "2 + 3"}});
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
        asked.dialogs.AskChanges(NewFeature("x", FeatureKind::MirrorPoint, {"body"}, {{"y", "5"}}));
    QVERIFY(result.has_value());
    QVERIFY(*result == NewFeature("x", FeatureKind::MirrorAxis, {"body"}, {{"x", "9"}}));
}

TARN_TEST_MAIN(tst_FeatureDialogs, HostApplication)
#include "tst_FeatureDialogs.moc"
