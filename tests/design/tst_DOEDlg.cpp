#include "DOEDlg.h"
#include "DialogFacts.h"
#include "EmptyDesignStores.h"
#include "ModalDriver.h"
#include "TestCase.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>

// The window. What it computes stands in tst_DOEDlgRuns.

namespace {

using Boxes = QVector<ShownBox>;

enum Column
{
    NameColumn,
    StatusColumn,
    SetColumn
};

void AddParameters(const QStringList& names)
{
    for (const QString& name : names) {
        ParametersDef record;
        record.m_strName = name;
        GlobalParaMeterMgr::AddParameter(name, record);
    }
}

void AddRecord(const QString& name, int checked, const std::vector<double>& values)
{
    sParaArrayData& record = g_mapParaArrays[name];
    record.bChecked = checked;
    record.strName = name;
    record.vecValues = values;
}

QTableWidget& Parameters(const QWidget& dialog)
{
    return Find<QTableWidget>(dialog, "tableWidget_Parameters");
}

QTableWidget& Runs(const QWidget& dialog)
{
    return Find<QTableWidget>(dialog, "tableWidget_Final");
}

QCheckBox& Check(const QWidget& dialog, int row)
{
    return *qobject_cast<QCheckBox*>(Parameters(dialog).cellWidget(row, StatusColumn));
}

QPushButton& SetArray(const QWidget& dialog, int row)
{
    return *qobject_cast<QPushButton*>(Parameters(dialog).cellWidget(row, SetColumn));
}

void ClickCheck(const QWidget& dialog, int row)
{
    QCheckBox& check = Check(dialog, row);
    QTest::mouseClick(&check, Qt::LeftButton, {}, QPoint(5, check.height() / 2));
}

QStringList Names(const QWidget& dialog)
{
    QStringList names;
    for (int row = 0; row < Parameters(dialog).rowCount(); ++row)
        names << Parameters(dialog).item(row, NameColumn)->text();
    return names;
}

// Which rows are ticked, and which have their button enabled: "x" and "-".
QString Ticks(const QWidget& dialog)
{
    QString ticks;
    for (int row = 0; row < Parameters(dialog).rowCount(); ++row)
        ticks += Check(dialog, row).isChecked() ? 'x' : '-';
    return ticks;
}

QString EnabledButtons(const QWidget& dialog)
{
    QString enabled;
    for (int row = 0; row < Parameters(dialog).rowCount(); ++row)
        enabled += SetArray(dialog, row).isEnabled() ? 'x' : '-';
    return enabled;
}

QSize RunTableSize(const QWidget& dialog)
{
    return {Runs(dialog).columnCount(), Runs(dialog).rowCount()};
}

} // namespace

class tst_DOEDlg : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormHoldsItsWidgets_data();
    void TheFormHoldsItsWidgets();
    void TheWidgetsStandInTheirGrids_data();
    void TheWidgetsStandInTheirGrids();
    void TheSpacersStandInTheirGrids_data();
    void TheSpacersStandInTheirGrids();
    void TheWindowHasItsTitleAndSize();
    void EveryTextIsTranslatable();
    void TheFontIsSetOnTheTabs();
    void TheTabsStandInTheirOrder();
    void TheTablesHaveTheirHeaders();
    void TheParametersHeaderIsSet();
    void TabFollowsTheReadingOrder();
    void NoButtonIsPressedByEnter();
    void SignalAndSlotsStandInTheirOrder();
    void AParentIsTaken();

    void EveryParameterHasARow();
    void ARowHoldsItsWidgets();
    void NamesCannotBeEdited();
    void AnEmptyStoreLeavesTheTablesEmpty();
    void TicksAreShownByPosition();
    void TicksOutliveTheDialog();
    void ARegistryLargerThanTheTableStopsAtTheLastRow();
    void AnyNumberButZeroIsATick();

    void ATickEntersARecord();
    void ATickTakenBackLeavesTheRecord();
    void ATickRebuildsTheRunTable();
    void ATickWithoutSamplesEmptiesTheRunTable();
    void TheSpaceBarTicks();
    void ATickedParameterMayLeaveTheStore();
    void ANameWithoutItemIsEmpty();

    void SetArrayOpensTheSamplingDialog();
    void SetArrayDoesNotRebuildTheRunTable();
    void SetArrayOfANamelessParameterIsRefused();
    void SlotsWithoutASenderReturn_data();
    void SlotsWithoutASenderReturn();

    void AddAppendsAnEmptyRow();
    void AddWorksOnAnEmptyTable();
    void DeleteRemovesTheCurrentRow();
    void DeleteWithoutACurrentRowIsRefused();
    void TheNextBuildDiscardsAddedAndDeletedRows();
    void EnterInTheRunTablePressesNothing();
    void EscapeLeaves();
};

