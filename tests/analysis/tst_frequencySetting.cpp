#include "FormTest.h"
#include "FrequencyPref.h"
#include "TextRecorder.h"
#include "frequencySetting.h"

#include <QLineEdit>

#include <limits>

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "frequencySetting";
    form.title = "frequencySetting";
    form.size = {281, 201};
    form.lines = {
        "QGroupBox groupBox in frequencySetting at 20,10 241x121: Frequency Setting",
        "QLabel label in groupBox at 20,20 101x21: Min Frequency:, for lineEdit_MinFreq",
        "QLineEdit lineEdit_MinFreq in groupBox at 140,20 83x21: 1",
        "QLabel label_2 in groupBox at 20,50 101x21: Max Frequency:, for lineEdit_MaxFreq",
        "QLineEdit lineEdit_MaxFreq in groupBox at 140,50 83x21: 1e+06",
        "QLabel label_3 in groupBox at 20,80 111x21: Frequency Number:, for lineEdit_NumFreq",
        "QLineEdit lineEdit_NumFreq in groupBox at 140,80 83x21: 10",
        "QPushButton pushButton_OK in frequencySetting at 100,160 75x23: OK",
        "QPushButton pushButton_2 in frequencySetting at 180,160 75x23: Cancel",
    };
    form.tabOrder = {"lineEdit_MinFreq", "lineEdit_MaxFreq", "lineEdit_NumFreq", "pushButton_OK",
                     "pushButton_2"};
    form.enter = "pushButton_OK";
    form.methods = {"private slot m_Slot_OK()"};
    form.unshown = {"1.0", "1000000.0"};
    form.untranslated = {"1", "1e+06"};
    return form;
}

ShownBox Refusal()
{
    return ShownBox::Notice("Warning", "Invalid Parameter");
}

constexpr double Infinity = std::numeric_limits<double>::infinity();

struct Sweep
{
    double min = 0.0;
    double max = 0.0;
    int count = 0;
};

const Sweep InitialSweep = {1.0, 1000000.0, 10};

/// Resets the preferences to their values at the start of the process, now and at its end.
class InitialPreferences
{
public:
    InitialPreferences() { Put(InitialSweep); }
    ~InitialPreferences() { Put(InitialSweep); }
    Q_DISABLE_COPY(InitialPreferences)

    static void Put(const Sweep& sweep)
    {
        FrequencyPref::m_MinFreq = sweep.min;
        FrequencyPref::m_MaxFreq = sweep.max;
        FrequencyPref::m_NumFreq = sweep.count;
    }
};

Sweep Stored()
{
    return {FrequencyPref::m_MinFreq, FrequencyPref::m_MaxFreq, FrequencyPref::m_NumFreq};
}

Sweep Returned(const frequencySetting& dialog)
{
    Sweep sweep = {-1.0, -1.0, -1};
    dialog.GetFreqParameter(sweep.min, sweep.max, sweep.count);
    return sweep;
}

void CompareSweep(const Sweep& sweep, const Sweep& expected)
{
    QCOMPARE(sweep.min, expected.min);
    QCOMPARE(sweep.max, expected.max);
    QCOMPARE(sweep.count, expected.count);
}

void TypeSweep(const QWidget& dialog, const QString& min, const QString& max, const QString& count)
{
    Type(dialog, "lineEdit_MinFreq", min);
    Type(dialog, "lineEdit_MaxFreq", max);
    Type(dialog, "lineEdit_NumFreq", count);
}

} // namespace

class tst_frequencySetting : public With<FormTest<frequencySetting>, InitialPreferences>
{
    Q_OBJECT

public:
    tst_frequencySetting()
        : With(Form())
    {
    }

private Q_SLOTS:
    void MessagesAreTranslatedInTheContextOfTheClass();
    void ThePreferencesAreShown_data();
    void ThePreferencesAreShown();
    void ThePreferencesAreReadWhenTheDialogIsMade();
    void OkStoresValidValues_data();
    void OkStoresValidValues();
    void ShownDigitsAreStored();
    void InvalidValuesAreRefused_data();
    void InvalidValuesAreRefused();
    void ARefusedEntryCanBeCorrected();
    void LeavingWritesNothing_data();
    void LeavingWritesNothing();
    void EnterStoresTheFields();
};

void tst_frequencySetting::MessagesAreTranslatedInTheContextOfTheClass()
{
    InitialPreferences::Put({0.0, 1.0, 2});
    frequencySetting dialog(nullptr);
    const TextRecorder recorder;
    Then([](QDialog& shown) {
        Click(shown, "pushButton_OK");
        Click(shown, "pushButton_2");
    });
    dialog.exec();
    QCOMPARE(Boxes(), ShownBoxes({Refusal()}));
    QCOMPARE(recorder.TextsOf("frequencySetting"), QStringList({"Invalid Parameter", "Warning"}));
}

