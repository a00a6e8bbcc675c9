#include "DialogChecks.h"
#include "DialogFacts.h"
#include "MatrixArrayDlg.h"
#include "ModalDriver.h"
#include "TestCase.h"

#include <QApplication>
#include <QLineEdit>
#include <QRegExpValidator>

class tst_MatrixArrayDlg : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormIsAsGiven();
    void TheFontIsSetOnTheDialog();
    void TabFollowsTheReadingOrder();
    void EnterConfirmsAndEscapeLeaves();
    void TheSlotsAreAsGiven();
    void ANewRecordIsZero();
    void TheDefaultsAreFiveTimesFour();
    void TheNumberFieldsShareOneValidator();
    void TheDistanceFieldsHaveNoValidator();
    void ANumberFieldTakesUpToFourDigits_data();
    void ANumberFieldTakesUpToFourDigits();
    void EnterConfirmsAnEmptyNumber();
    void CancelLeavesTheRecord();
    void DistancesAreConverted_data() { AddConversionRows(); }
    void DistancesAreConverted();

private:
    static QString Text(const sMatrixArraydata& record);
};

QString tst_MatrixArrayDlg::Text(const sMatrixArraydata& record)
{
    return QStringLiteral("%1 x %2, %3 x %4")
        .arg(record.m_nXNumber)
        .arg(record.m_nYNumber)
        .arg(AllDigits(record.m_dXDistance), AllDigits(record.m_dYDistance));
}

void tst_MatrixArrayDlg::TheFormIsAsGiven()
{
    CompareForm<MatrixArrayDlg>("MatrixArrayDlg");
    const MatrixArrayDlg dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString("矩形阵列参数输入"));
    QCOMPARE(dialog.size(), QSize(393, 147));
    QCOMPARE(DescribeForm(dialog, true),
             QStringList({
                 "QGroupBox groupBox in MatrixArrayDlg at 10,10 171x91: X Direction",
                 "QGroupBox groupBox_2 in MatrixArrayDlg at 180,10 201x91: Y Direction",
                 "QLabel label in groupBox at 10,30 61x21: Number",
                 "QLabel label_2 in groupBox_2 at 20,30 61x21: Number",
                 "QLabel label_3 in groupBox at 10,60 71x21: Distance",
                 "QLabel label_4 in groupBox_2 at 20,60 71x21: Distance",
                 "QLineEdit lineEdit_XDis in groupBox at 80,60 81x21: 50",
                 "QLineEdit lineEdit_XNum in groupBox at 80,30 81x21: 5",
                 "QLineEdit lineEdit_YDis in groupBox_2 at 110,60 81x21: 100",
                 "QLineEdit lineEdit_YNum in groupBox_2 at 110,30 81x21: 4",
                 "QPushButton pushButtonCancel in MatrixArrayDlg at 280,110 93x28: Cancel",
                 "QPushButton pushButtonOK in MatrixArrayDlg at 180,110 93x28: OK",
             }));
}

void tst_MatrixArrayDlg::TheFontIsSetOnTheDialog()
{
    const MatrixArrayDlg dialog(nullptr);
    QCOMPARE(dialog.font().family(), QString("微软雅黑"));
    QCOMPARE(dialog.font().pointSize(), QApplication::font().pointSize());
}

void tst_MatrixArrayDlg::TabFollowsTheReadingOrder()
{
    MatrixArrayDlg dialog(nullptr);
    QCOMPARE(TabOrder(dialog), QStringList({"lineEdit_XNum", "lineEdit_XDis", "lineEdit_YNum",
                                            "lineEdit_YDis", "pushButtonOK", "pushButtonCancel"}));
}

void tst_MatrixArrayDlg::EnterConfirmsAndEscapeLeaves()
{
    MatrixArrayDlg dialog(nullptr);
    QCOMPARE(EnterButtons(dialog), QStringList({"pushButtonOK*"}));
    QCOMPARE(PressKey(dialog, "lineEdit_YNum", Qt::Key_Escape), int(QDialog::Rejected));
    QCOMPARE(PressKey(dialog, "lineEdit_YNum", Qt::Key_Return), int(QDialog::Accepted));
}

void tst_MatrixArrayDlg::TheSlotsAreAsGiven()
{
    QCOMPARE(OwnMethods(MatrixArrayDlg::staticMetaObject),
             QStringList({"private slot m_slot_OkPushed()", "private slot m_slot_CancelPushed()"}));
    QCOMPARE(MatrixArrayDlg::staticMetaObject.superClass(), &QDialog::staticMetaObject);
}

void tst_MatrixArrayDlg::ANewRecordIsZero()
{
    QCOMPARE(Text(sMatrixArraydata()), QString("0 x 0, 0 x 0"));
    const MatrixArrayDlg dialog(nullptr);
    QCOMPARE(Text(dialog.GetArrayParameter()), QString("0 x 0, 0 x 0"));
}

