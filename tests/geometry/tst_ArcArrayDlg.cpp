#include "ArcArrayDlg.h"
#include "DialogChecks.h"
#include "DialogFacts.h"
#include "KernelText.h"
#include "TestCase.h"

#include <QApplication>
#include <Standard_ConstructionError.hxx>

class tst_ArcArrayDlg : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormIsAsGiven();
    void TheFontIsSetOnTheDialog();
    void TabFollowsTheReadingOrder();
    void EnterConfirmsAndEscapeLeaves();
    void TheSlotsAreAsGiven();
    void AnEmptyRecordIsAboutTheZAxis();
    void TheAxisIsSetBeforeOK();
    void TheDefaultsAreFourInstancesAtNinetyDegrees();
    void TheDirectionIsNormalised_data();
    void TheDirectionIsNormalised();
    void NoRangeIsChecked();
    void CancelLeavesTheRecord();
    void TextIsConverted_data() { AddConversionRows(); }
    void TextIsConverted();
    void AZeroDirectionRaisesTheKernelsError();

private:
    static QString Text(const sMatrixArcdata& record);
};

QString tst_ArcArrayDlg::Text(const sMatrixArcdata& record)
{
    return QStringLiteral("%1 | %2 | %3")
        .arg(KernelText(record.m_axis), AllDigits(record.m_dAngle))
        .arg(record.m_nNumber);
}

void tst_ArcArrayDlg::TheFormIsAsGiven()
{
    CompareForm<ArcArrayDlg>("ArcArrayDlg");
    const ArcArrayDlg dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString("Arc Array Input"));
    QCOMPARE(dialog.size(), QSize(398, 179));
    QCOMPARE(DescribeForm(dialog, true),
             QStringList({
                 "QGroupBox groupBox in ArcArrayDlg at 10,50 381x81: Rotation Axis",
                 "QLabel label in groupBox at 10,20 81x21: Direction",
                 "QLabel label_2 in groupBox at 0,50 111x21: Point On Axis",
                 "QLabel label_4 in ArcArrayDlg at 20,20 71x21: Angle",
                 "QLabel label_5 in ArcArrayDlg at 190,20 81x21: Number",
                 "QLineEdit lineEdit_Angle in ArcArrayDlg at 100,20 81x21: 90",
                 "QLineEdit lineEdit_AxisPtx in groupBox at 110,50 81x21: 0",
                 "QLineEdit lineEdit_AxisPty in groupBox at 200,50 81x21: 0",
                 "QLineEdit lineEdit_AxisPtz in groupBox at 290,50 81x21: 0",
                 "QLineEdit lineEdit_Dirx in groupBox at 110,20 81x21: 0",
                 "QLineEdit lineEdit_Diry in groupBox at 200,20 81x21: 0",
                 "QLineEdit lineEdit_Dirz in groupBox at 290,20 81x21: 1",
                 "QLineEdit lineEdit_Num in ArcArrayDlg at 270,20 81x21: 4",
                 "QPushButton pushButtonOK in ArcArrayDlg at 150,140 98x28: Ok",
                 "QPushButton pushButton_Cancel in ArcArrayDlg at 260,140 98x28: Cancel",
             }));
}

void tst_ArcArrayDlg::TheFontIsSetOnTheDialog()
{
    const ArcArrayDlg dialog(nullptr);
    QCOMPARE(dialog.font().family(), QString("微软雅黑"));
    QCOMPARE(dialog.font().pointSize(), QApplication::font().pointSize());
}

void tst_ArcArrayDlg::TabFollowsTheReadingOrder()
{
    ArcArrayDlg dialog(nullptr);
    QCOMPARE(TabOrder(dialog),
             QStringList({"lineEdit_Angle", "lineEdit_Num", "lineEdit_Dirx", "lineEdit_Diry",
                          "lineEdit_Dirz", "lineEdit_AxisPtx", "lineEdit_AxisPty",
                          "lineEdit_AxisPtz", "pushButtonOK", "pushButton_Cancel"}));
}

void tst_ArcArrayDlg::EnterConfirmsAndEscapeLeaves()
{
    ArcArrayDlg dialog(nullptr);
    QCOMPARE(EnterButtons(dialog), QStringList({"pushButtonOK*"}));
    QCOMPARE(PressKey(dialog, "lineEdit_Num", Qt::Key_Escape), int(QDialog::Rejected));
    QCOMPARE(dialog.GetArrayParameter().m_nNumber, 0);
    QCOMPARE(PressKey(dialog, "lineEdit_Num", Qt::Key_Return), int(QDialog::Accepted));
    QCOMPARE(dialog.GetArrayParameter().m_nNumber, 4);
}

