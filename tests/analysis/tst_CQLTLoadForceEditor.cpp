#include "CQLTLoadForceEditor.h"
#include "Conversions.h"
#include "NamedRecordTest.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <cmath>
#include <limits>

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

FormFacts Form()
{
    FormFacts form;
    form.name = "QLTLoadForceEditor";
    form.title = "Load Force Editor";
    form.size = {353, 225};
    form.lines = {
        "QLabel label_LoadName in QLTLoadForceEditor at 20,20 51x20: Name, for lied_Name",
        "QLineEdit lied_Name in QLTLoadForceEditor at 60,20 113x20: Default",
        "QGroupBox grb_Option in QLTLoadForceEditor at 10,50 151x111: Option",
        "QRadioButton rab_Component in grb_Option at 10,20 131x16: Component, checked, disabled",
        "QRadioButton rab_Normal2Face in grb_Option at 10,50 131x16: Normal to surface, disabled",
        "QGroupBox grb_Force in QLTLoadForceEditor at 170,50 171x111: Force Value",
        "QLabel label_3 in grb_Force at 20,20 16x16: FX, for lied_FX",
        "QLineEdit lied_FX in grb_Force at 50,20 113x20: 1000",
        "QLabel label_5 in grb_Force at 20,50 21x16: FY, for lied_FZ",
        "QLineEdit lied_FZ in grb_Force at 50,50 113x20: 0",
        "QLabel label_4 in grb_Force at 20,80 21x16: FZ, for lied_FY",
        "QLineEdit lied_FY in grb_Force at 50,80 113x20: 0",
        "QWidget layoutWidget in QLTLoadForceEditor at 110,170 231x33: ",
        "QPushButton okButton in layoutWidget at hboxLayout[1]: OK",
        "QPushButton cancelButton in layoutWidget at hboxLayout[2]: Cancel",
        "QHBoxLayout hboxLayout: spacing 6, margins 0 0 0 0",
        "QSpacerItem at hboxLayout[0]: 131x31, horizontal",
    };
    form.tabOrder = {"lied_Name", "lied_FX", "lied_FZ", "lied_FY", "okButton", "cancelButton"};
    form.enter = "okButton";
    form.methods = {"public slot on_okButton_clicked()"};
    return form;
}

RecordFacts Record()
{
    RecordFacts record;
    record.context = "CQLTLoadForceEditor";
    record.name = "Default";
    record.refusal = "Duplicated Attribute Name";
    record.unset = "0 | 0 0 0";
    record.accepted = "1 | 1000 0 0";
    record.given = "1 | 1 2 3";
    record.change = [](const QDialog& editor) {
        Type(editor, "lied_FX", "no number");
    };
    record.changed = "1 | 0 0 0";
    return record;
}

QString Text(const QWidget& editor, const char* name)
{
    return Find<QLineEdit>(editor, name).text();
}

bool IsChecked(const QWidget& editor, const char* name)
{
    return Find<QRadioButton>(editor, name).isChecked();
}

/// The values without the name: the kind and the components.
QString Values(const sLoadForceData& data)
{
    return QStringLiteral("%1 | %2 %3 %4")
        .arg(QString::number(data.m_nKind), AllDigits(data.m_dFX), AllDigits(data.m_dFY),
             AllDigits(data.m_dFZ));
}

void CompareRecord(const CQLTLoadForceEditor& editor, const sLoadForceData& expected)
{
    QCOMPARE(editor.GetLoadForceData().m_strName, expected.m_strName);
    QCOMPARE(Values(editor.GetLoadForceData()), Values(expected));
}

/// The field to the right of a label, as the user sees it.
QString FieldBeside(const QWidget& editor, const QString& labelText)
{
    const auto& group = Find<QWidget>(editor, "grb_Force");
    const QList<QLabel*> labels = group.findChildren<QLabel*>();
    const QList<QLineEdit*> fields = group.findChildren<QLineEdit*>();
    for (const QLabel* const label : labels) {
        for (const QLineEdit* const field : fields) {
            if (label->text() == labelText && label->y() == field->y() && label->x() < field->x())
                return field->objectName();
        }
    }
    return QString();
}

} // namespace

