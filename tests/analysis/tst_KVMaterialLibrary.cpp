#include "DialogFacts.h"
#include "EmptyAnalysisStores.h"
#include "Heap.h"
#include "KVMaterialLibrary.h"
#include "MaterialTable.h"
#include "ModalDriver.h"
#include "TestCase.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTextEdit>
#include <QTimer>

// The form, and looking materials up. What changes materials is tested beside this.

namespace {

const char* const SystemFile = "./SysMaterial.xml";
const char* const UserFile = "./UserMaterial.xml";
const char* const Cyan = "selection-background-color:cyan";

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
    WriteMaterials(UserFile, {{"Bronze", "1e11", "0.34", "8800"}, {"steam", "1", "2", "3"}});
}

const QStringList AllNames = {"Bronze", "steam", "Glass", "Steel"};

void Search(const QWidget& library, const QString& key)
{
    Find<QTextEdit>(library, "textEdit").setPlainText(key);
}

} // namespace

class tst_KVMaterialLibrary : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormIsAsGiven_data();
    void TheFormIsAsGiven();
    void TheFormHoldsNothingElse();
    void TheTabIsTheOnlyOne();
    void TheRowsOfButtonsAreAsGiven();
    void TheWindowIsAsGiven();
    void TheWindowIconIsTheHostsFile();
    void TheFrameIsSunken();
    void TheTableIsSetUpAsGiven();
    void TheTextsBelongToTheForm();
    void TheClassHasItsSlots();
    void TheParentIsOptional();
    void OpeningReadsTheSystemFileOnly();
    void OpeningWithoutAFileShowsNothing();
    void ResetReadsBothFilesAnew();
    void ResetOfOneFileShowsIt_data();
    void ResetOfOneFileShowsIt();
    void ResetWithoutFilesKeepsTheRows();
    void EachOriginShowsItsOwnValues();
    void CellsAreReadOnlyAndToldInFull();
    void ThePreSelectionIsKept();
    void ResetSelectsByPosition_data();
    void ResetSelectsByPosition();
    void ARowFarDownIsInViewWhenTheDialogOpens();
    void ThePositionIsThatOfTheFullList();
    void TheBoxesFilter_data();
    void TheBoxesFilter();
    void AnotherTypeIsNeverShown();
    void SearchSelectsTheFirstThatBegins_data();
    void SearchSelectsTheFirstThatBegins();
    void EveryKeystrokeSearches();
    void TheButtonSearchesAgain();
    void TheStoreKnowsTheCurrentMaterial();
    void TheSelectedNameIsThatOfTheCurrentRow();
    void OkWritesAndAccepts();
    void LeavingWritesNothing_data();
    void LeavingWritesNothing();
    void WriteDataWritesTheUsersMaterials();
    void AFailedWriteIsSilent();
    void AFileThatWasNotReadIsKeptAsACopy_data();
    void AFileThatWasNotReadIsKeptAsACopy();
    void HelpDoesNothing();
    void TabFollowsReadingOrder();
    void EnterPressesNothing_data();
    void EnterPressesNothing();
    void ManyMaterialsAreAllShown();
    void OpeningAndClosingKeepsTheHeap();
};