void tst_DOEDlg::TheFormHoldsItsWidgets_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("text");
    QTest::newRow("tabWidget") << "QTabWidget" << QString();
    QTest::newRow("tab_2") << "QWidget" << QString();
    QTest::newRow("tab_3") << "QWidget" << QString();
    QTest::newRow("tableWidget_Parameters") << "QTableWidget" << QString();
    QTest::newRow("tableWidget_Final") << "QTableWidget" << QString();
    QTest::newRow("tableWidget_Combine") << "QTableWidget" << QString();
    QTest::newRow("groupBox") << "QGroupBox" << QString();
    QTest::newRow("pushButton_Add") << "QPushButton"
                                    << "Add";
    QTest::newRow("pushButton_Delete") << "QPushButton"
                                       << "Delete";
    QTest::newRow("pushButton_RefreshData") << "QPushButton"
                                            << "Refresh Data";
    QTest::newRow("pushButton_GenGeo") << "QPushButton"
                                       << "Generate";
}

void tst_DOEDlg::TheFormHoldsItsWidgets()
{
    const EmptyDesignStores stores;
    QFETCH(QString, type);
    QFETCH(QString, text);
    const DOEDlg dialog(nullptr);
    const auto& widget = Find<QWidget>(dialog, QTest::currentDataTag());
    QCOMPARE(QString(widget.metaObject()->className()), type);
    const char* const property = type == "QGroupBox" ? "title" : "text";
    QCOMPARE(widget.property(property).toString(), text);
}

void tst_DOEDlg::TheWidgetsStandInTheirGrids_data()
{
    QTest::addColumn<QString>("grid");
    QTest::addColumn<QRect>("cells"); // column, row, columns, rows
    QTest::newRow("tabWidget") << "gridLayout" << QRect(0, 0, 1, 1);
    QTest::newRow("tableWidget_Parameters") << "gridLayout_4" << QRect(0, 0, 1, 1);
    QTest::newRow("groupBox") << "gridLayout_4" << QRect(1, 0, 3, 1);
    QTest::newRow("pushButton_RefreshData") << "gridLayout_4" << QRect(2, 1, 1, 1);
    QTest::newRow("pushButton_GenGeo") << "gridLayout_4" << QRect(3, 1, 1, 1);
    QTest::newRow("tableWidget_Final") << "gridLayout_2" << QRect(0, 0, 3, 1);
    QTest::newRow("pushButton_Add") << "gridLayout_2" << QRect(0, 1, 1, 1);
    QTest::newRow("pushButton_Delete") << "gridLayout_2" << QRect(1, 1, 1, 1);
    QTest::newRow("tableWidget_Combine") << "gridLayout_3" << QRect(0, 0, 1, 1);
}

void tst_DOEDlg::TheWidgetsStandInTheirGrids()
{
    const EmptyDesignStores stores;
    QFETCH(QString, grid);
    QFETCH(QRect, cells);
    const DOEDlg dialog(nullptr);
    auto& widget = Find<QWidget>(dialog, QTest::currentDataTag());
    const auto* const layout = qobject_cast<QGridLayout*>(widget.parentWidget()->layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->objectName(), grid);
    int row = 0;
    int column = 0;
    int rows = 0;
    int columns = 0;
    layout->getItemPosition(layout->indexOf(&widget), &row, &column, &rows, &columns);
    QCOMPARE(QRect(column, row, columns, rows), cells);
}