void tst_ArcArrayDlg::TheSlotsAreAsGiven()
{
    QCOMPARE(OwnMethods(ArcArrayDlg::staticMetaObject),
             QStringList({"private slot m_slot_OkPushed()"}));
    QCOMPARE(ArcArrayDlg::staticMetaObject.superClass(), &QDialog::staticMetaObject);
}

void tst_ArcArrayDlg::AnEmptyRecordIsAboutTheZAxis()
{
    QCOMPARE(Text(sMatrixArcdata()), QString("(0, 0, 0) along (0, 0, 1) | 0 | 0"));
}

void tst_ArcArrayDlg::TheAxisIsSetBeforeOK()
{
    const ArcArrayDlg dialog(nullptr);
    QCOMPARE(KernelText(dialog.GetArrayParameter().m_axis), QString("(0, 0, 0) along (0, 0, 1)"));
}

void tst_ArcArrayDlg::TheDefaultsAreFourInstancesAtNinetyDegrees()
{
    ArcArrayDlg dialog(nullptr);
    QCOMPARE(FillAndPress(dialog, {}, "pushButtonOK"), int(QDialog::Accepted));
    QCOMPARE(Text(dialog.GetArrayParameter()), QString("(0, 0, 0) along (0, 0, 1) | 90 | 4"));
}

void tst_ArcArrayDlg::TheDirectionIsNormalised_data()
{
    QTest::addColumn<QString>("x");
    QTest::addColumn<QString>("y");
    QTest::addColumn<QString>("z");
    QTest::addColumn<QString>("direction");
    QTest::newRow("along an axis") << "0"
                                   << "0"
                                   << "2"
                                   << "(0, 0, 1)";
    QTest::newRow("in a plane") << "3"
                                << "4"
                                << "0"
                                << "(0.6, 0.8, 0)";
    QTest::newRow("negative") << "-2"
                              << "-1"
                              << "-2"
                              << "(-0.666666666667, -0.333333333333, -0.666666666667)";
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

void tst_ArcArrayDlg::NoRangeIsChecked()
{
    ArcArrayDlg dialog(nullptr);
    const FieldTexts fields = {{"lineEdit_Angle", "-720.5"},
                               {"lineEdit_Num", "-3"},
                               {"lineEdit_AxisPtx", "1e12"},
                               {"lineEdit_AxisPty", "-2"},
                               {"lineEdit_AxisPtz", "0.5"}};
    QCOMPARE(FillAndPress(dialog, fields, "pushButtonOK"), int(QDialog::Accepted));
    QCOMPARE(Text(dialog.GetArrayParameter()),
             QString("(1e+12, -2, 0.5) along (0, 0, 1) | -720.5 | -3"));
}

void tst_ArcArrayDlg::CancelLeavesTheRecord()
{
    ArcArrayDlg dialog(nullptr);
    FillAndPress(dialog, {}, "pushButtonOK");
    const FieldTexts fields = {{"lineEdit_Angle", "5"}, {"lineEdit_AxisPtx", "5"}};
    QCOMPARE(FillAndPress(dialog, fields, "pushButton_Cancel"), int(QDialog::Rejected));
    QCOMPARE(Text(dialog.GetArrayParameter()), QString("(0, 0, 0) along (0, 0, 1) | 90 | 4"));
}

void tst_ArcArrayDlg::TextIsConverted()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, text);
    QFETCH(double, number);
    QFETCH(int, integer);
    QVERIFY(UseLocale(locale));
    ArcArrayDlg dialog(nullptr);
    const FieldTexts fields = {
        {"lineEdit_Angle", text}, {"lineEdit_Num", text}, {"lineEdit_AxisPty", text}};
    QCOMPARE(FillAndPress(dialog, fields, "pushButtonOK"), int(QDialog::Accepted));
    const sMatrixArcdata record = dialog.GetArrayParameter();
    QCOMPARE(AllDigits(record.m_dAngle), AllDigits(number));
    QCOMPARE(record.m_nNumber, integer);
    QCOMPARE(AllDigits(record.m_axis.Location().Y()), AllDigits(number));
}

void tst_ArcArrayDlg::AZeroDirectionRaisesTheKernelsError()
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
    QCOMPARE(Text(dialog.GetArrayParameter()), QString("(1, 0, 0) along (0, 0, 1) | 45 | 8"));
}

TARN_TEST_MAIN(tst_ArcArrayDlg)
#include "tst_ArcArrayDlg.moc"