void tst_KVMaterialLibrary::TheFormIsAsGiven_data()
{
    AddFormColumns();
    const auto row = [](const char* name, const char* type, const char* parent,
                        const QRect& geometry, const char* text, bool checked = false) {
        QTest::newRow(name) << type << parent << geometry << text << true << checked;
    };
    const char* const dialog = "KVMaterialLibrary";
    row("tabWidget_2", "QTabWidget", dialog, {10, 0, 681, 431}, "");
    row("tab_3", "QWidget", "qt_tabwidget_stackedwidget", {}, "");
    row("groupBox_3", "QGroupBox", "tab_3", {0, 0, 671, 71}, "Search Parameters");
    row("label_2", "QLabel", "groupBox_3", {10, 10, 121, 21}, "Search by Name");
    row("textEdit", "QTextEdit", "groupBox_3", {10, 30, 151, 21}, "");
    row("pushButton_7", "QPushButton", "groupBox_3", {180, 30, 101, 23}, "Search");
    row("checkBox_2", "QCheckBox", "groupBox_3", {360, 30, 161, 16}, "Show Project definition",
        true);
    row("checkBox_3", "QCheckBox", "groupBox_3", {530, 30, 131, 16}, "show all libraries", true);
    row("frame", "QFrame", "tab_3", {10, 80, 661, 271}, "");
    row("tableWidget", "QTableWidget", "frame", {10, 10, 641, 251}, "");
    row("layoutWidget", "QWidget", "tab_3", {10, 360, 661, 41}, "");
    row("pushButton", "QPushButton", "layoutWidget", {}, "View/Edit Material");
    row("pushButton_2", "QPushButton", "layoutWidget", {}, "Add Material");
    row("pushButton_3", "QPushButton", "layoutWidget", {}, "Clone Material");
    row("pushButton_4", "QPushButton", "layoutWidget", {}, "Remove Material");
    row("layoutWidget1", "QWidget", dialog, {10, 450, 671, 25}, "");
    row("pushButton_6", "QPushButton", "layoutWidget1", {}, "OK");
    row("pushButton_8", "QPushButton", "layoutWidget1", {}, "Cancel");
    row("pushButton_9", "QPushButton", "layoutWidget1", {}, "Help");
}

void tst_KVMaterialLibrary::TheFormIsAsGiven()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    const KVMaterialLibrary library;
    CompareFormRow(library);
}

void tst_KVMaterialLibrary::TheFormHoldsNothingElse()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    const KVMaterialLibrary library;
    // Two are the tab bar's own.
    QCOMPARE(FormWidgets(library).filter(QRegularExpression("^(?!Scroll)")).size(), 19);
    QCOMPARE(Find<QLabel>(library, "label_2").buddy()->objectName(), "textEdit");
}

void tst_KVMaterialLibrary::TheTabIsTheOnlyOne()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    const KVMaterialLibrary library;
    const auto& tabs = Find<QTabWidget>(library, "tabWidget_2");
    QCOMPARE(tabs.count(), 1);
    QCOMPARE(tabs.currentIndex(), 0);
    QCOMPARE(tabs.tabText(0), "Mechanical");
    QCOMPARE(tabs.widget(0)->objectName(), "tab_3");
}

void tst_KVMaterialLibrary::TheRowsOfButtonsAreAsGiven()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    const KVMaterialLibrary library;
    const auto names = [&](const char* widget, const char* layout) {
        const auto* const row = qobject_cast<QHBoxLayout*>(Find<QWidget>(library, widget).layout());
        QStringList found;
        if (row == nullptr || row->objectName() != layout || row->spacing() != 6 ||
            row->contentsMargins() != QMargins())
            return found;
        for (int i = 0; i < row->count(); ++i) {
            if (const QSpacerItem* const spacer = row->itemAt(i)->spacerItem())
                found << QStringLiteral("%1x%2")
                             .arg(spacer->sizeHint().width())
                             .arg(spacer->sizeHint().height());
            else
                found << row->itemAt(i)->widget()->objectName();
        }
        return found;
    };
    QCOMPARE(names("layoutWidget", "horizontalLayout"),
             QStringList({"pushButton", "pushButton_2", "pushButton_3", "pushButton_4"}));
    QCOMPARE(names("layoutWidget1", "horizontalLayout_2"),
             QStringList({"358x20", "pushButton_6", "pushButton_8", "pushButton_9"}));
}

void tst_KVMaterialLibrary::TheWindowIsAsGiven()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    const KVMaterialLibrary library;
    CompareWindow(library, "KVMaterialLibrary", "Material Library", QSize(708, 488));
}

