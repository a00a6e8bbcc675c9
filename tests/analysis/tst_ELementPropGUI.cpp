#include "CQLTElePropertyEditor.h"
#include "CQLTElemPropDef.h"
#include "DialogFacts.h"
#include "ELementPropGUI.h"
#include "EmptyAnalysisStores.h"
#include "Heap.h"
#include "MaterialTable.h"
#include "ModalDriver.h"
#include "TestCase.h"

#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>

namespace {

using Properties = std::map<QString, CQLTElemPropDef*>;

const char* const File = "./ElementProperty.xml";

ShownBox NoSelection()
{
    return ShownBox::Notice("Warning", "No Element Property is selected");
}

ShownBox NoRecord()
{
    return ShownBox::Notice("Warning", "Current element property is null");
}

ShownBox Question()
{
    return {"Warning", "This operation can't be undo, Confirm to delete current property?",
            QMessageBox::Information, QMessageBox::Yes | QMessageBox::No, nullptr};
}

KVPropertyData& Store()
{
    return *KVPropertyData::GetInstance();
}

CQLTElemPropDef* Hold(const QString& name, const QString& material = "Steel")
{
    auto* const property =
        new CQLTElemPropDef{name, 0, material, 2.0, "Shell", CQLTElemPropDef::ShellType};
    Store().AddPropInfo(property);
    return property;
}

/// Writes the file with these properties, and empties the store.
void WriteProperties(const QStringList& names)
{
    for (const QString& name : names)
        Hold(name, name + " material");
    QCOMPARE(Store().WriteXML(File), 0);
    Store().Clear();
}

QStringList StoredNames()
{
    QStringList names;
    for (const auto& entry : Store().GetProptyDataMap())
        names << entry.first;
    return names;
}

QTableWidget& Table(const QWidget& manager)
{
    return Find<QTableWidget>(manager, "tabwidget_Prop");
}

/// The step for the property editor: confirm with this name.
std::function<void(QDialog&)> Confirm(const QString& name)
{
    return [name](QDialog& editor) {
        Type(editor, "lineEdit_PropName", name);
        Click(editor, "pushbu_OK");
    };
}

/// The step for the property editor: be refused for the empty name, then cancel.
void BeRefusedAndCancel(QDialog& editor)
{
    Type(editor, "lineEdit_PropName", "");
    Click(editor, "pushbu_OK");
    Click(editor, "pubut_Cancel");
}

/// Looks for the file at the moment when the dialog is hidden.
class FileAtHiding : public QObject
{
public:
    explicit FileAtHiding(QDialog& dialog) { dialog.installEventFilter(this); }

    bool WasThere() const { return m_wasThere; }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Hide)
            m_wasThere = QFile::exists(File);
        return false;
    }

private:
    bool m_wasThere = false;
};

QStringList Headers(const QTableWidget& table)
{
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column)
        texts << table.model()->headerData(column, Qt::Horizontal).toString();
    return texts;
}

} // namespace

class tst_ELementPropGUI : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormIsAsGiven_data();
    void TheFormIsAsGiven();
    void TheFormHoldsNothingElse();
    void TheWindowIsAsGiven();
    void TheTextsBelongToTheForm();
    void TheMessagesBelongToTheClass();
    void TheClassHasItsSlots();
    void TheHostsWindowIsTheParent();
    void AnEmptyStoreGivesAnEmptyTable();
    void OpeningReadsTheFile();
    void OpeningKeepsWhatMemoryHolds();
    void ARenameNotWrittenComesBackBesideTheOldName();
    void AFileThatCannotBeReadIsPassedOver_data();
    void AFileThatCannotBeReadIsPassedOver();
    void RowsFollowTheNamesInOrder();
    void TheNameIsTheRecordsAndNotTheKey();
    void TheLastRowIsSelectedOnCyan();
    void LongNamesAreToldInFull();
    void LoadingAgainLeavesTheTable();
    void ShowingAgainFillsTheTableAnew();
    void TheSelectedNameIsThatOfTheCurrentRow();
    void AddEntersARowAndARecord();
    void TheFirstRowAddedIsSelectedOnCyan();
    void AddOfANameThatIsHeldEntersASecondRow();
    void AddCancelledChangesNothing_data();
    void AddCancelledChangesNothing();
    void OnlyAddedPropertiesAreReturned();
    void TheHostsMapIsReplaced();
    void EditNeedsARow();
    void EditNeedsARecord();
    void EditShowsTheRecord();
    void EditChangesTheRecordAndNumbersTheHeaders();
    void EditRenames();
    void EditOntoAnotherNameWins();
    void EditCancelledKeepsHeadersAndRecord();
    void ARefusedEditThenCancelKeepsBothProperties();
    void DeleteNeedsARow();
    void DeleteAsksAndRemovesTheRow_data();
    void DeleteAsksAndRemovesTheRow();
    void TheQuestionHasNoDefaultButton();
    void AnyOtherAnswerDeletesNothing_data();
    void AnyOtherAnswerDeletesNothing();
    void DeleteOfAnEmptyNameIsRefused();
    void DeleteActsOnTheTableOnly();
    void ARowAddedAfterADeleteIsRefused();
    void ATableRefilledBehindTheQuestionKeepsItsRows();
    void OkWritesAndCancelDoesNot_data();
    void OkWritesAndCancelDoesNot();
    void AFailedWriteIsSilent();
    void AddedPropertiesAreWrittenAndReadBack();
    void TheWholeChainRunsByClicks();
    void TabFollowsReadingOrder();
    void EnterPressesNothing_data();
    void EnterPressesNothing();
    void OpeningAndClosingKeepsTheHeap();
    void TheHostMayDestroyTheManagerBehindTheEditor_data();
    void TheHostMayDestroyTheManagerBehindTheEditor();
};

