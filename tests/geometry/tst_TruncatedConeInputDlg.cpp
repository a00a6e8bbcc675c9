#include "InputFormTest.h"
#include "TruncatedConeInputDlg.h"

#include <QLineEdit>

class tst_TruncatedConeInputDlg : public InputFormTest<TruncatedConeInputDlg>
{
    Q_OBJECT

public:
    tst_TruncatedConeInputDlg();

private Q_SLOTS:
    void TheFormIsAsGiven();
    void TextIsConverted_data() { AddConversionRows(); }
    void TextIsConverted();
    void AConeCanBeFullOnly();
    void CollectDataReadsTheFieldsAndLeavesTheDialogOpen();

private:
    QString Values(const TruncatedConeInputDlg& dialog) const override;
};

tst_TruncatedConeInputDlg::tst_TruncatedConeInputDlg()
    : InputFormTest(
          {"m_Slot_OK()",
           "0 0 0",
           "10 5 360",
           {{"lineEdit_Height", "-2.5"}, {"lineEdit_TopRadius", "0"}, {"lineEdit_Angle", "1000"}},
           "-2.5 0 1000"})
{
}

QString tst_TruncatedConeInputDlg::Values(const TruncatedConeInputDlg& dialog) const
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
