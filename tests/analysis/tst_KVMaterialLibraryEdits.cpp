#include "MaterialLibrary.h"

#include <QLineEdit>

// Viewing, editing and adding materials.

namespace {

ShownBox NoSelection()
{
    return ShownBox::Notice("Warning", "No material is selected");
}

ShownBox Rename()
{
    return ShownBox::Notice("Warning", "Material rename!");
}

/// The name and the three values that the material editor shows.
QStringList Shown(const QWidget& editor)
{
    QStringList texts = {Find<QLineEdit>(editor, "lineEditName").text()};
    for (int row = 0; row < 3; ++row)
        texts << Cell(Table(editor), row, 1).text();
    return texts;
}

/// The step for the material editor: confirm under this name.
std::function<void(QDialog&)> Confirm(const QString& name)
{
    return [name](QDialog& editor) {
        Type(editor, "lineEditName", name);
        Click(editor, "pushButton");
    };
}

} // namespace

class tst_KVMaterialLibraryEdits : public MaterialLibraryTest
{
    Q_OBJECT

private Q_SLOTS:
    void EachActionNeedsARow_data();
    void EachActionNeedsARow();
    void ViewShowsTheRow_data();
    void ViewShowsTheRow();
    void AnEditEntersACopyUnderANewName();
    void AnEditOfASystemMaterialBecomesTheUsers();
    void AnEditUnderTheSameNameIsRefused();
    void ACancelledEditChangesNothing();
    void AnEditBehindWhichTheTableIsRefilledChangesNoRow();
    void ADoubleClickNeedsNoRow();
    void AddStartsWithTheDefaults();
    void AddRefusesItsDefaultNameTheSecondTime();
    void AddAppendsAndSelects();
    void ACancelledAddChangesNothing();
    void AddIntoAFilteredTableEntersTheStoreOnly();
    void AddAfterAnEditEntersTheStoreOnly();
    void TheHostMayDestroyTheLibraryWhileTheEditorIsOpen_data();
    void TheHostMayDestroyTheLibraryWhileTheEditorIsOpen();
};

void tst_KVMaterialLibraryEdits::EachActionNeedsARow_data()
{
    QTest::addColumn<QByteArray>("button");
    NewRow("View/Edit", QByteArray("pushButton"));
    NewRow("Clone", QByteArray("pushButton_3"));
    NewRow("Remove", QByteArray("pushButton_4"));
}

void tst_KVMaterialLibraryEdits::EachActionNeedsARow()
{
    QFETCH(QByteArray, button);
    RunLibrary([&](QDialog& shown) {
        Click(shown, button);
        QVERIFY(shown.isVisible());
    });
    QCOMPARE(Boxes(), ShownBoxes({NoSelection()}));
    QCOMPARE(Store().GetMaterialNameList(), AllNames);
}

void tst_KVMaterialLibraryEdits::ViewShowsTheRow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("doubleClick");
    QTest::addColumn<QStringList>("texts");
    const QStringList user = {"Bronze", "1e11", "0.34", "8800"};
    const QStringList system = {"Glass", "7e10", "0.22", "2500"};
    NewRow("a user material by button", 0, false, user);
    NewRow("a user material by double-click", 0, true, user);
    NewRow("a system material by button", 2, false, system);
    NewRow("a system material by double-click", 2, true, system);
}

void tst_KVMaterialLibraryEdits::ViewShowsTheRow()
{
    QFETCH(int, row);
    QFETCH(bool, doubleClick);
    QFETCH(QStringList, texts);
    RunLibrary([&](QDialog& shown) {
        Then([&](QDialog& editor) {
            QCOMPARE(editor.objectName(), "Editconductor");
            QCOMPARE(editor.parentWidget(), &shown);
            QCOMPARE(Shown(editor), texts);
            Click(editor, "pushButton_2");
        });
        if (doubleClick) {
            DoubleClickCell(Table(shown), row, 3);
        } else {
            ClickRow(Table(shown), row);
            Click(shown, "pushButton");
        }
    });
}