void tst_KVMaterialLibrary::TheWindowIconIsTheHostsFile()
{
    const QDir directory(EnterTemporaryDirectory());
    const EmptyAnalysisStores stores;
    // Where the host ships no such file there is none.
    QVERIFY(KVMaterialLibrary().windowIcon().availableSizes().isEmpty());
    QVERIFY(directory.mkpath("Varnhollow/images"));
    QVERIFY(directory.mkpath("bin"));
    QImage image(24, 12, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(directory.filePath("Varnhollow/images/TopTitle.png")));
    QVERIFY(QDir::setCurrent(directory.filePath("bin")));
    const KVMaterialLibrary library;
    QCOMPARE(library.windowIcon().availableSizes(QIcon::Normal, QIcon::Off),
             QList<QSize>({QSize(24, 12)}));
}

void tst_KVMaterialLibrary::TheFrameIsSunken()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    const KVMaterialLibrary library;
    const auto& frame = Find<QFrame>(library, "frame");
    QCOMPARE(frame.frameShape(), QFrame::WinPanel);
    QCOMPARE(frame.frameShadow(), QFrame::Sunken);
    QCOMPARE(frame.lineWidth(), 2);
}

void tst_KVMaterialLibrary::TheTableIsSetUpAsGiven()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    const KVMaterialLibrary library;
    const QTableWidget& table = Table(library);
    QCOMPARE(table.columnCount(), 4);
    QStringList headers;
    for (int column = 0; column < 4; ++column) {
        headers << table.horizontalHeaderItem(column)->text();
        QCOMPARE(table.columnWidth(column), 150);
    }
    QCOMPARE(headers, QStringList({"Name", "Elastic Modulus", "Poisson", "Density"}));
    QCOMPARE(table.selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(table.horizontalHeader()->defaultSectionSize(), 150);
    QCOMPARE(table.editTriggers(), QAbstractItemView::NoEditTriggers);
    QCOMPARE(table.verticalScrollMode(), QAbstractItemView::ScrollPerItem);
    QVERIFY(table.verticalHeader()->isHidden());
}

void tst_KVMaterialLibrary::TheTextsBelongToTheForm()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    const TextRecorder recorder;
    const KVMaterialLibrary library;
    // The class and its form share their name, and so the context.
    QCOMPARE(recorder.TextsOf("KVMaterialLibrary"),
             QStringList({"Add Material", "Cancel", "Clone Material", "Density", "Elastic Modulus",
                          "Help", "Material Library", "Mechanical", "Name", "OK", "Poisson",
                          "Remove Material", "Search", "Search Parameters", "Search by Name",
                          "Show Project definition", "View/Edit Material", "show all libraries"}));
}

void tst_KVMaterialLibrary::TheClassHasItsSlots()
{
    const QMetaObject& meta = KVMaterialLibrary::staticMetaObject;
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QStringList methods;
    for (const char* const name :
         {"SearchValue()", "TextStrChanged()", "EditMaterial()", "InsertMaterial()",
          "ClonMaterial()", "RemoveMaterial()", "RecTableItemData()", "ShowProject(bool)",
          "ShowALL(bool)", "ShowMaterial()", "accept()", "reject()", "setCurrentMaterialName()"})
        methods << QStringLiteral("private slot ") + name;
    QCOMPARE(OwnMethods(meta), methods);
}

void tst_KVMaterialLibrary::TheParentIsOptional()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    QVERIFY(KVMaterialLibrary().parentWidget() == nullptr);
    QWidget window;
    QCOMPARE(KVMaterialLibrary(&window).parentWidget(), &window);
}

void tst_KVMaterialLibrary::OpeningReadsTheSystemFileOnly()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    const KVMaterialLibrary library;
    QCOMPARE(Names(Table(library)), QStringList({"Glass", "Steel"}));
    QCOMPARE(Store().GetMaterialNameList(), QStringList({"Glass", "Steel"}));
    QCOMPARE(library.GetComData(), QString());
    QCOMPARE(Table(library).currentRow(), -1);
}

void tst_KVMaterialLibrary::OpeningWithoutAFileShowsNothing()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteMaterials(UserFile, {{"Bronze", "1", "2", "3"}});
    // Held already, but the table is filled only when the file was read.
    Store().ReadXML(UserFile, MATERIAL_USER);
    ModalDriver user;
    const KVMaterialLibrary library;
    QCOMPARE(Table(library).rowCount(), 0);
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
}