void tst_ELementPropGUI::TheFormIsAsGiven_data()
{
    AddFormColumns();
    const char* const dialog = "ELementPropGUI";
    const QRect free;
    QTest::newRow("tabwidget_Prop") << "QTableWidget" << dialog << free << "" << true << false;
    QTest::newRow("pushButton_add") << "QPushButton" << dialog << free << "Add" << true << false;
    QTest::newRow("pushButton_Delete")
        << "QPushButton" << dialog << free << "Delete" << true << false;
    QTest::newRow("pushButton__edit") << "QPushButton" << dialog << free << "Edit" << true << false;
    QTest::newRow("pushButton_OK") << "QPushButton" << dialog << free << "OK" << true << false;
    QTest::newRow("pushButton_Cancel")
        << "QPushButton" << dialog << free << "Cancel" << true << false;
}

void tst_ELementPropGUI::TheFormIsAsGiven()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    const ELementPropGUI manager(nullptr);
    CompareFormRow(manager);
}

void tst_ELementPropGUI::TheFormHoldsNothingElse()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    const ELementPropGUI manager(nullptr);
    QCOMPARE(FormWidgets(manager),
             QStringList({"pushButton_Cancel", "pushButton_Delete", "pushButton_OK",
                          "pushButton__edit", "pushButton_add", "tabwidget_Prop"}));
    QCOMPARE(Headers(Table(manager)), QStringList({"Property Name", "Type", "Material Name"}));
}

void tst_ELementPropGUI::TheWindowIsAsGiven()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    ELementPropGUI manager(nullptr);
    CompareWindow(manager, "ELementPropGUI", "ELement Property", QSize(507, 284));
    QVERIFY(manager.windowIcon().isNull());
    manager.show();
    QCOMPARE(manager.size(), QSize(507, 284));
}

void tst_ELementPropGUI::TheTextsBelongToTheForm()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    const TextRecorder recorder;
    const ELementPropGUI manager(nullptr);
    // The class and its form share their name, and so the context.
    QCOMPARE(recorder.TextsOf("ELementPropGUI"),
             QStringList({"Add", "Cancel", "Delete", "ELement Property", "Edit", "Material Name",
                          "OK", "Property Name", "Type"}));
}

void tst_ELementPropGUI::TheMessagesBelongToTheClass()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    const TextRecorder recorder;
    manager.EditProperty();
    Table(manager).setRowCount(1);
    Table(manager).setCurrentCell(0, 0);
    manager.EditProperty();
    user.Answer(QMessageBox::Yes);
    manager.DeleteProperty();
    QCOMPARE(recorder.TextsOf("ELementPropGUI"),
             QStringList({"Current element property is null", "Item is empty",
                          "No Element Property is selected",
                          "This operation can't be undo, Confirm to delete current property?",
                          "Warning"}));
}

void tst_ELementPropGUI::TheClassHasItsSlots()
{
    const QMetaObject& meta = ELementPropGUI::staticMetaObject;
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(OwnMethods(meta),
             QStringList({"public slot LoadBuildinProperty()", "public slot ShowProperty()",
                          "public slot InsertProperty()", "public slot EditProperty()",
                          "public slot DeleteProperty()", "public slot on_OK_Button()",
                          "public slot on_Cancel_Button()"}));
}

