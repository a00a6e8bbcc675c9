#include "AskedDialogs.h"
#include "HostApplication.h"
#include "MessageLevel.h"

class tst_FeatureDialogsRefusals : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AZeroDirectionIsReportedAndTheDialogWaits_data();
    void AZeroDirectionIsReportedAndTheDialogWaits();
    void AfterAZeroDirectionTheDialogCanBeCancelled();
    void ANumberOutOfRangeIsReportedAndTheDialogWaits_data();
    void ANumberOutOfRangeIsReportedAndTheDialogWaits();
    void TheSecondDialogOfAPolygonCanBeCancelled();
    void AnExpressionIsTakenAsTyped_data();
    void AnExpressionIsTakenAsTyped();
    void ATextWithoutValueIsReportedAndTheDialogWaits_data();
    void ATextWithoutValueIsReportedAndTheDialogWaits();
};

void tst_FeatureDialogsRefusals::AZeroDirectionIsReportedAndTheDialogWaits_data()
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

void tst_FeatureDialogsRefusals::AZeroDirectionIsReportedAndTheDialogWaits()
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

void tst_FeatureDialogsRefusals::AfterAZeroDirectionTheDialogCanBeCancelled()
{
    Asked asked;
    FillAndPressOK(asked.user, {{"lineEdit_zDir", "0"}});
    asked.user.Then([](QDialog& dialog) { Click(dialog, "pushButton_Cancel"); });
    QVERIFY(!asked.dialogs.AskNew(Feature(KindOf("rotate"))).has_value());
    QVERIFY(asked.user.IsDone());
    QVERIFY(QApplication::activeModalWidget() == nullptr);
}

void tst_FeatureDialogsRefusals::ANumberOutOfRangeIsReportedAndTheDialogWaits_data()
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
    QTest::newRow("far away") << QByteArray("mirrorAxis") << "lineEdit_axisPtX"
                              << "1e7"
                              << "1e5"
                              << "x";
}

void tst_FeatureDialogsRefusals::ANumberOutOfRangeIsReportedAndTheDialogWaits()
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
    const QString message = asked.posted[0][1].toString();
    QVERIFY(message.contains("has to be") || message.contains("neither a number"));
}

void tst_FeatureDialogsRefusals::TheSecondDialogOfAPolygonCanBeCancelled()
{
    Asked asked;
    FillAndPressOK(asked.user, {{"lineEdit_EdgeNumber", "5"}});
    asked.user.Then([](QDialog& dialog) { Click(dialog, "pushButton_Cancel"); });
    QVERIFY(!asked.dialogs.AskNew(Feature(KindOf("polygon"))).has_value());
    QVERIFY(asked.user.IsDone());
}

void tst_FeatureDialogsRefusals::AnExpressionIsTakenAsTyped_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("text");
    QTest::newRow("length") << QByteArray("move") << "lineEdit_Dx"
                            << "dx"
                            << "3 / 4";
    QTest::newRow("count") << QByteArray("polarArray") << "lineEdit_Num"
                           << "number"
                           << "2 * 3";
    QTest::newRow("mirror") << QByteArray("mirrorAxis") << "lineEdit_axisPtY"
                            << "y"
                            << "sqrt(4)";
}

void tst_FeatureDialogsRefusals::AnExpressionIsTakenAsTyped()
{
    QFETCH(QByteArray, kind);
    QFETCH(QString, edit);
    QFETCH(QString, key);
    QFETCH(QString, text);
    Asked asked;
    FillAndPressOK(asked.user, {{edit, text}});
    const std::optional<Feature> result = asked.dialogs.AskNew(Feature(KindOf(kind)));
    QVERIFY(result.has_value());
    QCOMPARE(FieldText(*result, key.toLatin1()), text);
    QCOMPARE(asked.posted.count(), 0);
}

void tst_FeatureDialogsRefusals::ATextWithoutValueIsReportedAndTheDialogWaits_data()
{
    QTest::addColumn<QString>("text");
    for (const char* const text : {"12,5", "wide", "nan", "inf", "1e999", "", "1 / 0"})
        QTest::newRow(*text == 0 ? "nothing" : text) << QString(text);
}

void tst_FeatureDialogsRefusals::ATextWithoutValueIsReportedAndTheDialogWaits()
{
    QFETCH(QString, text);
    Asked asked;
    FillAndPressOK(asked.user, {{"lineEdit_Dx", text}});
    asked.user.Then([&](QDialog& dialog) {
        QVERIFY(dialog.isVisible());
        QCOMPARE(asked.posted.count(), 1);
        Fill(dialog, {{"lineEdit_Dx", "7"}});
        PressOK(dialog);
    });
    const std::optional<Feature> result = asked.dialogs.AskNew(Feature(KindOf("move")));
    QVERIFY(asked.user.IsDone());
    QVERIFY(result.has_value());
    QCOMPARE(FieldText(*result, "dx"), QString("7"));
    QCOMPARE(
        asked.posted[0][1].toString(),
        QString("Distance x: \"%1\" is neither a number nor an expression with a value").arg(text));
}

TARN_TEST_MAIN(tst_FeatureDialogsRefusals, HostApplication)
#include "tst_FeatureDialogsRefusals.moc"
