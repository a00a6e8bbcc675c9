#include "FormTest.h"
#include "PropertyManager.h"
#include "TextRecorder.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "ELementPropGUI";
    form.title = "ELement Property";
    form.size = {507, 284};
    form.lines = {
        "QTableWidget tabwidget_Prop in ELementPropGUI: ",
        "QPushButton pushButton_add in ELementPropGUI: Add",
        "QPushButton pushButton_Delete in ELementPropGUI: Delete",
        "QPushButton pushButton__edit in ELementPropGUI: Edit",
        "QPushButton pushButton_OK in ELementPropGUI: OK",
        "QPushButton pushButton_Cancel in ELementPropGUI: Cancel",
    };
    form.tabOrder = {"tabwidget_Prop",   "pushButton_add", "pushButton_Delete",
                     "pushButton__edit", "pushButton_OK",  "pushButton_Cancel"};
    form.methods = {"public slot LoadBuildinProperty()", "public slot ShowProperty()",
                    "public slot InsertProperty()",      "public slot EditProperty()",
                    "public slot DeleteProperty()",      "public slot on_OK_Button()",
                    "public slot on_Cancel_Button()"};
    return form;
}

/// Checks for the file when the dialog is hidden.
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

} // namespace

class tst_ELementPropGUI
    : public With<FormTest<ELementPropGUI>, TemporaryDirectory, EmptyAnalysisStores>
{
    Q_OBJECT

public:
    tst_ELementPropGUI()
        : With(Form())
    {
    }

private Q_SLOTS:
    void MessagesAreTranslatedInTheContextOfTheClass();
    void AnEmptyStoreGivesAnEmptyTable();
    void OpeningReadsTheFile();
    void OpeningKeepsTheRecordsInMemory();
    void AFileThatCannotBeReadIsIgnored_data();
    void AFileThatCannotBeReadIsIgnored();
    void RowsAreSortedByName();
    void TheNameIsTheRecordsAndNotTheKey();
    void TheLastRowIsSelectedOnCyan();
    void ToolTipsShowLongNamesInFull();
    void LoadingAgainLeavesTheTable();
    void ShowingAgainRefillsTheTable();
    void TheSelectedNameIsThatOfTheCurrentRow();
    void TheHostsMapIsReplaced();
    void OkWritesAndCancelDoesNot_data();
    void OkWritesAndCancelDoesNot();
    void AFailedWriteIsSilent();
    void TabLeavesTheTable();
    void TheTableHasItsHeaders();
    void TheWindowKeepsItsSizeWhenShown();

private:
    std::unique_ptr<QDialog> NewFilledDialog() const override;
};

std::unique_ptr<QDialog> tst_ELementPropGUI::NewFilledDialog() const
{
    if (!QFile::exists(File))
        WriteProperties({"A", "B", "C"});
    return NewDialog(nullptr);
}

void tst_ELementPropGUI::MessagesAreTranslatedInTheContextOfTheClass()
{
    ELementPropGUI manager(nullptr);
    const TextRecorder recorder;
    manager.EditProperty();
    Table(manager).setRowCount(1);
    Table(manager).setCurrentCell(0, 0);
    manager.EditProperty();
    User().Answer(QMessageBox::Yes);
    manager.DeleteProperty();
    QCOMPARE(Boxes().size(), 4);
    QCOMPARE(recorder.TextsOf("ELementPropGUI"),
             QStringList({"Current element property is null", "Item is empty",
                          "No Element Property is selected",
                          "This operation can't be undo, Confirm to delete current property?",
                          "Warning"}));
}

void tst_ELementPropGUI::AnEmptyStoreGivesAnEmptyTable()
{
    ELementPropGUI manager(nullptr);
    QCOMPARE(Table(manager).rowCount(), 0);
    QCOMPARE(Table(manager).styleSheet(), QString());
    QCOMPARE(manager.GetSelectedPropName(), QString());
    QVERIFY(manager.GetSelectedProp() == nullptr);
    Properties added;
    manager.GetPropData(added);
    // Asking for the selected property has added its empty name.
    QVERIFY((added == Properties{{QString(), nullptr}}));
}

void tst_ELementPropGUI::OpeningReadsTheFile()
{
    WriteProperties({"B", "A"});
    const ELementPropGUI manager(nullptr);
    QCOMPARE(RowTexts(Table(manager), 0), QStringList({"A", "Shell", "A material"}));
    QCOMPARE(RowTexts(Table(manager), 1), QStringList({"B", "Shell", "B material"}));
    QCOMPARE(Table(manager).rowCount(), 2);
    QCOMPARE(StoredNames(), QStringList({"A", "B"}));
}

void tst_ELementPropGUI::OpeningKeepsTheRecordsInMemory()
{
    WriteProperties({"A", "B"});
    CQLTElemPropDef* const held = Hold("A", "changed in memory");
    const ELementPropGUI manager(nullptr);
    QCOMPARE(RowTexts(Table(manager), 0), QStringList({"A", "Shell", "changed in memory"}));
    QCOMPARE(Store().GetProptyDataMap()["A"], held);
    QCOMPARE(ColumnTexts(Table(manager)), QStringList({"A", "B"}));
}

void tst_ELementPropGUI::AFileThatCannotBeReadIsIgnored_data()
{
    QTest::addColumn<QByteArray>("content");
    NewRow("missing", QByteArray());
    NewRow("no XML", QByteArray("properties"));
    NewRow("cut off", QByteArray("<ElementProperties version=\"1\"><Elem"));
}