void tst_ELementPropGUI::TheHostsWindowIsTheParent()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    QWidget window;
    const ELementPropGUI manager(&window);
    QCOMPARE(manager.parentWidget(), &window);
}

void tst_ELementPropGUI::AnEmptyStoreGivesAnEmptyTable()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    ELementPropGUI manager(nullptr);
    QCOMPARE(Table(manager).rowCount(), 0);
    QCOMPARE(Table(manager).styleSheet(), QString());
    QCOMPARE(manager.GetSelectedPropName(), QString());
    QVERIFY(manager.GetSelectedProp() == nullptr);
    Properties added;
    manager.GetPropData(added);
    // Asking for the selected one has entered its empty name.
    QVERIFY((added == Properties{{QString(), nullptr}}));
}

void tst_ELementPropGUI::OpeningReadsTheFile()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteProperties({"B", "A"});
    const ELementPropGUI manager(nullptr);
    QCOMPARE(RowTexts(Table(manager), 0), QStringList({"A", "Shell", "A material"}));
    QCOMPARE(RowTexts(Table(manager), 1), QStringList({"B", "Shell", "B material"}));
    QCOMPARE(Table(manager).rowCount(), 2);
    QCOMPARE(StoredNames(), QStringList({"A", "B"}));
}

void tst_ELementPropGUI::OpeningKeepsWhatMemoryHolds()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteProperties({"A", "B"});
    CQLTElemPropDef* const held = Hold("A", "changed in memory");
    const ELementPropGUI manager(nullptr);
    QCOMPARE(RowTexts(Table(manager), 0), QStringList({"A", "Shell", "changed in memory"}));
    QCOMPARE(Store().GetProptyDataMap()["A"], held);
    QCOMPARE(Names(Table(manager)), QStringList({"A", "B"}));
}

void tst_ELementPropGUI::ARenameNotWrittenComesBackBesideTheOldName()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteProperties({"A"});
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    user.Then([&](QDialog& shown) {
        user.Then(Confirm("Z"));
        Click(shown, "pushButton__edit");
        Click(shown, "pushButton_Cancel");
    });
    manager.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(Names(Table(manager)), QStringList({"Z"}));
    const ELementPropGUI next(nullptr);
    QCOMPARE(Names(Table(next)), QStringList({"A", "Z"}));
}

void tst_ELementPropGUI::AFileThatCannotBeReadIsPassedOver_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("no XML") << QByteArray("properties");
    QTest::newRow("cut off") << QByteArray("<ElementProperties version=\"1\"><Elem");
}

void tst_ELementPropGUI::AFileThatCannotBeReadIsPassedOver()
{
    QFETCH(QByteArray, content);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    if (!content.isEmpty()) {
        QFile file(File);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    Hold("A");
    ModalDriver user;
    const ELementPropGUI manager(nullptr);
    QCOMPARE(Names(Table(manager)), QStringList({"A"}));
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
}

void tst_ELementPropGUI::RowsFollowTheNamesInOrder()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    for (const char* const name : {"b", "A", "10", "9", "板", "B"})
        Hold(name);
    const ELementPropGUI manager(nullptr);
    QCOMPARE(Names(Table(manager)), QStringList({"10", "9", "A", "B", "b", "板"}));
}

void tst_ELementPropGUI::TheNameIsTheRecordsAndNotTheKey()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    Hold("A")->m_strName = "changed";
    const ELementPropGUI manager(nullptr);
    QCOMPARE(Names(Table(manager)), QStringList({"changed"}));
}

void tst_ELementPropGUI::TheLastRowIsSelectedOnCyan()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    for (const char* const name : {"A", "B", "C"})
        Hold(name);
    const ELementPropGUI manager(nullptr);
    QCOMPARE(Table(manager).currentRow(), 2);
    QCOMPARE(SelectedRows(Table(manager)), QVector<int>({2}));
    QCOMPARE(Table(manager).styleSheet(), "selection-background-color:cyan");
    QCOMPARE(manager.GetSelectedPropName(), "C");
}

void tst_ELementPropGUI::LongNamesAreToldInFull()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    const QString name(200, 'n');
    Hold(name, QString(200, 'm'));
    const ELementPropGUI manager(nullptr);
    QVERIFY(Table(manager).item(0, 0)->toolTip().contains(name));
    QVERIFY(Table(manager).item(0, 2)->toolTip().contains(QString(200, 'm')));
}

