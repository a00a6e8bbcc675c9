#include "InputFormTest.h"
#include "MatrixArrayDlg.h"

#include <QLineEdit>
#include <QRegExpValidator>

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "MatrixArrayDlg";
    form.title = "矩形阵列参数输入";
    form.size = {393, 147};
    form.lines = {
        "QGroupBox groupBox in MatrixArrayDlg at 10,10 171x91: X Direction",
        "QLabel label in groupBox at 10,30 61x21: Number, for lineEdit_XNum",
        "QLineEdit lineEdit_XNum in groupBox at 80,30 81x21: 5, with QRegExpValidator",
        "QLabel label_3 in groupBox at 10,60 71x21: Distance, for lineEdit_XDis",
        "QLineEdit lineEdit_XDis in groupBox at 80,60 81x21: 50",
        "QGroupBox groupBox_2 in MatrixArrayDlg at 180,10 201x91: Y Direction",
        "QLabel label_2 in groupBox_2 at 20,30 61x21: Number, for lineEdit_YNum",
        "QLineEdit lineEdit_YNum in groupBox_2 at 110,30 81x21: 4, with QRegExpValidator",
        "QLabel label_4 in groupBox_2 at 20,60 71x21: Distance, for lineEdit_YDis",
        "QLineEdit lineEdit_YDis in groupBox_2 at 110,60 81x21: 100",
        "QPushButton pushButtonOK in MatrixArrayDlg at 180,110 93x28: OK",
        "QPushButton pushButtonCancel in MatrixArrayDlg at 280,110 93x28: Cancel",
    };
    form.tabOrder = {"lineEdit_XNum", "lineEdit_XDis", "lineEdit_YNum",
                     "lineEdit_YDis", "pushButtonOK",  "pushButtonCancel"};
    form.enter = "pushButtonOK";
    form.methods = {"private slot m_slot_OkPushed()", "private slot m_slot_CancelPushed()"};
    form.hasFont = true;
    return form;
}

InputFacts Input()
{
    InputFacts input;
    input.unset = "0 x 0, 0 x 0";
    input.defaults = "5 x 4, 50 x 100";
    input.typed = {{"lineEdit_XNum", "7"},
                   {"lineEdit_XDis", "1.5"},
                   {"lineEdit_YNum", "8"},
                   {"lineEdit_YDis", "-0.25"}};
    input.entered = "7 x 8, 1.5 x -0.25";
    input.converted = {"lineEdit_XDis", "lineEdit_YDis"};
    input.conversion = "5 x 4, %1 x %1";
    input.cancel = "pushButtonCancel";
    return input;
}

QString Text(const sMatrixArraydata& record)
{
    return QStringLiteral("%1 x %2, %3 x %4")
        .arg(record.m_nXNumber)
        .arg(record.m_nYNumber)
        .arg(AllDigits(record.m_dXDistance), AllDigits(record.m_dYDistance));
}

} // namespace

class tst_MatrixArrayDlg : public InputFormTest<MatrixArrayDlg>
{
    Q_OBJECT

public:
    tst_MatrixArrayDlg()
        : InputFormTest(Form(), Input())
    {
    }

private Q_SLOTS:
    void ANewRecordIsZero();
    void TheNumberFieldsShareOneValidator();
    void ANumberFieldTakesUpToFourDigits_data();
    void ANumberFieldTakesUpToFourDigits();
    void EnterConfirmsAnEmptyNumber();

private:
    QString Values(const MatrixArrayDlg& dialog) const override
    {
        return Text(dialog.GetArrayParameter());
    }
};

void tst_MatrixArrayDlg::ANewRecordIsZero()
{
    QCOMPARE(Text(sMatrixArraydata()), QString("0 x 0, 0 x 0"));
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

void tst_MatrixArrayDlg::ANumberFieldTakesUpToFourDigits_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("number");
    NewRow("empty", "", "", 0);
    NewRow("zero", "0", "0", 0);
    NewRow("leading zeros", "0012", "0012", 12);
    NewRow("four digits", "9999", "9999", 9999);
    NewRow("five digits", "12345", "1234", 1234);
    NewRow("minus sign", "-5", "5", 5);
    NewRow("plus sign", "+5", "5", 5);
    NewRow("full stop", "6.5", "65", 65);
    NewRow("letters", "a1b2", "12", 12);
    NewRow("exponent", "1e3", "13", 13);
    NewRow("blanks", " 5 ", "5", 5);
    NewRow("hexadecimal", "0x10", "010", 10);
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
    QCOMPARE(Values(dialog), QString("%1 x %1, 50 x 100").arg(number));
}

void tst_MatrixArrayDlg::EnterConfirmsAnEmptyNumber()
{
    MatrixArrayDlg dialog(nullptr);
    Find<QLineEdit>(dialog, "lineEdit_XNum").clear();
    QCOMPARE(PressKey(dialog, "lineEdit_XNum", Qt::Key_Return), int(QDialog::Accepted));
    QCOMPARE(dialog.GetArrayParameter().m_nXNumber, 0);
}

TARN_TEST_MAIN(tst_MatrixArrayDlg)
#include "tst_MatrixArrayDlg.moc"
