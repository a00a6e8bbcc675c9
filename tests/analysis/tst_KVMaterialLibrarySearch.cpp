#include "MaterialLibrary.h"

#include <QCheckBox>
#include <QTextEdit>

// Filtering, searching and selecting materials.

namespace {

const char* const Cyan = "selection-background-color:cyan";

void Search(const QWidget& library, const QString& key)
{
    Find<QTextEdit>(library, "textEdit").setPlainText(key);
}

} // namespace

class tst_KVMaterialLibrarySearch : public MaterialLibraryTest
{
    Q_OBJECT

private Q_SLOTS:
    void EachOriginShowsItsOwnValues();
    void ResetSelectsByPosition_data();
    void ResetSelectsByPosition();
    void ARowFarDownIsInViewWhenTheDialogOpens();
    void ResetSelectsByThePositionInTheFullList();
    void TheBoxesFilter_data();
    void TheBoxesFilter();
    void AnotherTypeIsNeverShown();
    void SearchSelectsTheFirstNameThatBeginsWithTheText_data();
    void SearchSelectsTheFirstNameThatBeginsWithTheText();
    void EveryKeystrokeSearches();
    void TheButtonSearchesAgain();
    void TheStoreKnowsTheCurrentMaterial();
    void TheSelectedNameIsThatOfTheCurrentRow();
    void ManyMaterialsAreAllShown();
};

void tst_KVMaterialLibrarySearch::EachOriginShowsItsOwnValues()
{
    KVMaterialLibrary library;
    library.Reset();
    // Values of the other origin are not shown.
    Store().GetMaterialInfo("Bronze")->m_strLibDensity = "wrong";
    Store().GetMaterialInfo("Glass")->m_strDensity = "wrong";
    library.show();
    Click(library, "checkBox_2");
    Click(library, "checkBox_2");
    QCOMPARE(RowTexts(Table(library), 0), QStringList({"Bronze", "1e11", "0.34", "8800"}));
    QCOMPARE(RowTexts(Table(library), 2), QStringList({"Glass", "7e10", "0.22", "2500"}));
}

void tst_KVMaterialLibrarySearch::ResetSelectsByPosition_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("row");
    NewRow("the first", "Bronze", 0);
    NewRow("the last", "Steel", 3);
    NewRow("unknown", "Lead", -1);
    NewRow("another case", "STEEL", -1);
    NewRow("empty", "", -1);
}

void tst_KVMaterialLibrarySearch::ResetSelectsByPosition()
{
    QFETCH(QString, name);
    QFETCH(int, row);
    KVMaterialLibrary library;
    library.SetComToItemData(name);
    library.Reset();
    QCOMPARE(Table(library).currentRow(), row);
    QCOMPARE(SelectedRows(Table(library)), row < 0 ? QVector<int>() : QVector<int>({row}));
    QCOMPARE(library.selectedMaterialName(), row < 0 ? QString() : name);
    QCOMPARE(Table(library).styleSheet(), Cyan);
}

void tst_KVMaterialLibrarySearch::ARowFarDownIsInViewWhenTheDialogOpens()
{
    QVector<QStringList> materials;
    for (int i = 0; i < 100; ++i)
        materials << QStringList({QStringLiteral("m%1").arg(i), "1", "2", "3"});
    WriteMaterials(UserFile, materials);
    KVMaterialLibrary library;
    library.SetComToItemData("m70");
    library.Reset();
    Then([](QDialog& shown) {
        QTableWidget& table = Table(shown);
        QVERIFY(table.viewport()->rect().contains(table.visualItemRect(table.item(70, 0))));
        shown.reject();
    });
    library.exec();
}

void tst_KVMaterialLibrarySearch::ResetSelectsByThePositionInTheFullList()
{
    WriteMaterials(SystemFile,
                   {{"G1", "1", "1", "1"}, {"G2", "1", "1", "1"}, {"G3", "1", "1", "1"}});
    WriteMaterials(UserFile, {{"U1", "1", "1", "1"}});
    KVMaterialLibrary library;
    library.show();
    Click(library, "checkBox_2");
    library.SetComToItemData("G1");
    library.Reset();
    // The second of all names, although the table lacks the first.
    QCOMPARE(Table(library).currentRow(), 1);
    QCOMPARE(library.selectedMaterialName(), "G2");
    library.SetComToItemData("G3");
    library.Reset();
    QCOMPARE(library.selectedMaterialName(), QString());
}

void tst_KVMaterialLibrarySearch::TheBoxesFilter_data()
{
    QTest::addColumn<bool>("project");
    QTest::addColumn<bool>("libraries");
    QTest::addColumn<QStringList>("names");
    NewRow("both", true, true, AllNames);
    NewRow("project", true, false, QStringList({"Bronze", "steam"}));
    NewRow("libraries", false, true, QStringList({"Glass", "Steel"}));
    NewRow("none", false, false, QStringList());
}