void tst_ELementPropGUI::LoadingAgainLeavesTheTable()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    ELementPropGUI manager(nullptr);
    WriteProperties({"A"});
    manager.LoadBuildinProperty();
    QCOMPARE(StoredNames(), QStringList({"A"}));
    QCOMPARE(Table(manager).rowCount(), 0);
}

void tst_ELementPropGUI::ShowingAgainFillsTheTableAnew()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    Hold("B");
    ELementPropGUI manager(nullptr);
    Hold("A");
    Hold("C");
    manager.ShowProperty();
    manager.ShowProperty();
    QCOMPARE(Names(Table(manager)), QStringList({"A", "B", "C"}));
    QCOMPARE(SelectedRows(Table(manager)), QVector<int>({2}));
}

void tst_ELementPropGUI::TheSelectedNameIsThatOfTheCurrentRow()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    Hold("A");
    Hold("B");
    ELementPropGUI manager(nullptr);
    manager.show();
    ClickRow(Table(manager), 0);
    QCOMPARE(manager.GetSelectedPropName(), "A");
    delete Table(manager).takeItem(0, 0);
    QCOMPARE(manager.GetSelectedPropName(), QString());
}

void tst_ELementPropGUI::AddEntersARowAndARecord()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    Hold("M");
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    user.Then([&](QDialog& shown) {
        user.Then([&](QDialog& editor) {
            QCOMPARE(editor.parentWidget(), &manager);
            QCOMPARE(Find<QLineEdit>(editor, "lineEdit_PropName").text(), QString());
            Type(editor, "lineEdit_PropName", "A");
            Type(editor, "lineEdit_mat", "Bronze");
            Click(editor, "pushbu_OK");
        });
        Click(shown, "pushButton_add");
        // At the end until the next refill.
        QCOMPARE(Names(Table(shown)), QStringList({"M", "A"}));
        QCOMPARE(RowTexts(Table(shown), 1), QStringList({"A", "Shell", "Bronze"}));
        QCOMPARE(SelectedRows(Table(shown)), QVector<int>({1}));
        QCOMPARE(Headers(Table(shown)).constFirst(), "Property Name");
        Click(shown, "pushButton_Cancel");
    });
    QCOMPARE(manager.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
    QCOMPARE(StoredNames(), QStringList({"A", "M"}));
    Properties added;
    manager.GetPropData(added);
    QVERIFY((added == Properties{{"A", Store().GetProptyDataMap()["A"]}}));
    manager.ShowProperty();
    QCOMPARE(Names(Table(manager)), QStringList({"A", "M"}));
}

void tst_ELementPropGUI::TheFirstRowAddedIsSelectedOnCyan()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    user.Then(Confirm("A"));
    manager.InsertProperty();
    QVERIFY(user.IsDone());
    QCOMPARE(SelectedRows(Table(manager)), QVector<int>({0}));
    QCOMPARE(Table(manager).currentRow(), 0);
    QCOMPARE(Table(manager).styleSheet(), "selection-background-color:cyan");
}

void tst_ELementPropGUI::AddOfANameThatIsHeldEntersASecondRow()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    const CQLTElemPropDef* const old = Hold("A");
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    for (int i = 0; i < 2; ++i) {
        user.Then(Confirm("A"));
        manager.InsertProperty();
    }
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
    QCOMPARE(Names(Table(manager)), QStringList({"A", "A", "A"}));
    QCOMPARE(StoredNames(), QStringList({"A"}));
    QVERIFY(Store().GetProptyDataMap()["A"] != old);
    // The replaced record is still there for whoever got it before.
    QCOMPARE(old->m_strMaterialName, "Steel");
    QCOMPARE(manager.GetSelectedProp(), Store().GetProptyDataMap()["A"]);
}

void tst_ELementPropGUI::AddCancelledChangesNothing_data()
{
    QTest::addColumn<bool>("refusedBefore");
    QTest::newRow("at once") << false;
    QTest::newRow("after a refused OK") << true;
}

void tst_ELementPropGUI::AddCancelledChangesNothing()
{
    QFETCH(bool, refusedBefore);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    Hold("A");
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    user.Then([=](QDialog& editor) {
        if (refusedBefore)
            BeRefusedAndCancel(editor);
        else
            Click(editor, "pubut_Cancel");
    });
    manager.InsertProperty();
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes().size(), refusedBefore ? 1 : 0);
    QCOMPARE(Names(Table(manager)), QStringList({"A"}));
    QCOMPARE(StoredNames(), QStringList({"A"}));
    Properties added;
    manager.GetPropData(added);
    QVERIFY(added.empty());
}

