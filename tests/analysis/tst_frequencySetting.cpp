#include "DialogFacts.h"
#include "FrequencyPref.h"
#include "Heap.h"
#include "ModalDriver.h"
#include "TestCase.h"
#include "frequencySetting.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <limits>

namespace {

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

/// The preferences as they are at the start of the process, now and when it goes.
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

Sweep Told(const frequencySetting& dialog)
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

class tst_frequencySetting : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormIsAsGiven_data();
    void TheFormIsAsGiven();
    void TheFormHoldsNothingElse();
    void LabelsLeadToTheirFields_data();
    void LabelsLeadToTheirFields();
    void NoFieldHasAValidator();
    void TheWindowIsAsGiven();
    void TheTextsBelongToTheForm();
    void TheMessagesBelongToTheClass();
    void TheClassHasItsPrivateSlot();
    void TheHostsWindowIsTheParent();
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
    void TabFollowsReadingOrder();
    void EnterConfirmsFromEverywhere_data();
    void EnterConfirmsFromEverywhere();
    void OpeningAThousandTimesTakesNoMemory();
};

void tst_frequencySetting::TheFormIsAsGiven_data()
{
    AddFormColumns();
    const char* const dialog = "frequencySetting";
    QTest::newRow("groupBox") << "QGroupBox" << dialog << QRect(20, 10, 241, 121)
                              << "Frequency Setting" << true << false;
    QTest::newRow("label") << "QLabel"
                           << "groupBox" << QRect(20, 20, 101, 21) << "Min Frequency:" << true
                           << false;
    QTest::newRow("lineEdit_MinFreq")
        << "QLineEdit"
        << "groupBox" << QRect(140, 20, 83, 21) << "1.0" << true << false;
    QTest::newRow("label_2") << "QLabel"
                             << "groupBox" << QRect(20, 50, 101, 21) << "Max Frequency:" << true
                             << false;
    QTest::newRow("lineEdit_MaxFreq")
        << "QLineEdit"
        << "groupBox" << QRect(140, 50, 83, 21) << "1000000.0" << true << false;
    QTest::newRow("label_3") << "QLabel"
                             << "groupBox" << QRect(20, 80, 111, 21) << "Frequency Number:" << true
                             << false;
    QTest::newRow("lineEdit_NumFreq")
        << "QLineEdit"
        << "groupBox" << QRect(140, 80, 83, 21) << "10" << true << false;
    QTest::newRow("pushButton_OK")
        << "QPushButton" << dialog << QRect(100, 160, 75, 23) << "OK" << true << false;
    QTest::newRow("pushButton_2") << "QPushButton" << dialog << QRect(180, 160, 75, 23) << "Cancel"
                                  << true << false;
}

void tst_frequencySetting::TheFormIsAsGiven()
{
    // The bare form: the dialog overwrites the texts of the fields.
    QDialog dialog;
    Ui::frequencySetting form;
    form.setupUi(&dialog);
    CompareFormRow(dialog);
}

void tst_frequencySetting::TheFormHoldsNothingElse()
{
    const frequencySetting dialog(nullptr);
    QCOMPARE(
        FormWidgets(dialog),
        QStringList({"groupBox", "label", "label_2", "label_3", "lineEdit_MaxFreq",
                     "lineEdit_MinFreq", "lineEdit_NumFreq", "pushButton_2", "pushButton_OK"}));
}

void tst_frequencySetting::LabelsLeadToTheirFields_data()
{
    QTest::addColumn<QByteArray>("label");
    QTest::addColumn<QByteArray>("field");
    QTest::newRow("minimum") << QByteArray("label") << QByteArray("lineEdit_MinFreq");
    QTest::newRow("maximum") << QByteArray("label_2") << QByteArray("lineEdit_MaxFreq");
    QTest::newRow("number") << QByteArray("label_3") << QByteArray("lineEdit_NumFreq");
}

void tst_frequencySetting::LabelsLeadToTheirFields()
{
    QFETCH(QByteArray, label);
    QFETCH(QByteArray, field);
    const frequencySetting dialog(nullptr);
    QCOMPARE(Find<QLabel>(dialog, label).buddy(), &Find<QLineEdit>(dialog, field));
}

void tst_frequencySetting::NoFieldHasAValidator()
{
    const frequencySetting dialog(nullptr);
    for (const char* const field : {"lineEdit_MinFreq", "lineEdit_MaxFreq", "lineEdit_NumFreq"})
        QVERIFY(Find<QLineEdit>(dialog, field).validator() == nullptr);
}

