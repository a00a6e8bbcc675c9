#include "FormTest.h"
#include "MeshSizeInput.h"

#include <QLineEdit>

#include <cmath>
#include <limits>
#include <type_traits>

// With a default parent on the second constructor, the argument 0 would be ambiguous.
static_assert(!std::is_constructible_v<MeshSizeInput, double>);
static_assert(!std::is_convertible_v<QWidget*, MeshSizeInput>);

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "MeshSizeInput";
    form.title = "MeshSizeInput";
    form.size = {298, 124};
    form.lines = {
        "QGroupBox groupBox in MeshSizeInput at 10,10 271x61: ",
        "QLabel label in groupBox at 20,20 81x16: Mesh Size, for lineEdit_MeshSize",
        "QLineEdit lineEdit_MeshSize in groupBox at 120,20 113x20: 1",
        "QPushButton pushButton in MeshSizeInput at 120,80 75x23: OK",
        "QPushButton pushButton_2 in MeshSizeInput at 200,80 75x23: Cancel",
    };
    form.tabOrder = {"lineEdit_MeshSize", "pushButton", "pushButton_2"};
    form.enter = "pushButton";
    return form;
}

constexpr double Infinity = std::numeric_limits<double>::infinity();

} // namespace

class tst_MeshSizeInput : public FormTest<MeshSizeInput>
{
    Q_OBJECT

public:
    tst_MeshSizeInput()
        : FormTest(Form())
    {
    }

private Q_SLOTS:
    void WithASizeTheWindowIsTheSame();
    void WithoutASizeItOpensWithOne();
    void AnInitialSizeIsShownWithSixDigits_data();
    void AnInitialSizeIsShownWithSixDigits();
    void TheFieldIsConvertedWithoutAnError_data();
    void TheFieldIsConvertedWithoutAnError();
    void TheSizeIsReadAfterLeaving_data();
    void TheSizeIsReadAfterLeaving();
    void TheSizeIsReadAgainEachTime();
};

void tst_MeshSizeInput::WithASizeTheWindowIsTheSame()
{
    QWidget window;
    const MeshSizeInput withSize(2.0, &window);
    QCOMPARE(withSize.parentWidget(), &window);
    QCOMPARE(withSize.objectName(), Facts().name);
    QCOMPARE(withSize.windowTitle(), Facts().title);
    QCOMPARE(withSize.size(), Facts().size);
    QCOMPARE(withSize.windowFlags(), MeshSizeInput(nullptr).windowFlags());
}

void tst_MeshSizeInput::WithoutASizeItOpensWithOne()
{
    MeshSizeInput dialog(nullptr);
    Then([](QDialog& shown) {
        QCOMPARE(Find<QLineEdit>(shown, "lineEdit_MeshSize").text(), "1");
        Click(shown, "pushButton");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(dialog.GetMeshSize(), 1.0);

    // A single argument is the parent, even if it is written as 0.
    MeshSizeInput withoutParent(nullptr);
    QCOMPARE(withoutParent.GetMeshSize(), 1.0);
}

void tst_MeshSizeInput::AnInitialSizeIsShownWithSixDigits_data()
{
    QTest::addColumn<double>("size");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("read");
    NewRow("quarter", 0.25, "0.25", 0.25);
    NewRow("zero", 0.0, "0", 0.0);
    NewRow("negative", -3.0, "-3", -3.0);
    NewRow("seven digits are read back as shown", 1.2345678, "1.23457", 1.23457);
    NewRow("large", 1234567.0, "1.23457e+06", 1234570.0);
    NewRow("small", 0.00001, "1e-05", 0.00001);
    NewRow("infinite", Infinity, "inf", Infinity);
    NewRow("no number", std::nan(""), "nan", std::nan(""));
}

void tst_MeshSizeInput::AnInitialSizeIsShownWithSixDigits()
{
    QFETCH(double, size);
    QFETCH(QString, text);
    QFETCH(double, read);
    UseLocale("de_DE.UTF-8");
    MeshSizeInput dialog(size, nullptr);
    Then([&](QDialog& shown) {
        QCOMPARE(Find<QLineEdit>(shown, "lineEdit_MeshSize").text(), text);
        Click(shown, "pushButton");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(dialog.GetMeshSize(), read);
}

void tst_MeshSizeInput::TheFieldIsConvertedWithoutAnError_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    NewRow("whole number", "5", 5.0);
    NewRow("fraction", "0.125", 0.125);
    NewRow("exponent", "1e-3", 0.001);
    NewRow("more digits than shown", "1.23456789", 1.23456789);
    NewRow("zero is not refused", "0", 0.0);
    NewRow("negative is not refused", "-2", -2.0);
    NewRow("blanks around", " 7 ", 7.0);
    NewRow("empty", "", 0.0);
    NewRow("word", "fine", 0.0);
    NewRow("comma", "0,5", 0.0);
    NewRow("unit", "5 mm", 0.0);
}

void tst_MeshSizeInput::TheFieldIsConvertedWithoutAnError()
{
    QFETCH(QString, text);
    QFETCH(double, value);
    UseLocale("de_DE.UTF-8");
    MeshSizeInput dialog(3.0, nullptr);
    Then([&](QDialog& shown) {
        Type(shown, "lineEdit_MeshSize", text);
        Click(shown, "pushButton");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(dialog.GetMeshSize(), value);
}

void tst_MeshSizeInput::TheSizeIsReadAfterLeaving_data()
{
    AddWaysToLeave();
}

void tst_MeshSizeInput::TheSizeIsReadAfterLeaving()
{
    QFETCH(QString, way);
    MeshSizeInput dialog(0.25, nullptr);
    Then([&](QDialog& shown) {
        Type(shown, "lineEdit_MeshSize", "8");
        Leave(shown, way, "pushButton_2");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    // The field is read however the dialog has ended.
    QCOMPARE(dialog.GetMeshSize(), 8.0);
}

void tst_MeshSizeInput::TheSizeIsReadAgainEachTime()
{
    MeshSizeInput dialog(0.25, nullptr);
    QCOMPARE(dialog.GetMeshSize(), 0.25);
    Type(dialog, "lineEdit_MeshSize", "x");
    QCOMPARE(dialog.GetMeshSize(), 0.0);
    Type(dialog, "lineEdit_MeshSize", "4");
    QCOMPARE(dialog.GetMeshSize(), 4.0);
}

TARN_TEST_MAIN(tst_MeshSizeInput)
#include "tst_MeshSizeInput.moc"
