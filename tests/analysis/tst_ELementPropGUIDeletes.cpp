#include "PropertyManager.h"

// "Delete".
class tst_ELementPropGUIDeletes : public With<DialogTest, TemporaryDirectory, EmptyAnalysisStores>
{
    Q_OBJECT

private Q_SLOTS:
    void DeleteNeedsARow();
    void DeleteAsksAndRemovesTheRow_data();
    void DeleteAsksAndRemovesTheRow();
    void TheQuestionHasNoDefaultButton();
    void AnyOtherAnswerDeletesNothing_data();
    void AnyOtherAnswerDeletesNothing();
    void DeleteOfAnEmptyNameIsRefused();
    void DeleteActsOnTheTableOnly();
    void ARowAddedAfterADeleteIsRefused();
    void ATableRefilledDuringTheQuestionKeepsItsRows();
};

void tst_ELementPropGUIDeletes::DeleteNeedsARow()
{
    ELementPropGUI manager(nullptr);
    manager.DeleteProperty();
}

void tst_ELementPropGUIDeletes::DeleteAsksAndRemovesTheRow_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QStringList>("left");
    QTest::addColumn<QVector<int>>("selected");
    NewRow("the first", 0, QStringList({"B", "C"}), QVector<int>());
    NewRow("one between", 1, QStringList({"A", "C"}), QVector<int>({0}));
    NewRow("the last", 2, QStringList({"A", "B"}), QVector<int>({1}));
}

void tst_ELementPropGUIDeletes::DeleteAsksAndRemovesTheRow()
{
    QFETCH(int, row);
    QFETCH(QStringList, left);
    QFETCH(QVector<int>, selected);
    HoldAll({"A", "B", "C"});
    ELementPropGUI manager(nullptr);
    User().Answer(QMessageBox::Yes);
    Then([&](QDialog& shown) {
        ClickRow(Table(shown), row);
        Click(shown, "pushButton_Delete");
        Click(shown, "pushButton_Cancel");
    });
    manager.exec();
    QCOMPARE(Boxes(), ShownBoxes({Question()}));
    QCOMPARE(ColumnTexts(Table(manager)), left);
    QCOMPARE(SelectedRows(Table(manager)), selected);
    QCOMPARE(Table(manager).selectedItems().isEmpty(), selected.isEmpty());
    QCOMPARE(Table(manager).currentRow(), selected.value(0, -1));
    QCOMPARE(HeaderTexts(Table(manager)).constFirst(), "Property Name");
}

void tst_ELementPropGUIDeletes::TheQuestionHasNoDefaultButton()
{
    Hold("A");
    ELementPropGUI manager(nullptr);
    User().WhileBoxOpen([](QMessageBox& box) { QVERIFY(box.defaultButton() == nullptr); });
    User().Answer(QMessageBox::No);
    manager.DeleteProperty();
}

void tst_ELementPropGUIDeletes::AnyOtherAnswerDeletesNothing_data()
{
    QTest::addColumn<int>("answer");
    NewRow("No", int(QMessageBox::No));
    NewRow("closed", int(QMessageBox::Close));
}

void tst_ELementPropGUIDeletes::AnyOtherAnswerDeletesNothing()
{
    QFETCH(int, answer);
    HoldAll({"A", "B"});
    ELementPropGUI manager(nullptr);
    User().Answer(QMessageBox::StandardButton(answer));
    manager.DeleteProperty();
    QCOMPARE(Boxes(), ShownBoxes({Question()}));
    QCOMPARE(ColumnTexts(Table(manager)), QStringList({"A", "B"}));
    QCOMPARE(SelectedRows(Table(manager)), QVector<int>({1}));
}

void tst_ELementPropGUIDeletes::DeleteOfAnEmptyNameIsRefused()
{
    Hold("A")->m_strName.clear();
    ELementPropGUI manager(nullptr);
    User().Answer(QMessageBox::Yes);
    manager.DeleteProperty();
    QCOMPARE(Boxes(), ShownBoxes({Question(), ShownBox::Notice("Warning", "Item is empty")}));
    QCOMPARE(Table(manager).rowCount(), 1);
}

void tst_ELementPropGUIDeletes::DeleteActsOnTheTableOnly()
{
    ELementPropGUI manager(nullptr);
    Then(Confirm("A"));
    manager.InsertProperty();
    User().Answer(QMessageBox::Yes);
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
    QCOMPARE(ColumnTexts(Table(manager)), QStringList({"A"}));
}

void tst_ELementPropGUIDeletes::ARowAddedAfterADeleteIsRefused()
{
    HoldAll({"A", "B", "C"});
    ELementPropGUI manager(nullptr);
    User().Answer(QMessageBox::Yes);
    manager.DeleteProperty();
    Then(Confirm("D"));
    manager.InsertProperty();
    QCOMPARE(ColumnTexts(Table(manager)), QStringList({"A", "B"}));
    QCOMPARE(SelectedRows(Table(manager)), QVector<int>({1}));
    QCOMPARE(StoredNames(), QStringList({"A", "B", "C", "D"}));
    // A refill resets the count.
    manager.ShowProperty();
    Then(Confirm("E"));
    manager.InsertProperty();
    QCOMPARE(ColumnTexts(Table(manager)), QStringList({"A", "B", "C", "D", "E"}));
}

void tst_ELementPropGUIDeletes::ATableRefilledDuringTheQuestionKeepsItsRows()
{
    HoldAll({"A", "B"});
    ELementPropGUI manager(nullptr);
    User().WhileBoxOpen([&](QMessageBox&) { manager.ShowProperty(); });
    User().Answer(QMessageBox::Yes);
    manager.DeleteProperty();
    QCOMPARE(ColumnTexts(Table(manager)), QStringList({"A", "B"}));
    QCOMPARE(SelectedRows(Table(manager)), QVector<int>({1}));
}

TARN_TEST_MAIN(tst_ELementPropGUIDeletes)
#include "tst_ELementPropGUIDeletes.moc"
