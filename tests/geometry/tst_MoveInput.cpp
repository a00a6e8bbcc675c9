#include "Conversions.h"
#include "FormTest.h"
#include "MoveInput.h"

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "MoveInput";
    form.title = "Input Move Parameter";
    form.size = {216, 157};
    form.lines = {
        "QGroupBox groupBox in MoveInput: ",
        "QLabel label in groupBox: dx, for lineEdit_Dx",
        "QLineEdit lineEdit_Dx in groupBox: 0.0",
        "QLabel label_2 in groupBox: dy, for lineEdit_Dy",
        "QLineEdit lineEdit_Dy in groupBox: 0.0",
        "QLabel label_3 in groupBox: dz, for lineEdit_Dz",
        "QLineEdit lineEdit_Dz in groupBox: 0.0",
        "QPushButton pushButton_OK in MoveInput: OK",
        "QPushButton pushButton_Cancel in MoveInput: Cancel",
    };
    form.tabOrder = {"lineEdit_Dx", "lineEdit_Dy", "lineEdit_Dz", "pushButton_OK",
                     "pushButton_Cancel"};
    form.enter = "pushButton_OK";
    form.methods = {"private slot m_Slot_OK()", "private slot m_Slot_Cancel()"};
    form.hasFont = true;
    return form;
}

QString MoveData(const MoveInput& dialog)
{
    double dx = -1.0;
    double dy = -1.0;
    double dz = -1.0;
    dialog.GetMoveData(dx, dy, dz);
    return QStringLiteral("%1 %2 %3").arg(AllDigits(dx), AllDigits(dy), AllDigits(dz));
}

} // namespace

class tst_MoveInput : public FormTest<MoveInput>
{
    Q_OBJECT

public:
    tst_MoveInput()
        : FormTest(Form())
    {
    }

private Q_SLOTS:
    void TheGroupHasTenPoints();
    void TheFieldsAreReadWithoutARun();
    void OKAcceptsAndCancelRejects();
    void TheFieldsAreReadAfterACancelledRun();
    void TheFieldsAreReadAtTheMomentOfTheCall();
    void TextIsConverted_data() { AddConversionRows(); }
    void TextIsConverted();
};

void tst_MoveInput::TheGroupHasTenPoints()
{
    const MoveInput dialog(nullptr);
    for (const char* const name : {"groupBox", "label", "label_2", "label_3"}) {
        QCOMPARE(Find<QWidget>(dialog, name).font().family(), QString("微软雅黑"));
        QCOMPARE(Find<QWidget>(dialog, name).font().pointSize(), 10);
    }
}

void tst_MoveInput::TheFieldsAreReadWithoutARun()
{
    const MoveInput dialog(nullptr);
    QCOMPARE(MoveData(dialog), QString("0 0 0"));
}

void tst_MoveInput::OKAcceptsAndCancelRejects()
{
    MoveInput dialog(nullptr);
    QCOMPARE(RunAndPress(dialog, "pushButton_OK"), int(QDialog::Accepted));
    QCOMPARE(RunAndPress(dialog, "pushButton_Cancel"), int(QDialog::Rejected));
}

void tst_MoveInput::TheFieldsAreReadAfterACancelledRun()
{
    MoveInput dialog(nullptr);
    const FieldTexts fields = {{"lineEdit_Dx", "1"}, {"lineEdit_Dy", "-2.5"}, {"lineEdit_Dz", "3"}};
    QCOMPARE(FillAndPress(dialog, fields, "pushButton_Cancel"), int(QDialog::Rejected));
    QCOMPARE(MoveData(dialog), QString("1 -2.5 3"));
}

void tst_MoveInput::TheFieldsAreReadAtTheMomentOfTheCall()
{
    MoveInput dialog(nullptr);
    FillAndPress(dialog, {{"lineEdit_Dx", "1"}}, "pushButton_OK");
    Type(dialog, "lineEdit_Dx", "8");
    QCOMPARE(MoveData(dialog), QString("8 0 0"));
}

void tst_MoveInput::TextIsConverted()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, text);
    QFETCH(double, number);
    UseLocale(locale);
    MoveInput dialog(nullptr);
    FillAndPress(dialog, {{"lineEdit_Dx", text}, {"lineEdit_Dy", text}, {"lineEdit_Dz", text}},
                 "pushButton_OK");
    const QString expected = AllDigits(number);
    QCOMPARE(MoveData(dialog), QStringLiteral("%1 %1 %1").arg(expected));
}

TARN_TEST_MAIN(tst_MoveInput)
#include "tst_MoveInput.moc"
