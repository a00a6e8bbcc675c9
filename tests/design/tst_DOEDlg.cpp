#include "DOEDlgTables.h"
#include "FormDescription.h"
#include "FormTest.h"
#include "TextRecorder.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

// The window and its rows of parameters. tst_DOEDlgRuns tests the runs, tst_DOEDlgGenerate
// "Generate".

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "DOEDlg";
    form.title = "DOE Dialog";
    form.size = {883, 595};
    form.lines = {
        "QTabWidget tabWidget in DOEDlg at gridLayout[0,0]: ",
        "QWidget tab_3 in qt_tabwidget_stackedwidget: ",
        "QWidget tab_2 in qt_tabwidget_stackedwidget: ",
        "QTableWidget tableWidget_Combine in tab_2 at gridLayout_3[0,0]: ",
        "QWidget tab in qt_tabwidget_stackedwidget: ",
        "QTableWidget tableWidget_Parameters in tab at gridLayout_4[0,0]: ",
        "QGroupBox groupBox in tab at gridLayout_4[0,1 1x3]: ",
        "QTableWidget tableWidget_Final in groupBox at gridLayout_2[0,0 1x3]: ",
        "QPushButton pushButton_Add in groupBox at gridLayout_2[1,0]: Add",
        "QPushButton pushButton_Delete in groupBox at gridLayout_2[1,1]: Delete",
        "QPushButton pushButton_RefreshData in tab at gridLayout_4[1,2]: Refresh Data",
        "QPushButton pushButton_GenGeo in tab at gridLayout_4[1,3]: Generate",
        "QSpacerItem at gridLayout_4[1,1]: 305x20, horizontal",
        "QSpacerItem at gridLayout_2[1,2]: 40x20, horizontal",
    };
    form.tabOrder = {"tabWidget",        "tableWidget_Parameters", "tableWidget_Final",
                     "pushButton_Add",   "pushButton_Delete",      "pushButton_RefreshData",
                     "pushButton_GenGeo"};
    form.methods = {
        "public signal m_Signal_RegenerateGeo()", "private slot m_slot_ProcessCheck()",
        "private slot m_slot_ProcessButton()",    "private slot m_Slot_Add()",
        "private slot m_Slot_Delete()",           "private slot m_Refresh_Final_Table()",
        "private slot m_Slot_UpdateGeoemtry()"};
    return form;
}

enum Column
{
    NameColumn,
    StatusColumn,
    SetColumn
};

QCheckBox& Check(const QWidget& dialog, int row)
{
    return CellWidget<QCheckBox>(Parameters(dialog), row, StatusColumn);
}

QPushButton& SetArray(const QWidget& dialog, int row)
{
    return CellWidget<QPushButton>(Parameters(dialog), row, SetColumn);
}

void ClickCheck(const QWidget& dialog, int row)
{
    QCheckBox& check = Check(dialog, row);
    QTest::mouseClick(&check, Qt::LeftButton, {}, QPoint(5, check.height() / 2));
}

QStringList Names(const QWidget& dialog)
{
    return ColumnTexts(Parameters(dialog), NameColumn);
}

// The rows that are ticked and those with an enabled button, as "x" and "-".
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

} // namespace

class tst_DOEDlg : public With<FormTest<DOEDlg>, EmptyDesignStores>
{
    Q_OBJECT

public:
    tst_DOEDlg()
        : With(Form())
    {
    }

private Q_SLOTS:
    void MessagesAreTranslatedInTheContextOfTheClass();
    void TheFontIsSetOnTheTabs();
    void TheTabsAreInTheirOrder();
    void TheTablesHaveTheirHeaders();
    void TheParametersHeaderIsSet();
    void NoButtonIsPressedByEnter();

    void EveryParameterHasARow();
    void ARowHoldsItsWidgets();
    void NamesCannotBeEdited();
    void AnEmptyStoreLeavesTheTablesEmpty();
    void TicksAreShownByPosition();
    void TicksOutliveTheDialog();
    void ARegistryLargerThanTheTableStopsAtTheLastRow();
    void AnyNumberButZeroIsATick();

    void ATickEntersARecord();
    void RemovingATickKeepsTheRecord();
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
};