void tst_KVMaterialLibrarySearch::TheBoxesFilter()
{
    QFETCH(bool, project);
    QFETCH(bool, libraries);
    QFETCH(QStringList, names);
    KVMaterialLibrary library;
    library.Reset();
    library.show();
    Table(library).selectRow(1);
    if (!project)
        Click(library, "checkBox_2");
    if (!libraries)
        Click(library, "checkBox_3");
    QCOMPARE(ColumnTexts(Table(library)), names);
    if (project && libraries)
        return;
    // A refill selects nothing; the store keeps the last current name.
    QCOMPARE(Table(library).currentRow(), -1);
    QCOMPARE(SelectedRows(Table(library)), QVector<int>());
    QCOMPARE(Store().CurrentMaterialName(), "steam");
    // Setting a box from code does not filter; only a click does.
    Find<QCheckBox>(library, "checkBox_2").setChecked(!project);
    QCOMPARE(ColumnTexts(Table(library)), names);
}

void tst_KVMaterialLibrarySearch::AnotherTypeIsNeverShown()
{
    KVMaterialLibrary library;
    library.Reset();
    Store().GetMaterialInfo("steam")->m_nType = 2;
    Store().GetMaterialInfo("Glass")->m_nType = -1;
    library.show();
    Click(library, "checkBox_2");
    Click(library, "checkBox_2");
    QCOMPARE(ColumnTexts(Table(library)), QStringList({"Bronze", "Steel"}));
}

void tst_KVMaterialLibrarySearch::SearchSelectsTheFirstNameThatBeginsWithTheText_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("row");
    // Row 2 is pre-selected, so it stays selected if nothing is found.
    NewRow("st", "st", 1);
    NewRow("ST", "ST", 1);
    NewRow("sT", "sT", 1);
    NewRow("St", "St", 1);
    NewRow("ste", "ste", 1);
    NewRow("stee", "stee", 3);
    NewRow("a whole name", "STEEL", 3);
    NewRow("longer than all", "Steel and more", 2);
    NewRow("not the beginning", "teel", 2);
    NewRow("with a blank", "steel ", 2);
    NewRow("a second line", "steel\n", 2);
    NewRow("nothing", "", 0);
}

void tst_KVMaterialLibrarySearch::SearchSelectsTheFirstNameThatBeginsWithTheText()
{
    QFETCH(QString, key);
    QFETCH(int, row);
    KVMaterialLibrary library;
    library.Reset();
    library.show();
    Search(library, "#");
    ClickRow(Table(library), 2);
    Search(library, key);
    QCOMPARE(SelectedRows(Table(library)), QVector<int>({row}));
    QCOMPARE(Table(library).currentRow(), row);
    // The same with the button.
    Click(library, "pushButton_7");
    QCOMPARE(Table(library).currentRow(), row);
}

void tst_KVMaterialLibrarySearch::EveryKeystrokeSearches()
{
    KVMaterialLibrary library;
    library.Reset();
    library.show();
    auto& field = Find<QTextEdit>(library, "textEdit");
    QVector<int> rows;
    for (const char key : {'S', 't', 'e', 'e', 'x'}) {
        QTest::keyClick(&field, key, key == 'S' ? Qt::ShiftModifier : Qt::NoModifier);
        rows << SelectedRows(Table(library));
    }
    QCOMPARE(rows, QVector<int>({1, 1, 1, 3, 3}));
    QCOMPARE(Table(library).styleSheet(), Cyan);
}

void tst_KVMaterialLibrarySearch::TheButtonSearchesAgain()
{
    KVMaterialLibrary library;
    library.Reset();
    library.show();
    Search(library, "g");
    ClickRow(Table(library), 0);
    Click(library, "pushButton_7");
    QCOMPARE(library.selectedMaterialName(), "Glass");
}

void tst_KVMaterialLibrarySearch::TheStoreKnowsTheCurrentMaterial()
{
    KVMaterialLibrary library;
    library.SetComToItemData("Glass");
    library.Reset();
    QCOMPARE(Store().CurrentMaterialName(), "Glass");
    library.show();
    ClickRow(Table(library), 0);
    QCOMPARE(Store().CurrentMaterialName(), "Bronze");
    QTest::keyClick(&Table(library), Qt::Key_Down);
    QCOMPARE(Store().CurrentMaterialName(), "steam");
    Search(library, "Steel");
    QCOMPARE(Store().CurrentMaterialName(), "Steel");
}

void tst_KVMaterialLibrarySearch::TheSelectedNameIsThatOfTheCurrentRow()
{
    KVMaterialLibrary library;
    library.Reset();
    QCOMPARE(library.selectedMaterialName(), QString());
    Table(library).setCurrentCell(2, 3);
    QCOMPARE(library.selectedMaterialName(), "Glass");
    delete Table(library).takeItem(2, 0);
    QCOMPARE(library.selectedMaterialName(), QString());
}

void tst_KVMaterialLibrarySearch::ManyMaterialsAreAllShown()
{
    QVector<QStringList> materials;
    for (int i = 0; i < 10000; ++i)
        materials << QStringList({QStringLiteral("m%1").arg(i), "1", "2", "3"});
    WriteMaterials(UserFile, materials);
    KVMaterialLibrary library;
    library.Reset();
    library.show();
    QCOMPARE(Table(library).rowCount(), 10002);
    Search(library, "M9999");
    QCOMPARE(library.selectedMaterialName(), "m9999");
    QVERIFY(Table(library).viewport()->rect().intersects(
        Table(library).visualItemRect(Table(library).item(9999, 0))));
}

TARN_TEST_MAIN(tst_KVMaterialLibrarySearch)
#include "tst_KVMaterialLibrarySearch.moc"