void tst_DOEDlg::TheSpacersStandInTheirGrids_data()
{
    QTest::addColumn<QString>("grid");
    QTest::addColumn<QPoint>("cell"); // column, row
    QTest::addColumn<QSize>("size");
    QTest::newRow("below the parameters") << "gridLayout_4" << QPoint(1, 1) << QSize(305, 20);
    QTest::newRow("below the runs") << "gridLayout_2" << QPoint(2, 1) << QSize(40, 20);
}

void tst_DOEDlg::TheSpacersStandInTheirGrids()
{
    const EmptyDesignStores stores;
    QFETCH(QString, grid);
    QFETCH(QPoint, cell);
    QFETCH(QSize, size);
    const DOEDlg dialog(nullptr);
    const auto* const layout = dialog.findChild<QGridLayout*>(grid);
    QLayoutItem* const item = layout->itemAtPosition(cell.y(), cell.x());
    QVERIFY(item != nullptr && item->spacerItem() != nullptr);
    QCOMPARE(item->sizeHint(), size);
    QCOMPARE(item->expandingDirections(), Qt::Horizontal);
}

void tst_DOEDlg::TheWindowHasItsTitleAndSize()
{
    const EmptyDesignStores stores;
    const DOEDlg dialog(nullptr);
    CompareWindow(dialog, "DOEDlg", "DOE Dialog", QSize(883, 595));
    QVERIFY(dialog.windowIcon().isNull());
}

void tst_DOEDlg::EveryTextIsTranslatable()
{
    const EmptyDesignStores stores;
    AddParameters({"a"});
    const TextRecorder recorder;
    ModalDriver user;
    const DOEDlg dialog(nullptr);
    Click(dialog, "pushButton_Delete");
    Click(dialog, "pushButton_GenGeo");
    Runs(dialog).setRowCount(1);
    Runs(dialog).setColumnCount(1);
    Runs(dialog).setCurrentCell(0, 0);
    Click(dialog, "pushButton_GenGeo");
    AddRecord("a", 1, std::vector<double>(DOEDlg::MaximumRuns + 1));
    Click(dialog, "pushButton_RefreshData");
    QCOMPARE(user.Boxes().size(), 4);
    QCOMPARE(recorder.TextsOf("DOEDlg"),
             QStringList({"Add", "Combine", "Combine Name", "DOE Dialog", "Delete", "Generate",
                          "Name", "Notify", "Number not equal", "Parameters", "Refresh Data",
                          "Result", "Select one row first", "Select one row first!", "Set",
                          "Set Array", "Status", "Too many runs", "Warning"}));
}

void tst_DOEDlg::TheFontIsSetOnTheTabs()
{
    const EmptyDesignStores stores;
    const DOEDlg dialog(nullptr);
    QCOMPARE(Find<QTabWidget>(dialog, "tabWidget").font().family(), QStringLiteral("微软雅黑"));
    QCOMPARE(dialog.font(), QApplication::font());
}

void tst_DOEDlg::TheTabsStandInTheirOrder()
{
    const EmptyDesignStores stores;
    const DOEDlg dialog(nullptr);
    const auto& tabs = Find<QTabWidget>(dialog, "tabWidget");
    QCOMPARE(tabs.count(), 3);
    QCOMPARE(tabs.currentIndex(), 0);
    QCOMPARE(tabs.tabText(0), QStringLiteral("Parameters"));
    QCOMPARE(tabs.tabText(1), QStringLiteral("Combine"));
    QCOMPARE(tabs.tabText(2), QStringLiteral("Result"));
    QCOMPARE(tabs.widget(1)->objectName(), QStringLiteral("tab_2"));
    QCOMPARE(tabs.widget(2)->objectName(), QStringLiteral("tab_3"));
    QVERIFY(tabs.widget(2)->findChildren<QWidget*>().isEmpty());
}

