#include "InputFormTest.h"
#include "torusParaInputDlg.h"

#include <QLineEdit>

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "torusParaInputDlg";
    form.title = "Input";
    form.lines = {
        "QGroupBox groupBox in torusParaInputDlg: ",
        "QLabel label in groupBox: Sweep Radius, for lineEdit_RadiusSweep",
        "QLineEdit lineEdit_RadiusSweep in groupBox: 3",
        "QLabel label_2 in groupBox: Angle1, for lineEdit_Angle1",
        "QLineEdit lineEdit_Angle1 in groupBox: -180",
        "QLabel label_3 in groupBox: Degree  [-180,0)",
        "QLabel label_4 in groupBox: Angle2, for lineEdit_Angle2",
        "QLineEdit lineEdit_Angle2 in groupBox: 180",
        "QLabel label_5 in groupBox: Degree  (0,180]",
        "QLabel label_6 in groupBox: Angle3, for lineEdit_Angle3",
        "QLineEdit lineEdit_Angle3 in groupBox: 360",
        "QLabel label_7 in groupBox: Degree  (0,360]",
        "QPushButton pushButton_OK in torusParaInputDlg: OK",
        "QPushButton pushButton_Cancel in torusParaInputDlg: Cancel",
    };
    form.tabOrder = {"lineEdit_RadiusSweep", "lineEdit_Angle1", "lineEdit_Angle2",
                     "lineEdit_Angle3",      "pushButton_OK",   "pushButton_Cancel"};
    form.enter = "pushButton_OK";
    form.methods = {"private slot m_OK_Pushed()"};
    form.hasFont = true;
    return form;
}

InputFacts Input()
{
    InputFacts input;
    input.unset = "0 | 0 0 0";
    input.defaults = "3 | -180 180 360";
    input.typed = {{"lineEdit_RadiusSweep", "-2.5"},
                   {"lineEdit_Angle1", "190"},
                   {"lineEdit_Angle2", "-200"},
                   {"lineEdit_Angle3", "720"}};
    input.entered = "-2.5 | 190 -200 720";
    input.converted = {"lineEdit_RadiusSweep", "lineEdit_Angle1", "lineEdit_Angle2",
                       "lineEdit_Angle3"};
    input.conversion = "%1 | %1 %1 %1";
    return input;
}

} // namespace

class tst_torusParaInputDlg : public InputFormTest<torusParaInputDlg>
{
    Q_OBJECT

public:
    tst_torusParaInputDlg()
        : InputFormTest(Form(), Input())
    {
    }

private Q_SLOTS:
    void ATorusCanBeFullOnly();

private:
    QString Values(const torusParaInputDlg& dialog) const override;
};

QString tst_torusParaInputDlg::Values(const torusParaInputDlg& dialog) const
{
    return QStringLiteral("%1 | %2 %3 %4")
        .arg(AllDigits(dialog.GetSweepRadius()), AllDigits(dialog.GetAngle1()),
             AllDigits(dialog.GetAngle2()), AllDigits(dialog.GetAngle3()));
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
