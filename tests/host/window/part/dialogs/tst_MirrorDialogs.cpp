#include "AskedDialogs.h"
#include "HostApplication.h"

#include <QRadioButton>

class tst_MirrorDialogs : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheModesOfTheMirrorAreKinds_data();
    void TheModesOfTheMirrorAreKinds();
    void AMirrorOpensInItsMode_data();
    void AMirrorOpensInItsMode();
    void APointMirrorIsAtTheOrigin();
    void ThePointOfAPointMirrorSurvives();
    void AnotherModeStartsWithItsDefaults();
};

void tst_MirrorDialogs::TheModesOfTheMirrorAreKinds_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QByteArray>("kind");
    QTest::newRow("point") << "radioButton" << QByteArray("mirrorPoint");
    QTest::newRow("axis") << "radioButton_2" << QByteArray("mirrorAxis");
    QTest::newRow("face") << "radioButton_3" << QByteArray("mirrorFace");
}

void tst_MirrorDialogs::TheModesOfTheMirrorAreKinds()
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

void tst_MirrorDialogs::AMirrorOpensInItsMode_data()
{
    TheModesOfTheMirrorAreKinds_data();
}

void tst_MirrorDialogs::AMirrorOpensInItsMode()
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

void tst_MirrorDialogs::APointMirrorIsAtTheOrigin()
{
    // The dialog ignores the typed point and gives the origin; users edit the point as a field.
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

void tst_MirrorDialogs::ThePointOfAPointMirrorSurvives()
{
    Asked asked;
    asked.user.Then([](QDialog& dialog) {
        QCOMPARE(Shown(dialog, "lineEdit_Ptx"), QString("5"));
        PressOK(dialog);
    });
    const Feature feature = NewFeature("x", "mirrorPoint", {}, {{"x", "2 + 3"}});
    QVERIFY(asked.dialogs.AskChanges(feature) == feature);
}

void tst_MirrorDialogs::AnotherModeStartsWithItsDefaults()
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

TARN_TEST_MAIN(tst_MirrorDialogs, HostApplication)
#include "tst_MirrorDialogs.moc"