void tst_DOEDlg::TheTablesHaveTheirHeaders()
{
    const EmptyDesignStores stores;
    const DOEDlg dialog(nullptr);
    const QTableWidget& parameters = Parameters(dialog);
    QCOMPARE(parameters.columnCount(), 3);
    QCOMPARE(parameters.horizontalHeaderItem(NameColumn)->text(), QStringLiteral("Name"));
    QCOMPARE(parameters.horizontalHeaderItem(StatusColumn)->text(), QStringLiteral("Status"));
    QCOMPARE(parameters.horizontalHeaderItem(SetColumn)->text(), QStringLiteral("Set"));
    const auto& combine = Find<QTableWidget>(dialog, "tableWidget_Combine");
    QCOMPARE(combine.columnCount(), 1);
    QCOMPARE(combine.horizontalHeaderItem(0)->text(), QStringLiteral("Combine Name"));
    QCOMPARE(combine.rowCount(), 0);
    QCOMPARE(RunTableSize(dialog), QSize(0, 0));
}

void tst_DOEDlg::TheParametersHeaderIsSet()
{
    const EmptyDesignStores stores;
    const DOEDlg dialog(nullptr);
    const QHeaderView& header = *Parameters(dialog).horizontalHeader();
    QVERIFY(header.stretchLastSection());
    QCOMPARE(header.sectionSize(NameColumn), 70);
}

void tst_DOEDlg::TabFollowsTheReadingOrder()
{
    const EmptyDesignStores stores;
    DOEDlg dialog(nullptr);
    dialog.show();
    QCOMPARE(
        TabOrder(dialog),
        QStringList({"tabWidget", "tableWidget_Parameters", "tableWidget_Final", "pushButton_Add",
                     "pushButton_Delete", "pushButton_RefreshData", "pushButton_GenGeo"}));
}

void tst_DOEDlg::NoButtonIsPressedByEnter()
{
    const EmptyDesignStores stores;
    AddParameters({"a", "b"});
    DOEDlg dialog(nullptr);
    dialog.show();
    const auto buttons = dialog.findChildren<QPushButton*>();
    QCOMPARE(buttons.size(), 6);
    for (const QPushButton* const button : buttons)
        QVERIFY2(!button->autoDefault() && !button->isDefault(), qPrintable(button->text()));
}

void tst_DOEDlg::SignalAndSlotsStandInTheirOrder()
{
    const QMetaObject& meta = DOEDlg::staticMetaObject;
    QCOMPARE(meta.superClass(), &QDialog::staticMetaObject);
    QCOMPARE(
        OwnMethods(meta),
        QStringList({"public signal m_Signal_RegenerateGeo()", "private slot m_slot_ProcessCheck()",
                     "private slot m_slot_ProcessButton()", "private slot m_Slot_Add()",
                     "private slot m_Slot_Delete()", "private slot m_Refresh_Final_Table()",
                     "private slot m_Slot_UpdateGeoemtry()"}));
}

void tst_DOEDlg::AParentIsTaken()
{
    const EmptyDesignStores stores;
    QWidget parent;
    const DOEDlg dialog(&parent);
    QCOMPARE(dialog.parentWidget(), &parent);
    QVERIFY(dialog.isWindow());
}

void tst_DOEDlg::EveryParameterHasARow()
{
    const EmptyDesignStores stores;
    AddParameters({"width", "height", "长度", "a b"});
    const DOEDlg dialog(nullptr);
    QCOMPARE(Names(dialog), QStringList({"width", "height", "长度", "a b"}));
}

void tst_DOEDlg::ARowHoldsItsWidgets()
{
    const EmptyDesignStores stores;
    AddParameters({"a", "b", "c"});
    const DOEDlg dialog(nullptr);
    for (int row = 0; row < 3; ++row) {
        QCOMPARE(Check(dialog, row).text(), QString());
        QVERIFY(!Check(dialog, row).isChecked());
        QCOMPARE(Check(dialog, row).property("Line"), QVariant(row));
        QCOMPARE(SetArray(dialog, row).text(), QStringLiteral("Set Array"));
        QVERIFY(!SetArray(dialog, row).isEnabled());
        QCOMPARE(SetArray(dialog, row).property("Line"), QVariant(row));
    }
}

