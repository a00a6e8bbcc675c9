#include "InputFormTest.h"
#include "TruncatedConeInputDlg.h"

#include <QLineEdit>

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "TruncatedConeInputDlg";
    form.title = "Input";
    form.lines = {
        "QGroupBox groupBox in TruncatedConeInputDlg: ",
        "QLabel label in groupBox: Height:, for lineEdit_Height",
        "QLineEdit lineEdit_Height in groupBox: 10",
        "QLabel label_2 in groupBox: Top Radius, for lineEdit_TopRadius",
        "QLineEdit lineEdit_TopRadius in groupBox: 5",
        "QLabel label_3 in groupBox: Angle, for lineEdit_Angle",
        "QLineEdit lineEdit_Angle in groupBox: 360",
        "QPushButton pushButton_OK in TruncatedConeInputDlg: OK",
        "QPushButton pushButton_Cancel in TruncatedConeInputDlg: Cancel",
    };
    form.tabOrder = {"lineEdit_Height", "lineEdit_TopRadius", "lineEdit_Angle", "pushButton_OK",
                     "pushButton_Cancel"};
    form.enter = "pushButton_OK";
    form.methods = {"private slot m_Slot_OK()"};
    form.hasFont = true;
    return form;
}

InputFacts Input()
{
    InputFacts input;
    input.unset = "0 0 0";
    input.defaults = "10 5 360";
    input.typed = {
        {"lineEdit_Height", "-2.5"}, {"lineEdit_TopRadius", "0"}, {"lineEdit_Angle", "1000"}};
    input.entered = "-2.5 0 1000";
    input.converted = {"lineEdit_Height", "lineEdit_TopRadius", "lineEdit_Angle"};
    input.conversion = "%1 %1 %1";
    return input;
}

} // namespace

class tst_TruncatedConeInputDlg : public InputFormTest<TruncatedConeInputDlg>
{
    Q_OBJECT

public:
    tst_TruncatedConeInputDlg()
        : InputFormTest(Form(), Input())
    {
    }

private Q_SLOTS:
    void AConeCanBeFullOnly();
    void CollectDataReadsTheFieldsAndLeavesTheDialogOpen();

private:
    QString Values(const TruncatedConeInputDlg& dialog) const override;
};

QString tst_TruncatedConeInputDlg::Values(const TruncatedConeInputDlg& dialog) const
{
    return QStringLiteral("%1 %2 %3")
        .arg(AllDigits(dialog.GetHeightValue()), AllDigits(dialog.GetTopRadius()),
             AllDigits(dialog.GetAngle()));
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
