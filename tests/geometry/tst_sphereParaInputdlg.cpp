#include "InputFormTest.h"
#include "sphereParaInputdlg.h"

#include <QDoubleValidator>
#include <QLineEdit>

class tst_sphereParaInputdlg : public InputFormTest<sphereParaInputdlg>
{
    Q_OBJECT

public:
    tst_sphereParaInputdlg();

private Q_SLOTS:
    void TheFormIsAsGiven();
    void TextIsConverted_data() { AddConversionRows(); }
    void TextIsConverted();
    void TheFirstAngleHasTheOnlyValidator();
    void TheFirstAngleTakesNoDecimalComma();
    void TheFirstAngleRefusesTyping_data();
    void TheFirstAngleRefusesTyping();

private:
    QString Values(const sphereParaInputdlg& dialog) const override;
};

tst_sphereParaInputdlg::tst_sphereParaInputdlg()
    : InputFormTest(
          {"m_Slot_OKPushed()",
           "0 0 0",
           "-90 90 360",
           {{"lineEdit_Angle1", "-45.5"}, {"lineEdit_Angle2", "400"}, {"lineEdit_Angle3", "-7"}},
           "-45.5 400 -7"})
{
}

QString tst_sphereParaInputdlg::Values(const sphereParaInputdlg& dialog) const
{
    return QStringLiteral("%1 %2 %3")
        .arg(AllDigits(dialog.GetAngle1()), AllDigits(dialog.GetAngle2()),
             AllDigits(dialog.GetAngle3()));
}

void tst_sphereParaInputdlg::TheFormIsAsGiven()
{
    CompareForm<sphereParaInputdlg>("sphereParaInputdlg");
    const sphereParaInputdlg dialog(nullptr);
    QCOMPARE(dialog.windowTitle(), QString("Input"));
    QCOMPARE(DescribeForm(dialog, false),
             QStringList({
                 "QGroupBox groupBox in sphereParaInputdlg: ",
                 "QLabel label in groupBox: Angle1",
                 "QLabel label_2 in groupBox: Degree  Range：[-90, 0)",
                 "QLabel label_3 in groupBox: Angle2",
                 "QLabel label_4 in groupBox: Degree  Range：(0, 90)",
                 "QLabel label_5 in groupBox: Angle3",
                 "QLabel label_6 in groupBox: Degree  Range：(0, 360]",
                 "QLineEdit lineEdit_Angle1 in groupBox: -90",
                 "QLineEdit lineEdit_Angle2 in groupBox: 90",
                 "QLineEdit lineEdit_Angle3 in groupBox: 360",
                 "QPushButton pushButton_Cancel in sphereParaInputdlg: Cancel",
                 "QPushButton pushButton_OK in sphereParaInputdlg: OK",
             }));
}

void tst_sphereParaInputdlg::TextIsConverted()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, text);
    QFETCH(double, number);
    QVERIFY(UseLocale(locale));
    sphereParaInputdlg dialog(nullptr);
    FillAndPress(dialog, {{"lineEdit_Angle2", text}, {"lineEdit_Angle3", text}}, "pushButton_OK");
    QCOMPARE(Values(dialog), QStringLiteral("-90 %1 %1").arg(AllDigits(number)));
}

void tst_sphereParaInputdlg::TheFirstAngleHasTheOnlyValidator()
{
    QVERIFY(UseLocale("de_DE.UTF-8"));
    const sphereParaInputdlg dialog(nullptr);
    const auto& edit = Find<QLineEdit>(dialog, "lineEdit_Angle1");
    const auto* const validator = qobject_cast<const QDoubleValidator*>(edit.validator());
    QVERIFY(validator != nullptr);
    QCOMPARE(validator->parent(), &edit);
    QCOMPARE(validator->bottom(), -90.0);
    QCOMPARE(validator->top(), 0.0);
    QCOMPARE(validator->decimals(), 2);
    QCOMPARE(validator->notation(), QDoubleValidator::StandardNotation);
    QCOMPARE(validator->locale(), QLocale::c());
    QVERIFY(Find<QLineEdit>(dialog, "lineEdit_Angle2").validator() == nullptr);
    QVERIFY(Find<QLineEdit>(dialog, "lineEdit_Angle3").validator() == nullptr);
}

void tst_sphereParaInputdlg::TheFirstAngleTakesNoDecimalComma()
{
    QVERIFY(UseLocale("de_DE.UTF-8"));
    sphereParaInputdlg dialog(nullptr);
    auto& edit = Find<QLineEdit>(dialog, "lineEdit_Angle1");
    edit.setText("-45,5");
    QVERIFY(!edit.hasAcceptableInput());
    edit.setText("-45.5");
    QVERIFY(edit.hasAcceptableInput());
}

// What the stock validator lets pass while it is typed, OK takes.
void tst_sphereParaInputdlg::TheFirstAngleRefusesTyping_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<double>("angle");
    struct Row
    {
        const char* typed;
        const char* shown;
        double angle;
    };
    const Row rows[] = {
        {"-45.5", "-45.5", -45.5},
        {"-45.55", "-45.55", -45.55},
        {"-45.555", "-45.55", -45.55},
        {"-90", "-90", -90.0},
        {"-100", "-10", -10.0},
        {"0", "0", 0.0},
        {"", "", 0.0},
        {"-", "-", 0.0},
        {"-abc5", "-5", -5.0},
        {"-1e1", "-11", -11.0},
        {"-45,5", "-45,5", 0.0},
        {"-455", "-45", -45.0},
        {"-95", "-95", -95.0},
        {"5", "5", 5.0},
    };
    for (const char* const locale : {"C", "de_DE.UTF-8"}) {
        for (const Row& row : rows)
            QTest::addRow("\"%s\" under %s", row.typed, locale)
                << QByteArray(locale) << QString(row.typed) << QString(row.shown) << row.angle;
    }
}

void tst_sphereParaInputdlg::TheFirstAngleRefusesTyping()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    QFETCH(double, angle);
    QVERIFY(UseLocale(locale));
    sphereParaInputdlg dialog(nullptr);
    QCOMPARE(FillAndPress(dialog, {{"lineEdit_Angle1", typed}}, "pushButton_OK"),
             int(QDialog::Accepted));
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_Angle1").text(), shown);
    QCOMPARE(dialog.GetAngle1(), angle);
}

TARN_TEST_MAIN(tst_sphereParaInputdlg)
#include "tst_sphereParaInputdlg.moc"