void tst_frequencySetting::ThePreferencesAreShown_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("minText");
    QTest::addColumn<QString>("maxText");
    QTest::addColumn<QString>("countText");
    NewRow("initially", 1.0, 1000000.0, 10, "1", "1e+06", "10");
    NewRow("six digits", 0.5, 123456.0, 2, "0.5", "123456", "2");
    NewRow("rounded", 1.2345678, 1234567.0, 100, "1.23457", "1.23457e+06", "100");
    NewRow("invalid ones, too", -1.0, 0.0, -3, "-1", "0", "-3");
    NewRow("no grouping", 1000.0, 99999.0, 1234567, "1000", "99999", "1234567");
    NewRow("infinite", 1.0, Infinity, 10, "1", "inf", "10");
}

void tst_frequencySetting::ThePreferencesAreShown()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(int, count);
    QFETCH(QString, minText);
    QFETCH(QString, maxText);
    QFETCH(QString, countText);
    UseLocale("de_DE.UTF-8");
    InitialPreferences::Put({min, max, count});
    const frequencySetting dialog(nullptr);
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_MinFreq").text(), minText);
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_MaxFreq").text(), maxText);
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_NumFreq").text(), countText);
    CompareSweep(Returned(dialog), {min, max, count});
}

void tst_frequencySetting::ThePreferencesAreReadWhenTheDialogIsMade()
{
    frequencySetting dialog(nullptr);
    InitialPreferences::Put({2.0, 3.0, 4});
    CompareSweep(Returned(dialog), InitialSweep);
    QCOMPARE(RunAndPress(dialog, "pushButton_OK"), int(QDialog::Accepted));
    CompareSweep(Stored(), InitialSweep);
}

void tst_frequencySetting::OkStoresValidValues_data()
{
    QTest::addColumn<QString>("minText");
    QTest::addColumn<QString>("maxText");
    QTest::addColumn<QString>("countText");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<int>("count");
    NewRow("usual", "20", "20000", "50", 20.0, 20000.0, 50);
    NewRow("minimum above maximum", "5e6", "1e6", "10", 5e6, 1e6, 10);
    NewRow("minimum as maximum", "7", "7", "10", 7.0, 7.0, 10);
    NewRow("least count", "1", "2", "2", 1.0, 2.0, 2);
    NewRow("largest count", "1", "2", "2147483647", 1.0, 2.0, 2147483647);
    NewRow("tiny", "1e-300", "1e-299", "3", 1e-300, 1e-299, 3);
    NewRow("more digits than shown", "1.23456789", "2.3456789", "3", 1.23456789, 2.3456789, 3);
    NewRow("blanks around", " 1 ", " 2 ", " 3 ", 1.0, 2.0, 3);
    NewRow("signs", "+1", "+2", "+3", 1.0, 2.0, 3);
    NewRow("leading zero is decimal", "010", "020", "010", 10.0, 20.0, 10);
    NewRow("infinite", "inf", "inf", "10", Infinity, Infinity, 10);
}

void tst_frequencySetting::OkStoresValidValues()
{
    QFETCH(QString, minText);
    QFETCH(QString, maxText);
    QFETCH(QString, countText);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(int, count);
    UseLocale("de_DE.UTF-8");
    frequencySetting dialog(nullptr);
    Then([&](QDialog& shown) {
        TypeSweep(shown, minText, maxText, countText);
        Click(shown, "pushButton_OK");
    });
    Sweep atTheEnd;
    connect(&dialog, &QDialog::accepted, [&atTheEnd] { atTheEnd = Stored(); });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    CompareSweep(atTheEnd, {min, max, count});
    CompareSweep(Returned(dialog), {min, max, count});
}

void tst_frequencySetting::ShownDigitsAreStored()
{
    InitialPreferences::Put({1.0 / 3.0, 1234567.0, 10});
    frequencySetting dialog(nullptr);
    CompareSweep(Returned(dialog), {1.0 / 3.0, 1234567.0, 10});
    QCOMPARE(RunAndPress(dialog, "pushButton_OK"), int(QDialog::Accepted));
    CompareSweep(Stored(), {0.333333, 1234570.0, 10});
}