void tst_DOEDlg::NamesCannotBeEdited()
{
    const EmptyDesignStores stores;
    AddParameters({"a"});
    DOEDlg dialog(nullptr);
    dialog.show();
    QTableWidget& table = Parameters(dialog);
    QVERIFY((table.item(0, NameColumn)->flags() & Qt::ItemIsEditable) == 0);
    QVERIFY((table.item(0, NameColumn)->flags() & Qt::ItemIsSelectable) != 0);
    const QPoint place = table.visualItemRect(table.item(0, NameColumn)).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, place);
    QVERIFY(!table.isPersistentEditorOpen(table.item(0, NameColumn)));
    QVERIFY(table.findChildren<QLineEdit*>().isEmpty());
}

void tst_DOEDlg::AnEmptyStoreLeavesTheTablesEmpty()
{
    const EmptyDesignStores stores;
    AddRecord("a", 1, {});
    const DOEDlg dialog(nullptr);
    QCOMPARE(Names(dialog), QStringList());
    QCOMPARE(RunTableSize(dialog), QSize(0, 0));
}

void tst_DOEDlg::TicksAreShownByPosition()
{
    // The store's order is c, a, b: the first record, a, marks the row of c.
    const EmptyDesignStores stores;
    AddParameters({"c", "a", "b"});
    AddRecord("a", 1, {1});
    AddRecord("b", 0, {1});
    AddRecord("c", 1, {1});
    const DOEDlg dialog(nullptr);
    QCOMPARE(Ticks(dialog), QStringLiteral("x-x"));
    QCOMPARE(EnabledButtons(dialog), QStringLiteral("x-x"));
    QCOMPARE(Names(dialog), QStringList({"c", "a", "b"}));
    // Showing them changes no record.
    QCOMPARE(g_mapParaArrays.at("b").bChecked, 0);
    QCOMPARE(RunTableSize(dialog), QSize(2, 1));

    g_mapParaArrays.erase("a");
    DOEDlg other(nullptr);
    QCOMPARE(Ticks(other), QStringLiteral("-x-"));
    AddRecord("b", 1, {1});
    other.InitGUIData();
    QCOMPARE(Ticks(other), QStringLiteral("xx-"));
    QCOMPARE(EnabledButtons(other), QStringLiteral("xx-"));
}

void tst_DOEDlg::TicksOutliveTheDialog()
{
    const EmptyDesignStores stores;
    AddParameters({"a", "b"});
    AddRecord("a", 0, {1, 2});
    AddRecord("b", 0, {3});
    {
        const DOEDlg dialog(nullptr);
        ClickCheck(dialog, 0);
    }
    const DOEDlg dialog(nullptr);
    QCOMPARE(Ticks(dialog), QStringLiteral("x-"));
    QCOMPARE(RunTableSize(dialog), QSize(1, 2));
}

void tst_DOEDlg::ARegistryLargerThanTheTableStopsAtTheLastRow()
{
    const EmptyDesignStores stores;
    AddParameters({"b"});
    for (const char* const name : {"a", "b", "c", "d"})
        AddRecord(name, 1, {1, 2});
    const DOEDlg dialog(nullptr);
    QCOMPARE(Ticks(dialog), QStringLiteral("x"));
    // The records of parameters that are gone take part all the same.
    QCOMPARE(RunTableSize(dialog), QSize(4, 16));
}

void tst_DOEDlg::AnyNumberButZeroIsATick()
{
    const EmptyDesignStores stores;
    AddParameters({"a", "b", "c"});
    AddRecord("a", -1, {1, 2});
    AddRecord("b", 0, {1, 2});
    AddRecord("c", 2, {1, 2});
    const DOEDlg dialog(nullptr);
    QCOMPARE(Ticks(dialog), QStringLiteral("x-x"));
    QCOMPARE(RunTableSize(dialog), QSize(2, 4));
}