void tst_ELementPropGUI::OnlyAddedPropertiesAreReturned()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteProperties({"A"});
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    QVERIFY(manager.GetSelectedProp() == nullptr);
    user.Then(Confirm("B"));
    manager.InsertProperty();
    QCOMPARE(manager.GetSelectedProp(), Store().GetProptyDataMap()["B"]);
    QVERIFY(manager.GetSelectedProp() != nullptr);
    Properties added;
    manager.GetPropData(added);
    QVERIFY((added == Properties{{"A", nullptr}, {"B", manager.GetSelectedProp()}}));
    // A new dialog knows of none.
    ELementPropGUI other(nullptr);
    QVERIFY(other.GetSelectedProp() == nullptr);
}

void tst_ELementPropGUI::TheHostsMapIsReplaced()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    const ELementPropGUI manager(nullptr);
    CQLTElemPropDef mine;
    Properties map = {{"mine", &mine}};
    manager.GetPropData(map);
    QVERIFY(map.empty());
}

void tst_ELementPropGUI::EditNeedsARow()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    user.Then([](QDialog& shown) {
        Click(shown, "pushButton__edit");
        Click(shown, "pushButton_Cancel");
    });
    manager.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>({NoSelection()}));
}

void tst_ELementPropGUI::EditNeedsARecord()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    Hold("A");
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    Store().Clear();
    manager.EditProperty();
    // A cell that is missing stands for the empty name.
    delete Table(manager).takeItem(0, 0);
    manager.EditProperty();
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>({NoRecord(), NoRecord()}));
    QCOMPARE(Headers(Table(manager)).constFirst(), "Property Name");
}

void tst_ELementPropGUI::EditShowsTheRecord()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    Hold("A", "Bronze");
    Hold("B", "Copper");
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    user.Then([&](QDialog& shown) {
        user.Then([&](QDialog& editor) {
            QCOMPARE(editor.parentWidget(), &manager);
            QCOMPARE(Find<QLineEdit>(editor, "lineEdit_PropName").text(), "A");
            QCOMPARE(Find<QLineEdit>(editor, "lineEdit_mat").text(), "Bronze");
            QCOMPARE(Find<QLineEdit>(editor, "lineEdit_thickness").text(), "2");
            editor.reject();
        });
        ClickRow(Table(shown), 0);
        Click(shown, "pushButton__edit");
        Click(shown, "pushButton_Cancel");
    });
    manager.exec();
    QVERIFY(user.IsDone());
}

void tst_ELementPropGUI::EditChangesTheRecordAndNumbersTheHeaders()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    const CQLTElemPropDef* const record = Hold("A");
    Hold("B");
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    Table(manager).setCurrentCell(0, 0);
    user.Then([](QDialog& editor) {
        Type(editor, "lineEdit_thickness", "7");
        Type(editor, "lineEdit_mat", "Bronze");
        Click(editor, "pushbu_OK");
    });
    manager.EditProperty();
    QVERIFY(user.IsDone());
    QCOMPARE(record->m_dThickness, 7.0);
    QCOMPARE(Store().GetProptyDataMap()["A"], record);
    QCOMPARE(Headers(Table(manager)), QStringList({"1", "2", "3"}));
    QCOMPARE(RowTexts(Table(manager), 0), QStringList({"A", "Shell", "Bronze"}));
    QCOMPARE(Table(manager).rowCount(), 2);
    QCOMPARE(SelectedRows(Table(manager)), QVector<int>({1}));
    // An edited property counts as none that was added.
    Properties added;
    manager.GetPropData(added);
    QVERIFY(added.empty());
}

void tst_ELementPropGUI::EditRenames()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    Hold("A");
    Hold("B");
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    Table(manager).setCurrentCell(0, 0);
    user.Then(Confirm("Z"));
    manager.EditProperty();
    QVERIFY(user.IsDone());
    QCOMPARE(StoredNames(), QStringList({"B", "Z"}));
    QCOMPARE(Names(Table(manager)), QStringList({"B", "Z"}));
}

void tst_ELementPropGUI::EditOntoAnotherNameWins()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    const CQLTElemPropDef* const edited = Hold("A", "Bronze");
    Hold("B");
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    Table(manager).setCurrentCell(0, 0);
    user.Then(Confirm("B"));
    manager.EditProperty();
    QCOMPARE(StoredNames(), QStringList({"B"}));
    QCOMPARE(Store().GetProptyDataMap()["B"], edited);
    QCOMPARE(RowTexts(Table(manager), 0), QStringList({"B", "Shell", "Bronze"}));
}