void tst_KVMaterialLibrary::ResetReadsBothFilesAnew()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    KVMaterialLibrary library;
    auto* const unwritten = new KVMaterialInfo;
    unwritten->m_nType = MATERIAL_USER;
    unwritten->m_strName = "not written yet";
    Store().AddMaterialInfo(unwritten);
    library.Reset();
    QCOMPARE(Names(Table(library)), AllNames);
    QCOMPARE(Store().GetMaterialNameList(), AllNames);
    library.Reset();
    QCOMPARE(Names(Table(library)), AllNames);
}

void tst_KVMaterialLibrary::ResetOfOneFileShowsIt_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("the user's") << QByteArray(UserFile) << QStringList({"Bronze", "steam"});
    QTest::newRow("the system's") << QByteArray(SystemFile) << QStringList({"Glass", "Steel"});
}

void tst_KVMaterialLibrary::ResetOfOneFileShowsIt()
{
    QFETCH(QByteArray, file);
    QFETCH(QStringList, names);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    QVERIFY(QFile::remove(file == UserFile ? SystemFile : UserFile));
    KVMaterialLibrary library;
    library.Reset();
    QCOMPARE(Names(Table(library)), names);
}

void tst_KVMaterialLibrary::ResetWithoutFilesKeepsTheRows()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    KVMaterialLibrary library;
    QVERIFY(QFile::remove(UserFile));
    QVERIFY(QFile::remove(SystemFile));
    ModalDriver user;
    library.Reset();
    QCOMPARE(Names(Table(library)), QStringList({"Glass", "Steel"}));
    QCOMPARE(Store().MapDataRow(), 0);
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
}

void tst_KVMaterialLibrary::EachOriginShowsItsOwnValues()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
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

void tst_KVMaterialLibrary::CellsAreReadOnlyAndToldInFull()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    const QString name(200, 'n');
    WriteMaterials(UserFile, {{name, "1", "2", "3"}});
    KVMaterialLibrary library;
    library.Reset();
    library.show();
    QTableWidget& table = Table(library);
    ClickRow(table, 0);
    QTest::keyClick(&table, Qt::Key_F2);
    QTest::keyClick(&table, Qt::Key_X);
    QVERIFY(table.viewport()->findChildren<QWidget*>().isEmpty());
    QVERIFY(table.item(0, 0)->toolTip().contains(name));
    QCOMPARE(table.item(0, 0)->type(), int(QTableWidgetItem::Type));
}

void tst_KVMaterialLibrary::ThePreSelectionIsKept()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    KVMaterialLibrary library;
    library.SetComToItemData("Steel");
    QCOMPARE(library.GetComData(), "Steel");
    QCOMPARE(Table(library).currentRow(), -1);
}

void tst_KVMaterialLibrary::ResetSelectsByPosition_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("row");
    QTest::newRow("the first") << "Bronze" << 0;
    QTest::newRow("the last") << "Steel" << 3;
    QTest::newRow("unknown") << "Lead" << -1;
    QTest::newRow("another case") << "STEEL" << -1;
    QTest::newRow("empty") << "" << -1;
}

void tst_KVMaterialLibrary::ResetSelectsByPosition()
{
    QFETCH(QString, name);
    QFETCH(int, row);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    KVMaterialLibrary library;
    library.SetComToItemData(name);
    library.Reset();
    QCOMPARE(Table(library).currentRow(), row);
    QCOMPARE(SelectedRows(Table(library)), row < 0 ? QVector<int>() : QVector<int>({row}));
    QCOMPARE(library.selectedMaterialName(), row < 0 ? QString() : name);
    QCOMPARE(Table(library).styleSheet(), Cyan);
}

void tst_KVMaterialLibrary::ARowFarDownIsInViewWhenTheDialogOpens()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    QVector<QStringList> materials;
    for (int i = 0; i < 100; ++i)
        materials << QStringList({QStringLiteral("m%1").arg(i), "1", "2", "3"});
    WriteMaterials(UserFile, materials);
    ModalDriver user;
    KVMaterialLibrary library;
    library.SetComToItemData("m70");
    library.Reset();
    user.Then([](QDialog& shown) {
        QTableWidget& table = Table(shown);
        QVERIFY(table.viewport()->rect().contains(table.visualItemRect(table.item(70, 0))));
        shown.reject();
    });
    library.exec();
    QVERIFY(user.IsDone());
}

