#include "InputFormTest.h"
#include "sphereParaInputdlg.h"

#include <QDoubleValidator>
#include <QLineEdit>

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "sphereParaInputdlg";
    form.title = "Input";
    form.lines = {
        "QGroupBox groupBox in sphereParaInputdlg: ",
        "QLabel label in groupBox: Angle1, for lineEdit_Angle1",
        "QLineEdit lineEdit_Angle1 in groupBox: -90, with QDoubleValidator",
        "QLabel label_2 in groupBox: Degree  Range：[-90, 0)",
        "QLabel label_3 in groupBox: Angle2, for lineEdit_Angle2",
        "QLineEdit lineEdit_Angle2 in groupBox: 90",
        "QLabel label_4 in groupBox: Degree  Range：(0, 90)",
        "QLabel label_5 in groupBox: Angle3, for lineEdit_Angle3",
        "QLineEdit lineEdit_Angle3 in groupBox: 360",
        "QLabel label_6 in groupBox: Degree  Range：(0, 360]",
        "QPushButton pushButton_OK in sphereParaInputdlg: OK",
        "QPushButton pushButton_Cancel in sphereParaInputdlg: Cancel",
    };
    form.tabOrder = {"lineEdit_Angle1", "lineEdit_Angle2", "lineEdit_Angle3", "pushButton_OK",
                     "pushButton_Cancel"};
    form.enter = "pushButton_OK";
    form.methods = {"private slot m_Slot_OKPushed()"};
    form.hasFont = true;
    return form;
}

InputFacts Input()
{
    InputFacts input;
    input.unset = "0 0 0";
    input.defaults = "-90 90 360";
    input.typed = {
        {"lineEdit_Angle1", "-45.5"}, {"lineEdit_Angle2", "400"}, {"lineEdit_Angle3", "-7"}};
    input.entered = "-45.5 400 -7";
    input.converted = {"lineEdit_Angle2", "lineEdit_Angle3"};
    input.conversion = "-90 %1 %1";
    return input;
}

} // namespace

class tst_sphereParaInputdlg : public InputFormTest<sphereParaInputdlg>
{
    Q_OBJECT

public:
    tst_sphereParaInputdlg()
        : InputFormTest(Form(), Input())
    {
    }

private Q_SLOTS:
    void TheFirstAngleHasTheOnlyValidator();
    void TheFirstAngleTakesNoDecimalComma();
    void TheFirstAngleRefusesTyping_data();
    void TheFirstAngleRefusesTyping();

private:
    QString Values(const sphereParaInputdlg& dialog) const override;
};

QString tst_sphereParaInputdlg::Values(const sphereParaInputdlg& dialog) const
{
    return QStringLiteral("%1 %2 %3")
        .arg(AllDigits(dialog.GetAngle1()), AllDigits(dialog.GetAngle2()),
             AllDigits(dialog.GetAngle3()));
}

void tst_sphereParaInputdlg::TheFirstAngleHasTheOnlyValidator()
{
    UseLocale("de_DE.UTF-8");
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
    UseLocale("de_DE.UTF-8");
    sphereParaInputdlg dialog(nullptr);
    auto& edit = Find<QLineEdit>(dialog, "lineEdit_Angle1");
    edit.setText("-45,5");
    QVERIFY(!edit.hasAcceptableInput());
    edit.setText("-45.5");
    QVERIFY(edit.hasAcceptableInput());
}

// OK accepts everything that the validator allows to be typed.
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
    UseLocale(locale);
    sphereParaInputdlg dialog(nullptr);
    QCOMPARE(FillAndPress(dialog, {{"lineEdit_Angle1", typed}}, "pushButton_OK"),
             int(QDialog::Accepted));
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_Angle1").text(), shown);
    QCOMPARE(dialog.GetAngle1(), angle);
}

TARN_TEST_MAIN(tst_sphereParaInputdlg)
#include "tst_sphereParaInputdlg.moc"
