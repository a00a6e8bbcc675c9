#include "DialogFacts.h"
#include "EmptyAnalysisStores.h"
#include "KVMaterialLibrary.h"
#include "MaterialTable.h"
#include "ModalDriver.h"
#include "TestCase.h"

#include <QFile>
#include <QLineEdit>
#include <QTextEdit>

// Viewing, adding and removing in the material library.

namespace {

const char* const SystemFile = "./SysMaterial.xml";
const char* const UserFile = "./UserMaterial.xml";

ShownBox NoSelection()
{
    return ShownBox::Notice("Warning", "No material is selected");
}

ShownBox Rename()
{
    return ShownBox::Notice("Warning", "Material rename!");
}

ShownBox Removal()
{
    return {"Warning", "Confirm to delete current material?", QMessageBox::Information,
            QMessageBox::Yes | QMessageBox::Abort, nullptr};
}

KVMaterialData& Store()
{
    return *KVMaterialData::GetInstance();
}

QTableWidget& Table(const QWidget& library)
{
    return Find<QTableWidget>(library, "tableWidget");
}

/// Two of the user's, two of the system's; Reset() lists them in this order.
void WriteBothFiles()
{
    WriteMaterials(SystemFile,
                   {{"Glass", "7e10", "0.22", "2500"}, {"Steel", "2e11", "0.3", "7850"}});
    WriteMaterials(UserFile, {{"Bronze", "1e11", "0.34", "8800"}, {"Copper", "1", "2", "3"}});
}

const QStringList AllNames = {"Bronze", "Copper", "Glass", "Steel"};

/// What the material editor shows: the name and the three values.
QStringList Shown(const QWidget& editor)
{
    QStringList texts = {Find<QLineEdit>(editor, "lineEditName").text()};
    for (int row = 0; row < 3; ++row)
        texts << Table(editor).item(row, 1)->text();
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

/// Runs a library over both files; the step is what the user does in it before cancelling.
void RunLibrary(ModalDriver& user, const std::function<void(QDialog&)>& step)
{
    KVMaterialLibrary library;
    library.Reset();
    user.Then([&](QDialog& shown) {
        step(shown);
        if (!QTest::currentTestFailed())
            Click(shown, "pushButton_8");
        else
            shown.reject();
    });
    QCOMPARE(library.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
}

} // namespace

class tst_KVMaterialLibraryEdits : public TestCase
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
    void AnEditWhileTheTableIsRefilledTouchesNoRow();
    void ADoubleClickEditsWithoutAsking();
    void AddStartsWithTheDefaults();
    void AddRefusesItsDefaultNameTheSecondTime();
    void AddAppendsAndSelects();
    void ACancelledAddChangesNothing();
    void AddIntoAFilteredTableEntersTheStoreOnly();
    void AddAfterAnEditEntersTheStoreOnly();
    void RemoveGoesOnWhicheverButton_data();
    void RemoveGoesOnWhicheverButton();
    void RemoveSelectsTheRowThatFollows_data();
    void RemoveSelectsTheRowThatFollows();
    void TheRemovalBoxHasNoDefaultButton();
    void RemoveOfAnEmptyNameIsRefused();
    void RemoveBehindWhichTheTableIsRefilledKeepsItsRows();
    void TheMessagesAreTranslatedSaveOne();
    void CancelKeepsChangesInMemoryOnly();
    void OkWritesTheChanges();
    void TheHostMayDestroyTheLibraryBehindTheEditor_data();
    void TheHostMayDestroyTheLibraryBehindTheEditor();
};

void tst_KVMaterialLibraryEdits::EachActionNeedsARow_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("View/Edit") << QByteArray("pushButton");
    QTest::newRow("Clone") << QByteArray("pushButton_3");
    QTest::newRow("Remove") << QByteArray("pushButton_4");
}

void tst_KVMaterialLibraryEdits::EachActionNeedsARow()
{
    QFETCH(QByteArray, button);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    RunLibrary(user, [&](QDialog& shown) {
        Click(shown, button);
        QVERIFY(shown.isVisible());
    });
    QCOMPARE(user.Boxes(), QVector<ShownBox>({NoSelection()}));
    QCOMPARE(Store().GetMaterialNameList(), AllNames);
}

void tst_KVMaterialLibraryEdits::ViewShowsTheRow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("doubleClick");
    QTest::addColumn<QStringList>("texts");
    const QStringList user = {"Bronze", "1e11", "0.34", "8800"};
    const QStringList system = {"Glass", "7e10", "0.22", "2500"};
    QTest::newRow("a user material by button") << 0 << false << user;
    QTest::newRow("a user material by double-click") << 0 << true << user;
    QTest::newRow("a system material by button") << 2 << false << system;
    QTest::newRow("a system material by double-click") << 2 << true << system;
}