void tst_frequencySetting::TheWindowIsAsGiven()
{
    const frequencySetting dialog(nullptr);
    CompareWindow(dialog, "frequencySetting", "frequencySetting", QSize(281, 201));
    QVERIFY(dialog.windowIcon().isNull());
}

void tst_frequencySetting::TheTextsBelongToTheForm()
{
    const TextRecorder recorder;
    const frequencySetting dialog(nullptr);
    QCOMPARE(
        recorder.TextsOf("frequencySetting"),
        QStringList({"1.0", "10", "1000000.0", "Cancel", "Frequency Number:", "Frequency Setting",
                     "Max Frequency:", "Min Frequency:", "OK", "frequencySetting"}));
}

void tst_frequencySetting::TheMessagesBelongToTheClass()
{
    const InitialPreferences preferences;
    InitialPreferences::Put({0.0, 1.0, 2});
    ModalDriver user;
    frequencySetting dialog(nullptr);
    const TextRecorder recorder;
    user.Then([](QDialog& shown) {
        Click(shown, "pushButton_OK");
        Click(shown, "pushButton_2");
    });
    dialog.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(recorder.TextsOf("frequencySetting"), QStringList({"Invalid Parameter", "Warning"}));
}

void tst_frequencySetting::TheClassHasItsPrivateSlot()
{
    const QMetaObject& meta = frequencySetting::staticMetaObject;
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(OwnMethods(meta), QStringList({"private slot m_Slot_OK()"}));
}

void tst_frequencySetting::TheHostsWindowIsTheParent()
{
    QWidget window;
    const frequencySetting dialog(&window);
    QCOMPARE(dialog.parentWidget(), &window);
}

void tst_frequencySetting::ThePreferencesAreShown_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("minText");
    QTest::addColumn<QString>("maxText");
    QTest::addColumn<QString>("countText");
    QTest::newRow("initially") << 1.0 << 1000000.0 << 10 << "1"
                               << "1e+06"
                               << "10";
    QTest::newRow("six digits") << 0.5 << 123456.0 << 2 << "0.5"
                                << "123456"
                                << "2";
    QTest::newRow("rounded") << 1.2345678 << 1234567.0 << 100 << "1.23457"
                             << "1.23457e+06"
                             << "100";
    QTest::newRow("invalid ones, too") << -1.0 << 0.0 << -3 << "-1"
                                       << "0"
                                       << "-3";
    QTest::newRow("no grouping") << 1000.0 << 99999.0 << 1234567 << "1000"
                                 << "99999"
                                 << "1234567";
    QTest::newRow("infinite") << 1.0 << Infinity << 10 << "1"
                              << "inf"
                              << "10";
}

void tst_frequencySetting::ThePreferencesAreShown()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(int, count);
    QFETCH(QString, minText);
    QFETCH(QString, maxText);
    QFETCH(QString, countText);
    QVERIFY2(UseLocale("de_DE.UTF-8"), "the test needs a locale with a decimal comma");
    const InitialPreferences preferences;
    InitialPreferences::Put({min, max, count});
    const frequencySetting dialog(nullptr);
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_MinFreq").text(), minText);
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_MaxFreq").text(), maxText);
    QCOMPARE(Find<QLineEdit>(dialog, "lineEdit_NumFreq").text(), countText);
    CompareSweep(Told(dialog), {min, max, count});
}

void tst_frequencySetting::ThePreferencesAreReadWhenTheDialogIsMade()
{
    const InitialPreferences preferences;
    ModalDriver user;
    frequencySetting dialog(nullptr);
    InitialPreferences::Put({2.0, 3.0, 4});
    CompareSweep(Told(dialog), InitialSweep);
    user.Then([](QDialog& shown) { Click(shown, "pushButton_OK"); });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
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
    QTest::newRow("usual") << "20"
                           << "20000"
                           << "50" << 20.0 << 20000.0 << 50;
    QTest::newRow("minimum above maximum") << "5e6"
                                           << "1e6"
                                           << "10" << 5e6 << 1e6 << 10;
    QTest::newRow("minimum as maximum") << "7"
                                        << "7"
                                        << "10" << 7.0 << 7.0 << 10;
    QTest::newRow("least count") << "1"
                                 << "2"
                                 << "2" << 1.0 << 2.0 << 2;
    QTest::newRow("largest count") << "1"
                                   << "2"
                                   << "2147483647" << 1.0 << 2.0 << 2147483647;
    QTest::newRow("tiny") << "1e-300"
                          << "1e-299"
                          << "3" << 1e-300 << 1e-299 << 3;
    QTest::newRow("more digits than shown") << "1.23456789"
                                            << "2.3456789"
                                            << "3" << 1.23456789 << 2.3456789 << 3;
    QTest::newRow("blanks around") << " 1 "
                                   << " 2 "
                                   << " 3 " << 1.0 << 2.0 << 3;
    QTest::newRow("signs") << "+1"
                           << "+2"
                           << "+3" << 1.0 << 2.0 << 3;
    QTest::newRow("leading zero is decimal") << "010"
                                             << "020"
                                             << "010" << 10.0 << 20.0 << 10;
    QTest::newRow("infinite") << "inf"
                              << "inf"
                              << "10" << Infinity << Infinity << 10;
}