void tst_DOEDlg::MessagesAreTranslatedInTheContextOfTheClass()
{
    const QStringList formTexts = ShownTexts(*NewDialog(nullptr));
    AddParameters({"a"});
    const TextRecorder recorder;
    const DOEDlg dialog(nullptr);
    Click(dialog, "pushButton_Delete");
    Click(dialog, "pushButton_GenGeo");
    Runs(dialog).setRowCount(1);
    Runs(dialog).setColumnCount(1);
    Runs(dialog).setCurrentCell(0, 0);
    Click(dialog, "pushButton_GenGeo");
    AddRecord("a", 1, Values(DOEDlg::MaximumRuns + 1));
    Refresh(dialog);
    QCOMPARE(Boxes().size(), 4);
    QStringList texts = recorder.TextsOf("DOEDlg");
    for (const QString& text : formTexts)
        texts.removeAll(text);
    QCOMPARE(texts,
             QStringList({"Notify", "Number not equal", "Select one row first",
                          "Select one row first!", "Set Array", "Too many runs", "Warning"}));
}

void tst_DOEDlg::TheFontIsSetOnTheTabs()
{
    const DOEDlg dialog(nullptr);
    QCOMPARE(Find<QTabWidget>(dialog, "tabWidget").font().family(), QStringLiteral("微软雅黑"));
}

void tst_DOEDlg::TheTabsAreInTheirOrder()
{
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
    const DOEDlg dialog(nullptr);
    QCOMPARE(HeaderTexts(Parameters(dialog)), QStringList({"Name", "Status", "Set"}));
    const auto& combine = Find<QTableWidget>(dialog, "tableWidget_Combine");
    QCOMPARE(HeaderTexts(combine), QStringList({"Combine Name"}));
    QCOMPARE(combine.rowCount(), 0);
    QCOMPARE(RunTableSize(dialog), QSize(0, 0));
}

void tst_DOEDlg::TheParametersHeaderIsSet()
{
    const DOEDlg dialog(nullptr);
    const QHeaderView& header = *Parameters(dialog).horizontalHeader();
    QVERIFY(header.stretchLastSection());
    QCOMPARE(header.sectionSize(NameColumn), 70);
}

void tst_DOEDlg::NoButtonIsPressedByEnter()
{
    AddParameters({"a", "b"});
    DOEDlg dialog(nullptr);
    dialog.show();
    const auto buttons = dialog.findChildren<QPushButton*>();
    QCOMPARE(buttons.size(), 6);
    for (const QPushButton* const button : buttons)
        QVERIFY2(!button->autoDefault() && !button->isDefault(), qPrintable(button->text()));
}

void tst_DOEDlg::EveryParameterHasARow()
{
    AddParameters({"width", "height", "长度", "a b"});
    const DOEDlg dialog(nullptr);
    QCOMPARE(Names(dialog), QStringList({"width", "height", "长度", "a b"}));
}

void tst_DOEDlg::ARowHoldsItsWidgets()
{
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
    AddParameters({"a"});
    DOEDlg dialog(nullptr);
    dialog.show();
    QTableWidget& table = Parameters(dialog);
    QVERIFY((table.item(0, NameColumn)->flags() & Qt::ItemIsEditable) == 0);
    QVERIFY((table.item(0, NameColumn)->flags() & Qt::ItemIsSelectable) != 0);
    DoubleClickCell(table, 0, NameColumn);
    QVERIFY(!table.isPersistentEditorOpen(table.item(0, NameColumn)));
    QVERIFY(table.findChildren<QLineEdit*>().isEmpty());
}

void tst_DOEDlg::AnEmptyStoreLeavesTheTablesEmpty()
{
    AddRecord("a", 1, {});
    const DOEDlg dialog(nullptr);
    QCOMPARE(Names(dialog), QStringList());
    QCOMPARE(RunTableSize(dialog), QSize(0, 0));
}

void tst_DOEDlg::TicksAreShownByPosition()
{
    // The store's order is c, a, b: the first record, a, ticks the row of c.
    AddParameters({"c", "a", "b"});
    AddRecord("a", 1, {1});
    AddRecord("b", 0, {1});
    AddRecord("c", 1, {1});
    const DOEDlg dialog(nullptr);
    QCOMPARE(Ticks(dialog), QStringLiteral("x-x"));
    QCOMPARE(EnabledButtons(dialog), QStringLiteral("x-x"));
    QCOMPARE(Names(dialog), QStringList({"c", "a", "b"}));
    // Showing the ticks changes no record.
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
    AddParameters({"b"});
    for (const char* const name : {"a", "b", "c", "d"})
        AddRecord(name, 1, {1, 2});
    const DOEDlg dialog(nullptr);
    QCOMPARE(Ticks(dialog), QStringLiteral("x"));
    // Records of parameters that no longer exist still take part.
    QCOMPARE(RunTableSize(dialog), QSize(4, 16));
}