void tst_KVMaterialLibraryEdits::ViewShowsTheRow()
{
    QFETCH(int, row);
    QFETCH(bool, doubleClick);
    QFETCH(QStringList, texts);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    RunLibrary(user, [&](QDialog& shown) {
        user.Then([&](QDialog& editor) {
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
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
}

void tst_KVMaterialLibraryEdits::AnEditEntersACopyUnderANewName()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    RunLibrary(user, [&](QDialog& shown) {
        ClickRow(Table(shown), 0);
        user.Then([](QDialog& editor) {
            Table(editor).item(1, 1)->setText("0.35");
            Type(editor, "lineEditName", "Bell bronze");
            Click(editor, "pushButton");
        });
        Click(shown, "pushButton");
        QCOMPARE(RowTexts(Table(shown), 0), QStringList({"Bell bronze", "1e11", "0.35", "8800"}));
        QCOMPARE(Names(Table(shown)), QStringList({"Bell bronze", "Copper", "Glass", "Steel"}));
        QCOMPARE(SelectedRows(Table(shown)), QVector<int>({0}));
        // The old one is listed again at the next refill.
        Click(shown, "checkBox_3");
        QCOMPARE(Names(Table(shown)), QStringList({"Bronze", "Copper", "Bell bronze"}));
    });
    QCOMPARE(Store().GetMaterialInfo("Bell bronze")->m_nType, int(MATERIAL_USER));
    QCOMPARE(Store().GetMaterialInfo("Bronze")->m_strPoisson, "0.34");
}

void tst_KVMaterialLibraryEdits::AnEditOfASystemMaterialBecomesTheUsers()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    RunLibrary(user, [&](QDialog& shown) {
        user.Then(Confirm("My glass"));
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
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    RunLibrary(user, [&](QDialog& shown) {
        user.Then([](QDialog& editor) {
            Click(editor, "pushButton");
            QVERIFY(editor.isVisible());
            Click(editor, "pushButton_2");
        });
        DoubleClickCell(Table(shown), 1, 0);
        QCOMPARE(Names(Table(shown)), AllNames);
    });
    QCOMPARE(user.Boxes(), QVector<ShownBox>({Rename()}));
}

void tst_KVMaterialLibraryEdits::ACancelledEditChangesNothing()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    RunLibrary(user, [&](QDialog& shown) {
        ClickRow(Table(shown), 3);
        user.Then([](QDialog& editor) {
            Type(editor, "lineEditName", "typed");
            Click(editor, "pushButton_2");
        });
        Click(shown, "pushButton");
        QCOMPARE(Names(Table(shown)), AllNames);
    });
    QCOMPARE(Store().GetMaterialNameList(), AllNames);
}

void tst_KVMaterialLibraryEdits::AnEditWhileTheTableIsRefilledTouchesNoRow()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    RunLibrary(user, [&](QDialog& shown) {
        user.Then([&](QDialog& editor) {
            static_cast<KVMaterialLibrary&>(shown).Reset();
            Type(editor, "lineEditName", "Bell bronze");
            Click(editor, "pushButton");
        });
        DoubleClickCell(Table(shown), 0, 0);
        QCOMPARE(Names(Table(shown)), AllNames);
    });
    QVERIFY(Store().GetMaterialInfo("Bell bronze") != nullptr);
}

void tst_KVMaterialLibraryEdits::ADoubleClickEditsWithoutAsking()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    KVMaterialLibrary library;
    library.Reset();
    // Even where no row is current: then name and values are empty.
    user.Then([](QDialog& editor) {
        QCOMPARE(Shown(editor), QStringList({"", "", "", ""}));
        editor.reject();
    });
    QVERIFY(QMetaObject::invokeMethod(&library, "RecTableItemData"));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
}

void tst_KVMaterialLibraryEdits::AddStartsWithTheDefaults()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    RunLibrary(user, [&](QDialog& shown) {
        ClickRow(Table(shown), 0);
        user.Then([&](QDialog& editor) {
            QCOMPARE(editor.parentWidget(), &shown);
            QCOMPARE(Shown(editor), QStringList({"Material", "58000000", "1", "0"}));
            Click(editor, "pushButton_2");
        });
        Click(shown, "pushButton_2");
    });
}

void tst_KVMaterialLibraryEdits::AddRefusesItsDefaultNameTheSecondTime()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    RunLibrary(user, [&](QDialog& shown) {
        user.Then([](QDialog& editor) { Click(editor, "pushButton"); });
        Click(shown, "pushButton_2");
        user.Then([](QDialog& editor) {
            Click(editor, "pushButton");
            Type(editor, "lineEditName", "Material2");
            Click(editor, "pushButton");
        });
        Click(shown, "pushButton_2");
        QCOMPARE(Names(Table(shown)), AllNames + QStringList({"Material", "Material2"}));
    });
    QCOMPARE(user.Boxes(), QVector<ShownBox>({Rename()}));
}

