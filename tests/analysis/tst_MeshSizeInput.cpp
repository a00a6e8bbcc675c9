#include "DialogFacts.h"
#include "Heap.h"
#include "MeshSizeInput.h"
#include "ModalDriver.h"
#include "TestCase.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <cmath>
#include <limits>
#include <memory>
#include <type_traits>

// A default parent on the second constructor would make the size of the host's 0 a guess.
static_assert(!std::is_constructible_v<MeshSizeInput, double>);
static_assert(!std::is_convertible_v<QWidget*, MeshSizeInput>);

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

} // namespace

class tst_MeshSizeInput : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormIsAsGiven_data();
    void TheFormIsAsGiven();
    void TheFormHoldsNothingElse();
    void TheLabelLeadsToTheField();
    void TheFieldHasNoValidator();
    void TheWindowIsAsGiven();
    void TheTextsBelongToTheForm();
    void TheClassHasNoSlots();
    void TheHostsWindowIsTheParent();
    void WithoutASizeItOpensWithOne();
    void AnInitialSizeIsShownWithSixDigits_data();
    void AnInitialSizeIsShownWithSixDigits();
    void TheFieldIsConvertedWithoutReport_data();
    void TheFieldIsConvertedWithoutReport();
    void TheSizeIsReadAfterLeaving_data();
    void TheSizeIsReadAfterLeaving();
    void TheSizeIsReadAnewEachTime();
    void TabFollowsReadingOrder();
    void EnterConfirmsFromEverywhere_data();
    void EnterConfirmsFromEverywhere();
    void OpeningAThousandTimesTakesNoMemory();
};

void tst_MeshSizeInput::TheFormIsAsGiven_data()
{
    AddFormColumns();
    const char* const dialog = "MeshSizeInput";
    QTest::newRow("groupBox") << "QGroupBox" << dialog << QRect(10, 10, 271, 61) << "" << true
                              << false;
    QTest::newRow("label") << "QLabel"
                           << "groupBox" << QRect(20, 20, 81, 16) << "Mesh Size" << true << false;
    QTest::newRow("lineEdit_MeshSize")
        << "QLineEdit"
        << "groupBox" << QRect(120, 20, 113, 20) << "1" << true << false;
    QTest::newRow("pushButton") << "QPushButton" << dialog << QRect(120, 80, 75, 23) << "OK" << true
                                << false;
    QTest::newRow("pushButton_2") << "QPushButton" << dialog << QRect(200, 80, 75, 23) << "Cancel"
                                  << true << false;
}

void tst_MeshSizeInput::TheFormIsAsGiven()
{
    const MeshSizeInput dialog(nullptr);
    CompareFormRow(dialog);
}

void tst_MeshSizeInput::TheFormHoldsNothingElse()
{
    const MeshSizeInput dialog(nullptr);
    QCOMPARE(FormWidgets(dialog),
             QStringList({"groupBox", "label", "lineEdit_MeshSize", "pushButton", "pushButton_2"}));
}

void tst_MeshSizeInput::TheLabelLeadsToTheField()
{
    const MeshSizeInput dialog(nullptr);
    QCOMPARE(Find<QLabel>(dialog, "label").buddy(), &Find<QLineEdit>(dialog, "lineEdit_MeshSize"));
}

void tst_MeshSizeInput::TheFieldHasNoValidator()
{
    const MeshSizeInput dialog(nullptr);
    QVERIFY(Find<QLineEdit>(dialog, "lineEdit_MeshSize").validator() == nullptr);
}

void tst_MeshSizeInput::TheWindowIsAsGiven()
{
    const MeshSizeInput dialog(nullptr);
    CompareWindow(dialog, "MeshSizeInput", "MeshSizeInput", QSize(298, 124));
    QVERIFY(dialog.windowIcon().isNull());
    const MeshSizeInput withSize(2.0, nullptr);
    CompareWindow(withSize, "MeshSizeInput", "MeshSizeInput", QSize(298, 124));
}

void tst_MeshSizeInput::TheTextsBelongToTheForm()
{
    const TextRecorder recorder;
    const MeshSizeInput dialog(nullptr);
    QCOMPARE(recorder.TextsOf("MeshSizeInput"),
             QStringList({"1", "Cancel", "Mesh Size", "MeshSizeInput", "OK"}));
}

void tst_MeshSizeInput::TheClassHasNoSlots()
{
    const QMetaObject& meta = MeshSizeInput::staticMetaObject;
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(OwnMethods(meta), QStringList());
}

void tst_MeshSizeInput::TheHostsWindowIsTheParent()
{
    QWidget window;
    const MeshSizeInput dialog(&window);
    QCOMPARE(dialog.parentWidget(), &window);
    const MeshSizeInput withSize(2.0, &window);
    QCOMPARE(withSize.parentWidget(), &window);
}