void tst_KVMaterialLibrary::ThePositionIsThatOfTheFullList()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteMaterials(SystemFile,
                   {{"G1", "1", "1", "1"}, {"G2", "1", "1", "1"}, {"G3", "1", "1", "1"}});
    WriteMaterials(UserFile, {{"U1", "1", "1", "1"}});
    KVMaterialLibrary library;
    library.show();
    Click(library, "checkBox_2");
    library.SetComToItemData("G1");
    library.Reset();
    // The second of all names, but the table lacks the first.
    QCOMPARE(Table(library).currentRow(), 1);
    QCOMPARE(library.selectedMaterialName(), "G2");
    library.SetComToItemData("G3");
    library.Reset();
    QCOMPARE(library.selectedMaterialName(), QString());
}

void tst_KVMaterialLibrary::TheBoxesFilter_data()
{
    QTest::addColumn<bool>("project");
    QTest::addColumn<bool>("libraries");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("both") << true << true << AllNames;
    QTest::newRow("project") << true << false << QStringList({"Bronze", "steam"});
    QTest::newRow("libraries") << false << true << QStringList({"Glass", "Steel"});
    QTest::newRow("none") << false << false << QStringList();
}

void tst_KVMaterialLibrary::TheBoxesFilter()
{
    QFETCH(bool, project);
    QFETCH(bool, libraries);
    QFETCH(QStringList, names);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    KVMaterialLibrary library;
    library.Reset();
    library.show();
    Table(library).selectRow(1);
    if (!project)
        Click(library, "checkBox_2");
    if (!libraries)
        Click(library, "checkBox_3");
    QCOMPARE(Names(Table(library)), names);
    if (project && libraries)
        return;
    // A refill selects nothing; the store keeps what was pointed at last.
    QCOMPARE(Table(library).currentRow(), -1);
    QCOMPARE(SelectedRows(Table(library)), QVector<int>());
    QCOMPARE(Store().CurrentMaterialName(), "steam");
    // A box that the host turns does not filter; only a click does.
    Find<QCheckBox>(library, "checkBox_2").setChecked(!project);
    QCOMPARE(Names(Table(library)), names);
}

void tst_KVMaterialLibrary::AnotherTypeIsNeverShown()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    KVMaterialLibrary library;
    library.Reset();
    Store().GetMaterialInfo("steam")->m_nType = 2;
    Store().GetMaterialInfo("Glass")->m_nType = -1;
    library.show();
    Click(library, "checkBox_2");
    Click(library, "checkBox_2");
    QCOMPARE(Names(Table(library)), QStringList({"Bronze", "Steel"}));
}

void tst_KVMaterialLibrary::SearchSelectsTheFirstThatBegins_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("row");
    // Row 2 is selected beforehand, so it stays where nothing is found.
    QTest::newRow("st") << "st" << 1;
    QTest::newRow("ST") << "ST" << 1;
    QTest::newRow("sT") << "sT" << 1;
    QTest::newRow("St") << "St" << 1;
    QTest::newRow("ste") << "ste" << 1;
    QTest::newRow("stee") << "stee" << 3;
    QTest::newRow("a whole name") << "STEEL" << 3;
    QTest::newRow("longer than all") << "Steel and more" << 2;
    QTest::newRow("not the beginning") << "teel" << 2;
    QTest::newRow("with a blank") << "steel " << 2;
    QTest::newRow("a second line") << "steel\n" << 2;
    QTest::newRow("nothing") << "" << 0;
}

void tst_KVMaterialLibrary::SearchSelectsTheFirstThatBegins()
{
    QFETCH(QString, key);
    QFETCH(int, row);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    KVMaterialLibrary library;
    library.Reset();
    library.show();
    Search(library, "#");
    ClickRow(Table(library), 2);
    Search(library, key);
    QCOMPARE(SelectedRows(Table(library)), QVector<int>({row}));
    QCOMPARE(Table(library).currentRow(), row);
    // The same again with the button.
    Click(library, "pushButton_7");
    QCOMPARE(Table(library).currentRow(), row);
}

