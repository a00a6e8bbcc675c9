#include "FormTest.h"
#include "MaterialLibrary.h"

#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QTabWidget>
#include <QTextEdit>

// The form, and what is read and written.

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "KVMaterialLibrary";
    form.title = "Material Library";
    form.size = {708, 488};
    form.lines = {
        "QTabWidget tabWidget_2 in KVMaterialLibrary at 10,0 681x431: ",
        "QWidget tab_3 in qt_tabwidget_stackedwidget: ",
        "QGroupBox groupBox_3 in tab_3 at 0,0 671x71: Search Parameters",
        "QLabel label_2 in groupBox_3 at 10,10 121x21: Search by Name, for textEdit",
        "QTextEdit textEdit in groupBox_3 at 10,30 151x21: ",
        "QPushButton pushButton_7 in groupBox_3 at 180,30 101x23: Search",
        "QCheckBox checkBox_2 in groupBox_3 at 360,30 161x16: Show Project definition, checked",
        "QCheckBox checkBox_3 in groupBox_3 at 530,30 131x16: show all libraries, checked",
        "QFrame frame in tab_3 at 10,80 661x271: ",
        "QTableWidget tableWidget in frame at 10,10 641x251: ",
        "QWidget layoutWidget in tab_3 at 10,360 661x41: ",
        "QPushButton pushButton in layoutWidget at horizontalLayout[0]: View/Edit Material",
        "QPushButton pushButton_2 in layoutWidget at horizontalLayout[1]: Add Material",
        "QPushButton pushButton_3 in layoutWidget at horizontalLayout[2]: Clone Material",
        "QPushButton pushButton_4 in layoutWidget at horizontalLayout[3]: Remove Material",
        "QWidget layoutWidget1 in KVMaterialLibrary at 10,450 671x25: ",
        "QPushButton pushButton_6 in layoutWidget1 at horizontalLayout_2[1]: OK",
        "QPushButton pushButton_8 in layoutWidget1 at horizontalLayout_2[2]: Cancel",
        "QPushButton pushButton_9 in layoutWidget1 at horizontalLayout_2[3]: Help",
        "QHBoxLayout horizontalLayout: spacing 6, margins 0 0 0 0",
        "QHBoxLayout horizontalLayout_2: spacing 6, margins 0 0 0 0",
        "QSpacerItem at horizontalLayout_2[0]: 358x20, horizontal",
    };
    form.tabOrder = {"tabWidget_2",  "textEdit",     "pushButton_7", "checkBox_2",   "checkBox_3",
                     "tableWidget",  "pushButton",   "pushButton_2", "pushButton_3", "pushButton_4",
                     "pushButton_6", "pushButton_8", "pushButton_9"};
    form.methods = {"private slot SearchValue()",
                    "private slot TextStrChanged()",
                    "private slot EditMaterial()",
                    "private slot InsertMaterial()",
                    "private slot ClonMaterial()",
                    "private slot RemoveMaterial()",
                    "private slot RecTableItemData()",
                    "private slot ShowProject(bool)",
                    "private slot ShowALL(bool)",
                    "private slot ShowMaterial()",
                    "private slot accept()",
                    "private slot reject()",
                    "private slot setCurrentMaterialName()"};
    form.hasIcon = true;
    return form;
}

} // namespace

class tst_KVMaterialLibrary
    : public With<FormTest<KVMaterialLibrary>, TemporaryDirectory, EmptyAnalysisStores>
{
    Q_OBJECT

public:
    tst_KVMaterialLibrary()
        : With(Form())
    {
    }

private Q_SLOTS:
    void TheTabIsTheOnlyOne();
    void TheWindowIconIsTheHostsFile();
    void TheFrameIsSunken();
    void TheTableIsSetUpAsDesigned();
    void OpeningReadsTheSystemFileOnly();
    void OpeningWithoutAFileShowsNothing();
    void ResetReadsBothFilesAgain();
    void ResetOfOneFileShowsIt_data();
    void ResetOfOneFileShowsIt();
    void ResetWithoutFilesKeepsTheRows();
    void CellsAreReadOnlyAndTheirToolTipsShowLongNames();
    void ThePreSelectionIsKept();
    void OkWritesAndAccepts();
    void LeavingWritesNothing_data();
    void LeavingWritesNothing();
    void WriteDataWritesTheUsersMaterials();
    void AFailedWriteIsSilent();
    void AFileThatWasNotReadIsKeptAsACopy_data();
    void AFileThatWasNotReadIsKeptAsACopy();
    void HelpDoesNothing();
    void TabKeysFollowTheReadingOrder();

private:
    std::unique_ptr<QDialog> NewFilledDialog() const override;
};