void tst_ELementPropGUI::AFileThatCannotBeReadIsIgnored()
{
    QFETCH(QByteArray, content);
    if (!content.isEmpty()) {
        QFile file(File);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    Hold("A");
    const ELementPropGUI manager(nullptr);
    QCOMPARE(ColumnTexts(Table(manager)), QStringList({"A"}));
}

void tst_ELementPropGUI::RowsAreSortedByName()
{
    HoldAll({"b", "A", "10", "9", "板", "B"});
    const ELementPropGUI manager(nullptr);
    QCOMPARE(ColumnTexts(Table(manager)), QStringList({"10", "9", "A", "B", "b", "板"}));
}

void tst_ELementPropGUI::TheNameIsTheRecordsAndNotTheKey()
{
    Hold("A")->m_strName = "changed";
    const ELementPropGUI manager(nullptr);
    QCOMPARE(ColumnTexts(Table(manager)), QStringList({"changed"}));
}

void tst_ELementPropGUI::TheLastRowIsSelectedOnCyan()
{
    HoldAll({"A", "B", "C"});
    const ELementPropGUI manager(nullptr);
    QCOMPARE(Table(manager).currentRow(), 2);
    QCOMPARE(SelectedRows(Table(manager)), QVector<int>({2}));
    QCOMPARE(Table(manager).styleSheet(), "selection-background-color:cyan");
    QCOMPARE(manager.GetSelectedPropName(), "C");
}

void tst_ELementPropGUI::ToolTipsShowLongNamesInFull()
{
    const QString name(200, 'n');
    Hold(name, QString(200, 'm'));
    const ELementPropGUI manager(nullptr);
    QVERIFY(Table(manager).item(0, 0)->toolTip().contains(name));
    QVERIFY(Table(manager).item(0, 2)->toolTip().contains(QString(200, 'm')));
}

void tst_ELementPropGUI::LoadingAgainLeavesTheTable()
{
    ELementPropGUI manager(nullptr);
    WriteProperties({"A"});
    manager.LoadBuildinProperty();
    QCOMPARE(StoredNames(), QStringList({"A"}));
    QCOMPARE(Table(manager).rowCount(), 0);
}

void tst_ELementPropGUI::ShowingAgainRefillsTheTable()
{
    Hold("B");
    ELementPropGUI manager(nullptr);
    HoldAll({"A", "C"});
    manager.ShowProperty();
    manager.ShowProperty();
    QCOMPARE(ColumnTexts(Table(manager)), QStringList({"A", "B", "C"}));
    QCOMPARE(SelectedRows(Table(manager)), QVector<int>({2}));
}

void tst_ELementPropGUI::TheSelectedNameIsThatOfTheCurrentRow()
{
    HoldAll({"A", "B"});
    ELementPropGUI manager(nullptr);
    manager.show();
    ClickRow(Table(manager), 0);
    QCOMPARE(manager.GetSelectedPropName(), "A");
    delete Table(manager).takeItem(0, 0);
    QCOMPARE(manager.GetSelectedPropName(), QString());
}

void tst_ELementPropGUI::TheHostsMapIsReplaced()
{
    const ELementPropGUI manager(nullptr);
    CQLTElemPropDef mine;
    Properties map = {{"mine", &mine}};
    manager.GetPropData(map);
    QVERIFY(map.empty());
}

void tst_ELementPropGUI::OkWritesAndCancelDoesNot_data()
{
    QTest::addColumn<QString>("way");
    QTest::addColumn<bool>("written");
    NewRow("OK", "OK", true);
    NewRow("Cancel", "Cancel", false);
    NewRow("Escape", "Escape", false);
    NewRow("close", "close", false);
}

void tst_ELementPropGUI::OkWritesAndCancelDoesNot()
{
    QFETCH(QString, way);
    QFETCH(bool, written);
    Hold("A");
    ELementPropGUI manager(nullptr);
    Then([&](QDialog& shown) {
        if (way == "OK")
            Click(shown, "pushButton_OK");
        else
            Leave(shown, way, "pushButton_Cancel");
    });
    const QSignalSpy finished(&manager, SIGNAL(finished(int)));
    const FileAtHiding file(manager);
    // The dialog is hidden, not accepted: the result is always Rejected.
    QCOMPARE(manager.exec(), int(QDialog::Rejected));
    QVERIFY(!manager.isVisible());
    QCOMPARE(finished.count(), way == "OK" || way == "Cancel" ? 0 : 1);
    QCOMPARE(file.WasThere(), written);
    QCOMPARE(StoredNames(), QStringList({"A"}));
}

void tst_ELementPropGUI::AFailedWriteIsSilent()
{
    QVERIFY(QDir().mkpath("ElementProperty.xml/inside"));
    Hold("A");
    ELementPropGUI manager(nullptr);
    Then([](QDialog& shown) { Click(shown, "pushButton_OK"); });
    manager.exec();
    QVERIFY(!manager.isVisible());
    QCOMPARE(StoredNames(), QStringList({"A"}));
}

void tst_ELementPropGUI::TabLeavesTheTable()
{
    Hold("A");
    ELementPropGUI manager(nullptr);
    Then([](QDialog& shown) {
        Table(shown).setFocus();
        QTest::keyClick(&Table(shown), Qt::Key_Tab);
        QCOMPARE(shown.focusWidget()->objectName(), "pushButton_add");
        shown.reject();
    });
    manager.exec();
}

void tst_ELementPropGUI::TheTableHasItsHeaders()
{
    QCOMPARE(HeaderTexts(Table(ELementPropGUI(nullptr))),
             QStringList({"Property Name", "Type", "Material Name"}));
}

void tst_ELementPropGUI::TheWindowKeepsItsSizeWhenShown()
{
    ELementPropGUI manager(nullptr);
    manager.show();
    QCOMPARE(manager.size(), QSize(507, 284));
}

TARN_TEST_MAIN(tst_ELementPropGUI)
#include "tst_ELementPropGUI.moc"
