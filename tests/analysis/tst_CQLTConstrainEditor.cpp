#include "AttributeCommonMgr.h"
#include "CQLTConstrainEditor.h"
#include "DialogFacts.h"
#include "EmptyAttributeNames.h"
#include "NamedRecordTest.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <array>

namespace {

constexpr std::array<const char*, 6> Boxes = {"chb_XD", "chb_YD", "chb_ZD",
                                              "chb_XR", "chb_YR", "chb_ZR"};

std::array<bool, 6> Flags(const sConstrainData& data)
{
    return {data.m_bXD, data.m_bYD, data.m_bZD, data.m_bXR, data.m_bYR, data.m_bZR};
}

sConstrainData Record(const std::string& name, const std::array<bool, 6>& flags)
{
    return {name, flags[0], flags[1], flags[2], flags[3], flags[4], flags[5]};
}

} // namespace

class tst_CQLTConstrainEditor : public NamedRecordTest<CQLTConstrainEditor>
{
    Q_OBJECT

public:
    tst_CQLTConstrainEditor();

private Q_SLOTS:
    void TheFormIsAsGiven_data();
    void TheFormIsAsGiven();
    void TheFormHoldsNothingElse();
    void TheButtonsStandRightInTheirRow();
    void TheNameLabelLeadsToTheField();
    void TheWindowIsAsGiven();
    void TheTextsBelongToTheForm();
    void TheMessagesBelongToTheClass();
    void TheClassHasItsOneSlot();
    void TheHostsWindowIsTheParent();
    void TheRecordIsADefaultOneAtFirst();
    void AcceptingAtOnceHoldsEverything();
    void EachBoxIsStoredInItsFlag_data();
    void EachBoxIsStoredInItsFlag();
    void InitDataStoresTheRecordAndDoesNotShowIt();
    void OkStoresTheWidgetsAndNotTheRecord();
    void LeavingKeepsTheRecord_data();
    void LeavingKeepsTheRecord();
    void ATakenNameIsRefusedEveryTime();
    void ARefusalKeepsTheRecordOfInitData();
    void TabFollowsReadingOrder();
    void SpaceTurnsABoxAndPressesCancel();

private:
    std::string NameIn(const CQLTConstrainEditor& editor) const override;
};

tst_CQLTConstrainEditor::tst_CQLTConstrainEditor()
    : NamedRecordTest("defaultBC",
                      ShownBox::Notice("Warning", "CQLTConstrainEditor: Duplicated Attribute Name"))
{
}

std::string tst_CQLTConstrainEditor::NameIn(const CQLTConstrainEditor& editor) const
{
    return editor.GetConstrainData().m_strName;
}

void tst_CQLTConstrainEditor::TheFormIsAsGiven_data()
{
    AddFormColumns();
    const char* const dialog = "QLTConstrainEditor";
    QTest::newRow("label") << "QLabel" << dialog << QRect(20, 22, 54, 20) << "Name" << true
                           << false;
    QTest::newRow("lied_Name") << "QLineEdit" << dialog << QRect(80, 20, 113, 20) << "defaultBC"
                               << true << false;
    QTest::newRow("grb_Disp") << "QGroupBox" << dialog << QRect(10, 70, 91, 121) << "Displacement"
                              << true << false;
    QTest::newRow("chb_XD") << "QCheckBox"
                            << "grb_Disp" << QRect(20, 30, 41, 16) << "X_D" << true << true;
    QTest::newRow("chb_YD") << "QCheckBox"
                            << "grb_Disp" << QRect(20, 60, 61, 16) << "Y_D" << true << true;
    QTest::newRow("chb_ZD") << "QCheckBox"
                            << "grb_Disp" << QRect(20, 90, 61, 16) << "Z_D " << true << true;
    QTest::newRow("grb_Rot") << "QGroupBox" << dialog << QRect(110, 70, 81, 121) << "Rotation"
                             << true << false;
    QTest::newRow("chb_XR") << "QCheckBox"
                            << "grb_Rot" << QRect(10, 30, 61, 16) << "X_R" << true << true;
    QTest::newRow("chb_YR") << "QCheckBox"
                            << "grb_Rot" << QRect(10, 60, 61, 16) << "Y_R" << true << true;
    QTest::newRow("chb_ZR") << "QCheckBox"
                            << "grb_Rot" << QRect(10, 90, 51, 16) << "Z_R " << true << true;
    QTest::newRow("layoutWidget") << "QWidget" << dialog << QRect(10, 200, 200, 33) << "" << true
                                  << false;
    QTest::newRow("okButton") << "QPushButton"
                              << "layoutWidget" << QRect() << "OK" << true << false;
    QTest::newRow("cancelButton") << "QPushButton"
                                  << "layoutWidget" << QRect() << "Cancel" << true << false;
}

void tst_CQLTConstrainEditor::TheFormIsAsGiven()
{
    const CQLTConstrainEditor editor(nullptr);
    CompareFormRow(editor);
}