std::unique_ptr<QDialog> tst_KVMaterialLibrary::NewFilledDialog() const
{
    if (!QFile::exists(UserFile))
        WriteBothFiles();
    auto library = std::make_unique<KVMaterialLibrary>();
    library->SetComToItemData("Steel");
    library->Reset();
    return library;
}

void tst_KVMaterialLibrary::TheTabIsTheOnlyOne()
{
    const KVMaterialLibrary library;
    const auto& tabs = Find<QTabWidget>(library, "tabWidget_2");
    QCOMPARE(tabs.count(), 1);
    QCOMPARE(tabs.currentIndex(), 0);
    QCOMPARE(tabs.tabText(0), "Mechanical");
    QCOMPARE(tabs.widget(0)->objectName(), "tab_3");
}

void tst_KVMaterialLibrary::TheWindowIconIsTheHostsFile()
{
    const QDir directory = QDir::current();
    // Without the host's file there is no icon.
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
    const KVMaterialLibrary library;
    const auto& frame = Find<QFrame>(library, "frame");
    QCOMPARE(frame.frameShape(), QFrame::WinPanel);
    QCOMPARE(frame.frameShadow(), QFrame::Sunken);
    QCOMPARE(frame.lineWidth(), 2);
}

void tst_KVMaterialLibrary::TheTableIsSetUpAsDesigned()
{
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

void tst_KVMaterialLibrary::OpeningReadsTheSystemFileOnly()
{
    WriteBothFiles();
    const KVMaterialLibrary library;
    QCOMPARE(ColumnTexts(Table(library)), QStringList({"Glass", "Steel"}));
    QCOMPARE(Store().GetMaterialNameList(), QStringList({"Glass", "Steel"}));
    QCOMPARE(library.GetComData(), QString());
    QCOMPARE(Table(library).currentRow(), -1);
}

void tst_KVMaterialLibrary::OpeningWithoutAFileShowsNothing()
{
    WriteMaterials(UserFile, {{"Bronze", "1", "2", "3"}});
    // The store holds them, but the table is filled only if the file was read.
    Store().ReadXML(UserFile, MATERIAL_USER);
    const KVMaterialLibrary library;
    QCOMPARE(Table(library).rowCount(), 0);
}

void tst_KVMaterialLibrary::ResetReadsBothFilesAgain()
{
    WriteBothFiles();
    KVMaterialLibrary library;
    HoldMaterial("not written yet");
    library.Reset();
    QCOMPARE(ColumnTexts(Table(library)), AllNames);
    QCOMPARE(Store().GetMaterialNameList(), AllNames);
    library.Reset();
    QCOMPARE(ColumnTexts(Table(library)), AllNames);
}

void tst_KVMaterialLibrary::ResetOfOneFileShowsIt_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("names");
    NewRow("the user's", QByteArray(UserFile), QStringList({"Bronze", "steam"}));
    NewRow("the system's", QByteArray(SystemFile), QStringList({"Glass", "Steel"}));
}

void tst_KVMaterialLibrary::ResetOfOneFileShowsIt()
{
    QFETCH(QByteArray, file);
    QFETCH(QStringList, names);
    WriteBothFiles();
    QVERIFY(QFile::remove(file == UserFile ? SystemFile : UserFile));
    KVMaterialLibrary library;
    library.Reset();
    QCOMPARE(ColumnTexts(Table(library)), names);
}

