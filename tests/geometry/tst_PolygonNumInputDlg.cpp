#include "InputFormTest.h"
#include "PolygonNumInputDlg.h"

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "PolygonNumInputDlg";
    form.title = "Input";
    form.lines = {
        "QGroupBox groupBox in PolygonNumInputDlg: ",
        "QLabel label in groupBox: Polygon Number:, for lineEdit_EdgeNumber",
        "QLineEdit lineEdit_EdgeNumber in groupBox: ",
        "QPushButton pushButton_OK in PolygonNumInputDlg: OK",
        "QPushButton pushButton_Cancel in PolygonNumInputDlg: Cancel",
    };
    form.tabOrder = {"lineEdit_EdgeNumber", "pushButton_OK", "pushButton_Cancel"};
    form.enter = "pushButton_OK";
    form.methods = {"private slot m_Slot_OK()"};
    form.hasFont = true;
    return form;
}

InputFacts Input()
{
    InputFacts input;
    input.unset = "0";
    input.defaults = "0";
    input.typed = {{"lineEdit_EdgeNumber", "6"}};
    input.entered = "6";
    input.converted = {"lineEdit_EdgeNumber"};
    input.conversion = "%2";
    return input;
}

} // namespace

class tst_PolygonNumInputDlg : public InputFormTest<PolygonNumInputDlg>
{
    Q_OBJECT

public:
    tst_PolygonNumInputDlg()
        : InputFormTest(Form(), Input())
    {
    }

private:
    QString Values(const PolygonNumInputDlg& dialog) const override;
};

QString tst_PolygonNumInputDlg::Values(const PolygonNumInputDlg& dialog) const
{
    return QString::number(dialog.GetEdgeNumber());
}

TARN_TEST_MAIN(tst_PolygonNumInputDlg)
#include "tst_PolygonNumInputDlg.moc"
