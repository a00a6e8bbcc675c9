#include "InputFormTest.h"
#include "PolygonNumInputDlg.h"

class tst_PolygonNumInputDlg : public InputFormTest<PolygonNumInputDlg>
{
    Q_OBJECT

public:
    tst_PolygonNumInputDlg();

private Q_SLOTS:
    void TheFormIsAsGiven();
    void TextIsConverted_data() { AddConversionRows(); }
    void TextIsConverted();

private:
    QString Values(const PolygonNumInputDlg& dialog) const override;
};

tst_PolygonNumInputDlg::tst_PolygonNumInputDlg()
    : InputFormTest({"m_Slot_OK()", "0", "0", {{"lineEdit_EdgeNumber", "6"}}, "6"})
{
}

QString tst_PolygonNumInputDlg::Values(const PolygonNumInputDlg& dialog) const
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
