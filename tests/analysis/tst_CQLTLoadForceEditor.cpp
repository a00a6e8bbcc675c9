#include "AttributeCommonMgr.h"
#include "CQLTLoadForceEditor.h"
#include "DialogFacts.h"
#include "EmptyAttributeNames.h"
#include "NamedRecordTest.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <cmath>
#include <limits>

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();

QString Text(const QWidget& editor, const char* name)
{
    return Find<QLineEdit>(editor, name).text();
}

bool IsChecked(const QWidget& editor, const char* name)
{
    return Find<QRadioButton>(editor, name).isChecked();
}

void CompareRecord(const sLoadForceData& data, const sLoadForceData& expected)
{
    QCOMPARE(data.m_strName, expected.m_strName);
    QCOMPARE(data.m_nKind, expected.m_nKind);
    QCOMPARE(data.m_dFX, expected.m_dFX);
    QCOMPARE(data.m_dFY, expected.m_dFY);
    QCOMPARE(data.m_dFZ, expected.m_dFZ);
}

/// The field that stands right of a label, as the user sees it.
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
    tst_CQLTLoadForceEditor();

private Q_SLOTS:
    void TheFormIsAsGiven_data();
    void TheFormIsAsGiven();
    void TheFormHoldsNothingElse();
    void TheButtonsStandRightInTheirRow();
    void LabelsLeadToTheFieldBesideThem_data();
    void LabelsLeadToTheFieldBesideThem();
    void NoFieldHasAValidator_data();
    void NoFieldHasAValidator();
    void TheWindowIsAsGiven();
    void TheTextsBelongToTheForm();
    void TheMessagesBelongToTheClass();
    void TheClassHasItsOneSlot();
    void TheHostsWindowIsTheParent();
    void TheRecordIsADefaultOneAtFirst();
    void AcceptingAtOnceGivesTheDefaults();
    void TheRowsOfFYAndFZAreCrossed();
    void TheKindCannotBeChosen_data();
    void TheKindCannotBeChosen();
    void InitDataShowsComponents_data();
    void InitDataShowsComponents();
    void InitDataShowsTheKind_data();
    void InitDataShowsTheKind();
    void AnotherRecordReplacesTheShownOne();
    void ALoadNormalToTheSurfaceKeepsItsComponents();
    void AKindThatTheHostLetsChooseIsStored();
    void AnUnknownKindBecomesComponents();
    void ShownDigitsAreStored();
    void ForcesAreConvertedWithoutReport_data();
    void ForcesAreConvertedWithoutReport();
    void LeavingKeepsTheRecord_data();
    void LeavingKeepsTheRecord();
    void ATakenNameIsRefusedEveryTime();
    void ARefusalKeepsTheRecordOfInitData();
    void AGivenNameEndsAtTheFirstZero();
    void AGivenNameIsInTheLocalCodePage();
    void TabFollowsReadingOrder();

private:
    std::string NameIn(const CQLTLoadForceEditor& editor) const override;
};

tst_CQLTLoadForceEditor::tst_CQLTLoadForceEditor()
    : NamedRecordTest("Default", ShownBox::Notice("Warning", "Duplicated Attribute Name"))
{
}

std::string tst_CQLTLoadForceEditor::NameIn(const CQLTLoadForceEditor& editor) const
{
    return editor.GetLoadForceData().m_strName;
}