void tst_ELementPropGUI::EditCancelledKeepsHeadersAndRecord()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    const CQLTElemPropDef* const record = Hold("A");
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    user.Then([](QDialog& editor) {
        Type(editor, "lineEdit_PropName", "typed");
        Click(editor, "pubut_Cancel");
    });
    manager.EditProperty();
    QVERIFY(user.IsDone());
    QCOMPARE(record->m_strName, "A");
    QCOMPARE(Headers(Table(manager)).constFirst(), "Property Name");
    QCOMPARE(Names(Table(manager)), QStringList({"A"}));
}

void tst_ELementPropGUI::ARefusedEditThenCancelKeepsBothProperties()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteProperties({"A", "B"});
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    user.Then([&](QDialog& shown) {
        for (int row = 0; row < 2; ++row) {
            ClickRow(Table(shown), row);
            user.Then(BeRefusedAndCancel);
            Click(shown, "pushButton__edit");
        }
        QCOMPARE(Names(Table(shown)), QStringList({"A", "B"}));
        Click(shown, "pushButton_OK");
    });
    manager.exec();
    QVERIFY(user.IsDone());
    Store().Clear();
    QCOMPARE(Store().ReadXML(File), 0);
    QCOMPARE(StoredNames(), QStringList({"A", "B"}));
}

void tst_ELementPropGUI::DeleteNeedsARow()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    manager.DeleteProperty();
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
}

void tst_ELementPropGUI::DeleteAsksAndRemovesTheRow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QStringList>("left");
    QTest::addColumn<QVector<int>>("selected");
    QTest::newRow("the first") << 0 << QStringList({"B", "C"}) << QVector<int>();
    QTest::newRow("one between") << 1 << QStringList({"A", "C"}) << QVector<int>({0});
    QTest::newRow("the last") << 2 << QStringList({"A", "B"}) << QVector<int>({1});
}

void tst_ELementPropGUI::DeleteAsksAndRemovesTheRow()
{
    QFETCH(int, row);
    QFETCH(QStringList, left);
    QFETCH(QVector<int>, selected);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    for (const char* const name : {"A", "B", "C"})
        Hold(name);
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    user.Answer(QMessageBox::Yes);
    user.Then([&](QDialog& shown) {
        ClickRow(Table(shown), row);
        Click(shown, "pushButton_Delete");
        Click(shown, "pushButton_Cancel");
    });
    manager.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>({Question()}));
    QCOMPARE(Names(Table(manager)), left);
    QCOMPARE(SelectedRows(Table(manager)), selected);
    QCOMPARE(Table(manager).selectedItems().isEmpty(), selected.isEmpty());
    QCOMPARE(Table(manager).currentRow(), selected.value(0, -1));
    QCOMPARE(Headers(Table(manager)).constFirst(), "Property Name");
}

void tst_ELementPropGUI::TheQuestionHasNoDefaultButton()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    Hold("A");
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    user.WhileBoxOpen([](QMessageBox& box) { QVERIFY(box.defaultButton() == nullptr); });
    user.Answer(QMessageBox::No);
    manager.DeleteProperty();
    QVERIFY(user.IsDone());
}

void tst_ELementPropGUI::AnyOtherAnswerDeletesNothing_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("No") << int(QMessageBox::No);
    QTest::newRow("closed") << int(QMessageBox::Close);
}

void tst_ELementPropGUI::AnyOtherAnswerDeletesNothing()
{
    QFETCH(int, answer);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    Hold("A");
    Hold("B");
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    user.Answer(QMessageBox::StandardButton(answer));
    manager.DeleteProperty();
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>({Question()}));
    QCOMPARE(Names(Table(manager)), QStringList({"A", "B"}));
    QCOMPARE(SelectedRows(Table(manager)), QVector<int>({1}));
}

void tst_ELementPropGUI::DeleteOfAnEmptyNameIsRefused()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    Hold("A")->m_strName.clear();
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    user.Answer(QMessageBox::Yes);
    manager.DeleteProperty();
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(),
             QVector<ShownBox>({Question(), ShownBox::Notice("Warning", "Item is empty")}));
    QCOMPARE(Table(manager).rowCount(), 1);
}

