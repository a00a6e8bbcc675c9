#include "CQLTConstrainEditor.h"
#include "NamedRecordTest.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include <array>

namespace {

constexpr std::array<const char*, 6> CheckBoxes = {"chb_XD", "chb_YD", "chb_ZD",
                                                   "chb_XR", "chb_YR", "chb_ZR"};

FormFacts Form()
{
    FormFacts form;
    form.name = "QLTConstrainEditor";
    form.title = "Boundary Condition Editor_Fixed";
    form.size = {218, 248};
    form.lines = {
        "QLabel label in QLTConstrainEditor at 20,22 54x20: Name, for lied_Name",
        "QLineEdit lied_Name in QLTConstrainEditor at 80,20 113x20: defaultBC",
        "QGroupBox grb_Disp in QLTConstrainEditor at 10,70 91x121: Displacement",
        "QCheckBox chb_XD in grb_Disp at 20,30 41x16: X_D, checked",
        "QCheckBox chb_YD in grb_Disp at 20,60 61x16: Y_D, checked",
        "QCheckBox chb_ZD in grb_Disp at 20,90 61x16: Z_D , checked",
        "QGroupBox grb_Rot in QLTConstrainEditor at 110,70 81x121: Rotation",
        "QCheckBox chb_XR in grb_Rot at 10,30 61x16: X_R, checked",
        "QCheckBox chb_YR in grb_Rot at 10,60 61x16: Y_R, checked",
        "QCheckBox chb_ZR in grb_Rot at 10,90 51x16: Z_R , checked",
        "QWidget layoutWidget in QLTConstrainEditor at 10,200 200x33: ",
        "QPushButton okButton in layoutWidget at hboxLayout[1]: OK",
        "QPushButton cancelButton in layoutWidget at hboxLayout[2]: Cancel",
        "QHBoxLayout hboxLayout: spacing 6, margins 0 0 0 0",
        "QSpacerItem at hboxLayout[0]: 131x31, horizontal",
    };
    form.tabOrder = {"lied_Name", "chb_XD", "chb_YD",   "chb_ZD",      "chb_XR",
                     "chb_YR",    "chb_ZR", "okButton", "cancelButton"};
    form.enter = "okButton";
    form.methods = {"public slot m_OK_ButtonPushed()"};
    return form;
}

RecordFacts Record()
{
    RecordFacts record;
    record.context = "CQLTConstrainEditor";
    record.name = "defaultBC";
    record.refusal = "CQLTConstrainEditor: Duplicated Attribute Name";
    record.unset = "------";
    record.accepted = "xxxxxx";
    record.given = "x--x-x";
    record.change = [](const QDialog& editor) {
        Click(editor, "chb_ZR");
    };
    record.changed = "xxxxx-";
    return record;
}

/// The flags in the order of the boxes: x is held, - is free.
QString Flags(const sConstrainData& data)
{
    QString flags;
    for (const bool isHeld :
         {data.m_bXD, data.m_bYD, data.m_bZD, data.m_bXR, data.m_bYR, data.m_bZR})
        flags += isHeld ? 'x' : '-';
    return flags;
}

} // namespace

class tst_CQLTConstrainEditor : public NamedRecordTest<CQLTConstrainEditor>
{
    Q_OBJECT

public:
    tst_CQLTConstrainEditor()
        : NamedRecordTest(Form(), Record())
    {
    }

private Q_SLOTS:
    void EachBoxIsStoredInItsFlag_data();
    void EachBoxIsStoredInItsFlag();
    void InitDataStoresTheRecordAndDoesNotShowIt();
    void OKStoresTheWidgetsAndNotTheRecord();
    void SpaceTogglesABoxAndPressesCancel();

private:
    static sConstrainData DataOf(const QDialog& editor);

    void Give(QDialog& editor) const override;
    std::string NameOf(const QDialog& editor) const override { return DataOf(editor).m_strName; }
    QString ValuesOf(const QDialog& editor) const override { return Flags(DataOf(editor)); }
};

sConstrainData tst_CQLTConstrainEditor::DataOf(const QDialog& editor)
{
    return static_cast<const CQLTConstrainEditor&>(editor).GetConstrainData();
}

void tst_CQLTConstrainEditor::Give(QDialog& editor) const
{
    static_cast<CQLTConstrainEditor&>(editor).InitData(
        {"given", true, false, false, true, false, true});
}

void tst_CQLTConstrainEditor::EachBoxIsStoredInItsFlag_data()
{
    QTest::addColumn<int>("released");
    for (std::size_t i = 0; i < CheckBoxes.size(); ++i)
        QTest::newRow(CheckBoxes[i]) << int(i);
}

void tst_CQLTConstrainEditor::EachBoxIsStoredInItsFlag()
{
    QFETCH(int, released);
    CQLTConstrainEditor editor(nullptr);
    Then([&](QDialog& shown) {
        Click(shown, CheckBoxes[std::size_t(released)]);
        Click(shown, "okButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QString expected(6, 'x');
    expected[released] = '-';
    QCOMPARE(ValuesOf(editor), expected);
}

void tst_CQLTConstrainEditor::InitDataStoresTheRecordAndDoesNotShowIt()
{
    CQLTConstrainEditor editor(nullptr);
    Give(editor);
    QCOMPARE(NameOf(editor), std::string("given"));
    QCOMPARE(ValuesOf(editor), QString("x--x-x"));
    QCOMPARE(Find<QLineEdit>(editor, "lied_Name").text(), "defaultBC");
    for (const char* const box : CheckBoxes)
        QVERIFY(Find<QCheckBox>(editor, box).isChecked());
}

void tst_CQLTConstrainEditor::OKStoresTheWidgetsAndNotTheRecord()
{
    CQLTConstrainEditor editor(nullptr);
    Give(editor);
    QCOMPARE(RunAndPress(editor, "okButton"), int(QDialog::Accepted));
    QCOMPARE(NameOf(editor), std::string("defaultBC"));
    QCOMPARE(ValuesOf(editor), QString("xxxxxx"));
}

void tst_CQLTConstrainEditor::SpaceTogglesABoxAndPressesCancel()
{
    CQLTConstrainEditor editor(nullptr);
    Then([](QDialog& shown) {
        auto& box = Find<QCheckBox>(shown, "chb_YR");
        QTest::keyClick(&box, Qt::Key_Space);
        QVERIFY(!box.isChecked());
        QTest::keyClick(&Find<QPushButton>(shown, "cancelButton"), Qt::Key_Space);
    });
    QCOMPARE(editor.exec(), int(QDialog::Rejected));
}

TARN_TEST_MAIN(tst_CQLTConstrainEditor)
#include "tst_CQLTConstrainEditor.moc"
