#include "ArcArrayDlg.h"
#include "InputFormTest.h"
#include "KernelText.h"

#include <Standard_ConstructionError.hxx>

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "ArcArrayDlg";
    form.title = "Arc Array Input";
    form.size = {398, 179};
    form.lines = {
        "QLabel label_4 in ArcArrayDlg at 20,20 71x21: Angle, for lineEdit_Angle",
        "QLineEdit lineEdit_Angle in ArcArrayDlg at 100,20 81x21: 90",
        "QLabel label_5 in ArcArrayDlg at 190,20 81x21: Number, for lineEdit_Num",
        "QLineEdit lineEdit_Num in ArcArrayDlg at 270,20 81x21: 4",
        "QGroupBox groupBox in ArcArrayDlg at 10,50 381x81: Rotation Axis",
        "QLabel label in groupBox at 10,20 81x21: Direction, for lineEdit_Dirx",
        "QLineEdit lineEdit_Dirx in groupBox at 110,20 81x21: 0",
        "QLineEdit lineEdit_Diry in groupBox at 200,20 81x21: 0",
        "QLineEdit lineEdit_Dirz in groupBox at 290,20 81x21: 1",
        "QLabel label_2 in groupBox at 0,50 111x21: Point On Axis, for lineEdit_AxisPtx",
        "QLineEdit lineEdit_AxisPtx in groupBox at 110,50 81x21: 0",
        "QLineEdit lineEdit_AxisPty in groupBox at 200,50 81x21: 0",
        "QLineEdit lineEdit_AxisPtz in groupBox at 290,50 81x21: 0",
        "QPushButton pushButtonOK in ArcArrayDlg at 150,140 98x28: Ok",
        "QPushButton pushButton_Cancel in ArcArrayDlg at 260,140 98x28: Cancel",
    };
    form.tabOrder = {"lineEdit_Angle", "lineEdit_Num",     "lineEdit_Dirx",    "lineEdit_Diry",
                     "lineEdit_Dirz",  "lineEdit_AxisPtx", "lineEdit_AxisPty", "lineEdit_AxisPtz",
                     "pushButtonOK",   "pushButton_Cancel"};
    form.enter = "pushButtonOK";
    form.methods = {"private slot m_slot_OkPushed()"};
    form.hasFont = true;
    return form;
}

InputFacts Input()
{
    InputFacts input;
    input.unset = "(0, 0, 0) along (0, 0, 1) | 0 | 0";
    input.defaults = "(0, 0, 0) along (0, 0, 1) | 90 | 4";
    // No range is checked.
    input.typed = {{"lineEdit_Angle", "-720.5"},
                   {"lineEdit_Num", "-3"},
                   {"lineEdit_AxisPtx", "1e12"},
                   {"lineEdit_AxisPty", "-2"},
                   {"lineEdit_AxisPtz", "0.5"}};
    input.entered = "(1000000000000, -2, 0.5) along (0, 0, 1) | -720.5 | -3";
    input.converted = {"lineEdit_Angle", "lineEdit_Num", "lineEdit_AxisPty"};
    input.conversion = "(0, %1, 0) along (0, 0, 1) | %1 | %2";
    return input;
}

QString Text(const sMatrixArcdata& record)
{
    const gp_Pnt& point = record.m_axis.Location();
    return QStringLiteral("(%1, %2, %3) along %4 | %5 | %6")
        .arg(AllDigits(point.X()), AllDigits(point.Y()), AllDigits(point.Z()),
             KernelText(record.m_axis.Direction()), AllDigits(record.m_dAngle))
        .arg(record.m_nNumber);
}

} // namespace

class tst_ArcArrayDlg : public InputFormTest<ArcArrayDlg>
{
    Q_OBJECT

public:
    tst_ArcArrayDlg()
        : InputFormTest(Form(), Input())
    {
    }

private Q_SLOTS:
    void ANewRecordHasTheZAxis();
    void TheDirectionIsNormalised_data();
    void TheDirectionIsNormalised();
    void AZeroDirectionThrowsTheKernelsError();

private:
    QString Values(const ArcArrayDlg& dialog) const override
    {
        return Text(dialog.GetArrayParameter());
    }
};

void tst_ArcArrayDlg::ANewRecordHasTheZAxis()
{
    QCOMPARE(Text(sMatrixArcdata()), QString("(0, 0, 0) along (0, 0, 1) | 0 | 0"));
}

void tst_ArcArrayDlg::TheDirectionIsNormalised_data()
{
    QTest::addColumn<QString>("x");
    QTest::addColumn<QString>("y");
    QTest::addColumn<QString>("z");
    QTest::addColumn<QString>("direction");
    NewRow("along an axis", "0", "0", "2", "(0, 0, 1)");
    NewRow("in a plane", "3", "4", "0", "(0.6, 0.8, 0)");
    NewRow("negative", "-2", "-1", "-2", "(-0.666666666667, -0.333333333333, -0.666666666667)");
}

void tst_ArcArrayDlg::TheDirectionIsNormalised()
{
    QFETCH(QString, x);
    QFETCH(QString, y);
    QFETCH(QString, z);
    QFETCH(QString, direction);
    ArcArrayDlg dialog(nullptr);
    const FieldTexts fields = {{"lineEdit_Dirx", x}, {"lineEdit_Diry", y}, {"lineEdit_Dirz", z}};
    QCOMPARE(FillAndPress(dialog, fields, "pushButtonOK"), int(QDialog::Accepted));
    QCOMPARE(KernelText(dialog.GetArrayParameter().m_axis.Direction()), direction);
}

void tst_ArcArrayDlg::AZeroDirectionThrowsTheKernelsError()
{
    ArcArrayDlg dialog(nullptr);
    FillAndPress(dialog, {{"lineEdit_AxisPtx", "1"}}, "pushButtonOK");
    const FieldTexts fields = {{"lineEdit_Angle", "45"},
                               {"lineEdit_Num", "8"},
                               {"lineEdit_AxisPtx", "9"},
                               {"lineEdit_Dirz", "0"}};
    ExpectWarning("Qt has caught an exception thrown from an event handler");
    QVERIFY_EXCEPTION_THROWN(FillAndPress(dialog, fields, "pushButtonOK"),
                             Standard_ConstructionError);
    QVERIFY(dialog.isVisible());
    QCOMPARE(Values(dialog), QString("(1, 0, 0) along (0, 0, 1) | 45 | 8"));
}

TARN_TEST_MAIN(tst_ArcArrayDlg)
#include "tst_ArcArrayDlg.moc"