void tst_CQLTConstrainEditor::TheFormHoldsNothingElse()
{
    const CQLTConstrainEditor editor(nullptr);
    QCOMPARE(FormWidgets(editor), QStringList({"cancelButton", "chb_XD", "chb_XR", "chb_YD",
                                               "chb_YR", "chb_ZD", "chb_ZR", "grb_Disp", "grb_Rot",
                                               "label", "layoutWidget", "lied_Name", "okButton"}));
}

void tst_CQLTConstrainEditor::TheButtonsStandRightInTheirRow()
{
    const CQLTConstrainEditor editor(nullptr);
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

void tst_CQLTConstrainEditor::TheNameLabelLeadsToTheField()
{
    const CQLTConstrainEditor editor(nullptr);
    QCOMPARE(Find<QLabel>(editor, "label").buddy(), &Find<QLineEdit>(editor, "lied_Name"));
}

void tst_CQLTConstrainEditor::TheWindowIsAsGiven()
{
    const CQLTConstrainEditor editor(nullptr);
    CompareWindow(editor, "QLTConstrainEditor", "Boundary Condition Editor_Fixed", QSize(218, 248));
    QVERIFY(editor.windowIcon().isNull());
}

void tst_CQLTConstrainEditor::TheTextsBelongToTheForm()
{
    const TextRecorder recorder;
    const CQLTConstrainEditor editor(nullptr);
    QCOMPARE(recorder.TextsOf("QLTConstrainEditor"),
             QStringList({"Boundary Condition Editor_Fixed", "Cancel", "Displacement", "Name", "OK",
                          "Rotation", "X_D", "X_R", "Y_D", "Y_R", "Z_D ", "Z_R ", "defaultBC"}));
}

void tst_CQLTConstrainEditor::TheMessagesBelongToTheClass()
{
    const EmptyAttributeNames names;
    AttributeCommonMgr::GetInstance()->AddName("defaultBC");
    const TextRecorder recorder;
    ModalDriver user;
    CQLTConstrainEditor editor(nullptr);
    editor.m_OK_ButtonPushed();
    QCOMPARE(user.Boxes(), QVector<ShownBox>({Duplicate()}));
    QCOMPARE(recorder.TextsOf("CQLTConstrainEditor"),
             QStringList({"CQLTConstrainEditor: Duplicated Attribute Name", "Warning"}));
}

void tst_CQLTConstrainEditor::TheClassHasItsOneSlot()
{
    const QMetaObject& meta = CQLTConstrainEditor::staticMetaObject;
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(OwnMethods(meta), QStringList({"public slot m_OK_ButtonPushed()"}));
}

void tst_CQLTConstrainEditor::TheHostsWindowIsTheParent()
{
    QWidget window;
    const CQLTConstrainEditor editor(&window);
    QCOMPARE(editor.parentWidget(), &window);
}

void tst_CQLTConstrainEditor::TheRecordIsADefaultOneAtFirst()
{
    const sConstrainData data = CQLTConstrainEditor(nullptr).GetConstrainData();
    QVERIFY(data.m_strName.empty());
    QVERIFY((Flags(data) == std::array<bool, 6>{}));
}

void tst_CQLTConstrainEditor::AcceptingAtOnceHoldsEverything()
{
    const EmptyAttributeNames names;
    ModalDriver user;
    CQLTConstrainEditor editor(nullptr);
    user.Then([](QDialog& shown) { Click(shown, "okButton"); });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
    QCOMPARE(editor.GetConstrainData().m_strName, std::string("defaultBC"));
    QVERIFY((Flags(editor.GetConstrainData()) ==
             std::array<bool, 6>{true, true, true, true, true, true}));
}

void tst_CQLTConstrainEditor::EachBoxIsStoredInItsFlag_data()
{
    QTest::addColumn<int>("released");
    for (int i = 0; i < int(Boxes.size()); ++i)
        QTest::newRow(Boxes[std::size_t(i)]) << i;
}

void tst_CQLTConstrainEditor::EachBoxIsStoredInItsFlag()
{
    QFETCH(int, released);
    const EmptyAttributeNames names;
    ModalDriver user;
    CQLTConstrainEditor editor(nullptr);
    user.Then([&](QDialog& shown) {
        Click(shown, Boxes[std::size_t(released)]);
        Click(shown, "okButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    const std::array<bool, 6> flags = Flags(editor.GetConstrainData());
    for (int i = 0; i < int(flags.size()); ++i)
        QCOMPARE(flags[std::size_t(i)], i != released);
}

void tst_CQLTConstrainEditor::InitDataStoresTheRecordAndDoesNotShowIt()
{
    CQLTConstrainEditor editor(nullptr);
    const std::array<bool, 6> flags = {true, false, false, true, false, true};
    editor.InitData(Record("wall", flags));
    QCOMPARE(editor.GetConstrainData().m_strName, std::string("wall"));
    QVERIFY(Flags(editor.GetConstrainData()) == flags);
    QCOMPARE(Find<QLineEdit>(editor, "lied_Name").text(), "defaultBC");
    for (const char* const box : Boxes)
        QVERIFY(Find<QCheckBox>(editor, box).isChecked());
}

void tst_CQLTConstrainEditor::OkStoresTheWidgetsAndNotTheRecord()
{
    const EmptyAttributeNames names;
    ModalDriver user;
    CQLTConstrainEditor editor(nullptr);
    editor.InitData(Record("wall", {}));
    user.Then([](QDialog& shown) { Click(shown, "okButton"); });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(editor.GetConstrainData().m_strName, std::string("defaultBC"));
    QVERIFY((Flags(editor.GetConstrainData()) ==
             std::array<bool, 6>{true, true, true, true, true, true}));
}

void tst_CQLTConstrainEditor::LeavingKeepsTheRecord_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<bool>("given");
    for (const char* const way : {"Cancel", "Escape", "close"}) {
        QTest::addRow("a given record by %s", way) << way << true;
        QTest::addRow("the default record by %s", way) << way << false;
    }
}

void tst_CQLTConstrainEditor::LeavingKeepsTheRecord()
{
    QFETCH(QString, way);
    QFETCH(bool, given);
    const std::array<bool, 6> flags = {false, given, false, false, given, false};
    ModalDriver user;
    CQLTConstrainEditor editor(nullptr);
    if (given)
        editor.InitData(Record("wall", flags));
    user.Then([&](QDialog& shown) {
        Type(shown, "lied_Name", "typed");
        Click(shown, "chb_YD");
        if (way == "Cancel")
            Click(shown, "cancelButton");
        else if (way == "Escape")
            QTest::keyClick(&shown, Qt::Key_Escape);
        else
            shown.close();
    });
    QCOMPARE(editor.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QCOMPARE(editor.GetConstrainData().m_strName, std::string(given ? "wall" : ""));
    QVERIFY(Flags(editor.GetConstrainData()) == flags);
}

void tst_CQLTConstrainEditor::ATakenNameIsRefusedEveryTime()
{
    const EmptyAttributeNames names;
    AttributeCommonMgr::GetInstance()->AddName("defaultBC");
    ModalDriver user;
    CQLTConstrainEditor editor(nullptr);
    user.Then([](QDialog& shown) {
        Click(shown, "chb_ZR");
        for (int i = 0; i < 2; ++i) {
            Click(shown, "okButton");
            QVERIFY(shown.isVisible());
            QCOMPARE(Find<QLineEdit>(shown, "lied_Name").text(), "defaultBC");
            QVERIFY(!Find<QCheckBox>(shown, "chb_ZR").isChecked());
        }
        Type(shown, "lied_Name", "other");
        Click(shown, "okButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>({Duplicate(), Duplicate()}));
    QCOMPARE(editor.GetConstrainData().m_strName, std::string("other"));
    QCOMPARE(editor.GetConstrainData().m_bZR, false);
}

void tst_CQLTConstrainEditor::ARefusalKeepsTheRecordOfInitData()
{
    const EmptyAttributeNames names;
    AttributeCommonMgr::GetInstance()->AddName("defaultBC");
    const std::array<bool, 6> flags = {false, false, true, false, true, false};
    ModalDriver user;
    CQLTConstrainEditor editor(nullptr);
    editor.InitData(Record("wall", flags));
    user.Then([](QDialog& shown) {
        Click(shown, "okButton");
        Click(shown, "cancelButton");
    });
    QCOMPARE(editor.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>({Duplicate()}));
    QCOMPARE(editor.GetConstrainData().m_strName, std::string("wall"));
    QVERIFY(Flags(editor.GetConstrainData()) == flags);
}

void tst_CQLTConstrainEditor::TabFollowsReadingOrder()
{
    CQLTConstrainEditor editor(nullptr);
    QCOMPARE(TabOrder(editor), QStringList({"lied_Name", "chb_XD", "chb_YD", "chb_ZD", "chb_XR",
                                            "chb_YR", "chb_ZR", "okButton", "cancelButton"}));
}

void tst_CQLTConstrainEditor::SpaceTurnsABoxAndPressesCancel()
{
    ModalDriver user;
    CQLTConstrainEditor editor(nullptr);
    user.Then([](QDialog& shown) {
        auto& box = Find<QCheckBox>(shown, "chb_YR");
        QTest::keyClick(&box, Qt::Key_Space);
        QVERIFY(!box.isChecked());
        QTest::keyClick(&Find<QPushButton>(shown, "cancelButton"), Qt::Key_Space);
    });
    QCOMPARE(editor.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
}

TARN_TEST_MAIN(tst_CQLTConstrainEditor)
#include "tst_CQLTConstrainEditor.moc"
