#include "InputFormTest.h"
#include "WedgeInputDlg.h"

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "WedgeInputDlg";
    form.title = "WedgeInputDlg";
    form.lines = {
        "QGroupBox groupBox in WedgeInputDlg: ",
        "QLabel label in groupBox: height, for lineEdit_Height",
        "QLineEdit lineEdit_Height in groupBox: 30",
        "QLabel label_2 in groupBox: X min, for lineEdit_xmin",
        "QLineEdit lineEdit_xmin in groupBox: 5",
        "QLabel label_3 in groupBox: X max, for lineEdit_xmax",
        "QLineEdit lineEdit_xmax in groupBox: 15",
        "QLabel label_4 in groupBox: Z min, for lineEdit_zmin",
        "QLineEdit lineEdit_zmin in groupBox: 8",
        "QLabel label_5 in groupBox: Z max, for lineEdit_zmax",
        "QLineEdit lineEdit_zmax in groupBox: 20",
        "QPushButton pushButton_OK in WedgeInputDlg: OK",
        "QPushButton pushButton_Cancel in WedgeInputDlg: Cancel",
    };
    form.tabOrder = {"lineEdit_Height", "lineEdit_xmin", "lineEdit_xmax",    "lineEdit_zmin",
                     "lineEdit_zmax",   "pushButton_OK", "pushButton_Cancel"};
    form.enter = "pushButton_OK";
    form.methods = {"private slot m_Slot_OK()"};
    form.hasFont = true;
    return form;
}

InputFacts Input()
{
    InputFacts input;
    input.unset = "0 0 0 0 0";
    input.defaults = "30 5 15 8 20";
    input.typed = {{"lineEdit_Height", "1"},
                   {"lineEdit_xmin", "-2"},
                   {"lineEdit_xmax", "3.5"},
                   {"lineEdit_zmin", "-4"},
                   {"lineEdit_zmax", "5"}};
    input.entered = "1 -2 3.5 -4 5";
    input.converted = {"lineEdit_Height", "lineEdit_xmin", "lineEdit_xmax", "lineEdit_zmin",
                       "lineEdit_zmax"};
    input.conversion = "%1 %1 %1 %1 %1";
    return input;
}

} // namespace

class tst_WedgeInputDlg : public InputFormTest<WedgeInputDlg>
{
    Q_OBJECT

public:
    tst_WedgeInputDlg()
        : InputFormTest(Form(), Input())
    {
    }

private:
    QString Values(const WedgeInputDlg& dialog) const override;
};

QString tst_WedgeInputDlg::Values(const WedgeInputDlg& dialog) const
{
    double values[5] = {-1.0, -1.0, -1.0, -1.0, -1.0};
    dialog.GetWedgeParameter(values[0], values[1], values[2], values[3], values[4]);
    QStringList texts;
    for (const double value : values)
        texts << AllDigits(value);
    return texts.join(' ');
}

TARN_TEST_MAIN(tst_WedgeInputDlg)
#include "tst_WedgeInputDlg.moc"
