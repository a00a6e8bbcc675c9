#include "ExtrudInputDlg.h"
#include "InputFormTest.h"
#include "KernelText.h"

#include <QLabel>
#include <QLineEdit>
#include <Standard_ConstructionError.hxx>

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "ExtrudInputDlg";
    form.title = "拉伸参数输入";
    form.lines = {
        "QGroupBox groupBox in ExtrudInputDlg: Extrude Direction",
        "QLabel label in groupBox: dx, for lineEdit_XDir",
        "QLineEdit lineEdit_XDir in groupBox: 0",
        "QLabel label_2 in groupBox: dy, for lineEdit_YDir",
        "QLineEdit lineEdit_YDir in groupBox: 0",
        "QLabel label_3 in groupBox: dz, for lineEdit_ZDir",
        "QLineEdit lineEdit_ZDir in groupBox: 1",
        "QLabel label_4 in ExtrudInputDlg: Extrude Length, for lineEdit_Height",
        "QLineEdit lineEdit_Height in ExtrudInputDlg: 10",
        "QPushButton pushButton_OK in ExtrudInputDlg: OK",
        "QPushButton pushButton_Cancel in ExtrudInputDlg: Cancel",
    };
    form.tabOrder = {"lineEdit_XDir",   "lineEdit_YDir", "lineEdit_ZDir",
                     "lineEdit_Height", "pushButton_OK", "pushButton_Cancel"};
    form.enter = "pushButton_OK";
    form.methods = {"private slot m_Slot_OK_Pushed()"};
    form.hasFont = true;
    return form;
}

InputFacts Input()
{
    InputFacts input;
    input.unset = "0 along (1, 0, 0)";
    input.defaults = "10 along (0, 0, 1)";
    input.typed = {{"lineEdit_XDir", "3"},
                   {"lineEdit_YDir", "0"},
                   {"lineEdit_ZDir", "-4"},
                   {"lineEdit_Height", "-2.5"}};
    input.entered = "-2.5 along (0.6, 0, -0.8)";
    input.converted = {"lineEdit_Height"};
    input.conversion = "%1 along (0, 0, 1)";
    return input;
}

} // namespace

class tst_ExtrudInputDlg : public InputFormTest<ExtrudInputDlg>
{
    Q_OBJECT

public:
    tst_ExtrudInputDlg()
        : InputFormTest(Form(), Input())
    {
    }

private Q_SLOTS:
    void TheGroupBoxHasTenPoints();
    void TheDirectionIsNormalised();
    void AZeroDirectionThrowsTheKernelsError_data();
    void AZeroDirectionThrowsTheKernelsError();

private:
    QString Values(const ExtrudInputDlg& dialog) const override;
};

QString tst_ExtrudInputDlg::Values(const ExtrudInputDlg& dialog) const
{
    return QStringLiteral("%1 along %2")
        .arg(AllDigits(dialog.GetHeightValue()), KernelText(dialog.GetExtrudeDirection()));
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

void tst_ExtrudInputDlg::AZeroDirectionThrowsTheKernelsError_data()
{
    QTest::addColumn<QString>("z");
    QTest::newRow("zero") << "0";
    QTest::newRow("empty") << "";
    QTest::newRow("no number") << "1,0";
    QTest::newRow("at the limit") << "2.2250738585072014e-308";
}

void tst_ExtrudInputDlg::AZeroDirectionThrowsTheKernelsError()
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
