#include "DialogChecks.h"
#include "DialogFacts.h"
#include "PolygonNumInputDlg.h"
#include "TestCase.h"

#include <QApplication>

class tst_PolygonNumInputDlg : public TestCase
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
    static QString Values(const PolygonNumInputDlg& dialog);
};

QString tst_PolygonNumInputDlg::Values(const PolygonNumInputDlg& dialog)
{
    return QString::number(dialog.GetEdgeNumber());
}

void tst_PolygonNumInputDlg::TheFormIsAsGiven()
{
    CompareForm<PolygonNumInputDlg>("PolygonNumInputDlg");
    const PolygonNumInputDlg dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString("Input"));
    QCOMPARE(DescribeForm(dialog, false),
             QStringList({
                 "QGroupBox groupBox in PolygonNumInputDlg: ",
                 "QLabel label in groupBox: Polygon Number:",
                 "QLineEdit lineEdit_EdgeNumber in groupBox: ",
                 "QPushButton pushButton_Cancel in PolygonNumInputDlg: Cancel",
                 "QPushButton pushButton_OK in PolygonNumInputDlg: OK",
             }));
}

void tst_PolygonNumInputDlg::TheFontIsSetOnTheDialog()
{
    const PolygonNumInputDlg dialog(nullptr);
    QCOMPARE(dialog.font().family(), QString("微软雅黑"));
    QCOMPARE(dialog.font().pointSize(), QApplication::font().pointSize());
}

void tst_PolygonNumInputDlg::TabFollowsTheReadingOrder()
{
    PolygonNumInputDlg dialog(nullptr);
    QCOMPARE(TabOrder(dialog),
             QStringList({"lineEdit_EdgeNumber", "pushButton_OK", "pushButton_Cancel"}));
}

void tst_PolygonNumInputDlg::EnterConfirmsAndEscapeLeaves()
{
    PolygonNumInputDlg dialog(nullptr);
    QCOMPARE(EnterButtons(dialog), QStringList({"pushButton_OK*"}));
    QCOMPARE(PressKey(dialog, "lineEdit_EdgeNumber", Qt::Key_Escape), int(QDialog::Rejected));
    QCOMPARE(Values(dialog), QString("0"));
    QCOMPARE(PressKey(dialog, "lineEdit_EdgeNumber", Qt::Key_Return), int(QDialog::Accepted));
    QCOMPARE(Values(dialog), QString("0"));
}

void tst_PolygonNumInputDlg::TheSlotsAreAsGiven()
{
    QCOMPARE(OwnMethods(PolygonNumInputDlg::staticMetaObject),
             QStringList({"private slot m_Slot_OK()"}));
    QCOMPARE(PolygonNumInputDlg::staticMetaObject.superClass(), &QDialog::staticMetaObject);
}

void tst_PolygonNumInputDlg::OKStoresTheDefaults()
{
    PolygonNumInputDlg dialog(nullptr);
    QCOMPARE(Values(dialog), QString("0"));
    QCOMPARE(FillAndPress(dialog, {}, "pushButton_OK"), int(QDialog::Accepted));
    QCOMPARE(Values(dialog), QString("0"));
}

void tst_PolygonNumInputDlg::OKStoresTheFields()
{
    PolygonNumInputDlg dialog(nullptr);
    const FieldTexts fields = {{"lineEdit_EdgeNumber", "6"}};
    QCOMPARE(FillAndPress(dialog, fields, "pushButton_OK"), int(QDialog::Accepted));
    QCOMPARE(Values(dialog), QString("6"));
}

void tst_PolygonNumInputDlg::CancelStoresNothing()
{
    PolygonNumInputDlg dialog(nullptr);
    FillAndPress(dialog, {}, "pushButton_OK");
    const FieldTexts fields = {{"lineEdit_EdgeNumber", "6"}};
    QCOMPARE(FillAndPress(dialog, fields, "pushButton_Cancel"), int(QDialog::Rejected));
    QCOMPARE(Values(dialog), QString("0"));
}

void tst_PolygonNumInputDlg::TextIsConverted()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, text);
    QFETCH(int, integer);
    QVERIFY(UseLocale(locale));
    PolygonNumInputDlg dialog(nullptr);
    FillAndPress(dialog, {{"lineEdit_EdgeNumber", text}}, "pushButton_OK");
    QCOMPARE(Values(dialog), QString::number(integer));
}

TARN_TEST_MAIN(tst_PolygonNumInputDlg)
#include "tst_PolygonNumInputDlg.moc"