void tst_KVMaterialLibrary::EveryKeystrokeSearches()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
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

void tst_KVMaterialLibrary::TheButtonSearchesAgain()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    KVMaterialLibrary library;
    library.Reset();
    library.show();
    Search(library, "g");
    ClickRow(Table(library), 0);
    Click(library, "pushButton_7");
    QCOMPARE(library.selectedMaterialName(), "Glass");
}

void tst_KVMaterialLibrary::TheStoreKnowsTheCurrentMaterial()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
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

void tst_KVMaterialLibrary::TheSelectedNameIsThatOfTheCurrentRow()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    KVMaterialLibrary library;
    library.Reset();
    QCOMPARE(library.selectedMaterialName(), QString());
    Table(library).setCurrentCell(2, 3);
    QCOMPARE(library.selectedMaterialName(), "Glass");
    delete Table(library).takeItem(2, 0);
    QCOMPARE(library.selectedMaterialName(), QString());
}

void tst_KVMaterialLibrary::OkWritesAndAccepts()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    QVERIFY(QFile::remove(UserFile));
    ModalDriver user;
    KVMaterialLibrary library;
    library.Reset();
    user.Then([](QDialog& shown) {
        ClickRow(Table(shown), 1);
        Click(shown, "pushButton_6");
    });
    bool isWritten = false;
    connect(&library, &QDialog::accepted, [&] { isWritten = QFile::exists(UserFile); });
    QCOMPARE(library.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    // The host may read the file as soon as the dialog tells of its end.
    QVERIFY(isWritten);
    QCOMPARE(library.selectedMaterialName(), "Steel");
}

void tst_KVMaterialLibrary::LeavingWritesNothing_data()
{
    QTest::addColumn<QString>("way");
    for (const char* const way : {"Cancel", "Escape", "close"})
        QTest::newRow(way) << way;
}

void tst_KVMaterialLibrary::LeavingWritesNothing()
{
    QFETCH(QString, way);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    ModalDriver user;
    KVMaterialLibrary library;
    library.Reset();
    user.Then([&](QDialog& shown) {
        if (way == "Cancel")
            Click(shown, "pushButton_8");
        else if (way == "Escape")
            QTest::keyClick(&Find<QTextEdit>(shown, "textEdit"), Qt::Key_Escape);
        else
            shown.close();
    });
    QCOMPARE(library.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QVERIFY(!QFile::exists(UserFile));
}

void tst_KVMaterialLibrary::WriteDataWritesTheUsersMaterials()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    KVMaterialLibrary library;
    library.Reset();
    QVERIFY(QFile::remove(UserFile));
    library.WriteData();
    Store().ClearInfo();
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Store().GetMaterialNameList(), QStringList({"Bronze", "steam"}));
}

void tst_KVMaterialLibrary::AFailedWriteIsSilent()
{
    const QDir directory(EnterTemporaryDirectory());
    const EmptyAnalysisStores stores;
    QVERIFY(directory.mkpath("UserMaterial.xml/inside"));
    ModalDriver user;
    KVMaterialLibrary library;
    user.Then([](QDialog& shown) { Click(shown, "pushButton_6"); });
    QCOMPARE(library.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
}

void tst_KVMaterialLibrary::AFileThatWasNotReadIsKeptAsACopy_data()
{
    QTest::addColumn<bool>("isReset");
    QTest::newRow("the constructor reads the system file only") << false;
    QTest::newRow("replaced while the dialog is open") << true;
}

void tst_KVMaterialLibrary::AFileThatWasNotReadIsKeptAsACopy()
{
    QFETCH(bool, isReset);
    const QDir directory(EnterTemporaryDirectory());
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    const QByteArray foreign = "<somebody else's file>";
    ModalDriver user;
    KVMaterialLibrary library;
    if (isReset)
        library.Reset();
    user.Then([&foreign](QDialog& shown) {
        QFile file(UserFile);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(foreign), qint64(foreign.size()));
        file.close();
        Click(shown, "pushButton_6");
    });
    QCOMPARE(library.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());

    const QStringList copies = directory.entryList({"UserMaterial.xml.*.bak"});
    QCOMPARE(copies.size(), 1);
    QFile copy(copies.first());
    QVERIFY(copy.open(QIODevice::ReadOnly));
    QCOMPARE(copy.readAll(), foreign);
    Store().ClearInfo();
    QCOMPARE(Store().ReadXML(UserFile, MATERIAL_USER), 0);
    QCOMPARE(Store().MapDataRow(), isReset ? 2 : 0);
}