void tst_DOEDlg::ATickEntersARecord()
{
    const EmptyDesignStores stores;
    AddParameters({"a", "b"});
    const DOEDlg dialog(nullptr);
    QVERIFY(g_mapParaArrays.empty());
    ClickCheck(dialog, 1);
    QCOMPARE(Ticks(dialog), QStringLiteral("-x"));
    QCOMPARE(EnabledButtons(dialog), QStringLiteral("-x"));
    QCOMPARE(g_mapParaArrays.size(), std::size_t(1));
    QCOMPARE(g_mapParaArrays.at("b").bChecked, 1);
    QCOMPARE(g_mapParaArrays.at("b").strName, QString());
    QVERIFY(g_mapParaArrays.at("b").vecValues.empty());
}

void tst_DOEDlg::ATickTakenBackLeavesTheRecord()
{
    const EmptyDesignStores stores;
    AddParameters({"a"});
    AddRecord("a", 1, {1, 2});
    const DOEDlg dialog(nullptr);
    ClickCheck(dialog, 0);
    QCOMPARE(EnabledButtons(dialog), QStringLiteral("-"));
    QCOMPARE(g_mapParaArrays.at("a").bChecked, 0);
    QCOMPARE(g_mapParaArrays.at("a").vecValues, std::vector<double>({1, 2}));
}

void tst_DOEDlg::ATickRebuildsTheRunTable()
{
    const EmptyDesignStores stores;
    AddParameters({"a", "b"});
    AddRecord("a", 0, {1, 2});
    AddRecord("b", 0, {3, 4, 5});
    const DOEDlg dialog(nullptr);
    QCOMPARE(RunTableSize(dialog), QSize(0, 0));
    ClickCheck(dialog, 0);
    QCOMPARE(RunTableSize(dialog), QSize(1, 2));
    ClickCheck(dialog, 1);
    QCOMPARE(RunTableSize(dialog), QSize(2, 6));
    ClickCheck(dialog, 0);
    QCOMPARE(RunTableSize(dialog), QSize(1, 3));
    QCOMPARE(Runs(dialog).horizontalHeaderItem(0)->text(), QStringLiteral("b"));
    ClickCheck(dialog, 1);
    QCOMPARE(RunTableSize(dialog), QSize(0, 0));
}

void tst_DOEDlg::ATickWithoutSamplesEmptiesTheRunTable()
{
    const EmptyDesignStores stores;
    AddParameters({"a", "b"});
    AddRecord("a", 1, {1, 2});
    const DOEDlg dialog(nullptr);
    QCOMPARE(RunTableSize(dialog), QSize(1, 2));
    ClickCheck(dialog, 1);
    QCOMPARE(RunTableSize(dialog), QSize(0, 0));
    ClickCheck(dialog, 1);
    QCOMPARE(RunTableSize(dialog), QSize(1, 2));
}

void tst_DOEDlg::TheSpaceBarTicks()
{
    const EmptyDesignStores stores;
    AddParameters({"a"});
    const DOEDlg dialog(nullptr);
    QTest::keyClick(&Check(dialog, 0), Qt::Key_Space);
    QCOMPARE(g_mapParaArrays.at("a").bChecked, 1);
    QCOMPARE(EnabledButtons(dialog), QStringLiteral("x"));
}

void tst_DOEDlg::ATickedParameterMayLeaveTheStore()
{
    const EmptyDesignStores stores;
    AddParameters({"a", "b"});
    AddRecord("a", 1, {1, 2});
    const DOEDlg dialog(nullptr);
    GlobalParaMeterMgr::m_nameMapParameters.clear();
    ClickCheck(dialog, 1);
    ClickCheck(dialog, 1);
    ClickCheck(dialog, 0);
    QCOMPARE(g_mapParaArrays.at("a").bChecked, 0);
    QCOMPARE(g_mapParaArrays.at("b").bChecked, 0);
    QVERIFY(GlobalParaMeterMgr::m_nameMapParameters.empty());
    QCOMPARE(Names(dialog), QStringList({"a", "b"}));
}

