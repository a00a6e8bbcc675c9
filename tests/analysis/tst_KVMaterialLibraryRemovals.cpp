#include "MaterialLibrary.h"
#include "TextRecorder.h"

#include <QFile>
#include <QLineEdit>

// Removing materials, and what OK and Cancel write.

namespace {

ShownBox Removal()
{
    return {"Warning", "Confirm to delete current material?", QMessageBox::Information,
            QMessageBox::Yes | QMessageBox::Abort, nullptr};
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

class tst_KVMaterialLibraryRemovals : public MaterialLibraryTest
{
    Q_OBJECT

private Q_SLOTS:
    void EveryButtonRemoves_data();
    void EveryButtonRemoves();
    void RemoveSelectsTheNextRow_data();
    void RemoveSelectsTheNextRow();
    void TheRemovalBoxHasNoDefaultButton();
    void RemoveOfAnEmptyNameIsRefused();
    void ATableRefilledDuringTheRemovalKeepsItsRows();
    void AllMessagesButOneAreTranslated();
    void CancelKeepsChangesInMemoryOnly();
    void OkWritesTheChanges();
};

void tst_KVMaterialLibraryRemovals::EveryButtonRemoves_data()
{
    QTest::addColumn<int>("answer");
    NewRow("Yes", int(QMessageBox::Yes));
    NewRow("Abort", int(QMessageBox::Abort));
    NewRow("closed", int(QMessageBox::Close));
}

void tst_KVMaterialLibraryRemovals::EveryButtonRemoves()
{
    QFETCH(int, answer);
    RunLibrary([&](QDialog& shown) {
        ClickRow(Table(shown), 1);
        User().Answer(QMessageBox::StandardButton(answer));
        Click(shown, "pushButton_4");
        QCOMPARE(ColumnTexts(Table(shown)), QStringList({"Bronze", "Glass", "Steel"}));
    });
    QCOMPARE(Boxes(), ShownBoxes({Removal()}));
    QCOMPARE(Store().GetMaterialNameList(), QStringList({"Bronze", "Glass", "Steel"}));
}

void tst_KVMaterialLibraryRemovals::RemoveSelectsTheNextRow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("selected");
    NewRow("the first", 0, "steam");
    NewRow("one between", 1, "Glass");
    // No row follows. The previous row is now current, but not selected.
    NewRow("the last", 3, "Glass");
}

void tst_KVMaterialLibraryRemovals::RemoveSelectsTheNextRow()
{
    QFETCH(int, row);
    QFETCH(QString, selected);
    RunLibrary([&](QDialog& shown) {
        ClickRow(Table(shown), row);
        User().Answer(QMessageBox::Yes);
        Click(shown, "pushButton_4");
        const auto& library = static_cast<KVMaterialLibrary&>(shown);
        QCOMPARE(library.selectedMaterialName(), selected);
        QCOMPARE(Table(shown).currentRow(), qMin(row, 2));
        QCOMPARE(SelectedRows(Table(shown)), row == 3 ? QVector<int>() : QVector<int>({row}));
        QCOMPARE(Table(shown).styleSheet(), "selection-background-color:cyan");
        QCOMPARE(Store().CurrentMaterialName(), selected);
    });
}

void tst_KVMaterialLibraryRemovals::TheRemovalBoxHasNoDefaultButton()
{
    RunLibrary([&](QDialog& shown) {
        ClickRow(Table(shown), 0);
        User().WhileBoxOpen([](QMessageBox& box) { QVERIFY(box.defaultButton() == nullptr); });
        User().Answer(QMessageBox::Abort);
        Click(shown, "pushButton_4");
    });
}

void tst_KVMaterialLibraryRemovals::RemoveOfAnEmptyNameIsRefused()
{
    WriteMaterials(UserFile, {{"", "1", "2", "3"}});
    RunLibrary([&](QDialog& shown) {
        ClickRow(Table(shown), 0);
        Click(shown, "pushButton_4");
        QCOMPARE(Table(shown).rowCount(), 3);
    });
    QCOMPARE(Boxes(), ShownBoxes({ShownBox::Notice("Warning", "Remove the project is empty")}));
    QCOMPARE(Store().MapDataRow(), 3);
}

void tst_KVMaterialLibraryRemovals::ATableRefilledDuringTheRemovalKeepsItsRows()
{
    RunLibrary([&](QDialog& shown) {
        ClickRow(Table(shown), 1);
        User().WhileBoxOpen([&](QMessageBox&) { static_cast<KVMaterialLibrary&>(shown).Reset(); });
        User().Answer(QMessageBox::Yes);
        Click(shown, "pushButton_4");
        QCOMPARE(ColumnTexts(Table(shown)), AllNames);
    });
    // The material is removed by name.
    QCOMPARE(Store().GetMaterialNameList(), QStringList({"Bronze", "Glass", "Steel"}));
}

void tst_KVMaterialLibraryRemovals::AllMessagesButOneAreTranslated()
{
    WriteMaterials(UserFile, {{"", "1", "2", "3"}, {"Bronze", "1", "2", "3"}});
    KVMaterialLibrary library;
    library.Reset();
    Then([&](QDialog& shown) {
        {
            const TextRecorder recorder;
            ClickRow(Table(shown), 0);
            Click(shown, "pushButton_4");
            QCOMPARE(recorder.TextsOf("KVMaterialLibrary"), QStringList());
        }
        const TextRecorder recorder;
        ClickRow(Table(shown), 1);
        User().Answer(QMessageBox::Yes);
        Click(shown, "pushButton_4");
        Table(shown).setCurrentCell(-1, -1);
        Click(shown, "pushButton");
        QCOMPARE(recorder.TextsOf("KVMaterialLibrary"),
                 QStringList({"Confirm to delete current material?", "No material is selected",
                              "Warning"}));
        shown.reject();
    });
    library.exec();
    QCOMPARE(Boxes().size(), 3);
}

void tst_KVMaterialLibraryRemovals::CancelKeepsChangesInMemoryOnly()
{
    QFile file(UserFile);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    file.close();
    RunLibrary([&](QDialog& shown) {
        ClickRow(Table(shown), 0);
        User().Answer(QMessageBox::Yes);
        Click(shown, "pushButton_4");
        Then(Confirm("Lead"));
        Click(shown, "pushButton_2");
    });
    QCOMPARE(Store().GetMaterialNameList(), QStringList({"steam", "Glass", "Steel", "Lead"}));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), before);
}

void tst_KVMaterialLibraryRemovals::OkWritesTheChanges()
{
    KVMaterialLibrary library;
    library.Reset();
    Then([&](QDialog& shown) {
        ClickRow(Table(shown), 0);
        User().Answer(QMessageBox::Yes);
        Click(shown, "pushButton_4");
        Then(Confirm("Lead"));
        Click(shown, "pushButton_2");
        Click(shown, "pushButton_6");
    });
    QCOMPARE(library.exec(), int(QDialog::Accepted));
    QCOMPARE(library.selectedMaterialName(), "Lead");
    Store().ClearInfo();
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Store().GetMaterialNameList(), QStringList({"steam", "Lead"}));
}

TARN_TEST_MAIN(tst_KVMaterialLibraryRemovals)
#include "tst_KVMaterialLibraryRemovals.moc"