void tst_DOEDlg::AnyNumberButZeroIsATick()
{
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

void tst_DOEDlg::RemovingATickKeepsTheRecord()
{
    AddParameters({"a"});
    AddRecord("a", 1, {1, 2});
    const DOEDlg dialog(nullptr);
    ClickCheck(dialog, 0);
    QCOMPARE(EnabledButtons(dialog), QStringLiteral("-"));
    QCOMPARE(g_mapParaArrays.at("a").bChecked, 0);
    QCOMPARE(g_mapParaArrays.at("a").vecValues, Values({1, 2}));
}

void tst_DOEDlg::ATickRebuildsTheRunTable()
{
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
    AddParameters({"a"});
    const DOEDlg dialog(nullptr);
    QTest::keyClick(&Check(dialog, 0), Qt::Key_Space);
    QCOMPARE(g_mapParaArrays.at("a").bChecked, 1);
    QCOMPARE(EnabledButtons(dialog), QStringLiteral("x"));
}

void tst_DOEDlg::ATickedParameterMayLeaveTheStore()
{
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
    AddParameters({"a"});
    const DOEDlg dialog(nullptr);
    delete Parameters(dialog).takeItem(0, NameColumn);
    ClickCheck(dialog, 0);
    QCOMPARE(g_mapParaArrays.size(), std::size_t(1));
    QCOMPARE(g_mapParaArrays.at("").bChecked, 1);
}

void tst_DOEDlg::SetArrayOpensTheSamplingDialog()
{
    AddParameters({"b", "a"});
    DOEDlg dialog(nullptr);
    Then([&](QDialog& shown) {
        ClickCheck(shown, 1);
        Then([&](QDialog& sampling) {
            QCOMPARE(sampling.objectName(), QStringLiteral("OneParameterDlg"));
            QVERIFY(sampling.parentWidget() == nullptr);
            Type(sampling, "lineEdit_Max", "3");
            Click(sampling, "pushButton_OK");
        });
        QTest::mouseClick(&SetArray(shown, 1), Qt::LeftButton);
        QTest::mouseClick(&SetArray(shown, 0), Qt::LeftButton); // Disabled, so it opens nothing.
        shown.reject();
    });
    dialog.exec();
    QCOMPARE(g_mapParaArrays.size(), std::size_t(1));
    QCOMPARE(g_mapParaArrays.at("a").strName, QStringLiteral("a"));
    QCOMPARE(g_mapParaArrays.at("a").vecValues, Values({0, 1, 2, 3}));
}

void tst_DOEDlg::SetArrayDoesNotRebuildTheRunTable()
{
    AddParameters({"a"});
    AddRecord("a", 1, {7});
    DOEDlg dialog(nullptr);
    Then([&](QDialog& shown) {
        Then([](QDialog& sampling) { Click(sampling, "pushButton_OK"); });
        QTest::mouseClick(&SetArray(shown, 0), Qt::LeftButton);
        QCOMPARE(g_mapParaArrays.at("a").vecValues, Values({0, 1}));
        QCOMPARE(RunTableSize(shown), QSize(1, 1));
        QCOMPARE(Runs(shown).item(0, 0)->text(), QStringLiteral("7"));
        Refresh(shown);
        QCOMPARE(RunTableSize(shown), QSize(1, 2));
        shown.reject();
    });
    dialog.exec();
}

void tst_DOEDlg::SetArrayOfANamelessParameterIsRefused()
{
    AddParameters({""});
    AddRecord("", 1, {});
    DOEDlg dialog(nullptr);
    Then([&](QDialog& shown) {
        Then([](QDialog& sampling) { sampling.reject(); });
        QTest::mouseClick(&SetArray(shown, 0), Qt::LeftButton);
        shown.reject();
    });
    dialog.exec();
    QCOMPARE(Boxes(), ShownBoxes({ShownBox::Notice("Error", "No parameter input")}));
}

void tst_DOEDlg::SlotsWithoutASenderReturn_data()
{
    QTest::addColumn<bool>("parameters");
    NewRow("m_slot_ProcessCheck, empty table", false);
    NewRow("m_slot_ProcessCheck, parameters", true);
    NewRow("m_slot_ProcessButton, empty table", false);
    NewRow("m_slot_ProcessButton, parameters", true);
}

void tst_DOEDlg::SlotsWithoutASenderReturn()
{
    QFETCH(bool, parameters);
    if (parameters)
        AddParameters({"a"});
    DOEDlg dialog(nullptr);
    const QByteArray slot = QByteArray(QTest::currentDataTag()).split(',').constFirst();
    QVERIFY(QMetaObject::invokeMethod(&dialog, slot.constData()));
    QVERIFY(g_mapParaArrays.empty());
}

TARN_TEST_MAIN(tst_DOEDlg)
#include "tst_DOEDlg.moc"