void tst_CQLTLoadForceEditor::TheFormIsAsGiven_data()
{
    AddFormColumns();
    const char* const dialog = "QLTLoadForceEditor";
    QTest::newRow("label_LoadName")
        << "QLabel" << dialog << QRect(20, 20, 51, 20) << "Name" << true << false;
    QTest::newRow("lied_Name") << "QLineEdit" << dialog << QRect(60, 20, 113, 20) << "Default"
                               << true << false;
    QTest::newRow("grb_Option") << "QGroupBox" << dialog << QRect(10, 50, 151, 111) << "Option"
                                << true << false;
    QTest::newRow("rab_Component")
        << "QRadioButton"
        << "grb_Option" << QRect(10, 20, 131, 16) << "Component" << false << true;
    QTest::newRow("rab_Normal2Face")
        << "QRadioButton"
        << "grb_Option" << QRect(10, 50, 131, 16) << "Normal to surface" << false << false;
    QTest::newRow("grb_Force") << "QGroupBox" << dialog << QRect(170, 50, 171, 111) << "Force Value"
                               << true << false;
    QTest::newRow("label_3") << "QLabel"
                             << "grb_Force" << QRect(20, 20, 16, 16) << "FX" << true << false;
    QTest::newRow("lied_FX") << "QLineEdit"
                             << "grb_Force" << QRect(50, 20, 113, 20) << "1000" << true << false;
    QTest::newRow("label_5") << "QLabel"
                             << "grb_Force" << QRect(20, 50, 21, 16) << "FY" << true << false;
    QTest::newRow("lied_FZ") << "QLineEdit"
                             << "grb_Force" << QRect(50, 50, 113, 20) << "0" << true << false;
    QTest::newRow("label_4") << "QLabel"
                             << "grb_Force" << QRect(20, 80, 21, 16) << "FZ" << true << false;
    QTest::newRow("lied_FY") << "QLineEdit"
                             << "grb_Force" << QRect(50, 80, 113, 20) << "0" << true << false;
    QTest::newRow("layoutWidget") << "QWidget" << dialog << QRect(110, 170, 231, 33) << "" << true
                                  << false;
    QTest::newRow("okButton") << "QPushButton"
                              << "layoutWidget" << QRect() << "OK" << true << false;
    QTest::newRow("cancelButton") << "QPushButton"
                                  << "layoutWidget" << QRect() << "Cancel" << true << false;
}

void tst_CQLTLoadForceEditor::TheFormIsAsGiven()
{
    const CQLTLoadForceEditor editor(nullptr);
    CompareFormRow(editor);
}

void tst_CQLTLoadForceEditor::TheFormHoldsNothingElse()
{
    const CQLTLoadForceEditor editor(nullptr);
    QCOMPARE(FormWidgets(editor),
             QStringList({"cancelButton", "grb_Force", "grb_Option", "label_3", "label_4",
                          "label_5", "label_LoadName", "layoutWidget", "lied_FX", "lied_FY",
                          "lied_FZ", "lied_Name", "okButton", "rab_Component", "rab_Normal2Face"}));
}

void tst_CQLTLoadForceEditor::TheButtonsStandRightInTheirRow()
{
    const CQLTLoadForceEditor editor(nullptr);
    const auto* const row =
        qobject_cast<QHBoxLayout*>(Find<QWidget>(editor, "layoutWidget").layout());
    QVERIFY(row != nullptr);
    QCOMPARE(row->objectName(), "hboxLayout");
    QCOMPARE(row->spacing(), 6);
    QCOMPARE(row->contentsMargins(), QMargins());
    QCOMPARE(row->count(), 3);
    QVERIFY(row->itemAt(0)->spacerItem() != nullptr);
    QCOMPARE(row->itemAt(0)->spacerItem()->sizeHint(), QSize(131, 31));
    QCOMPARE(row->itemAt(0)->spacerItem()->expandingDirections(), Qt::Horizontal);
    QCOMPARE(row->itemAt(1)->widget()->objectName(), "okButton");
    QCOMPARE(row->itemAt(2)->widget()->objectName(), "cancelButton");
}

void tst_CQLTLoadForceEditor::LabelsLeadToTheFieldBesideThem_data()
{
    QTest::addColumn<QByteArray>("label");
    QTest::addColumn<QByteArray>("field");
    QTest::newRow("Name") << QByteArray("label_LoadName") << QByteArray("lied_Name");
    QTest::newRow("FX") << QByteArray("label_3") << QByteArray("lied_FX");
    QTest::newRow("FY") << QByteArray("label_5") << QByteArray("lied_FZ");
    QTest::newRow("FZ") << QByteArray("label_4") << QByteArray("lied_FY");
}

