#include "InputFormTest.h"
#include "WedgeInputDlg.h"

class tst_WedgeInputDlg : public InputFormTest<WedgeInputDlg>
{
    Q_OBJECT

public:
    tst_WedgeInputDlg();

private Q_SLOTS:
    void TheFormIsAsGiven();
    void TextIsConverted_data() { AddConversionRows(); }
    void TextIsConverted();

private:
    QString Values(const WedgeInputDlg& dialog) const override;
};

tst_WedgeInputDlg::tst_WedgeInputDlg()
    : InputFormTest({"m_Slot_OK()",
                     "0 0 0 0 0",
                     "30 5 15 8 20",
                     {{"lineEdit_Height", "1"},
                      {"lineEdit_xmin", "-2"},
                      {"lineEdit_xmax", "3.5"},
                      {"lineEdit_zmin", "-4"},
                      {"lineEdit_zmax", "5"}},
                     "1 -2 3.5 -4 5"})
{
}

QString tst_WedgeInputDlg::Values(const WedgeInputDlg& dialog) const
{
    double values[5] = {-1.0, -1.0, -1.0, -1.0, -1.0};
    dialog.GetWedgeParameter(values[0], values[1], values[2], values[3], values[4]);
    QStringList texts;
    for (const double value : values)
        texts << AllDigits(value);
    return texts.join(' ');
}

void tst_WedgeInputDlg::TheFormIsAsGiven()
{
    CompareForm<WedgeInputDlg>("WedgeInputDlg");
    const WedgeInputDlg dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString("WedgeInputDlg"));
    QCOMPARE(DescribeForm(dialog, false),
             QStringList({
                 "QGroupBox groupBox in WedgeInputDlg: ",
                 "QLabel label in groupBox: height",
                 "QLabel label_2 in groupBox: X min",
                 "QLabel label_3 in groupBox: X max",
                 "QLabel label_4 in groupBox: Z min",
                 "QLabel label_5 in groupBox: Z max",
                 "QLineEdit lineEdit_Height in groupBox: 30",
                 "QLineEdit lineEdit_xmax in groupBox: 15",
                 "QLineEdit lineEdit_xmin in groupBox: 5",
                 "QLineEdit lineEdit_zmax in groupBox: 20",
                 "QLineEdit lineEdit_zmin in groupBox: 8",
                 "QPushButton pushButton_Cancel in WedgeInputDlg: Cancel",
                 "QPushButton pushButton_OK in WedgeInputDlg: OK",
             }));
}

void tst_WedgeInputDlg::TextIsConverted()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, text);
    QFETCH(double, number);
    QVERIFY(UseLocale(locale));
    WedgeInputDlg dialog(nullptr);
    FillAndPress(dialog,
                 {{"lineEdit_Height", text},
                  {"lineEdit_xmin", text},
                  {"lineEdit_xmax", text},
                  {"lineEdit_zmin", text},
                  {"lineEdit_zmax", text}},
                 "pushButton_OK");
    QCOMPARE(Values(dialog), QStringLiteral("%1 %1 %1 %1 %1").arg(AllDigits(number)));
}

TARN_TEST_MAIN(tst_WedgeInputDlg)
#include "tst_WedgeInputDlg.moc"
