#include "InputFormTest.h"
#include "KernelText.h"
#include "rotateInputDlg.h"

#include <QLabel>
#include <Standard_ConstructionError.hxx>

namespace {

constexpr double Pi = 3.141592653589793;

FormFacts Form()
{
    FormFacts form;
    form.name = "rotateInputDlg";
    form.title = "Input";
    form.size = {446, 182};
    form.lines = {
        "QGroupBox groupBox in rotateInputDlg: Rotation Axis",
        "QLabel label_4 in groupBox: Point On Axis, for lineEdit_xPt",
        "QLineEdit lineEdit_xPt in groupBox: 0",
        "QLineEdit lineEdit_yPt in groupBox: 0",
        "QLineEdit lineEdit_zPt in groupBox: 0",
        "QLabel label_3 in groupBox: Direction, for lineEdit_xDir",
        "QLineEdit lineEdit_xDir in groupBox: 0",
        "QLineEdit lineEdit_yDir in groupBox: 0",
        "QLineEdit lineEdit_zDir in groupBox: 1",
        "QLabel label in rotateInputDlg: Angle, for lineEdit_Degree",
        "QLineEdit lineEdit_Degree in rotateInputDlg: 90",
        "QLabel label_2 in rotateInputDlg: Degree",
        "QPushButton pushButton_OK in rotateInputDlg: OK",
        "QPushButton pushButton_Cancel in rotateInputDlg: Cancel",
    };
    form.tabOrder = {"lineEdit_xPt",    "lineEdit_yPt",  "lineEdit_zPt",
                     "lineEdit_xDir",   "lineEdit_yDir", "lineEdit_zDir",
                     "lineEdit_Degree", "pushButton_OK", "pushButton_Cancel"};
    form.enter = "pushButton_OK";
    form.methods = {"private slot m_Slot_OK()"};
    form.hasFont = true;
    return form;
}

InputFacts Input()
{
    InputFacts input;
    // There is an axis before the first OK, and it is not made of the point and the direction.
    input.unset = "0 | (0, 0, 0) | (1, 0, 0) | (0, 0, 0) along (0, 0, 1)";
    input.defaults = "1.5707963267948966 | (0, 0, 0) | (0, 0, 1) | (0, 0, 0) along (0, 0, 1)";
    input.typed = {{"lineEdit_xPt", "1"},     {"lineEdit_yPt", "-2"},  {"lineEdit_zPt", "3.5"},
                   {"lineEdit_xDir", "3"},    {"lineEdit_yDir", "-4"}, {"lineEdit_zDir", "0"},
                   {"lineEdit_Degree", "180"}};
    input.entered = "3.1415926535897931 | (1, -2, 3.5) | (0.6, -0.8, 0) | "
                    "(1, -2, 3.5) along (0.6, -0.8, 0)";
    input.converted = {"lineEdit_xPt", "lineEdit_yPt", "lineEdit_zPt"};
    input.conversion = "1.5707963267948966 | (%1, %1, %1) | (0, 0, 1) | "
                       "(%3, %3, %3) along (0, 0, 1)";
    return input;
}

} // namespace

class tst_rotateInputDlg : public InputFormTest<rotateInputDlg>
{
    Q_OBJECT

public:
    tst_rotateInputDlg()
        : InputFormTest(Form(), Input())
    {
    }

private Q_SLOTS:
    void TheLabelsHaveTheFontOfTheDialog();
    void TheAngleIsConverted_data() { AddConversionRows(); }
    void TheAngleIsConverted();
    void AZeroDirectionThrowsTheKernelsError_data();
    void AZeroDirectionThrowsTheKernelsError();
    void TheShortestDirectionIsNormalised();

private:
    QString Values(const rotateInputDlg& dialog) const override;
};

QString tst_rotateInputDlg::Values(const rotateInputDlg& dialog) const
{
    const gp_Pnt point = dialog.GetBasePt();
    return QStringLiteral("%1 | (%2, %3, %4) | %5 | %6")
        .arg(AllDigits(dialog.GetAngle()), AllDigits(point.X()), AllDigits(point.Y()),
             AllDigits(point.Z()), KernelText(dialog.GetRotateDir()),
             KernelText(dialog.GetRotateAxis()));
}

void tst_rotateInputDlg::TheLabelsHaveTheFontOfTheDialog()
{
    const rotateInputDlg dialog(nullptr);
    QCOMPARE(Find<QLabel>(dialog, "label_4").font(), dialog.font());
}

void tst_rotateInputDlg::TheAngleIsConverted()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, text);
    QFETCH(double, number);
    UseLocale(locale);
    rotateInputDlg dialog(nullptr);
    FillAndPress(dialog, {{"lineEdit_Degree", text}}, "pushButton_OK");
    QCOMPARE(AllDigits(dialog.GetAngle()), AllDigits(number * Pi / 180));
}

void tst_rotateInputDlg::AZeroDirectionThrowsTheKernelsError_data()
{
    QTest::addColumn<QString>("x");
    QTest::addColumn<QString>("z");
    NewRow("zeros", "0", "0");
    NewRow("negative zero", "0", "-0");
    NewRow("empty", "", "");
    NewRow("no numbers", "abc", "1,0");
    NewRow("squares vanish", "0", "1e-200");
    NewRow("at the limit", "0", "2.2250738585072014e-308");
}

void tst_rotateInputDlg::AZeroDirectionThrowsTheKernelsError()
{
    QFETCH(QString, x);
    QFETCH(QString, z);
    rotateInputDlg dialog(nullptr);
    const FieldTexts fields = {{"lineEdit_Degree", "180"}, {"lineEdit_xPt", "1"},
                               {"lineEdit_yPt", "2"},      {"lineEdit_zPt", "3"},
                               {"lineEdit_xDir", x},       {"lineEdit_zDir", z}};
    ExpectWarning("Qt has caught an exception thrown from an event handler");
    QVERIFY_EXCEPTION_THROWN(FillAndPress(dialog, fields, "pushButton_OK"),
                             Standard_ConstructionError);
    QVERIFY(dialog.isVisible());
    QCOMPARE(Values(dialog), QString("3.1415926535897931 | (1, 2, 3) | (1, 0, 0) | "
                                     "(0, 0, 0) along (0, 0, 1)"));
}

void tst_rotateInputDlg::TheShortestDirectionIsNormalised()
{
    rotateInputDlg dialog(nullptr);
    FillAndPress(dialog, {{"lineEdit_zDir", "-1e-150"}}, "pushButton_OK");
    QCOMPARE(KernelText(dialog.GetRotateDir()), QString("(0, 0, -1)"));
}

TARN_TEST_MAIN(tst_rotateInputDlg)
#include "tst_rotateInputDlg.moc"