void tst_CQLTLoadForceEditor::LabelsLeadToTheFieldBesideThem()
{
    QFETCH(QByteArray, label);
    QFETCH(QByteArray, field);
    const CQLTLoadForceEditor editor(nullptr);
    QCOMPARE(Find<QLabel>(editor, label).buddy(), &Find<QLineEdit>(editor, field));
}

void tst_CQLTLoadForceEditor::NoFieldHasAValidator_data()
{
    QTest::addColumn<QByteArray>("field");
    for (const char* const name : {"lied_Name", "lied_FX", "lied_FY", "lied_FZ"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_CQLTLoadForceEditor::NoFieldHasAValidator()
{
    QFETCH(QByteArray, field);
    const CQLTLoadForceEditor editor(nullptr);
    QVERIFY(Find<QLineEdit>(editor, field).validator() == nullptr);
    Type(editor, field, "a b,c");
    QCOMPARE(Text(editor, field), "a b,c");
}

void tst_CQLTLoadForceEditor::TheWindowIsAsGiven()
{
    const CQLTLoadForceEditor editor(nullptr);
    CompareWindow(editor, "QLTLoadForceEditor", "Load Force Editor", QSize(353, 225));
    QVERIFY(editor.windowIcon().isNull());
}

void tst_CQLTLoadForceEditor::TheTextsBelongToTheForm()
{
    const TextRecorder recorder;
    const CQLTLoadForceEditor editor(nullptr);
    QCOMPARE(
        recorder.TextsOf("QLTLoadForceEditor"),
        QStringList({"0", "1000", "Cancel", "Component", "Default", "FX", "FY", "FZ", "Force Value",
                     "Load Force Editor", "Name", "Normal to surface", "OK", "Option"}));
}

void tst_CQLTLoadForceEditor::TheMessagesBelongToTheClass()
{
    const EmptyAttributeNames names;
    AttributeCommonMgr::GetInstance()->AddName("Default");
    const TextRecorder recorder;
    ModalDriver user;
    CQLTLoadForceEditor editor(nullptr);
    editor.on_okButton_clicked();
    QCOMPARE(user.Boxes(), QVector<ShownBox>({Duplicate()}));
    QCOMPARE(recorder.TextsOf("CQLTLoadForceEditor"),
             QStringList({"Duplicated Attribute Name", "Warning"}));
}

void tst_CQLTLoadForceEditor::TheClassHasItsOneSlot()
{
    const QMetaObject& meta = CQLTLoadForceEditor::staticMetaObject;
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(OwnMethods(meta), QStringList({"public slot on_okButton_clicked()"}));
}

void tst_CQLTLoadForceEditor::TheHostsWindowIsTheParent()
{
    QWidget window;
    const CQLTLoadForceEditor editor(&window);
    QCOMPARE(editor.parentWidget(), &window);
}

void tst_CQLTLoadForceEditor::TheRecordIsADefaultOneAtFirst()
{
    CompareRecord(CQLTLoadForceEditor(nullptr).GetLoadForceData(), sLoadForceData());
}

void tst_CQLTLoadForceEditor::AcceptingAtOnceGivesTheDefaults()
{
    const EmptyAttributeNames names;
    ModalDriver user;
    CQLTLoadForceEditor editor(nullptr);
    user.Then([](QDialog& shown) { Click(shown, "okButton"); });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
    CompareRecord(editor.GetLoadForceData(), {"Default", 1, 1000.0, 0.0, 0.0});
}

void tst_CQLTLoadForceEditor::TheRowsOfFYAndFZAreCrossed()
{
    const EmptyAttributeNames names;
    ModalDriver user;
    CQLTLoadForceEditor editor(nullptr);
    QCOMPARE(FieldBeside(editor, "FX"), "lied_FX");
    user.Then([](QDialog& shown) {
        Type(shown, FieldBeside(shown, "FX").toLatin1(), "3");
        Type(shown, FieldBeside(shown, "FY").toLatin1(), "5");
        Type(shown, FieldBeside(shown, "FZ").toLatin1(), "7");
        Click(shown, "okButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    CompareRecord(editor.GetLoadForceData(), {"Default", 1, 3.0, 7.0, 5.0});

    // A record is shown in the same crossed rows, so it passes through unchanged.
    editor.InitData({"Load", 1, 1.0, 2.0, 3.0});
    QCOMPARE(Text(editor, FieldBeside(editor, "FY").toLatin1()), "3");
    QCOMPARE(Text(editor, FieldBeside(editor, "FZ").toLatin1()), "2");
    editor.on_okButton_clicked();
    CompareRecord(editor.GetLoadForceData(), {"Load", 1, 1.0, 2.0, 3.0});
}

void tst_CQLTLoadForceEditor::TheKindCannotBeChosen_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("components") << 1;
    QTest::newRow("normal to the surface") << 2;
}

void tst_CQLTLoadForceEditor::TheKindCannotBeChosen()
{
    QFETCH(int, kind);
    const EmptyAttributeNames names;
    ModalDriver user;
    CQLTLoadForceEditor editor(nullptr);
    editor.InitData({"Load", kind, 1.0, 2.0, 3.0});
    user.Then([&](QDialog& shown) {
        Click(shown, "rab_Component");
        Click(shown, "rab_Normal2Face");
        QCOMPARE(IsChecked(shown, "rab_Component"), kind == 1);
        QCOMPARE(IsChecked(shown, "rab_Normal2Face"), kind == 2);
        QVERIFY(!Find<QRadioButton>(shown, "rab_Component").isEnabled());
        QVERIFY(!Find<QRadioButton>(shown, "rab_Normal2Face").isEnabled());
        Click(shown, "okButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(editor.GetLoadForceData().m_nKind, kind);
}

void tst_CQLTLoadForceEditor::InitDataShowsComponents_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << 0.0 << "0";
    QTest::newRow("negative zero") << -0.0 << "0";
    QTest::newRow("small") << 0.000012345678 << "1.23457e-05";
    QTest::newRow("six digits") << 123456.0 << "123456";
    QTest::newRow("rounded to six digits") << 123456.7 << "123457";
    QTest::newRow("seven digits") << 1234567.0 << "1.23457e+06";
    QTest::newRow("million") << 1000000.0 << "1e+06";
    QTest::newRow("negative") << -2.5 << "-2.5";
    QTest::newRow("no trailing zeros") << 0.10 << "0.1";
    QTest::newRow("infinite") << Infinity << "inf";
    QTest::newRow("no number") << std::nan("") << "nan";
}

void tst_CQLTLoadForceEditor::InitDataShowsComponents()
{
    QFETCH(double, value);
    QFETCH(QString, text);
    QVERIFY2(UseLocale("de_DE.UTF-8"), "the test needs a locale with a decimal comma");
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
    QTest::newRow("1, components") << 1 << false << true;
    QTest::newRow("2, normal to the surface") << 2 << true << false;
    QTest::newRow("0") << 0 << false << false;
    QTest::newRow("3") << 3 << false << false;
    QTest::newRow("-1") << -1 << false << false;
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
        CompareRecord(editor.GetLoadForceData(), {"Load", kind, 1.5, 2.5, 3.5});
    }
}

void tst_CQLTLoadForceEditor::AnotherRecordReplacesTheShownOne()
{
    CQLTLoadForceEditor editor(nullptr);
    editor.InitData({"Load", 1, 1.0, 2.0, 3.0});
    editor.InitData(sLoadForceData());
    QCOMPARE(Text(editor, "lied_Name"), "");
    QCOMPARE(Text(editor, "lied_FX"), "1");
    CompareRecord(editor.GetLoadForceData(), sLoadForceData());
}

void tst_CQLTLoadForceEditor::ALoadNormalToTheSurfaceKeepsItsComponents()
{
    const EmptyAttributeNames names;
    ModalDriver user;
    CQLTLoadForceEditor editor(nullptr);
    editor.InitData({"Load", 2, 1.0 / 3.0, 2.0, 3.0});
    user.Then([](QDialog& shown) {
        Type(shown, "lied_Name", "Pressure");
        Type(shown, "lied_FX", "77");
        Type(shown, "lied_FY", "88");
        Type(shown, "lied_FZ", "99");
        Click(shown, "okButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    CompareRecord(editor.GetLoadForceData(), {"Pressure", 2, 1.0 / 3.0, 2.0, 3.0});
}

void tst_CQLTLoadForceEditor::AKindThatTheHostLetsChooseIsStored()
{
    const EmptyAttributeNames names;
    ModalDriver user;
    CQLTLoadForceEditor editor(nullptr);
    editor.InitData({"Load", 1, 1.0 / 3.0, 2.0, 3.0});
    Find<QRadioButton>(editor, "rab_Normal2Face").setEnabled(true);
    user.Then([](QDialog& shown) {
        Click(shown, "rab_Normal2Face");
        Type(shown, "lied_FX", "77");
        Click(shown, "okButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    CompareRecord(editor.GetLoadForceData(), {"Load", 2, 1.0 / 3.0, 2.0, 3.0});
}

void tst_CQLTLoadForceEditor::AnUnknownKindBecomesComponents()
{
    const EmptyAttributeNames names;
    ModalDriver user;
    CQLTLoadForceEditor editor(nullptr);
    editor.InitData({"Load", 5, 1.0, 2.0, 3.0});
    user.Then([](QDialog& shown) { Click(shown, "okButton"); });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    CompareRecord(editor.GetLoadForceData(), {"Load", 1, 1000.0, 0.0, 0.0});
}

void tst_CQLTLoadForceEditor::ShownDigitsAreStored()
{
    const EmptyAttributeNames names;
    CQLTLoadForceEditor editor(nullptr);
    editor.InitData({"Load", 1, 1234567.0, 1.0 / 3.0, 0.0});
    editor.on_okButton_clicked();
    CompareRecord(editor.GetLoadForceData(), {"Load", 1, 1234570.0, 0.333333, 0.0});
}

void tst_CQLTLoadForceEditor::ForcesAreConvertedWithoutReport_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("whole number") << "5" << 5.0;
    QTest::newRow("fraction") << "0.25" << 0.25;
    QTest::newRow("sign") << "-3.5" << -3.5;
    QTest::newRow("exponent") << "-2.5e3" << -2500.0;
    QTest::newRow("plus") << "+4" << 4.0;
    QTest::newRow("blanks around") << " 7 " << 7.0;
    QTest::newRow("no digit before the stop") << ".5" << 0.5;
    QTest::newRow("no digit after the stop") << "5." << 5.0;
    QTest::newRow("more digits than shown") << "1.23456789" << 1.23456789;
    QTest::newRow("empty") << "" << 0.0;
    QTest::newRow("word") << "abc" << 0.0;
    QTest::newRow("unit") << "5 N" << 0.0;
    QTest::newRow("comma") << "1,5" << 0.0;
    QTest::newRow("grouping") << "1,000" << 0.0;
    QTest::newRow("two stops") << "1.2.3" << 0.0;
    QTest::newRow("hexadecimal") << "0x10" << 0.0;
    QTest::newRow("overflow") << "-1e400" << -Infinity;
    QTest::newRow("underflow") << "1e-400" << 0.0;
    QTest::newRow("infinite") << "inf" << Infinity;
    QTest::newRow("no number") << "nan" << std::nan("");
}

void tst_CQLTLoadForceEditor::ForcesAreConvertedWithoutReport()
{
    QFETCH(QString, text);
    QFETCH(double, value);
    QVERIFY2(UseLocale("de_DE.UTF-8"), "the test needs a locale with a decimal comma");
    const EmptyAttributeNames names;
    for (const char* const field : {"lied_FX", "lied_FY", "lied_FZ"}) {
        ModalDriver user;
        CQLTLoadForceEditor editor(nullptr);
        editor.InitData({"Load", 1, 11.0, 22.0, 33.0});
        user.Then([&](QDialog& shown) {
            Type(shown, field, text);
            Click(shown, "okButton");
        });
        QCOMPARE(editor.exec(), int(QDialog::Accepted));
        QVERIFY(user.IsDone());
        QCOMPARE(user.Boxes(), QVector<ShownBox>());
        sLoadForceData expected = {"Load", 1, 11.0, 22.0, 33.0};
        (field == QByteArray("lied_FX")   ? expected.m_dFX
         : field == QByteArray("lied_FY") ? expected.m_dFY
                                          : expected.m_dFZ) = value;
        CompareRecord(editor.GetLoadForceData(), expected);
    }
}

void tst_CQLTLoadForceEditor::LeavingKeepsTheRecord_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<bool>("given");
    for (const char* const way : {"Cancel", "Escape", "close"}) {
        QTest::addRow("a given record by %s", way) << way << true;
        QTest::addRow("the default record by %s", way) << way << false;
    }
}

void tst_CQLTLoadForceEditor::LeavingKeepsTheRecord()
{
    QFETCH(QString, way);
    QFETCH(bool, given);
    const sLoadForceData record =
        given ? sLoadForceData{"Load", 1, 1.0, 2.0, 3.0} : sLoadForceData();
    ModalDriver user;
    CQLTLoadForceEditor editor(nullptr);
    if (given)
        editor.InitData(record);
    user.Then([&](QDialog& shown) {
        Type(shown, "lied_Name", "typed");
        Type(shown, "lied_FX", "77");
        if (way == "Cancel")
            Click(shown, "cancelButton");
        else if (way == "Escape")
            QTest::keyClick(&shown, Qt::Key_Escape);
        else
            shown.close();
    });
    QCOMPARE(editor.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    CompareRecord(editor.GetLoadForceData(), record);
}

void tst_CQLTLoadForceEditor::ATakenNameIsRefusedEveryTime()
{
    const EmptyAttributeNames names;
    AttributeCommonMgr::GetInstance()->AddName("Default");
    ModalDriver user;
    CQLTLoadForceEditor editor(nullptr);
    user.Then([](QDialog& shown) {
        Type(shown, "lied_FX", "no number");
        for (int i = 0; i < 2; ++i) {
            Click(shown, "okButton");
            QVERIFY(shown.isVisible());
            QCOMPARE(Text(shown, "lied_Name"), "Default");
            QCOMPARE(Text(shown, "lied_FX"), "no number");
        }
        Type(shown, "lied_Name", "Other");
        Type(shown, "lied_FX", "6");
        Click(shown, "okButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>({Duplicate(), Duplicate()}));
    CompareRecord(editor.GetLoadForceData(), {"Other", 1, 6.0, 0.0, 0.0});
}

void tst_CQLTLoadForceEditor::ARefusalKeepsTheRecordOfInitData()
{
    const EmptyAttributeNames names;
    AttributeCommonMgr::GetInstance()->AddName("Load");
    ModalDriver user;
    CQLTLoadForceEditor editor(nullptr);
    editor.InitData({"Load", 1, 1.0, 2.0, 3.0});
    user.Then([](QDialog& shown) {
        Type(shown, "lied_FX", "77");
        Click(shown, "okButton");
        Click(shown, "cancelButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>({Duplicate()}));
    CompareRecord(editor.GetLoadForceData(), {"Load", 1, 1.0, 2.0, 3.0});
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

void tst_CQLTLoadForceEditor::TabFollowsReadingOrder()
{
    CQLTLoadForceEditor editor(nullptr);
    const QStringList order = {"lied_Name",
                               FieldBeside(editor, "FX"),
                               FieldBeside(editor, "FY"),
                               FieldBeside(editor, "FZ"),
                               "okButton",
                               "cancelButton"};
    QCOMPARE(TabOrder(editor), order);
}

TARN_TEST_MAIN(tst_CQLTLoadForceEditor)
#include "tst_CQLTLoadForceEditor.moc"
