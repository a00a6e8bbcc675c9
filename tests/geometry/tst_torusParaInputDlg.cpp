#include "InputFormTest.h"
#include "torusParaInputDlg.h"

#include <QLineEdit>

class tst_torusParaInputDlg : public InputFormTest<torusParaInputDlg>
{
    Q_OBJECT

public:
    tst_torusParaInputDlg();

private Q_SLOTS:
    void TheFormIsAsGiven();
    void TextIsConverted_data() { AddConversionRows(); }
    void TextIsConverted();
    void ATorusCanBeFullOnly();

private:
    QString Values(const torusParaInputDlg& dialog) const override;
};

tst_torusParaInputDlg::tst_torusParaInputDlg()
    : InputFormTest({"m_OK_Pushed()",
                     "0 | 0 0 0",
                     "3 | -180 180 360",
                     {{"lineEdit_RadiusSweep", "-2.5"},
                      {"lineEdit_Angle1", "190"},
                      {"lineEdit_Angle2", "-200"},
                      {"lineEdit_Angle3", "720"}},
                     "-2.5 | 190 -200 720"})
{
}

QString tst_torusParaInputDlg::Values(const torusParaInputDlg& dialog) const
{
    return QStringLiteral("%1 | %2 %3 %4")
        .arg(AllDigits(dialog.GetSweepRadius()), AllDigits(dialog.GetAngle1()),
             AllDigits(dialog.GetAngle2()), AllDigits(dialog.GetAngle3()));
}

void tst_torusParaInputDlg::TheFormIsAsGiven()
{
    CompareForm<torusParaInputDlg>("torusParaInputDlg");
    const torusParaInputDlg dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString("Input"));
    QCOMPARE(DescribeForm(dialog, false),
             QStringList({
                 "QGroupBox groupBox in torusParaInputDlg: ",
                 "QLabel label in groupBox: Sweep Radius",
                 "QLabel label_2 in groupBox: Angle1",
                 "QLabel label_3 in groupBox: Degree  [-180,0)",
                 "QLabel label_4 in groupBox: Angle2",
                 "QLabel label_5 in groupBox: Degree  (0,180]",
                 "QLabel label_6 in groupBox: Angle3",
                 "QLabel label_7 in groupBox: Degree  (0,360]",
                 "QLineEdit lineEdit_Angle1 in groupBox: -180",
                 "QLineEdit lineEdit_Angle2 in groupBox: 180",
                 "QLineEdit lineEdit_Angle3 in groupBox: 360",
                 "QLineEdit lineEdit_RadiusSweep in groupBox: 3",
                 "QPushButton pushButton_Cancel in torusParaInputDlg: Cancel",
                 "QPushButton pushButton_OK in torusParaInputDlg: OK",
             }));
}

void tst_torusParaInputDlg::TextIsConverted()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, text);
    QFETCH(double, number);
    QVERIFY(UseLocale(locale));
    torusParaInputDlg dialog(nullptr);
    FillAndPress(dialog,
                 {{"lineEdit_RadiusSweep", text},
                  {"lineEdit_Angle1", text},
                  {"lineEdit_Angle2", text},
                  {"lineEdit_Angle3", text}},
                 "pushButton_OK");
    QCOMPARE(Values(dialog), QStringLiteral("%1 | %1 %1 %1").arg(AllDigits(number)));
}

void tst_torusParaInputDlg::ATorusCanBeFullOnly()
{
    torusParaInputDlg dialog(nullptr);
    dialog.DisableAngleUI();
    for (const char* const name : {"lineEdit_Angle1", "lineEdit_Angle2", "lineEdit_Angle3"})
        QVERIFY(!Find<QLineEdit>(dialog, name).isEnabled());
    QVERIFY(Find<QLineEdit>(dialog, "lineEdit_RadiusSweep").isEnabled());
    QCOMPARE(TabOrder(dialog),
             QStringList({"lineEdit_RadiusSweep", "pushButton_OK", "pushButton_Cancel"}));
    const FieldTexts fields = {{"lineEdit_RadiusSweep", "12"}};
    QCOMPARE(FillAndPress(dialog, fields, "pushButton_OK"), int(QDialog::Accepted));
    QCOMPARE(Values(dialog), QString("12 | -180 180 360"));
}

TARN_TEST_MAIN(tst_torusParaInputDlg)
#include "tst_torusParaInputDlg.moc"