void tst_KVMaterialLibraryEdits::AddAppendsAndSelects()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    RunLibrary(user, [&](QDialog& shown) {
        user.Then(Confirm("Lead"));
        Click(shown, "pushButton_2");
        QCOMPARE(Names(Table(shown)), AllNames + QStringList({"Lead"}));
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
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    RunLibrary(user, [&](QDialog& shown) {
        user.Then([](QDialog& editor) { Click(editor, "pushButton_2"); });
        Click(shown, "pushButton_2");
        QCOMPARE(Names(Table(shown)), AllNames);
        QCOMPARE(Table(shown).currentRow(), -1);
    });
    QCOMPARE(Store().GetMaterialNameList(), AllNames);
}

void tst_KVMaterialLibraryEdits::AddIntoAFilteredTableEntersTheStoreOnly()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    RunLibrary(user, [&](QDialog& shown) {
        Click(shown, "checkBox_3");
        ClickRow(Table(shown), 0);
        user.Then(Confirm("Lead"));
        Click(shown, "pushButton_2");
        // The table is shorter than the store and refuses the row.
        QCOMPARE(Names(Table(shown)), QStringList({"Bronze", "Copper"}));
        QCOMPARE(SelectedRows(Table(shown)), QVector<int>({0}));
        Click(shown, "checkBox_3");
        QCOMPARE(Names(Table(shown)), AllNames + QStringList({"Lead"}));
    });
}

void tst_KVMaterialLibraryEdits::AddAfterAnEditEntersTheStoreOnly()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    RunLibrary(user, [&](QDialog& shown) {
        user.Then(Confirm("Bell bronze"));
        DoubleClickCell(Table(shown), 0, 0);
        user.Then(Confirm("Lead"));
        Click(shown, "pushButton_2");
        QCOMPARE(Names(Table(shown)), QStringList({"Bell bronze", "Copper", "Glass", "Steel"}));
    });
    QCOMPARE(Store().GetMaterialNameList(), AllNames + QStringList({"Bell bronze", "Lead"}));
}

void tst_KVMaterialLibraryEdits::RemoveGoesOnWhicheverButton_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("Yes") << int(QMessageBox::Yes);
    QTest::newRow("Abort") << int(QMessageBox::Abort);
    QTest::newRow("closed") << int(QMessageBox::Close);
}

void tst_KVMaterialLibraryEdits::RemoveGoesOnWhicheverButton()
{
    QFETCH(int, answer);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    RunLibrary(user, [&](QDialog& shown) {
        ClickRow(Table(shown), 1);
        user.Answer(QMessageBox::StandardButton(answer));
        Click(shown, "pushButton_4");
        QCOMPARE(Names(Table(shown)), QStringList({"Bronze", "Glass", "Steel"}));
    });
    QCOMPARE(user.Boxes(), QVector<ShownBox>({Removal()}));
    QCOMPARE(Store().GetMaterialNameList(), QStringList({"Bronze", "Glass", "Steel"}));
}

void tst_KVMaterialLibraryEdits::RemoveSelectsTheRowThatFollows_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("selected");
    QTest::newRow("the first") << 0 << "Copper";
    QTest::newRow("one between") << 1 << "Glass";
    // No row follows. The one before has become current, but is not selected.
    QTest::newRow("the last") << 3 << "Glass";
}

void tst_KVMaterialLibraryEdits::RemoveSelectsTheRowThatFollows()
{
    QFETCH(int, row);
    QFETCH(QString, selected);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    RunLibrary(user, [&](QDialog& shown) {
        ClickRow(Table(shown), row);
        user.Answer(QMessageBox::Yes);
        Click(shown, "pushButton_4");
        const auto& library = static_cast<KVMaterialLibrary&>(shown);
        QCOMPARE(library.selectedMaterialName(), selected);
        QCOMPARE(Table(shown).currentRow(), qMin(row, 2));
        QCOMPARE(SelectedRows(Table(shown)), row == 3 ? QVector<int>() : QVector<int>({row}));
        QCOMPARE(Table(shown).styleSheet(), "selection-background-color:cyan");
        QCOMPARE(Store().CurrentMaterialName(), selected);
    });
}

void tst_KVMaterialLibraryEdits::TheRemovalBoxHasNoDefaultButton()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    RunLibrary(user, [&](QDialog& shown) {
        ClickRow(Table(shown), 0);
        user.WhileBoxOpen([](QMessageBox& box) { QVERIFY(box.defaultButton() == nullptr); });
        user.Answer(QMessageBox::Abort);
        Click(shown, "pushButton_4");
    });
}