void tst_KVMaterialLibraryEdits::AnEditEntersACopyUnderANewName()
{
    RunLibrary([&](QDialog& shown) {
        ClickRow(Table(shown), 0);
        Then([](QDialog& editor) {
            Table(editor).item(1, 1)->setText("0.35");
            Type(editor, "lineEditName", "Bell bronze");
            Click(editor, "pushButton");
        });
        Click(shown, "pushButton");
        QCOMPARE(RowTexts(Table(shown), 0), QStringList({"Bell bronze", "1e11", "0.35", "8800"}));
        QCOMPARE(ColumnTexts(Table(shown)),
                 QStringList({"Bell bronze", "steam", "Glass", "Steel"}));
        QCOMPARE(SelectedRows(Table(shown)), QVector<int>({0}));
        // The next refill lists the old one again.
        Click(shown, "checkBox_3");
        QCOMPARE(ColumnTexts(Table(shown)), QStringList({"Bronze", "steam", "Bell bronze"}));
    });
    QCOMPARE(Store().GetMaterialInfo("Bell bronze")->m_nType, int(MATERIAL_USER));
    QCOMPARE(Store().GetMaterialInfo("Bronze")->m_strPoisson, "0.34");
}

void tst_KVMaterialLibraryEdits::AnEditOfASystemMaterialBecomesTheUsers()
{
    RunLibrary([&](QDialog& shown) {
        Then(Confirm("My glass"));
        DoubleClickCell(Table(shown), 2, 0);
        QCOMPARE(RowTexts(Table(shown), 2), QStringList({"My glass", "7e10", "0.22", "2500"}));
    });
    const KVMaterialInfo& copy = *Store().GetMaterialInfo("My glass");
    QCOMPARE(copy.m_nType, int(MATERIAL_USER));
    QCOMPARE(copy.m_strElasticModulus, "7e10");
    QCOMPARE(copy.m_strLibElasticModulus, QString());
    QCOMPARE(Store().GetMaterialInfo("Glass")->m_nType, int(MATERIAL_SYSTEM));
}

void tst_KVMaterialLibraryEdits::AnEditUnderTheSameNameIsRefused()
{
    RunLibrary([&](QDialog& shown) {
        Then([](QDialog& editor) {
            Click(editor, "pushButton");
            QVERIFY(editor.isVisible());
            Click(editor, "pushButton_2");
        });
        DoubleClickCell(Table(shown), 1, 0);
        QCOMPARE(ColumnTexts(Table(shown)), AllNames);
    });
    QCOMPARE(Boxes(), ShownBoxes({Rename()}));
}

void tst_KVMaterialLibraryEdits::ACancelledEditChangesNothing()
{
    RunLibrary([&](QDialog& shown) {
        ClickRow(Table(shown), 3);
        Then([](QDialog& editor) {
            Type(editor, "lineEditName", "typed");
            Click(editor, "pushButton_2");
        });
        Click(shown, "pushButton");
        QCOMPARE(ColumnTexts(Table(shown)), AllNames);
    });
    QCOMPARE(Store().GetMaterialNameList(), AllNames);
}

void tst_KVMaterialLibraryEdits::AnEditBehindWhichTheTableIsRefilledChangesNoRow()
{
    RunLibrary([&](QDialog& shown) {
        Then([&](QDialog& editor) {
            static_cast<KVMaterialLibrary&>(shown).Reset();
            Type(editor, "lineEditName", "Bell bronze");
            Click(editor, "pushButton");
        });
        DoubleClickCell(Table(shown), 0, 0);
        QCOMPARE(ColumnTexts(Table(shown)), AllNames);
    });
    QVERIFY(Store().GetMaterialInfo("Bell bronze") != nullptr);
}

void tst_KVMaterialLibraryEdits::ADoubleClickNeedsNoRow()
{
    KVMaterialLibrary library;
    library.Reset();
    // Even without a current row: name and values are then empty.
    Then([](QDialog& editor) {
        QCOMPARE(Shown(editor), QStringList({"", "", "", ""}));
        editor.reject();
    });
    QVERIFY(QMetaObject::invokeMethod(&library, "RecTableItemData"));
}

void tst_KVMaterialLibraryEdits::AddStartsWithTheDefaults()
{
    RunLibrary([&](QDialog& shown) {
        ClickRow(Table(shown), 0);
        Then([&](QDialog& editor) {
            QCOMPARE(editor.parentWidget(), &shown);
            QCOMPARE(Shown(editor), QStringList({"Material", "58000000", "1", "0"}));
            Click(editor, "pushButton_2");
        });
        Click(shown, "pushButton_2");
    });
}