void tst_MeshSizeInput::WithoutASizeItOpensWithOne()
{
    ModalDriver user;
    MeshSizeInput dialog(nullptr);
    user.Then([](QDialog& shown) {
        QCOMPARE(Find<QLineEdit>(shown, "lineEdit_MeshSize").text(), "1");
        Click(shown, "pushButton");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(dialog.GetMeshSize(), 1.0);

    // One argument is the parent, also when it is written as 0.
    MeshSizeInput withoutParent(nullptr);
    QCOMPARE(withoutParent.GetMeshSize(), 1.0);
}

void tst_MeshSizeInput::AnInitialSizeIsShownWithSixDigits_data()
{
    QTest::addColumn<double>("size");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("read");
    QTest::newRow("quarter") << 0.25 << "0.25" << 0.25;
    QTest::newRow("zero") << 0.0 << "0" << 0.0;
    QTest::newRow("negative") << -3.0 << "-3" << -3.0;
    QTest::newRow("seven digits are read back as shown") << 1.2345678 << "1.23457" << 1.23457;
    QTest::newRow("large") << 1234567.0 << "1.23457e+06" << 1234570.0;
    QTest::newRow("small") << 0.00001 << "1e-05" << 0.00001;
    QTest::newRow("infinite") << Infinity << "inf" << Infinity;
    QTest::newRow("no number") << std::nan("") << "nan" << std::nan("");
}

void tst_MeshSizeInput::AnInitialSizeIsShownWithSixDigits()
{
    QFETCH(double, size);
    QFETCH(QString, text);
    QFETCH(double, read);
    QVERIFY2(UseLocale("de_DE.UTF-8"), "the test needs a locale with a decimal comma");
    ModalDriver user;
    MeshSizeInput dialog(size, nullptr);
    user.Then([&](QDialog& shown) {
        QCOMPARE(Find<QLineEdit>(shown, "lineEdit_MeshSize").text(), text);
        Click(shown, "pushButton");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(dialog.GetMeshSize(), read);
}

void tst_MeshSizeInput::TheFieldIsConvertedWithoutReport_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("whole number") << "5" << 5.0;
    QTest::newRow("fraction") << "0.125" << 0.125;
    QTest::newRow("exponent") << "1e-3" << 0.001;
    QTest::newRow("more digits than shown") << "1.23456789" << 1.23456789;
    QTest::newRow("zero is not refused") << "0" << 0.0;
    QTest::newRow("negative is not refused") << "-2" << -2.0;
    QTest::newRow("blanks around") << " 7 " << 7.0;
    QTest::newRow("empty") << "" << 0.0;
    QTest::newRow("word") << "fine" << 0.0;
    QTest::newRow("comma") << "0,5" << 0.0;
    QTest::newRow("unit") << "5 mm" << 0.0;
}

void tst_MeshSizeInput::TheFieldIsConvertedWithoutReport()
{
    QFETCH(QString, text);
    QFETCH(double, value);
    QVERIFY2(UseLocale("de_DE.UTF-8"), "the test needs a locale with a decimal comma");
    ModalDriver user;
    MeshSizeInput dialog(3.0, nullptr);
    user.Then([&](QDialog& shown) {
        Type(shown, "lineEdit_MeshSize", text);
        Click(shown, "pushButton");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
    QCOMPARE(dialog.GetMeshSize(), value);
}

void tst_MeshSizeInput::TheSizeIsReadAfterLeaving_data()
{
    QTest::addColumn<QString>("way");
    for (const char* const way : {"Cancel", "Escape", "close"})
        QTest::newRow(way) << way;
}

void tst_MeshSizeInput::TheSizeIsReadAfterLeaving()
{
    QFETCH(QString, way);
    ModalDriver user;
    MeshSizeInput dialog(0.25, nullptr);
    user.Then([&](QDialog& shown) {
        Type(shown, "lineEdit_MeshSize", "8");
        if (way == "Cancel")
            Click(shown, "pushButton_2");
        else if (way == "Escape")
            QTest::keyClick(&shown, Qt::Key_Escape);
        else
            shown.close();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    // The field is read, however the dialog ended.
    QCOMPARE(dialog.GetMeshSize(), 8.0);
}

void tst_MeshSizeInput::TheSizeIsReadAnewEachTime()
{
    MeshSizeInput dialog(0.25, nullptr);
    QCOMPARE(dialog.GetMeshSize(), 0.25);
    Type(dialog, "lineEdit_MeshSize", "x");
    QCOMPARE(dialog.GetMeshSize(), 0.0);
    Type(dialog, "lineEdit_MeshSize", "4");
    QCOMPARE(dialog.GetMeshSize(), 4.0);
}

void tst_MeshSizeInput::TabFollowsReadingOrder()
{
    MeshSizeInput dialog(nullptr);
    QCOMPARE(TabOrder(dialog), QStringList({"lineEdit_MeshSize", "pushButton", "pushButton_2"}));
}

void tst_MeshSizeInput::EnterConfirmsFromEverywhere_data()
{
    QTest::addColumn<QByteArray>("focus");
    for (const char* const name : {"lineEdit_MeshSize", "pushButton", "pushButton_2"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_MeshSizeInput::EnterConfirmsFromEverywhere()
{
    QFETCH(QByteArray, focus);
    ModalDriver user;
    MeshSizeInput dialog(nullptr);
    user.Then([&](QDialog& shown) {
        auto& widget = Find<QWidget>(shown, focus);
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_Return);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
}

void tst_MeshSizeInput::OpeningAThousandTimesTakesNoMemory()
{
    const std::ptrdiff_t growth = HeapGrowth([] {
        MeshSizeInput dialog(0.25, nullptr);
        dialog.show();
        dialog.close();
    });
    QVERIFY2(growth < 16 * 1000, qPrintable(QString::number(growth)));
}

TARN_TEST_MAIN(tst_MeshSizeInput)
#include "tst_MeshSizeInput.moc"
