#include "DialogChecks.h"
#include "DialogFacts.h"
#include "TestCase.h"
#include "TruncatedConeInputDlg.h"

#include <QApplication>
#include <QLineEdit>

class tst_TruncatedConeInputDlg : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormIsAsGiven();
    void TheFontIsSetOnTheDialog();
    void TabFollowsTheReadingOrder();
    void EnterConfirmsAndEscapeLeaves();
    void TheSlotsAreAsGiven();
    void OKStoresTheDefaults();
    void OKStoresTheFields();
    void CancelStoresNothing();
    void TextIsConverted_data() { AddConversionRows(); }
    void TextIsConverted();
    void AConeCanBeFullOnly();
    void CollectDataReadsTheFieldsAndLeavesTheDialogOpen();

private:
    static QString Values(const TruncatedConeInputDlg& dialog);
};

QString tst_TruncatedConeInputDlg::Values(const TruncatedConeInputDlg& dialog)
{
    return QStringLiteral("%1 %2 %3")
        .arg(AllDigits(dialog.GetHeightValue()), AllDigits(dialog.GetTopRadius()),
             AllDigits(dialog.GetAngle()));
}

void tst_TruncatedConeInputDlg::TheFormIsAsGiven()
{
    CompareForm<TruncatedConeInputDlg>("TruncatedConeInputDlg");
    const TruncatedConeInputDlg dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString("Input"));
    QCOMPARE(DescribeForm(dialog, false),
             QStringList({
                 "QGroupBox groupBox in TruncatedConeInputDlg: ",
                 "QLabel label in groupBox: Height:",
                 "QLabel label_2 in groupBox: Top Radius",
                 "QLabel label_3 in groupBox: Angle",
                 "QLineEdit lineEdit_Angle in groupBox: 360",
                 "QLineEdit lineEdit_Height in groupBox: 10",
                 "QLineEdit lineEdit_TopRadius in groupBox: 5",
                 "QPushButton pushButton_Cancel in TruncatedConeInputDlg: Cancel",
                 "QPushButton pushButton_OK in TruncatedConeInputDlg: OK",
             }));
}

void tst_TruncatedConeInputDlg::TheFontIsSetOnTheDialog()
{
    const TruncatedConeInputDlg dialog(nullptr);
    QCOMPARE(dialog.font().family(), QString("微软雅黑"));
    QCOMPARE(dialog.font().pointSize(), QApplication::font().pointSize());
}

void tst_TruncatedConeInputDlg::TabFollowsTheReadingOrder()
{
    TruncatedConeInputDlg dialog(nullptr);
    QCOMPARE(TabOrder(dialog),
             QStringList({"lineEdit_Height", "lineEdit_TopRadius", "lineEdit_Angle",
                          "pushButton_OK", "pushButton_Cancel"}));
}

void tst_TruncatedConeInputDlg::EnterConfirmsAndEscapeLeaves()
{
    TruncatedConeInputDlg dialog(nullptr);
    QCOMPARE(EnterButtons(dialog), QStringList({"pushButton_OK*"}));
    QCOMPARE(PressKey(dialog, "lineEdit_Height", Qt::Key_Escape), int(QDialog::Rejected));
    QCOMPARE(Values(dialog), QString("0 0 0"));
    QCOMPARE(PressKey(dialog, "lineEdit_Height", Qt::Key_Return), int(QDialog::Accepted));
    QCOMPARE(Values(dialog), QString("10 5 360"));
}

void tst_TruncatedConeInputDlg::TheSlotsAreAsGiven()
{
    QCOMPARE(OwnMethods(TruncatedConeInputDlg::staticMetaObject),
             QStringList({"private slot m_Slot_OK()"}));
    QCOMPARE(TruncatedConeInputDlg::staticMetaObject.superClass(), &QDialog::staticMetaObject);
}

void tst_TruncatedConeInputDlg::OKStoresTheDefaults()
{
    TruncatedConeInputDlg dialog(nullptr);
    QCOMPARE(Values(dialog), QString("0 0 0"));
    QCOMPARE(FillAndPress(dialog, {}, "pushButton_OK"), int(QDialog::Accepted));
    QCOMPARE(Values(dialog), QString("10 5 360"));
}

void tst_TruncatedConeInputDlg::OKStoresTheFields()
{
    TruncatedConeInputDlg dialog(nullptr);
    const FieldTexts fields = {
        {"lineEdit_Height", "-2.5"}, {"lineEdit_TopRadius", "0"}, {"lineEdit_Angle", "1000"}};
    QCOMPARE(FillAndPress(dialog, fields, "pushButton_OK"), int(QDialog::Accepted));
    QCOMPARE(Values(dialog), QString("-2.5 0 1000"));
}

void tst_TruncatedConeInputDlg::CancelStoresNothing()
{
    TruncatedConeInputDlg dialog(nullptr);
    FillAndPress(dialog, {}, "pushButton_OK");
    const FieldTexts fields = {
        {"lineEdit_Height", "-2.5"}, {"lineEdit_TopRadius", "0"}, {"lineEdit_Angle", "1000"}};
    QCOMPARE(FillAndPress(dialog, fields, "pushButton_Cancel"), int(QDialog::Rejected));
    QCOMPARE(Values(dialog), QString("10 5 360"));
}

void tst_TruncatedConeInputDlg::TextIsConverted()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, text);
    QFETCH(double, number);
    QVERIFY(UseLocale(locale));
    TruncatedConeInputDlg dialog(nullptr);
    FillAndPress(
        dialog, {{"lineEdit_Height", text}, {"lineEdit_TopRadius", text}, {"lineEdit_Angle", text}},
        "pushButton_OK");
    QCOMPARE(Values(dialog), QStringLiteral("%1 %1 %1").arg(AllDigits(number)));
}

void tst_TruncatedConeInputDlg::AConeCanBeFullOnly()
{
    TruncatedConeInputDlg dialog(nullptr);
    dialog.DisableAngleInput();
    QVERIFY(!Find<QLineEdit>(dialog, "lineEdit_Angle").isEnabled());
    QVERIFY(Find<QLineEdit>(dialog, "lineEdit_Height").isEnabled());
    QVERIFY(Find<QLineEdit>(dialog, "lineEdit_TopRadius").isEnabled());
    QCOMPARE(FillAndPress(dialog, {{"lineEdit_Height", "12"}}, "pushButton_OK"),
             int(QDialog::Accepted));
    QCOMPARE(Values(dialog), QString("12 5 360"));
}

void tst_TruncatedConeInputDlg::CollectDataReadsTheFieldsAndLeavesTheDialogOpen()
{
    TruncatedConeInputDlg dialog(nullptr);
    dialog.show();
    Type(dialog, "lineEdit_TopRadius", "7");
    dialog.CollectData();
    QCOMPARE(Values(dialog), QString("10 7 360"));
    QVERIFY(dialog.isVisible());
}

TARN_TEST_MAIN(tst_TruncatedConeInputDlg)
#include "tst_TruncatedConeInputDlg.moc"