void tst_frequencySetting::InvalidValuesAreRefused_data()
{
    QTest::addColumn<QString>("minText");
    QTest::addColumn<QString>("maxText");
    QTest::addColumn<QString>("countText");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<int>("count");
    NewRow("minimum 0", "0", "2", "3", 0.0, 2.0, 3);
    NewRow("maximum 0", "1", "0", "3", 1.0, 0.0, 3);
    NewRow("count 1", "1", "2", "1", 1.0, 2.0, 1);
    NewRow("count 0", "1", "2", "0", 1.0, 2.0, 0);
    NewRow("all three, one box", "0", "0", "0", 0.0, 0.0, 0);
    NewRow("negative minimum", "-1", "2", "3", -1.0, 2.0, 3);
    NewRow("negative maximum", "1", "-2", "3", 1.0, -2.0, 3);
    NewRow("negative count", "1", "2", "-3", 1.0, 2.0, -3);
    NewRow("count with a fraction", "1", "2", "10.5", 1.0, 2.0, 0);
    NewRow("count with an exponent", "1", "2", "1e2", 1.0, 2.0, 0);
    NewRow("count beyond an int", "1", "2", "2147483648", 1.0, 2.0, 0);
    NewRow("hexadecimal count", "1", "2", "0x10", 1.0, 2.0, 0);
    NewRow("empty minimum", "", "2", "3", 0.0, 2.0, 3);
    NewRow("empty maximum", "1", "", "3", 1.0, 0.0, 3);
    NewRow("empty count", "1", "2", "", 1.0, 2.0, 0);
    NewRow("word", "low", "high", "many", 0.0, 0.0, 0);
    NewRow("comma", "1,5", "2", "3", 0.0, 2.0, 3);
    NewRow("grouped maximum", "1", "1,000", "3", 1.0, 0.0, 3);
    NewRow("grouped count", "1", "2", "1,000", 1.0, 2.0, 0);
    NewRow("negative zero", "-0", "2", "3", 0.0, 2.0, 3);
    NewRow("no number", "nan", "2", "3", std::numeric_limits<double>::quiet_NaN(), 2.0, 3);
    NewRow("negative infinite", "1", "-inf", "3", 1.0, -Infinity, 3);
}

void tst_frequencySetting::InvalidValuesAreRefused()
{
    QFETCH(QString, minText);
    QFETCH(QString, maxText);
    QFETCH(QString, countText);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(int, count);
    UseLocale("de_DE.UTF-8");
    InitialPreferences::Put({11.0, 22.0, 33});
    frequencySetting dialog(nullptr);
    Then([&](QDialog& shown) {
        TypeSweep(shown, minText, maxText, countText);
        Click(shown, "pushButton_OK");
        QVERIFY(shown.isVisible());
        QCOMPARE(Find<QLineEdit>(shown, "lineEdit_MinFreq").text(), minText);
        QCOMPARE(Find<QLineEdit>(shown, "lineEdit_MaxFreq").text(), maxText);
        QCOMPARE(Find<QLineEdit>(shown, "lineEdit_NumFreq").text(), countText);
        // The rejected values are still kept.
        CompareSweep(Returned(dialog), {min, max, count});
        Click(shown, "pushButton_2");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(Boxes(), ShownBoxes({Refusal()}));
    CompareSweep(Returned(dialog), {min, max, count});
    CompareSweep(Stored(), {11.0, 22.0, 33});
}

void tst_frequencySetting::ARefusedEntryCanBeCorrected()
{
    frequencySetting dialog(nullptr);
    Then([](QDialog& shown) {
        Type(shown, "lineEdit_NumFreq", "1");
        Click(shown, "pushButton_OK");
        Click(shown, "pushButton_OK");
        Type(shown, "lineEdit_NumFreq", "2");
        Click(shown, "pushButton_OK");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(Boxes(), ShownBoxes({Refusal(), Refusal()}));
    CompareSweep(Stored(), {1.0, 1000000.0, 2});
}

void tst_frequencySetting::LeavingWritesNothing_data()
{
    AddWaysToLeave();
}

void tst_frequencySetting::LeavingWritesNothing()
{
    QFETCH(QString, way);
    frequencySetting dialog(nullptr);
    Then([&](QDialog& shown) {
        TypeSweep(shown, "2", "3", "4");
        Leave(shown, way, "pushButton_2");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    CompareSweep(Stored(), InitialSweep);
    CompareSweep(Returned(dialog), InitialSweep);
}

void tst_frequencySetting::EnterStoresTheFields()
{
    frequencySetting dialog(nullptr);
    Then([](QDialog& shown) {
        TypeSweep(shown, "2", "3", "4");
        QTest::keyClick(&Find<QLineEdit>(shown, "lineEdit_NumFreq"), Qt::Key_Return);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    CompareSweep(Stored(), {2.0, 3.0, 4});
}

TARN_TEST_MAIN(tst_frequencySetting)
#include "tst_frequencySetting.moc"