void tst_KVMaterialLibrary::ResetWithoutFilesKeepsTheRows()
{
    WriteBothFiles();
    KVMaterialLibrary library;
    QVERIFY(QFile::remove(UserFile));
    QVERIFY(QFile::remove(SystemFile));
    library.Reset();
    QCOMPARE(ColumnTexts(Table(library)), QStringList({"Glass", "Steel"}));
    QCOMPARE(Store().MapDataRow(), 0);
}

void tst_KVMaterialLibrary::CellsAreReadOnlyAndTheirToolTipsShowLongNames()
{
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
    KVMaterialLibrary library;
    library.SetComToItemData("Steel");
    QCOMPARE(library.GetComData(), "Steel");
    QCOMPARE(Table(library).currentRow(), -1);
}

void tst_KVMaterialLibrary::OkWritesAndAccepts()
{
    WriteBothFiles();
    QVERIFY(QFile::remove(UserFile));
    KVMaterialLibrary library;
    library.Reset();
    Then([](QDialog& shown) {
        ClickRow(Table(shown), 1);
        Click(shown, "pushButton_6");
    });
    bool isWritten = false;
    connect(&library, &QDialog::accepted, [&] { isWritten = QFile::exists(UserFile); });
    QCOMPARE(library.exec(), int(QDialog::Accepted));
    // The host may read the file as soon as the dialog reports its end.
    QVERIFY(isWritten);
    QCOMPARE(library.selectedMaterialName(), "Steel");
}

void tst_KVMaterialLibrary::LeavingWritesNothing_data()
{
    AddWaysToLeave();
}

void tst_KVMaterialLibrary::LeavingWritesNothing()
{
    QFETCH(QString, way);
    KVMaterialLibrary library;
    library.Reset();
    Then([&](QDialog& shown) { Leave(shown, way, "pushButton_8"); });
    QCOMPARE(library.exec(), int(QDialog::Rejected));
    QVERIFY(!QFile::exists(UserFile));
}

void tst_KVMaterialLibrary::WriteDataWritesTheUsersMaterials()
{
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
    const QDir directory;
    QVERIFY(directory.mkpath("UserMaterial.xml/inside"));
    KVMaterialLibrary library;
    QCOMPARE(RunAndPress(library, "pushButton_6"), int(QDialog::Accepted));
}

void tst_KVMaterialLibrary::AFileThatWasNotReadIsKeptAsACopy_data()
{
    QTest::addColumn<bool>("isReset");
    NewRow("the constructor reads the system file only", false);
    NewRow("replaced while the dialog is open", true);
}

void tst_KVMaterialLibrary::AFileThatWasNotReadIsKeptAsACopy()
{
    QFETCH(bool, isReset);
    const QDir directory;
    WriteBothFiles();
    const QByteArray foreign = "<somebody else's file>";
    KVMaterialLibrary library;
    if (isReset)
        library.Reset();
    Then([&foreign](QDialog& shown) {
        QFile file(UserFile);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(foreign), qint64(foreign.size()));
        file.close();
        Click(shown, "pushButton_6");
    });
    QCOMPARE(library.exec(), int(QDialog::Accepted));

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
    KVMaterialLibrary library;
    Then([](QDialog& shown) {
        Click(shown, "pushButton_9");
        QVERIFY(shown.isVisible());
        shown.done(7);
    });
    QCOMPARE(library.exec(), 7);
}

void tst_KVMaterialLibrary::TabKeysFollowTheReadingOrder()
{
    WriteBothFiles();
    KVMaterialLibrary library;
    library.Reset();
    const QStringList order = {"textEdit",     "pushButton_7", "checkBox_2",   "checkBox_3",
                               "tableWidget",  "pushButton",   "pushButton_2", "pushButton_3",
                               "pushButton_4", "pushButton_6", "pushButton_8", "pushButton_9"};
    Then([&](QDialog& shown) {
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
}

TARN_TEST_MAIN(tst_KVMaterialLibrary)
#include "tst_KVMaterialLibrary.moc"
