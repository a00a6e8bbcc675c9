#include "DialogChecks.h"
#include "DialogFacts.h"
#include "TestCase.h"
#include "WedgeInputDlg.h"

#include <QApplication>

class tst_WedgeInputDlg : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormIsAsGiven();
    void TheFontIsSetOnTheDialog();
    void TabFollowsTheReadingOrder();
    void EnterConfirmsAndEscapeLeaves();
    void TheSlotsAreAsGiven();
    void OKStoresTheDefaults();
    void OKStoresTheFields();
    void CancelStoresNothing();
    void TextIsConverted_data() { AddConversionRows(); }
    void TextIsConverted();

private:
    static QString Values(const WedgeInputDlg& dialog);
};

QString tst_WedgeInputDlg::Values(const WedgeInputDlg& dialog)
{
    double values[5] = {-1.0, -1.0, -1.0, -1.0, -1.0};
    dialog.GetWedgeParameter(values[0], values[1], values[2], values[3], values[4]);
    QStringList texts;
    for (const double value : values)
        texts << AllDigits(value);
    return texts.join(' ');
}

void tst_WedgeInputDlg::TheFormIsAsGiven()
{
    CompareForm<WedgeInputDlg>("WedgeInputDlg");
    const WedgeInputDlg dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString("WedgeInputDlg"));
    QCOMPARE(DescribeForm(dialog, false),
             QStringList({
                 "QGroupBox groupBox in WedgeInputDlg: ",
                 "QLabel label in groupBox: height",
                 "QLabel label_2 in groupBox: X min",
                 "QLabel label_3 in groupBox: X max",
                 "QLabel label_4 in groupBox: Z min",
                 "QLabel label_5 in groupBox: Z max",
                 "QLineEdit lineEdit_Height in groupBox: 30",
                 "QLineEdit lineEdit_xmax in groupBox: 15",
                 "QLineEdit lineEdit_xmin in groupBox: 5",
                 "QLineEdit lineEdit_zmax in groupBox: 20",
                 "QLineEdit lineEdit_zmin in groupBox: 8",
                 "QPushButton pushButton_Cancel in WedgeInputDlg: Cancel",
                 "QPushButton pushButton_OK in WedgeInputDlg: OK",
             }));
}

void tst_WedgeInputDlg::TheFontIsSetOnTheDialog()
{
    const WedgeInputDlg dialog(nullptr);
    QCOMPARE(dialog.font().family(), QString("微软雅黑"));
    QCOMPARE(dialog.font().pointSize(), QApplication::font().pointSize());
}

void tst_WedgeInputDlg::TabFollowsTheReadingOrder()
{
    WedgeInputDlg dialog(nullptr);
    QCOMPARE(TabOrder(dialog),
             QStringList({"lineEdit_Height", "lineEdit_xmin", "lineEdit_xmax", "lineEdit_zmin",
                          "lineEdit_zmax", "pushButton_OK", "pushButton_Cancel"}));
}

void tst_WedgeInputDlg::EnterConfirmsAndEscapeLeaves()
{
    WedgeInputDlg dialog(nullptr);
    QCOMPARE(EnterButtons(dialog), QStringList({"pushButton_OK*"}));
    QCOMPARE(PressKey(dialog, "lineEdit_Height", Qt::Key_Escape), int(QDialog::Rejected));
    QCOMPARE(Values(dialog), QString("0 0 0 0 0"));
    QCOMPARE(PressKey(dialog, "lineEdit_Height", Qt::Key_Return), int(QDialog::Accepted));
    QCOMPARE(Values(dialog), QString("30 5 15 8 20"));
}

void tst_WedgeInputDlg::TheSlotsAreAsGiven()
{
    QCOMPARE(OwnMethods(WedgeInputDlg::staticMetaObject),
             QStringList({"private slot m_Slot_OK()"}));
    QCOMPARE(WedgeInputDlg::staticMetaObject.superClass(), &QDialog::staticMetaObject);
}

void tst_WedgeInputDlg::OKStoresTheDefaults()
{
    WedgeInputDlg dialog(nullptr);
    QCOMPARE(Values(dialog), QString("0 0 0 0 0"));
    QCOMPARE(FillAndPress(dialog, {}, "pushButton_OK"), int(QDialog::Accepted));
    QCOMPARE(Values(dialog), QString("30 5 15 8 20"));
}

void tst_WedgeInputDlg::OKStoresTheFields()
{
    WedgeInputDlg dialog(nullptr);
    const FieldTexts fields = {{"lineEdit_Height", "1"},
                               {"lineEdit_xmin", "-2"},
                               {"lineEdit_xmax", "3.5"},
                               {"lineEdit_zmin", "-4"},
                               {"lineEdit_zmax", "5"}};
    QCOMPARE(FillAndPress(dialog, fields, "pushButton_OK"), int(QDialog::Accepted));
    QCOMPARE(Values(dialog), QString("1 -2 3.5 -4 5"));
}

void tst_WedgeInputDlg::CancelStoresNothing()
{
    WedgeInputDlg dialog(nullptr);
    FillAndPress(dialog, {}, "pushButton_OK");
    const FieldTexts fields = {{"lineEdit_Height", "1"},
                               {"lineEdit_xmin", "-2"},
                               {"lineEdit_xmax", "3.5"},
                               {"lineEdit_zmin", "-4"},
                               {"lineEdit_zmax", "5"}};
    QCOMPARE(FillAndPress(dialog, fields, "pushButton_Cancel"), int(QDialog::Rejected));
    QCOMPARE(Values(dialog), QString("30 5 15 8 20"));
}

void tst_WedgeInputDlg::TextIsConverted()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, text);
    QFETCH(double, number);
    QVERIFY(UseLocale(locale));
    WedgeInputDlg dialog(nullptr);
    FillAndPress(dialog,
                 {{"lineEdit_Height", text},
                  {"lineEdit_xmin", text},
                  {"lineEdit_xmax", text},
                  {"lineEdit_zmin", text},
                  {"lineEdit_zmax", text}},
                 "pushButton_OK");
    QCOMPARE(Values(dialog), QStringLiteral("%1 %1 %1 %1 %1").arg(AllDigits(number)));
}

TARN_TEST_MAIN(tst_WedgeInputDlg)
#include "tst_WedgeInputDlg.moc"