void tst_ELementPropGUI::DeleteActsOnTheTableOnly()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    user.Then(Confirm("A"));
    manager.InsertProperty();
    user.Answer(QMessageBox::Yes);
    manager.DeleteProperty();
    QCOMPARE(Table(manager).rowCount(), 0);
    QCOMPARE(StoredNames(), QStringList({"A"}));
    Properties added;
    manager.GetPropData(added);
    QCOMPARE(added.count("A"), std::size_t(1));
    manager.on_OK_Button();
    Store().Clear();
    QCOMPARE(Store().ReadXML(File), 0);
    QCOMPARE(StoredNames(), QStringList({"A"}));
    manager.ShowProperty();
    QCOMPARE(Names(Table(manager)), QStringList({"A"}));
}

void tst_ELementPropGUI::ARowAddedAfterADeleteIsRefused()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    for (const char* const name : {"A", "B", "C"})
        Hold(name);
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    user.Answer(QMessageBox::Yes);
    manager.DeleteProperty();
    user.Then(Confirm("D"));
    manager.InsertProperty();
    QVERIFY(user.IsDone());
    QCOMPARE(Names(Table(manager)), QStringList({"A", "B"}));
    QCOMPARE(SelectedRows(Table(manager)), QVector<int>({1}));
    QCOMPARE(StoredNames(), QStringList({"A", "B", "C", "D"}));
    // A refill starts the counting anew.
    manager.ShowProperty();
    user.Then(Confirm("E"));
    manager.InsertProperty();
    QCOMPARE(Names(Table(manager)), QStringList({"A", "B", "C", "D", "E"}));
}

void tst_ELementPropGUI::ATableRefilledBehindTheQuestionKeepsItsRows()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    Hold("A");
    Hold("B");
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    user.WhileBoxOpen([&](QMessageBox&) { manager.ShowProperty(); });
    user.Answer(QMessageBox::Yes);
    manager.DeleteProperty();
    QVERIFY(user.IsDone());
    QCOMPARE(Names(Table(manager)), QStringList({"A", "B"}));
    QCOMPARE(SelectedRows(Table(manager)), QVector<int>({1}));
}

void tst_ELementPropGUI::OkWritesAndCancelDoesNot_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<bool>("written");
    QTest::newRow("OK") << "OK" << true;
    QTest::newRow("Cancel") << "Cancel" << false;
    QTest::newRow("Escape") << "Escape" << false;
    QTest::newRow("close") << "close" << false;
}

void tst_ELementPropGUI::OkWritesAndCancelDoesNot()
{
    QFETCH(QString, way);
    QFETCH(bool, written);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    Hold("A");
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    user.Then([&](QDialog& shown) {
        if (way == "OK")
            Click(shown, "pushButton_OK");
        else if (way == "Cancel")
            Click(shown, "pushButton_Cancel");
        else if (way == "Escape")
            QTest::keyClick(&Table(shown), Qt::Key_Escape);
        else
            shown.close();
    });
    const QSignalSpy finished(&manager, SIGNAL(finished(int)));
    const FileAtHiding file(manager);
    // Hidden, not accepted: the code says rejected in every case.
    QCOMPARE(manager.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QVERIFY(!manager.isVisible());
    QCOMPARE(finished.count(), way == "OK" || way == "Cancel" ? 0 : 1);
    QCOMPARE(file.WasThere(), written);
    QCOMPARE(StoredNames(), QStringList({"A"}));
}

void tst_ELementPropGUI::AFailedWriteIsSilent()
{
    const QString directory = EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    QVERIFY(QDir().mkpath(directory + "/ElementProperty.xml/inside"));
    Hold("A");
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    user.Then([](QDialog& shown) { Click(shown, "pushButton_OK"); });
    manager.exec();
    QVERIFY(user.IsDone());
    QVERIFY(!manager.isVisible());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
    QCOMPARE(StoredNames(), QStringList({"A"}));
}

void tst_ELementPropGUI::AddedPropertiesAreWrittenAndReadBack()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    ModalDriver user;
    {
        ELementPropGUI manager(nullptr);
        user.Then([](QDialog& editor) {
            Find<QLineEdit>(editor, "lineEdit_PropName").setText("板 <1>");
            Type(editor, "lineEdit_mat", "Bronze");
            Type(editor, "lineEdit_thickness", "0.1");
            Click(editor, "pushbu_OK");
        });
        manager.InsertProperty();
        manager.on_OK_Button();
    }
    Store().Clear();
    const ELementPropGUI manager(nullptr);
    QCOMPARE(RowTexts(Table(manager), 0), QStringList({"板 <1>", "Shell", "Bronze"}));
    const CQLTElemPropDef& record = *Store().GetProptyDataMap()["板 <1>"];
    QCOMPARE(record.m_dThickness, 0.1);
    QCOMPARE(record.m_nTypeCode, int(CQLTElemPropDef::ShellType));
}