void tst_MatrixArrayDlg::TheDefaultsAreFiveTimesFour()
{
    MatrixArrayDlg dialog(nullptr);
    QCOMPARE(FillAndPress(dialog, {}, "pushButtonOK"), int(QDialog::Accepted));
    QCOMPARE(Text(dialog.GetArrayParameter()), QString("5 x 4, 50 x 100"));
}

void tst_MatrixArrayDlg::TheNumberFieldsShareOneValidator()
{
    const MatrixArrayDlg dialog(nullptr);
    const auto& first = Find<QLineEdit>(dialog, "lineEdit_XNum");
    const auto* const validator = qobject_cast<const QRegExpValidator*>(first.validator());
    QVERIFY(validator != nullptr);
    QCOMPARE(validator->parent(), &first);
    QCOMPARE(validator->regExp().pattern(), QString("[0-9]{1,4}"));
    QCOMPARE(validator->regExp().caseSensitivity(), Qt::CaseSensitive);
    QCOMPARE(validator->regExp().patternSyntax(), QRegExp::RegExp);
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_YNum").validator(), first.validator());
}

void tst_MatrixArrayDlg::TheDistanceFieldsHaveNoValidator()
{
    const MatrixArrayDlg dialog(nullptr);
    QVERIFY(Find<QLineEdit>(dialog, "lineEdit_XDis").validator() == nullptr);
    QVERIFY(Find<QLineEdit>(dialog, "lineEdit_YDis").validator() == nullptr);
}

void tst_MatrixArrayDlg::ANumberFieldTakesUpToFourDigits_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("number");
    QTest::newRow("empty") << ""
                           << "" << 0;
    QTest::newRow("zero") << "0"
                          << "0" << 0;
    QTest::newRow("leading zeros") << "0012"
                                   << "0012" << 12;
    QTest::newRow("four digits") << "9999"
                                 << "9999" << 9999;
    QTest::newRow("five digits") << "12345"
                                 << "1234" << 1234;
    QTest::newRow("minus sign") << "-5"
                                << "5" << 5;
    QTest::newRow("plus sign") << "+5"
                               << "5" << 5;
    QTest::newRow("full stop") << "6.5"
                               << "65" << 65;
    QTest::newRow("letters") << "a1b2"
                             << "12" << 12;
    QTest::newRow("exponent") << "1e3"
                              << "13" << 13;
    QTest::newRow("blanks") << " 5 "
                            << "5" << 5;
    QTest::newRow("hexadecimal") << "0x10"
                                 << "010" << 10;
}

void tst_MatrixArrayDlg::ANumberFieldTakesUpToFourDigits()
{
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    QFETCH(int, number);
    MatrixArrayDlg dialog(nullptr);
    const FieldTexts fields = {{"lineEdit_XNum", typed}, {"lineEdit_YNum", typed}};
    QCOMPARE(FillAndPress(dialog, fields, "pushButtonOK"), int(QDialog::Accepted));
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_XNum").text(), shown);
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_YNum").text(), shown);
    QCOMPARE(Text(dialog.GetArrayParameter()), QString("%1 x %1, 50 x 100").arg(number));
}

void tst_MatrixArrayDlg::EnterConfirmsAnEmptyNumber()
{
    MatrixArrayDlg dialog(nullptr);
    Find<QLineEdit>(dialog, "lineEdit_XNum").clear();
    QCOMPARE(PressKey(dialog, "lineEdit_XNum", Qt::Key_Return), int(QDialog::Accepted));
    QCOMPARE(dialog.GetArrayParameter().m_nXNumber, 0);
}

void tst_MatrixArrayDlg::CancelLeavesTheRecord()
{
    MatrixArrayDlg dialog(nullptr);
    FillAndPress(dialog, {}, "pushButtonOK");
    const FieldTexts fields = {{"lineEdit_XNum", "7"}, {"lineEdit_YDis", "7"}};
    QCOMPARE(FillAndPress(dialog, fields, "pushButtonCancel"), int(QDialog::Rejected));
    QCOMPARE(Text(dialog.GetArrayParameter()), QString("5 x 4, 50 x 100"));
}

void tst_MatrixArrayDlg::DistancesAreConverted()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, text);
    QFETCH(double, number);
    QVERIFY(UseLocale(locale));
    MatrixArrayDlg dialog(nullptr);
    FillAndPress(dialog, {{"lineEdit_XDis", text}, {"lineEdit_YDis", "-0.25"}}, "pushButtonOK");
    QCOMPARE(AllDigits(dialog.GetArrayParameter().m_dXDistance), AllDigits(number));
    QCOMPARE(dialog.GetArrayParameter().m_dYDistance, -0.25);
}

TARN_TEST_MAIN(tst_MatrixArrayDlg)
#include "tst_MatrixArrayDlg.moc"