void tst_DOEDlg::ANameWithoutItemIsEmpty()
{
    const EmptyDesignStores stores;
    AddParameters({"a"});
    const DOEDlg dialog(nullptr);
    delete Parameters(dialog).takeItem(0, NameColumn);
    ClickCheck(dialog, 0);
    QCOMPARE(g_mapParaArrays.size(), std::size_t(1));
    QCOMPARE(g_mapParaArrays.at("").bChecked, 1);
}

void tst_DOEDlg::SetArrayOpensTheSamplingDialog()
{
    const EmptyDesignStores stores;
    AddParameters({"b", "a"});
    ModalDriver user;
    DOEDlg dialog(nullptr);
    user.Then([&](QDialog& shown) {
        ClickCheck(shown, 1);
        user.Then([&](QDialog& sampling) {
            QCOMPARE(sampling.objectName(), QStringLiteral("OneParameterDlg"));
            QVERIFY(sampling.parentWidget() == nullptr);
            Type(sampling, "lineEdit_Max", "3");
            Click(sampling, "pushButton_OK");
        });
        QTest::mouseClick(&SetArray(shown, 1), Qt::LeftButton);
        QVERIFY(user.IsDone());
        QTest::mouseClick(&SetArray(shown, 0), Qt::LeftButton); // disabled: opens nothing
        shown.reject();
    });
    dialog.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(g_mapParaArrays.size(), std::size_t(1));
    QCOMPARE(g_mapParaArrays.at("a").strName, QStringLiteral("a"));
    QCOMPARE(g_mapParaArrays.at("a").vecValues, std::vector<double>({0, 1, 2, 3}));
}

void tst_DOEDlg::SetArrayDoesNotRebuildTheRunTable()
{
    const EmptyDesignStores stores;
    AddParameters({"a"});
    AddRecord("a", 1, {7});
    ModalDriver user;
    DOEDlg dialog(nullptr);
    user.Then([&](QDialog& shown) {
        user.Then([](QDialog& sampling) { Click(sampling, "pushButton_OK"); });
        QTest::mouseClick(&SetArray(shown, 0), Qt::LeftButton);
        QCOMPARE(g_mapParaArrays.at("a").vecValues, std::vector<double>({0, 1}));
        QCOMPARE(RunTableSize(shown), QSize(1, 1));
        QCOMPARE(Runs(shown).item(0, 0)->text(), QStringLiteral("7"));
        Click(shown, "pushButton_RefreshData");
        QCOMPARE(RunTableSize(shown), QSize(1, 2));
        shown.reject();
    });
    dialog.exec();
    QVERIFY(user.IsDone());
}

void tst_DOEDlg::SetArrayOfANamelessParameterIsRefused()
{
    const EmptyDesignStores stores;
    AddParameters({""});
    AddRecord("", 1, {});
    ModalDriver user;
    DOEDlg dialog(nullptr);
    user.Then([&](QDialog& shown) {
        user.Then([](QDialog& sampling) { sampling.reject(); });
        QTest::mouseClick(&SetArray(shown, 0), Qt::LeftButton);
        shown.reject();
    });
    dialog.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), Boxes({ShownBox::Notice("Error", "No parameter input")}));
}

void tst_DOEDlg::SlotsWithoutASenderReturn_data()
{
    QTest::addColumn<bool>("parameters");
    QTest::newRow("m_slot_ProcessCheck, empty table") << false;
    QTest::newRow("m_slot_ProcessCheck, parameters") << true;
    QTest::newRow("m_slot_ProcessButton, empty table") << false;
    QTest::newRow("m_slot_ProcessButton, parameters") << true;
}

void tst_DOEDlg::SlotsWithoutASenderReturn()
{
    const EmptyDesignStores stores;
    QFETCH(bool, parameters);
    if (parameters)
        AddParameters({"a"});
    ModalDriver user;
    DOEDlg dialog(nullptr);
    const QByteArray slot = QByteArray(QTest::currentDataTag()).split(',').constFirst();
    QVERIFY(QMetaObject::invokeMethod(&dialog, slot.constData()));
    QVERIFY(g_mapParaArrays.empty());
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), Boxes());
}