void tst_KVMaterialLibraryEdits::AddRefusesItsDefaultNameTheSecondTime()
{
    RunLibrary([&](QDialog& shown) {
        Then([](QDialog& editor) { Click(editor, "pushButton"); });
        Click(shown, "pushButton_2");
        Then([](QDialog& editor) {
            Click(editor, "pushButton");
            Type(editor, "lineEditName", "Material2");
            Click(editor, "pushButton");
        });
        Click(shown, "pushButton_2");
        QCOMPARE(ColumnTexts(Table(shown)), AllNames + QStringList({"Material", "Material2"}));
    });
    QCOMPARE(Boxes(), ShownBoxes({Rename()}));
}

void tst_KVMaterialLibraryEdits::AddAppendsAndSelects()
{
    RunLibrary([&](QDialog& shown) {
        Then(Confirm("Lead"));
        Click(shown, "pushButton_2");
        QCOMPARE(ColumnTexts(Table(shown)), AllNames + QStringList({"Lead"}));
        QCOMPARE(RowTexts(Table(shown), 4), QStringList({"Lead", "58000000", "1", "0"}));
        QCOMPARE(SelectedRows(Table(shown)), QVector<int>({4}));
        QCOMPARE(Table(shown).styleSheet(), "selection-background-color:cyan");
    });
    QCOMPARE(Store().GetMaterialNameList(), AllNames + QStringList({"Lead"}));
    QCOMPARE(Store().GetMaterialInfo("Lead")->m_nType, int(MATERIAL_USER));
    QCOMPARE(Store().CurrentMaterialName(), "Lead");
}

void tst_KVMaterialLibraryEdits::ACancelledAddChangesNothing()
{
    RunLibrary([&](QDialog& shown) {
        Then([](QDialog& editor) { Click(editor, "pushButton_2"); });
        Click(shown, "pushButton_2");
        QCOMPARE(ColumnTexts(Table(shown)), AllNames);
        QCOMPARE(Table(shown).currentRow(), -1);
    });
    QCOMPARE(Store().GetMaterialNameList(), AllNames);
}

void tst_KVMaterialLibraryEdits::AddIntoAFilteredTableEntersTheStoreOnly()
{
    RunLibrary([&](QDialog& shown) {
        Click(shown, "checkBox_3");
        ClickRow(Table(shown), 0);
        Then(Confirm("Lead"));
        Click(shown, "pushButton_2");
        // The table is shorter than the store and rejects the row.
        QCOMPARE(ColumnTexts(Table(shown)), QStringList({"Bronze", "steam"}));
        QCOMPARE(SelectedRows(Table(shown)), QVector<int>({0}));
        Click(shown, "checkBox_3");
        QCOMPARE(ColumnTexts(Table(shown)), AllNames + QStringList({"Lead"}));
    });
}

void tst_KVMaterialLibraryEdits::AddAfterAnEditEntersTheStoreOnly()
{
    RunLibrary([&](QDialog& shown) {
        Then(Confirm("Bell bronze"));
        DoubleClickCell(Table(shown), 0, 0);
        Then(Confirm("Lead"));
        Click(shown, "pushButton_2");
        QCOMPARE(ColumnTexts(Table(shown)),
                 QStringList({"Bell bronze", "steam", "Glass", "Steel"}));
    });
    QCOMPARE(Store().GetMaterialNameList(), AllNames + QStringList({"Bell bronze", "Lead"}));
}

void tst_KVMaterialLibraryEdits::TheHostMayDestroyTheLibraryWhileTheEditorIsOpen_data()
{
    QTest::addColumn<QByteArray>("button");
    NewRow("View/Edit", QByteArray("pushButton"));
    NewRow("Add", QByteArray("pushButton_2"));
    NewRow("Clone", QByteArray("pushButton_3"));
}

void tst_KVMaterialLibraryEdits::TheHostMayDestroyTheLibraryWhileTheEditorIsOpen()
{
    QFETCH(QByteArray, button);
    auto* const library = new KVMaterialLibrary;
    library->Reset();
    Then([&](QDialog& shown) {
        ClickRow(Table(shown), 0);
        Click(shown, button);
    });
    Then([library](QDialog&) { delete library; });
    QCOMPARE(library->exec(), int(QDialog::Rejected));
    QCOMPARE(Store().MapDataRow(), AllNames.size());
}

TARN_TEST_MAIN(tst_KVMaterialLibraryEdits)
#include "tst_KVMaterialLibraryEdits.moc"