void tst_ELementPropGUI::TheWholeChainRunsByClicks()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteMaterials("./SysMaterial.xml", {{"Glass", "7e10", "0.22", "2500"}});
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    user.Then([](QDialog& shown) {
        Click(shown, "pushButton_add");
        QCOMPARE(RowTexts(Table(shown), 0), QStringList({"Pane", "Shell", "Hard glass"}));
        Click(shown, "pushButton_OK");
    });
    user.Then([](QDialog& editor) {
        Type(editor, "lineEdit_PropName", "Pane");
        Type(editor, "lineEdit_thickness", "4");
        Click(editor, "pshbuton_Material");
        Click(editor, "pushbu_OK");
    });
    user.Then([](QDialog& library) {
        ClickRow(Find<QTableWidget>(library, "tableWidget"), 0);
        Click(library, "pushButton");
        Click(library, "pushButton_6");
    });
    user.Then([](QDialog& material) {
        QCOMPARE(Find<QLineEdit>(material, "lineEditName").text(), "Glass");
        Type(material, "lineEditName", "Hard glass");
        Click(material, "pushButton");
    });
    QCOMPARE(manager.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
    QVERIFY(QFile::exists(File));
    QCOMPARE(KVMaterialData::GetInstance()->GetMaterialNameList(),
             QStringList({"Glass", "Hard glass"}));
    KVMaterialData::GetInstance()->ClearInfo();
    QCOMPARE(KVMaterialData::GetInstance()->ReadXML("./UserMaterial.xml", MATERIAL_USER), 0);
    QCOMPARE(KVMaterialData::GetInstance()->GetMaterialInfo("Hard glass")->m_strPoisson, "0.22");
    QCOMPARE(manager.GetSelectedProp()->m_dThickness, 4.0);
}

void tst_ELementPropGUI::TabFollowsReadingOrder()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    Hold("A");
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    QCOMPARE(TabOrder(manager),
             QStringList({"tabwidget_Prop", "pushButton_add", "pushButton_Delete",
                          "pushButton__edit", "pushButton_OK", "pushButton_Cancel"}));
    user.Then([](QDialog& shown) {
        Table(shown).setFocus();
        QTest::keyClick(&Table(shown), Qt::Key_Tab);
        QCOMPARE(shown.focusWidget()->objectName(), "pushButton_add");
        shown.reject();
    });
    manager.exec();
    QVERIFY(user.IsDone());
}

void tst_ELementPropGUI::EnterPressesNothing_data()
{
    QTest::addColumn<QByteArray>("focus");
    for (const char* const name : {"tabwidget_Prop", "pushButton_add", "pushButton_Delete",
                                   "pushButton__edit", "pushButton_OK", "pushButton_Cancel"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_ELementPropGUI::EnterPressesNothing()
{
    QFETCH(QByteArray, focus);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    Hold("A");
    ModalDriver user;
    ELementPropGUI manager(nullptr);
    user.Then([&](QDialog& shown) {
        auto& widget = Find<QWidget>(shown, focus);
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_Return);
        QVERIFY(shown.isVisible());
        shown.done(7);
    });
    QCOMPARE(manager.exec(), 7);
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
}

void tst_ELementPropGUI::OpeningAndClosingKeepsTheHeap()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteProperties({"A", "B", "C"});
    const auto growth = HeapGrowth([] {
        ELementPropGUI manager(nullptr);
        QTimer::singleShot(0, &manager, &QDialog::reject);
        manager.exec();
    });
    QVERIFY2(growth < 50000, qPrintable(QString::number(growth)));
}

void tst_ELementPropGUI::TheHostMayDestroyTheManagerBehindTheEditor_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("Add") << QByteArray("pushButton_add");
    QTest::newRow("Edit") << QByteArray("pushButton__edit");
}

void tst_ELementPropGUI::TheHostMayDestroyTheManagerBehindTheEditor()
{
    QFETCH(QByteArray, button);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    Hold("A");
    auto* const manager = new ELementPropGUI(nullptr);
    ModalDriver user;
    user.Then([&](QDialog& shown) { Click(shown, button); });
    user.Then([manager](QDialog&) { delete manager; });
    QCOMPARE(manager->exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QCOMPARE(StoredNames(), QStringList({"A"}));
}

TARN_TEST_MAIN(tst_ELementPropGUI)
#include "tst_ELementPropGUI.moc"
