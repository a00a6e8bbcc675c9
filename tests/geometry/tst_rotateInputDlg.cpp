#include "DialogChecks.h"
#include "DialogFacts.h"
#include "KernelText.h"
#include "TestCase.h"
#include "rotateInputDlg.h"

#include <QApplication>
#include <QLabel>
#include <Standard_ConstructionError.hxx>

class tst_rotateInputDlg : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormIsAsGiven();
    void TheFontIsSetOnTheDialog();
    void TabFollowsTheReadingOrder();
    void EnterConfirmsAndEscapeLeaves();
    void TheSlotsAreAsGiven();
    void TheGettersHaveValuesBeforeOK();
    void TheDefaultsAreAQuarterTurnAboutTheZAxis();
    void ThePointAndTheNormalisedDirectionMakeTheAxis();
    void CancelLeavesTheValues();
    void TheAngleIsConverted_data() { AddConversionRows(); }
    void TheAngleIsConverted();
    void CoordinatesAreConverted_data() { AddConversionRows(); }
    void CoordinatesAreConverted();
    void AZeroDirectionRaisesTheKernelsError_data();
    void AZeroDirectionRaisesTheKernelsError();
    void TheShortestDirectionIsNormalised();
};

void tst_rotateInputDlg::TheFormIsAsGiven()
{
    CompareForm<rotateInputDlg>("rotateInputDlg");
    const rotateInputDlg dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString("Input"));
    QCOMPARE(dialog.size(), QSize(446, 182));
    QCOMPARE(DescribeForm(dialog, false),
             QStringList({
                 "QGroupBox groupBox in rotateInputDlg: Rotation Axis",
                 "QLabel label in rotateInputDlg: Angle",
                 "QLabel label_2 in rotateInputDlg: Degree",
                 "QLabel label_3 in groupBox: Direction",
                 "QLabel label_4 in groupBox: Point On Axis",
                 "QLineEdit lineEdit_Degree in rotateInputDlg: 90",
                 "QLineEdit lineEdit_xDir in groupBox: 0",
                 "QLineEdit lineEdit_xPt in groupBox: 0",
                 "QLineEdit lineEdit_yDir in groupBox: 0",
                 "QLineEdit lineEdit_yPt in groupBox: 0",
                 "QLineEdit lineEdit_zDir in groupBox: 1",
                 "QLineEdit lineEdit_zPt in groupBox: 0",
                 "QPushButton pushButton_Cancel in rotateInputDlg: Cancel",
                 "QPushButton pushButton_OK in rotateInputDlg: OK",
             }));
}

void tst_rotateInputDlg::TheFontIsSetOnTheDialog()
{
    const rotateInputDlg dialog(nullptr);
    QCOMPARE(dialog.font().family(), QString("微软雅黑"));
    QCOMPARE(dialog.font().pointSize(), QApplication::font().pointSize());
    QCOMPARE(Find<QLabel>(dialog, "label_4").font(), dialog.font());
}

void tst_rotateInputDlg::TabFollowsTheReadingOrder()
{
    rotateInputDlg dialog(nullptr);
    QCOMPARE(TabOrder(dialog),
             QStringList({"lineEdit_xPt", "lineEdit_yPt", "lineEdit_zPt", "lineEdit_xDir",
                          "lineEdit_yDir", "lineEdit_zDir", "lineEdit_Degree", "pushButton_OK",
                          "pushButton_Cancel"}));
}

void tst_rotateInputDlg::EnterConfirmsAndEscapeLeaves()
{
    rotateInputDlg dialog(nullptr);
    QCOMPARE(EnterButtons(dialog), QStringList({"pushButton_OK*"}));
    QCOMPARE(PressKey(dialog, "lineEdit_yPt", Qt::Key_Escape), int(QDialog::Rejected));
    QCOMPARE(dialog.GetAngle(), 0.0);
    QCOMPARE(PressKey(dialog, "lineEdit_yPt", Qt::Key_Return), int(QDialog::Accepted));
    QVERIFY(dialog.GetAngle() > 0.0);
}

void tst_rotateInputDlg::TheSlotsAreAsGiven()
{
    QCOMPARE(OwnMethods(rotateInputDlg::staticMetaObject),
             QStringList({"private slot m_Slot_OK()"}));
    QCOMPARE(rotateInputDlg::staticMetaObject.superClass(), &QDialog::staticMetaObject);
}

void tst_rotateInputDlg::TheGettersHaveValuesBeforeOK()
{
    const rotateInputDlg dialog(nullptr);
    QCOMPARE(KernelText(dialog.GetBasePt()), QString("(0, 0, 0)"));
    QCOMPARE(KernelText(dialog.GetRotateDir()), QString("(1, 0, 0)"));
    QCOMPARE(KernelText(dialog.GetRotateAxis()), QString("(0, 0, 0) along (0, 0, 1)"));
}