class tst_CQLTLoadForceEditor : public NamedRecordTest<CQLTLoadForceEditor>
{
    Q_OBJECT

public:
    tst_CQLTLoadForceEditor()
        : NamedRecordTest(Form(), Record())
    {
    }

private Q_SLOTS:
    void NoFieldHasAValidator_data();
    void NoFieldHasAValidator();
    void TheRowsOfFYAndFZAreCrossed();
    void TheKindCannotBeChosen_data();
    void TheKindCannotBeChosen();
    void InitDataShowsComponents_data();
    void InitDataShowsComponents();
    void InitDataShowsTheKind_data();
    void InitDataShowsTheKind();
    void AnotherRecordReplacesTheShownOne();
    void ALoadNormalToTheSurfaceKeepsItsComponents();
    void AKindThatTheHostEnablesIsStored();
    void AnUnknownKindBecomesComponents();
    void ShownDigitsAreStored();
    void ForcesAreConvertedWithoutAnError_data();
    void ForcesAreConvertedWithoutAnError();
    void AGivenNameEndsAtTheFirstZero();
    void AGivenNameIsInTheLocalCodePage();
    void TabFollowsTheRowsAsLabelled();

private:
    static sLoadForceData DataOf(const QDialog& editor);

    void Give(QDialog& editor) const override;
    std::string NameOf(const QDialog& editor) const override { return DataOf(editor).m_strName; }
    QString ValuesOf(const QDialog& editor) const override { return Values(DataOf(editor)); }
};

sLoadForceData tst_CQLTLoadForceEditor::DataOf(const QDialog& editor)
{
    return static_cast<const CQLTLoadForceEditor&>(editor).GetLoadForceData();
}

void tst_CQLTLoadForceEditor::Give(QDialog& editor) const
{
    static_cast<CQLTLoadForceEditor&>(editor).InitData({"given", 1, 1.0, 2.0, 3.0});
}

void tst_CQLTLoadForceEditor::NoFieldHasAValidator_data()
{
    QTest::addColumn<QByteArray>("field");
    for (const char* const name : {"lied_Name", "lied_FX", "lied_FY", "lied_FZ"})
        NewRow(name, QByteArray(name));
}

void tst_CQLTLoadForceEditor::NoFieldHasAValidator()
{
    QFETCH(QByteArray, field);
    const CQLTLoadForceEditor editor(nullptr);
    QVERIFY(Find<QLineEdit>(editor, field).validator() == nullptr);
    Type(editor, field, "a b,c");
    QCOMPARE(Text(editor, field), "a b,c");
}