void tst_frequencySetting::OkStoresValidValues()
{
    QFETCH(QString, minText);
    QFETCH(QString, maxText);
    QFETCH(QString, countText);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(int, count);
    QVERIFY2(UseLocale("de_DE.UTF-8"), "the test needs a locale with a decimal comma");
    const InitialPreferences preferences;
    ModalDriver user;
    frequencySetting dialog(nullptr);
    user.Then([&](QDialog& shown) {
        TypeSweep(shown, minText, maxText, countText);
        Click(shown, "pushButton_OK");
    });
    Sweep atTheEnd;
    connect(&dialog, &QDialog::accepted, [&atTheEnd] { atTheEnd = Stored(); });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
    CompareSweep(atTheEnd, {min, max, count});
    CompareSweep(Told(dialog), {min, max, count});
}

void tst_frequencySetting::ShownDigitsAreStored()
{
    const InitialPreferences preferences;
    InitialPreferences::Put({1.0 / 3.0, 1234567.0, 10});
    ModalDriver user;
    frequencySetting dialog(nullptr);
    CompareSweep(Told(dialog), {1.0 / 3.0, 1234567.0, 10});
    user.Then([](QDialog& shown) { Click(shown, "pushButton_OK"); });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
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
    QTest::newRow("minimum 0") << "0"
                               << "2"
                               << "3" << 0.0 << 2.0 << 3;
    QTest::newRow("maximum 0") << "1"
                               << "0"
                               << "3" << 1.0 << 0.0 << 3;
    QTest::newRow("count 1") << "1"
                             << "2"
                             << "1" << 1.0 << 2.0 << 1;
    QTest::newRow("count 0") << "1"
                             << "2"
                             << "0" << 1.0 << 2.0 << 0;
    QTest::newRow("all three, one box") << "0"
                                        << "0"
                                        << "0" << 0.0 << 0.0 << 0;
    QTest::newRow("negative minimum") << "-1"
                                      << "2"
                                      << "3" << -1.0 << 2.0 << 3;
    QTest::newRow("negative maximum") << "1"
                                      << "-2"
                                      << "3" << 1.0 << -2.0 << 3;
    QTest::newRow("negative count") << "1"
                                    << "2"
                                    << "-3" << 1.0 << 2.0 << -3;
    QTest::newRow("count with a fraction") << "1"
                                           << "2"
                                           << "10.5" << 1.0 << 2.0 << 0;
    QTest::newRow("count with an exponent") << "1"
                                            << "2"
                                            << "1e2" << 1.0 << 2.0 << 0;
    QTest::newRow("count beyond an int") << "1"
                                         << "2"
                                         << "2147483648" << 1.0 << 2.0 << 0;
    QTest::newRow("hexadecimal count") << "1"
                                       << "2"
                                       << "0x10" << 1.0 << 2.0 << 0;
    QTest::newRow("empty minimum") << ""
                                   << "2"
                                   << "3" << 0.0 << 2.0 << 3;
    QTest::newRow("empty maximum") << "1"
                                   << ""
                                   << "3" << 1.0 << 0.0 << 3;
    QTest::newRow("empty count") << "1"
                                 << "2"
                                 << "" << 1.0 << 2.0 << 0;
    QTest::newRow("word") << "low"
                          << "high"
                          << "many" << 0.0 << 0.0 << 0;
    QTest::newRow("comma") << "1,5"
                           << "2"
                           << "3" << 0.0 << 2.0 << 3;
    QTest::newRow("grouped maximum") << "1"
                                     << "1,000"
                                     << "3" << 1.0 << 0.0 << 3;
    QTest::newRow("grouped count") << "1"
                                   << "2"
                                   << "1,000" << 1.0 << 2.0 << 0;
    QTest::newRow("negative zero") << "-0"
                                   << "2"
                                   << "3" << 0.0 << 2.0 << 3;
    QTest::newRow("no number") << "nan"
                               << "2"
                               << "3" << std::numeric_limits<double>::quiet_NaN() << 2.0 << 3;
    QTest::newRow("negative infinite") << "1"
                                       << "-inf"
                                       << "3" << 1.0 << -Infinity << 3;
}