void tst_rotateInputDlg::TheDefaultsAreAQuarterTurnAboutTheZAxis()
{
    rotateInputDlg dialog(nullptr);
    QCOMPARE(FillAndPress(dialog, {}, "pushButton_OK"), int(QDialog::Accepted));
    QCOMPARE(dialog.GetAngle(), 3.141592653589793 / 2);
    QCOMPARE(KernelText(dialog.GetBasePt()), QString("(0, 0, 0)"));
    QCOMPARE(KernelText(dialog.GetRotateDir()), QString("(0, 0, 1)"));
    QCOMPARE(KernelText(dialog.GetRotateAxis()), QString("(0, 0, 0) along (0, 0, 1)"));
}

void tst_rotateInputDlg::ThePointAndTheNormalisedDirectionMakeTheAxis()
{
    rotateInputDlg dialog(nullptr);
    const FieldTexts fields = {{"lineEdit_xPt", "1"},   {"lineEdit_yPt", "-2"},
                               {"lineEdit_zPt", "3.5"}, {"lineEdit_xDir", "3"},
                               {"lineEdit_yDir", "-4"}, {"lineEdit_zDir", "0"}};
    QCOMPARE(FillAndPress(dialog, fields, "pushButton_OK"), int(QDialog::Accepted));
    QCOMPARE(KernelText(dialog.GetBasePt()), QString("(1, -2, 3.5)"));
    QCOMPARE(KernelText(dialog.GetRotateDir()), QString("(0.6, -0.8, 0)"));
    QCOMPARE(KernelText(dialog.GetRotateAxis()), QString("(1, -2, 3.5) along (0.6, -0.8, 0)"));
}

void tst_rotateInputDlg::CancelLeavesTheValues()
{
    rotateInputDlg dialog(nullptr);
    FillAndPress(dialog, {{"lineEdit_xPt", "1"}}, "pushButton_OK");
    const FieldTexts fields = {{"lineEdit_xPt", "7"}, {"lineEdit_Degree", "7"}};
    QCOMPARE(FillAndPress(dialog, fields, "pushButton_Cancel"), int(QDialog::Rejected));
    QCOMPARE(KernelText(dialog.GetBasePt()), QString("(1, 0, 0)"));
    QCOMPARE(dialog.GetAngle(), 3.141592653589793 / 2);
}

void tst_rotateInputDlg::TheAngleIsConverted()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, text);
    QFETCH(double, number);
    QVERIFY(UseLocale(locale));
    rotateInputDlg dialog(nullptr);
    FillAndPress(dialog, {{"lineEdit_Degree", text}}, "pushButton_OK");
    QCOMPARE(AllDigits(dialog.GetAngle()), AllDigits(number * 3.141592653589793 / 180));
}

void tst_rotateInputDlg::CoordinatesAreConverted()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, text);
    QFETCH(double, number);
    QVERIFY(UseLocale(locale));
    rotateInputDlg dialog(nullptr);
    FillAndPress(dialog, {{"lineEdit_xPt", text}, {"lineEdit_yPt", text}, {"lineEdit_zPt", text}},
                 "pushButton_OK");
    QCOMPARE(AllDigits(dialog.GetBasePt().X()), AllDigits(number));
    QCOMPARE(AllDigits(dialog.GetBasePt().Y()), AllDigits(number));
    QCOMPARE(AllDigits(dialog.GetBasePt().Z()), AllDigits(number));
}

void tst_rotateInputDlg::AZeroDirectionRaisesTheKernelsError_data()
{
    QTest::addColumn<QString>("x");
    QTest::addColumn<QString>("z");
    QTest::newRow("zeros") << "0"
                           << "0";
    QTest::newRow("negative zero") << "0"
                                   << "-0";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("no numbers") << "abc"
                                << "1,0";
    QTest::newRow("squares vanish") << "0"
                                    << "1e-200";
    QTest::newRow("at the limit") << "0"
                                  << "2.2250738585072014e-308";
}

void tst_rotateInputDlg::AZeroDirectionRaisesTheKernelsError()
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
    QCOMPARE(dialog.GetAngle(), 3.141592653589793);
    QCOMPARE(KernelText(dialog.GetBasePt()), QString("(1, 2, 3)"));
    QCOMPARE(KernelText(dialog.GetRotateDir()), QString("(1, 0, 0)"));
    QCOMPARE(KernelText(dialog.GetRotateAxis()), QString("(0, 0, 0) along (0, 0, 1)"));
}

void tst_rotateInputDlg::TheShortestDirectionIsNormalised()
{
    rotateInputDlg dialog(nullptr);
    FillAndPress(dialog, {{"lineEdit_zDir", "-1e-150"}}, "pushButton_OK");
    QCOMPARE(KernelText(dialog.GetRotateDir()), QString("(0, 0, -1)"));
}

TARN_TEST_MAIN(tst_rotateInputDlg)
#include "tst_rotateInputDlg.moc"
