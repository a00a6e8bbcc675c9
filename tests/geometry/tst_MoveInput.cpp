#include "DialogChecks.h"
#include "DialogFacts.h"
#include "ModalDriver.h"
#include "MoveInput.h"
#include "TestCase.h"

#include <QApplication>

class tst_MoveInput : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormIsAsGiven();
    void TheFontsAreAsGiven();
    void TabFollowsTheReadingOrder();
    void EnterConfirmsAndEscapeLeaves();
    void TheSlotsAreAsGiven();
    void TheFieldsAreReadWithoutARun();
    void OKAcceptsAndCancelRejects();
    void TheFieldsAreReadAfterACancelledRun();
    void TheFieldsAreReadAtTheMomentOfTheCall();
    void TextIsConverted_data() { AddConversionRows(); }
    void TextIsConverted();

private:
    static QString MoveData(const MoveInput& dialog);
};

QString tst_MoveInput::MoveData(const MoveInput& dialog)
{
    double dx = -1.0;
    double dy = -1.0;
    double dz = -1.0;
    dialog.GetMoveData(dx, dy, dz);
    return QStringLiteral("%1 %2 %3").arg(AllDigits(dx), AllDigits(dy), AllDigits(dz));
}

void tst_MoveInput::TheFormIsAsGiven()
{
    CompareForm<MoveInput>("MoveInput");
    const MoveInput dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString("Input Move Parameter"));
    QCOMPARE(dialog.size(), QSize(216, 157));
    QCOMPARE(DescribeForm(dialog, false), QStringList({
                                              "QGroupBox groupBox in MoveInput: ",
                                              "QLabel label in groupBox: dx",
                                              "QLabel label_2 in groupBox: dy",
                                              "QLabel label_3 in groupBox: dz",
                                              "QLineEdit lineEdit_Dx in groupBox: 0.0",
                                              "QLineEdit lineEdit_Dy in groupBox: 0.0",
                                              "QLineEdit lineEdit_Dz in groupBox: 0.0",
                                              "QPushButton pushButton_Cancel in MoveInput: Cancel",
                                              "QPushButton pushButton_OK in MoveInput: OK",
                                          }));
}

void tst_MoveInput::TheFontsAreAsGiven()
{
    const MoveInput dialog(nullptr);
    QCOMPARE(dialog.font().family(), QString("微软雅黑"));
    QCOMPARE(dialog.font().pointSize(), QApplication::font().pointSize());
    for (const char* const name : {"groupBox", "label", "label_2", "label_3"}) {
        QCOMPARE(Find<QWidget>(dialog, name).font().family(), QString("微软雅黑"));
        QCOMPARE(Find<QWidget>(dialog, name).font().pointSize(), 10);
    }
}

void tst_MoveInput::TabFollowsTheReadingOrder()
{
    MoveInput dialog(nullptr);
    QCOMPARE(TabOrder(dialog), QStringList({"lineEdit_Dx", "lineEdit_Dy", "lineEdit_Dz",
                                            "pushButton_OK", "pushButton_Cancel"}));
}

void tst_MoveInput::EnterConfirmsAndEscapeLeaves()
{
    MoveInput dialog(nullptr);
    QCOMPARE(EnterButtons(dialog), QStringList({"pushButton_OK*"}));
    QCOMPARE(PressKey(dialog, "lineEdit_Dy", Qt::Key_Return), int(QDialog::Accepted));
    QCOMPARE(PressKey(dialog, "lineEdit_Dy", Qt::Key_Escape), int(QDialog::Rejected));
}

void tst_MoveInput::TheSlotsAreAsGiven()
{
    QCOMPARE(OwnMethods(MoveInput::staticMetaObject),
             QStringList({"private slot m_Slot_OK()", "private slot m_Slot_Cancel()"}));
    QCOMPARE(MoveInput::staticMetaObject.superClass(), &QDialog::staticMetaObject);
}

void tst_MoveInput::TheFieldsAreReadWithoutARun()
{
    const MoveInput dialog(nullptr);
    QCOMPARE(MoveData(dialog), QString("0 0 0"));
}

void tst_MoveInput::OKAcceptsAndCancelRejects()
{
    MoveInput dialog(nullptr);
    QCOMPARE(FillAndPress(dialog, {}, "pushButton_OK"), int(QDialog::Accepted));
    QCOMPARE(FillAndPress(dialog, {}, "pushButton_Cancel"), int(QDialog::Rejected));
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
    QVERIFY(UseLocale(locale));
    MoveInput dialog(nullptr);
    FillAndPress(dialog, {{"lineEdit_Dx", text}, {"lineEdit_Dy", text}, {"lineEdit_Dz", text}},
                 "pushButton_OK");
    const QString expected = AllDigits(number);
    QCOMPARE(MoveData(dialog), QStringLiteral("%1 %1 %1").arg(expected));
}

TARN_TEST_MAIN(tst_MoveInput)
#include "tst_MoveInput.moc"
