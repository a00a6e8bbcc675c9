#include "ExtrudInputDlg.h"
#include "InputFormTest.h"
#include "KernelText.h"

#include <QLabel>
#include <QLineEdit>
#include <Standard_ConstructionError.hxx>

class tst_ExtrudInputDlg : public InputFormTest<ExtrudInputDlg>
{
    Q_OBJECT

public:
    tst_ExtrudInputDlg();

private Q_SLOTS:
    void TheFormIsAsGiven();
    void TextIsConverted_data() { AddConversionRows(); }
    void TextIsConverted();
    void TheGroupBoxHasTenPoints();
    void TheDirectionIsNormalised();
    void AZeroDirectionRaisesTheKernelsError_data();
    void AZeroDirectionRaisesTheKernelsError();

private:
    QString Values(const ExtrudInputDlg& dialog) const override;
};

tst_ExtrudInputDlg::tst_ExtrudInputDlg()
    : InputFormTest({"m_Slot_OK_Pushed()",
                     "0 along (1, 0, 0)",
                     "10 along (0, 0, 1)",
                     {{"lineEdit_XDir", "3"},
                      {"lineEdit_YDir", "0"},
                      {"lineEdit_ZDir", "-4"},
                      {"lineEdit_Height", "-2.5"}},
                     "-2.5 along (0.6, 0, -0.8)"})
{
}

QString tst_ExtrudInputDlg::Values(const ExtrudInputDlg& dialog) const
{
    return QStringLiteral("%1 along %2")
        .arg(AllDigits(dialog.GetHeightValue()), KernelText(dialog.GetExtrudeDirection()));
}

void tst_ExtrudInputDlg::TheFormIsAsGiven()
{
    CompareForm<ExtrudInputDlg>("ExtrudInputDlg");
    const ExtrudInputDlg dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString("拉伸参数输入"));
    QCOMPARE(DescribeForm(dialog, false),
             QStringList({
                 "QGroupBox groupBox in ExtrudInputDlg: Extrude Direction",
                 "QLabel label in groupBox: dx",
                 "QLabel label_2 in groupBox: dy",
                 "QLabel label_3 in groupBox: dz",
                 "QLabel label_4 in ExtrudInputDlg: Extrude Length",
                 "QLineEdit lineEdit_Height in ExtrudInputDlg: 10",
                 "QLineEdit lineEdit_XDir in groupBox: 0",
                 "QLineEdit lineEdit_YDir in groupBox: 0",
                 "QLineEdit lineEdit_ZDir in groupBox: 1",
                 "QPushButton pushButton_Cancel in ExtrudInputDlg: Cancel",
                 "QPushButton pushButton_OK in ExtrudInputDlg: OK",
             }));
}

void tst_ExtrudInputDlg::TextIsConverted()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, text);
    QFETCH(double, number);
    QVERIFY(UseLocale(locale));
    ExtrudInputDlg dialog(nullptr);
    FillAndPress(dialog, {{"lineEdit_Height", text}}, "pushButton_OK");
    QCOMPARE(Values(dialog), QStringLiteral("%1 along (0, 0, 1)").arg(AllDigits(number)));
}

void tst_ExtrudInputDlg::TheGroupBoxHasTenPoints()
{
    const ExtrudInputDlg dialog(nullptr);
    for (const char* const name : {"groupBox", "label", "label_2", "label_3"}) {
        QCOMPARE(Find<QWidget>(dialog, name).font().family(), QString("微软雅黑"));
        QCOMPARE(Find<QWidget>(dialog, name).font().pointSize(), 10);
    }
    QCOMPARE(Find<QLabel>(dialog, "label_4").font(), dialog.font());
}

void tst_ExtrudInputDlg::TheDirectionIsNormalised()
{
    ExtrudInputDlg dialog(nullptr);
    const FieldTexts fields = {{"lineEdit_ZDir", "2"}, {"lineEdit_Height", "7"}};
    QCOMPARE(FillAndPress(dialog, fields, "pushButton_OK"), int(QDialog::Accepted));
    QCOMPARE(Values(dialog), QString("7 along (0, 0, 1)"));
}

void tst_ExtrudInputDlg::AZeroDirectionRaisesTheKernelsError_data()
{
    QTest::addColumn<QString>("z");
    QTest::newRow("zero") << "0";
    QTest::newRow("empty") << "";
    QTest::newRow("no number") << "1,0";
    QTest::newRow("at the limit") << "2.2250738585072014e-308";
}

void tst_ExtrudInputDlg::AZeroDirectionRaisesTheKernelsError()
{
    QFETCH(QString, z);
    ExtrudInputDlg dialog(nullptr);
    const FieldTexts fields = {{"lineEdit_ZDir", z}, {"lineEdit_Height", "25"}};
    ExpectWarning("Qt has caught an exception thrown from an event handler");
    QVERIFY_EXCEPTION_THROWN(FillAndPress(dialog, fields, "pushButton_OK"),
                             Standard_ConstructionError);
    QVERIFY(dialog.isVisible());
    QCOMPARE(Values(dialog), QString("25 along (1, 0, 0)"));
}

TARN_TEST_MAIN(tst_ExtrudInputDlg)
#include "tst_ExtrudInputDlg.moc"