void tst_KVMaterialLibraryEdits::RemoveOfAnEmptyNameIsRefused()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteMaterials(UserFile, {{"", "1", "2", "3"}});
    ModalDriver user;
    RunLibrary(user, [&](QDialog& shown) {
        ClickRow(Table(shown), 0);
        Click(shown, "pushButton_4");
        QCOMPARE(Table(shown).rowCount(), 1);
    });
    QCOMPARE(user.Boxes(),
             QVector<ShownBox>({ShownBox::Notice("Warning", "Remove the project is empty")}));
    QCOMPARE(Store().MapDataRow(), 1);
}

void tst_KVMaterialLibraryEdits::RemoveBehindWhichTheTableIsRefilledKeepsItsRows()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    RunLibrary(user, [&](QDialog& shown) {
        ClickRow(Table(shown), 1);
        user.WhileBoxOpen([&](QMessageBox&) { static_cast<KVMaterialLibrary&>(shown).Reset(); });
        user.Answer(QMessageBox::Yes);
        Click(shown, "pushButton_4");
        QCOMPARE(Names(Table(shown)), AllNames);
    });
    // The material goes by its name.
    QCOMPARE(Store().GetMaterialNameList(), QStringList({"Bronze", "Glass", "Steel"}));
}

void tst_KVMaterialLibraryEdits::TheMessagesAreTranslatedSaveOne()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteMaterials(UserFile, {{"", "1", "2", "3"}, {"Bronze", "1", "2", "3"}});
    ModalDriver user;
    KVMaterialLibrary library;
    library.Reset();
    user.Then([&](QDialog& shown) {
        {
            const TextRecorder recorder;
            ClickRow(Table(shown), 0);
            Click(shown, "pushButton_4");
            QCOMPARE(recorder.TextsOf("KVMaterialLibrary"), QStringList());
        }
        const TextRecorder recorder;
        ClickRow(Table(shown), 1);
        user.Answer(QMessageBox::Yes);
        Click(shown, "pushButton_4");
        Table(shown).setCurrentCell(-1, -1);
        Click(shown, "pushButton");
        QCOMPARE(recorder.TextsOf("KVMaterialLibrary"),
                 QStringList({"Confirm to delete current material?", "No material is selected",
                              "Warning"}));
        shown.reject();
    });
    library.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes().size(), 3);
}

void tst_KVMaterialLibraryEdits::CancelKeepsChangesInMemoryOnly()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    QFile file(UserFile);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    file.close();
    ModalDriver user;
    RunLibrary(user, [&](QDialog& shown) {
        ClickRow(Table(shown), 0);
        user.Answer(QMessageBox::Yes);
        Click(shown, "pushButton_4");
        user.Then(Confirm("Lead"));
        Click(shown, "pushButton_2");
    });
    QCOMPARE(Store().GetMaterialNameList(), QStringList({"Copper", "Glass", "Steel", "Lead"}));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), before);
}

void tst_KVMaterialLibraryEdits::OkWritesTheChanges()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    KVMaterialLibrary library;
    library.Reset();
    user.Then([&](QDialog& shown) {
        ClickRow(Table(shown), 0);
        user.Answer(QMessageBox::Yes);
        Click(shown, "pushButton_4");
        user.Then(Confirm("Lead"));
        Click(shown, "pushButton_2");
        Click(shown, "pushButton_6");
    });
    QCOMPARE(library.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(library.selectedMaterialName(), "Lead");
    Store().ClearInfo();
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Store().GetMaterialNameList(), QStringList({"Copper", "Lead"}));
}

void tst_KVMaterialLibraryEdits::TheHostMayDestroyTheLibraryBehindTheEditor_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("View/Edit") << QByteArray("pushButton");
    QTest::newRow("Add") << QByteArray("pushButton_2");
    QTest::newRow("Clone") << QByteArray("pushButton_3");
}

void tst_KVMaterialLibraryEdits::TheHostMayDestroyTheLibraryBehindTheEditor()
{
    QFETCH(QByteArray, button);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    auto* const library = new KVMaterialLibrary;
    library->Reset();
    ModalDriver user;
    user.Then([&](QDialog& shown) {
        ClickRow(Table(shown), 0);
        Click(shown, button);
    });
    user.Then([library](QDialog&) { delete library; });
    QCOMPARE(library->exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QCOMPARE(Store().MapDataRow(), AllNames.size());
}

TARN_TEST_MAIN(tst_KVMaterialLibraryEdits)
#include "tst_KVMaterialLibraryEdits.moc"