void tst_frequencySetting::InvalidValuesAreRefused()
{
    QFETCH(QString, minText);
    QFETCH(QString, maxText);
    QFETCH(QString, countText);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(int, count);
    QVERIFY2(UseLocale("de_DE.UTF-8"), "the test needs a locale with a decimal comma");
    const InitialPreferences preferences;
    InitialPreferences::Put({11.0, 22.0, 33});
    ModalDriver user;
    frequencySetting dialog(nullptr);
    user.Then([&](QDialog& shown) {
        TypeSweep(shown, minText, maxText, countText);
        Click(shown, "pushButton_OK");
        QVERIFY(shown.isVisible());
        QCOMPARE(Find<QLineEdit>(shown, "lineEdit_MinFreq").text(), minText);
        QCOMPARE(Find<QLineEdit>(shown, "lineEdit_MaxFreq").text(), maxText);
        QCOMPARE(Find<QLineEdit>(shown, "lineEdit_NumFreq").text(), countText);
        // The rejected values are kept all the same.
        CompareSweep(Told(dialog), {min, max, count});
        Click(shown, "pushButton_2");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>({Refusal()}));
    CompareSweep(Told(dialog), {min, max, count});
    CompareSweep(Stored(), {11.0, 22.0, 33});
}

void tst_frequencySetting::ARefusedEntryCanBeCorrected()
{
    const InitialPreferences preferences;
    ModalDriver user;
    frequencySetting dialog(nullptr);
    user.Then([](QDialog& shown) {
        Type(shown, "lineEdit_NumFreq", "1");
        Click(shown, "pushButton_OK");
        Click(shown, "pushButton_OK");
        Type(shown, "lineEdit_NumFreq", "2");
        Click(shown, "pushButton_OK");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>({Refusal(), Refusal()}));
    CompareSweep(Stored(), {1.0, 1000000.0, 2});
}

void tst_frequencySetting::LeavingWritesNothing_data()
{
    QTest::addColumn<QString>("way");
    for (const char* const way : {"Cancel", "Escape", "close"})
        QTest::newRow(way) << way;
}

void tst_frequencySetting::LeavingWritesNothing()
{
    QFETCH(QString, way);
    const InitialPreferences preferences;
    ModalDriver user;
    frequencySetting dialog(nullptr);
    user.Then([&](QDialog& shown) {
        TypeSweep(shown, "2", "3", "4");
        if (way == "Cancel")
            Click(shown, "pushButton_2");
        else if (way == "Escape")
            QTest::keyClick(&shown, Qt::Key_Escape);
        else
            shown.close();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    CompareSweep(Stored(), InitialSweep);
    CompareSweep(Told(dialog), InitialSweep);
}

void tst_frequencySetting::TabFollowsReadingOrder()
{
    frequencySetting dialog(nullptr);
    QCOMPARE(TabOrder(dialog), QStringList({"lineEdit_MinFreq", "lineEdit_MaxFreq",
                                            "lineEdit_NumFreq", "pushButton_OK", "pushButton_2"}));
}

void tst_frequencySetting::EnterConfirmsFromEverywhere_data()
{
    QTest::addColumn<QByteArray>("focus");
    for (const char* const name : {"lineEdit_MinFreq", "lineEdit_MaxFreq", "lineEdit_NumFreq",
                                   "pushButton_OK", "pushButton_2"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_frequencySetting::EnterConfirmsFromEverywhere()
{
    QFETCH(QByteArray, focus);
    const InitialPreferences preferences;
    ModalDriver user;
    frequencySetting dialog(nullptr);
    user.Then([&](QDialog& shown) {
        TypeSweep(shown, "2", "3", "4");
        auto& widget = Find<QWidget>(shown, focus);
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_Return);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    CompareSweep(Stored(), {2.0, 3.0, 4});
}

void tst_frequencySetting::OpeningAThousandTimesTakesNoMemory()
{
    const std::ptrdiff_t growth = HeapGrowth([] {
        frequencySetting dialog(nullptr);
        dialog.show();
        dialog.close();
    });
    QVERIFY2(growth < 16 * 1000, qPrintable(QString::number(growth)));
}

TARN_TEST_MAIN(tst_frequencySetting)
#include "tst_frequencySetting.moc"