void tst_CQLTLoadForceEditor::TheRowsOfFYAndFZAreCrossed()
{
    CQLTLoadForceEditor editor(nullptr);
    QCOMPARE(FieldBeside(editor, "FX"), "lied_FX");
    Then([](QDialog& shown) {
        Type(shown, FieldBeside(shown, "FX").toLatin1(), "3");
        Type(shown, FieldBeside(shown, "FY").toLatin1(), "5");
        Type(shown, FieldBeside(shown, "FZ").toLatin1(), "7");
        Click(shown, "okButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    CompareRecord(editor, {"Default", 1, 3.0, 7.0, 5.0});

    // A record is shown with the same rows swapped, so it comes out unchanged.
    editor.InitData({"Load", 1, 1.0, 2.0, 3.0});
    QCOMPARE(Text(editor, FieldBeside(editor, "FY").toLatin1()), "3");
    QCOMPARE(Text(editor, FieldBeside(editor, "FZ").toLatin1()), "2");
    editor.on_okButton_clicked();
    CompareRecord(editor, {"Load", 1, 1.0, 2.0, 3.0});
}

void tst_CQLTLoadForceEditor::TheKindCannotBeChosen_data()
{
    QTest::addColumn<int>("kind");
    NewRow("components", 1);
    NewRow("normal to the surface", 2);
}

void tst_CQLTLoadForceEditor::TheKindCannotBeChosen()
{
    QFETCH(int, kind);
    CQLTLoadForceEditor editor(nullptr);
    editor.InitData({"Load", kind, 1.0, 2.0, 3.0});
    Then([&](QDialog& shown) {
        Click(shown, "rab_Component");
        Click(shown, "rab_Normal2Face");
        QCOMPARE(IsChecked(shown, "rab_Component"), kind == 1);
        QCOMPARE(IsChecked(shown, "rab_Normal2Face"), kind == 2);
        QVERIFY(!Find<QRadioButton>(shown, "rab_Component").isEnabled());
        QVERIFY(!Find<QRadioButton>(shown, "rab_Normal2Face").isEnabled());
        Click(shown, "okButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QCOMPARE(editor.GetLoadForceData().m_nKind, kind);
}

void tst_CQLTLoadForceEditor::InitDataShowsComponents_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    NewRow("zero", 0.0, "0");
    NewRow("negative zero", -0.0, "0");
    NewRow("small", 0.000012345678, "1.23457e-05");
    NewRow("six digits", 123456.0, "123456");
    NewRow("rounded to six digits", 123456.7, "123457");
    NewRow("seven digits", 1234567.0, "1.23457e+06");
    NewRow("million", 1000000.0, "1e+06");
    NewRow("negative", -2.5, "-2.5");
    NewRow("no trailing zeros", 0.10, "0.1");
    NewRow("infinite", Infinity, "inf");
    NewRow("no number", std::nan(""), "nan");
}

void tst_CQLTLoadForceEditor::InitDataShowsComponents()
{
    QFETCH(double, value);
    QFETCH(QString, text);
    UseLocale("de_DE.UTF-8");
    CQLTLoadForceEditor editor(nullptr);
    editor.InitData({"Load", 1, value, 11.0, 22.0});
    QCOMPARE(Text(editor, "lied_FX"), text);
    QCOMPARE(Text(editor, "lied_FY"), "11");
    QCOMPARE(Text(editor, "lied_FZ"), "22");
    editor.InitData({"Load", 1, 11.0, value, 22.0});
    QCOMPARE(Text(editor, "lied_FY"), text);
    editor.InitData({"Load", 1, 11.0, 22.0, value});
    QCOMPARE(Text(editor, "lied_FZ"), text);
}

void tst_CQLTLoadForceEditor::InitDataShowsTheKind_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("normal");
    QTest::addColumn<bool>("forces");
    NewRow("1, components", 1, false, true);
    NewRow("2, normal to the surface", 2, true, false);
    NewRow("0", 0, false, false);
    NewRow("3", 3, false, false);
    NewRow("-1", -1, false, false);
}

void tst_CQLTLoadForceEditor::InitDataShowsTheKind()
{
    QFETCH(int, kind);
    QFETCH(bool, normal);
    QFETCH(bool, forces);
    // From either kind shown before.
    for (const int before : {1, 2}) {
        CQLTLoadForceEditor editor(nullptr);
        editor.InitData({"Before", before, 7.0, 8.0, 9.0});
        Find<QLineEdit>(editor, "lied_FX").setText("x");
        Find<QLineEdit>(editor, "lied_FY").setText("y");
        Find<QLineEdit>(editor, "lied_FZ").setText("z");
        editor.InitData({"Load", kind, 1.5, 2.5, 3.5});
        QCOMPARE(IsChecked(editor, "rab_Component"), !normal);
        QCOMPARE(IsChecked(editor, "rab_Normal2Face"), normal);
        QCOMPARE(Text(editor, "lied_Name"), "Load");
        QCOMPARE(Text(editor, "lied_FX"), forces ? "1.5" : "x");
        QCOMPARE(Text(editor, "lied_FY"), forces ? "2.5" : "y");
        QCOMPARE(Text(editor, "lied_FZ"), forces ? "3.5" : "z");
        CompareRecord(editor, {"Load", kind, 1.5, 2.5, 3.5});
    }
}

void tst_CQLTLoadForceEditor::AnotherRecordReplacesTheShownOne()
{
    CQLTLoadForceEditor editor(nullptr);
    editor.InitData({"Load", 1, 1.0, 2.0, 3.0});
    editor.InitData(sLoadForceData());
    QCOMPARE(Text(editor, "lied_Name"), "");
    QCOMPARE(Text(editor, "lied_FX"), "1");
    CompareRecord(editor, sLoadForceData());
}

void tst_CQLTLoadForceEditor::ALoadNormalToTheSurfaceKeepsItsComponents()
{
    CQLTLoadForceEditor editor(nullptr);
    editor.InitData({"Load", 2, 1.0 / 3.0, 2.0, 3.0});
    Then([](QDialog& shown) {
        Type(shown, "lied_Name", "Pressure");
        Type(shown, "lied_FX", "77");
        Type(shown, "lied_FY", "88");
        Type(shown, "lied_FZ", "99");
        Click(shown, "okButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    CompareRecord(editor, {"Pressure", 2, 1.0 / 3.0, 2.0, 3.0});
}

void tst_CQLTLoadForceEditor::AKindThatTheHostEnablesIsStored()
{
    CQLTLoadForceEditor editor(nullptr);
    editor.InitData({"Load", 1, 1.0 / 3.0, 2.0, 3.0});
    Find<QRadioButton>(editor, "rab_Normal2Face").setEnabled(true);
    Then([](QDialog& shown) {
        Click(shown, "rab_Normal2Face");
        Type(shown, "lied_FX", "77");
        Click(shown, "okButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    CompareRecord(editor, {"Load", 2, 1.0 / 3.0, 2.0, 3.0});
}

void tst_CQLTLoadForceEditor::AnUnknownKindBecomesComponents()
{
    CQLTLoadForceEditor editor(nullptr);
    editor.InitData({"Load", 5, 1.0, 2.0, 3.0});
    QCOMPARE(RunAndPress(editor, "okButton"), int(QDialog::Accepted));
    CompareRecord(editor, {"Load", 1, 1000.0, 0.0, 0.0});
}

void tst_CQLTLoadForceEditor::ShownDigitsAreStored()
{
    CQLTLoadForceEditor editor(nullptr);
    editor.InitData({"Load", 1, 1234567.0, 1.0 / 3.0, 0.0});
    editor.on_okButton_clicked();
    CompareRecord(editor, {"Load", 1, 1234570.0, 0.333333, 0.0});
}

void tst_CQLTLoadForceEditor::ForcesAreConvertedWithoutAnError_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    NewRow("whole number", "5", 5.0);
    NewRow("fraction", "0.25", 0.25);
    NewRow("sign", "-3.5", -3.5);
    NewRow("exponent", "-2.5e3", -2500.0);
    NewRow("plus", "+4", 4.0);
    NewRow("blanks around", " 7 ", 7.0);
    NewRow("no digit before the stop", ".5", 0.5);
    NewRow("no digit after the stop", "5.", 5.0);
    NewRow("more digits than shown", "1.23456789", 1.23456789);
    NewRow("empty", "", 0.0);
    NewRow("word", "abc", 0.0);
    NewRow("unit", "5 N", 0.0);
    NewRow("comma", "1,5", 0.0);
    NewRow("grouping", "1,000", 0.0);
    NewRow("two stops", "1.2.3", 0.0);
    NewRow("hexadecimal", "0x10", 0.0);
    NewRow("overflow", "-1e400", -Infinity);
    NewRow("underflow", "1e-400", 0.0);
    NewRow("infinite", "inf", Infinity);
    NewRow("no number", "nan", std::nan(""));
}

void tst_CQLTLoadForceEditor::ForcesAreConvertedWithoutAnError()
{
    QFETCH(QString, text);
    QFETCH(double, value);
    UseLocale("de_DE.UTF-8");
    for (const char* const field : {"lied_FX", "lied_FY", "lied_FZ"}) {
        CQLTLoadForceEditor editor(nullptr);
        editor.InitData({"Load", 1, 11.0, 22.0, 33.0});
        Then([&](QDialog& shown) {
            Type(shown, field, text);
            Click(shown, "okButton");
        });
        QCOMPARE(editor.exec(), int(QDialog::Accepted));
        sLoadForceData expected = {"Load", 1, 11.0, 22.0, 33.0};
        (field == QByteArray("lied_FX")   ? expected.m_dFX
         : field == QByteArray("lied_FY") ? expected.m_dFY
                                          : expected.m_dFZ) = value;
        CompareRecord(editor, expected);
    }
}

void tst_CQLTLoadForceEditor::AGivenNameEndsAtTheFirstZero()
{
    CQLTLoadForceEditor editor(nullptr);
    const std::string given("ab\0cd", 5);
    editor.InitData({given, 1, 1.0, 2.0, 3.0});
    QCOMPARE(Text(editor, "lied_Name"), "ab");
    QCOMPARE(editor.GetLoadForceData().m_strName, given);
}

void tst_CQLTLoadForceEditor::AGivenNameIsInTheLocalCodePage()
{
    UseCodePage("GB18030");
    CQLTLoadForceEditor editor(nullptr);
    editor.InitData({"\xB9\xCC\xB6\xA8", 1, 1.0, 2.0, 3.0});
    QCOMPARE(Text(editor, "lied_Name"), "固定");
}

void tst_CQLTLoadForceEditor::TabFollowsTheRowsAsLabelled()
{
    CQLTLoadForceEditor editor(nullptr);
    QCOMPARE(TabOrder(editor).mid(1, 3),
             QStringList({FieldBeside(editor, "FX"), FieldBeside(editor, "FY"),
                          FieldBeside(editor, "FZ")}));
}

TARN_TEST_MAIN(tst_CQLTLoadForceEditor)
#include "tst_CQLTLoadForceEditor.moc"