void tst_KVMaterialLibrary::HelpDoesNothing()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    ModalDriver user;
    KVMaterialLibrary library;
    user.Then([](QDialog& shown) {
        Click(shown, "pushButton_9");
        QVERIFY(shown.isVisible());
        shown.done(7);
    });
    QCOMPARE(library.exec(), 7);
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
}

void tst_KVMaterialLibrary::TabFollowsReadingOrder()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    KVMaterialLibrary library;
    library.Reset();
    const QStringList order = {"textEdit",     "pushButton_7", "checkBox_2",   "checkBox_3",
                               "tableWidget",  "pushButton",   "pushButton_2", "pushButton_3",
                               "pushButton_4", "pushButton_6", "pushButton_8", "pushButton_9"};
    user.Then([&](QDialog& shown) {
        Find<QWidget>(shown, "textEdit").setFocus();
        QStringList names;
        for (int i = 0; i < order.size(); ++i) {
            names << shown.focusWidget()->objectName();
            QTest::keyClick(shown.focusWidget(), Qt::Key_Tab);
        }
        shown.reject();
        QCOMPARE(names, order);
    });
    library.exec();
    QVERIFY(user.IsDone());
}

void tst_KVMaterialLibrary::EnterPressesNothing_data()
{
    QTest::addColumn<QByteArray>("focus");
    for (const char* const name :
         {"textEdit", "tableWidget", "checkBox_2", "pushButton", "pushButton_2", "pushButton_3",
          "pushButton_4", "pushButton_6", "pushButton_7", "pushButton_8", "pushButton_9"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_KVMaterialLibrary::EnterPressesNothing()
{
    QFETCH(QByteArray, focus);
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    ModalDriver user;
    KVMaterialLibrary library;
    library.SetComToItemData("Steel");
    library.Reset();
    user.Then([&](QDialog& shown) {
        auto& widget = Find<QWidget>(shown, focus);
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_Return);
        QVERIFY(shown.isVisible());
        QCOMPARE(Names(Table(shown)), AllNames);
        shown.done(7);
    });
    QCOMPARE(library.exec(), 7);
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), QVector<ShownBox>());
}

void tst_KVMaterialLibrary::ManyMaterialsAreAllShown()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    QVector<QStringList> materials;
    for (int i = 0; i < 10000; ++i)
        materials << QStringList({QStringLiteral("m%1").arg(i), "1", "2", "3"});
    WriteMaterials(UserFile, materials);
    KVMaterialLibrary library;
    library.Reset();
    library.show();
    QCOMPARE(Table(library).rowCount(), 10000);
    Search(library, "M9999");
    QCOMPARE(library.selectedMaterialName(), "m9999");
    QVERIFY(Table(library).viewport()->rect().intersects(
        Table(library).visualItemRect(Table(library).item(9999, 0))));
}

void tst_KVMaterialLibrary::OpeningAndClosingKeepsTheHeap()
{
    EnterTemporaryDirectory();
    const EmptyAnalysisStores stores;
    WriteBothFiles();
    const auto growth = HeapGrowth([] {
        KVMaterialLibrary library;
        library.SetComToItemData("Steel");
        library.Reset();
        QTimer::singleShot(0, &library, &QDialog::reject);
        library.exec();
    });
    QVERIFY2(growth < 50000, qPrintable(QString::number(growth)));
}

TARN_TEST_MAIN(tst_KVMaterialLibrary)
#include "tst_KVMaterialLibrary.moc"