void tst_DOEDlg::AddAppendsAnEmptyRow()
{
    const EmptyDesignStores stores;
    AddRecord("a", 1, {1, 2});
    const DOEDlg dialog(nullptr);
    Runs(dialog).setCurrentCell(0, 0);
    Click(dialog, "pushButton_Add");
    QCOMPARE(RunTableSize(dialog), QSize(1, 3));
    QCOMPARE(Runs(dialog).item(1, 0)->text(), QStringLiteral("2"));
    QVERIFY(Runs(dialog).item(2, 0) == nullptr);
}

void tst_DOEDlg::AddWorksOnAnEmptyTable()
{
    const EmptyDesignStores stores;
    const DOEDlg dialog(nullptr);
    Click(dialog, "pushButton_Add");
    QCOMPARE(RunTableSize(dialog), QSize(0, 1));
}

void tst_DOEDlg::DeleteRemovesTheCurrentRow()
{
    const EmptyDesignStores stores;
    AddRecord("a", 1, {1, 2, 3});
    ModalDriver user;
    const DOEDlg dialog(nullptr);
    Runs(dialog).setCurrentCell(1, 0);
    Click(dialog, "pushButton_Delete");
    QCOMPARE(RunTableSize(dialog), QSize(1, 2));
    QCOMPARE(Runs(dialog).item(0, 0)->text(), QStringLiteral("1"));
    QCOMPARE(Runs(dialog).item(1, 0)->text(), QStringLiteral("3"));
    QCOMPARE(user.Boxes(), Boxes());
    QCOMPARE(g_mapParaArrays.at("a").vecValues.size(), std::size_t(3));
}

void tst_DOEDlg::DeleteWithoutACurrentRowIsRefused()
{
    const EmptyDesignStores stores;
    AddRecord("a", 1, {1, 2});
    ModalDriver user;
    const DOEDlg dialog(nullptr);
    Click(dialog, "pushButton_Delete");
    QCOMPARE(user.Boxes(), Boxes({ShownBox::Notice("Notify", "Select one row first!")}));
    QCOMPARE(RunTableSize(dialog), QSize(1, 2));
}

void tst_DOEDlg::TheNextBuildDiscardsAddedAndDeletedRows()
{
    const EmptyDesignStores stores;
    AddRecord("a", 1, {1, 2});
    const DOEDlg dialog(nullptr);
    Runs(dialog).setCurrentCell(0, 0);
    Click(dialog, "pushButton_Delete");
    Click(dialog, "pushButton_Add");
    Click(dialog, "pushButton_Add");
    Click(dialog, "pushButton_RefreshData");
    QCOMPARE(RunTableSize(dialog), QSize(1, 2));
    QCOMPARE(Runs(dialog).item(0, 0)->text(), QStringLiteral("1"));
    QCOMPARE(Runs(dialog).item(1, 0)->text(), QStringLiteral("2"));
}

void tst_DOEDlg::EnterInTheRunTablePressesNothing()
{
    const EmptyDesignStores stores;
    AddRecord("a", 1, {1, 2});
    ModalDriver user;
    DOEDlg dialog(nullptr);
    user.Then([](QDialog& shown) {
        Runs(shown).setFocus();
        QTest::keyClick(&Runs(shown), Qt::Key_Return);
        QTest::keyClick(&Parameters(shown), Qt::Key_Enter);
        QTest::keyClick(&shown, Qt::Key_Return);
        QVERIFY(shown.isVisible());
        QCOMPARE(RunTableSize(shown), QSize(1, 2));
        shown.reject();
    });
    dialog.exec();
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), Boxes());
}

void tst_DOEDlg::EscapeLeaves()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    DOEDlg dialog(nullptr);
    user.Then([](QDialog& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
}

TARN_TEST_MAIN(tst_DOEDlg)
#include "tst_DOEDlg.moc"
