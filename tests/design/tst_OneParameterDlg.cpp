#include "DialogFacts.h"
#include "OneParameterDlgTable.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

// The window and what OK stores. The samples stand in tst_OneParameterDlgSamples.

namespace {

const ShownBox NoRow = ShownBox::Notice("Notify", "Select one row first!");

using Values = std::vector<double>;

} // namespace

class tst_OneParameterDlg : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheFormHoldsItsWidgets_data();
    void TheFormHoldsItsWidgets();
    void TheWindowHasItsTitleAndFont();
    void TheGroupsStandInTheirGrid_data();
    void TheGroupsStandInTheirGrid();
    void TheTypesStandOneAboveTheOther();
    void TheFieldsHaveNoValidators();
    void TheLabelsHaveTheirFieldsAsBuddies();
    void TabFollowsTheReadingOrder();
    void NoButtonIsPressedByEnter();
    void TheSlotsStandInTheirOrder();
    void EveryTextIsTranslatable();

    void AnEmptyNameIsRefused();
    void TheDialogOfAnEmptyNameIsInert();
    void ANewParameterOpensWithTheDefaults();
    void TheEntryIsMadeByTheOpeningAlone_data();
    void TheEntryIsMadeByTheOpeningAlone();
    void TheStoredRangeIsShownWithSixDigits();
    void TheStoredTypeIsChecked_data();
    void TheStoredTypeIsChecked();
    void StoredValuesAreNotShownAgain();

    void AddAppendsAnEmptyRow();
    void DeleteRemovesTheCurrentRow();
    void DeleteWithoutACurrentRowIsRefused();

    void OkStoresTheRecord();
    void TheNextOkReplacesTheSamples();
    void OkChecksNothing_data();
    void OkChecksNothing();
    void OkStoresEditedRows();
    void ARowWithoutItemCountsAsZero();
    void OkStoresTheRowsAsShown();
    void OkOfGaussStoresTheRowsThatAreThere();
    void CancelLeavesTheRegistryAlone_data();
    void CancelLeavesTheRegistryAlone();
    void TheHostMayChangeTheRegistryBehindABox();
    void TheHostMayDestroyTheDialogBehindABox_data();
    void TheHostMayDestroyTheDialogBehindABox();
};

void tst_OneParameterDlg::TheFormHoldsItsWidgets_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("parent");
    QTest::addColumn<QString>("text");
    QTest::newRow("groupBox") << "QGroupBox"
                              << "OneParameterDlg"
                              << "Type";
    QTest::newRow("groupBox_2") << "QGroupBox"
                                << "OneParameterDlg"
                                << "Range";
    QTest::newRow("groupBox_3") << "QGroupBox"
                                << "OneParameterDlg"
                                << "Table";
    QTest::newRow("radioButton_Log") << "QRadioButton"
                                     << "groupBox"
                                     << "Log10";
    QTest::newRow("radioButton_Linear") << "QRadioButton"
                                        << "groupBox"
                                        << "Linear";
    QTest::newRow("radioButton_Ln") << "QRadioButton"
                                    << "groupBox"
                                    << "Ln";
    QTest::newRow("radioButton_Gauss") << "QRadioButton"
                                       << "groupBox"
                                       << "Gauss";
    QTest::newRow("label") << "QLabel"
                           << "groupBox_2"
                           << "Min";
    QTest::newRow("label_2") << "QLabel"
                             << "groupBox_2"
                             << "Max";
    QTest::newRow("label_3") << "QLabel"
                             << "groupBox_2"
                             << "Delta";
    QTest::newRow("lineEdit_Min") << "QLineEdit"
                                  << "groupBox_2"
                                  << "0";
    QTest::newRow("lineEdit_Max") << "QLineEdit"
                                  << "groupBox_2"
                                  << "1";
    QTest::newRow("lineEdit_Deta") << "QLineEdit"
                                   << "groupBox_2"
                                   << "1";
    QTest::newRow("pushButton_Add") << "QPushButton"
                                    << "groupBox_3"
                                    << "Add";
    QTest::newRow("pushButton_Delete") << "QPushButton"
                                       << "groupBox_3"
                                       << "Delete";
    QTest::newRow("pushButton_OK") << "QPushButton"
                                   << "OneParameterDlg"
                                   << "OK";
    QTest::newRow("pushButton_Cancel") << "QPushButton"
                                       << "OneParameterDlg"
                                       << "Cancel";
}

void tst_OneParameterDlg::TheFormHoldsItsWidgets()
{
    const EmptyDesignStores stores;
    QFETCH(QString, type);
    QFETCH(QString, parent);
    QFETCH(QString, text);
    const OneParameterDlg dialog(nullptr, "a");
    const auto& widget = Find<QWidget>(dialog, QTest::currentDataTag());
    QCOMPARE(QString(widget.metaObject()->className()), type);
    QCOMPARE(widget.parentWidget()->objectName(), parent);
    const char* const property = type == "QGroupBox" ? "title" : "text";
    QCOMPARE(widget.property(property).toString(), text);
}

void tst_OneParameterDlg::TheWindowHasItsTitleAndFont()
{
    const EmptyDesignStores stores;
    QWidget parent;
    const OneParameterDlg dialog(&parent, "a");
    QCOMPARE(dialog.objectName(), QStringLiteral("OneParameterDlg"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("OneParameterDlg"));
    QCOMPARE(dialog.font().family(), QStringLiteral("微软雅黑"));
    QCOMPARE(dialog.font().pointSize(), QApplication::font().pointSize());
    QCOMPARE(dialog.parentWidget(), &parent);
    QVERIFY(!dialog.isModal());
    QVERIFY(!dialog.testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(Table(dialog).columnCount(), 1);
    QCOMPARE(Table(dialog).horizontalHeaderItem(0)->text(), QStringLiteral("Value"));
}

void tst_OneParameterDlg::TheGroupsStandInTheirGrid_data()
{
    QTest::addColumn<QString>("grid");
    QTest::addColumn<QRect>("cells"); // column, row, columns, rows
    QTest::newRow("groupBox") << "gridLayout_4" << QRect(0, 0, 1, 1);
    QTest::newRow("groupBox_2") << "gridLayout_4" << QRect(1, 0, 2, 1);
    QTest::newRow("groupBox_3") << "gridLayout_4" << QRect(0, 1, 3, 1);
    QTest::newRow("pushButton_OK") << "gridLayout_4" << QRect(1, 2, 1, 1);
    QTest::newRow("pushButton_Cancel") << "gridLayout_4" << QRect(2, 2, 1, 1);
    QTest::newRow("label") << "gridLayout" << QRect(0, 0, 1, 1);
    QTest::newRow("lineEdit_Min") << "gridLayout" << QRect(1, 0, 1, 1);
    QTest::newRow("label_2") << "gridLayout" << QRect(0, 1, 1, 1);
    QTest::newRow("lineEdit_Max") << "gridLayout" << QRect(1, 1, 1, 1);
    QTest::newRow("label_3") << "gridLayout" << QRect(0, 2, 1, 1);
    QTest::newRow("lineEdit_Deta") << "gridLayout" << QRect(1, 2, 1, 1);
    QTest::newRow("tableWidget") << "gridLayout_2" << QRect(0, 0, 2, 1);
    QTest::newRow("pushButton_Add") << "gridLayout_2" << QRect(0, 1, 1, 1);
    QTest::newRow("pushButton_Delete") << "gridLayout_2" << QRect(1, 1, 1, 1);
}

void tst_OneParameterDlg::TheGroupsStandInTheirGrid()
{
    const EmptyDesignStores stores;
    QFETCH(QString, grid);
    QFETCH(QRect, cells);
    const OneParameterDlg dialog(nullptr, "a");
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

void tst_OneParameterDlg::TheTypesStandOneAboveTheOther()
{
    const EmptyDesignStores stores;
    const OneParameterDlg dialog(nullptr, "a");
    const auto* const layout =
        qobject_cast<QVBoxLayout*>(Find<QGroupBox>(dialog, "groupBox").layout());
    QVERIFY(layout != nullptr);
    QStringList texts;
    for (int i = 0; i < layout->count(); ++i)
        texts << qobject_cast<QRadioButton*>(layout->itemAt(i)->widget())->text();
    QCOMPARE(texts, QStringList({"Log10", "Linear", "Ln", "Gauss"}));
}

void tst_OneParameterDlg::TheFieldsHaveNoValidators()
{
    const EmptyDesignStores stores;
    const OneParameterDlg dialog(nullptr, "a");
    for (const char* const name : {"lineEdit_Min", "lineEdit_Max", "lineEdit_Deta"})
        QVERIFY(Find<QLineEdit>(dialog, name).validator() == nullptr);
}

void tst_OneParameterDlg::TheLabelsHaveTheirFieldsAsBuddies()
{
    const EmptyDesignStores stores;
    const OneParameterDlg dialog(nullptr, "a");
    QCOMPARE(Find<QLabel>(dialog, "label").buddy(), &Find<QLineEdit>(dialog, "lineEdit_Min"));
    QCOMPARE(Find<QLabel>(dialog, "label_2").buddy(), &Find<QLineEdit>(dialog, "lineEdit_Max"));
    QCOMPARE(Find<QLabel>(dialog, "label_3").buddy(), &Find<QLineEdit>(dialog, "lineEdit_Deta"));
}

void tst_OneParameterDlg::TabFollowsTheReadingOrder()
{
    const EmptyDesignStores stores;
    OneParameterDlg dialog(nullptr, "a");
    QCOMPARE(
        TabOrder(dialog),
        QStringList({"radioButton_Log", "radioButton_Linear", "radioButton_Ln", "radioButton_Gauss",
                     "lineEdit_Min", "lineEdit_Max", "lineEdit_Deta", "tableWidget",
                     "pushButton_Add", "pushButton_Delete", "pushButton_OK", "pushButton_Cancel"}));
}

void tst_OneParameterDlg::NoButtonIsPressedByEnter()
{
    const EmptyDesignStores stores;
    OneParameterDlg dialog(nullptr, "a");
    dialog.show();
    const auto buttons = dialog.findChildren<QPushButton*>();
    QCOMPARE(buttons.size(), 4);
    for (const QPushButton* const button : buttons)
        QVERIFY2(!button->autoDefault() && !button->isDefault(), qPrintable(button->text()));
}

void tst_OneParameterDlg::TheSlotsStandInTheirOrder()
{
    QCOMPARE(OwnMethods(OneParameterDlg::staticMetaObject),
             QStringList({"public slot RefreshTableData()", "public slot m_Slot_OK()",
                          "public slot m_Slot_Cancel()", "public slot InitGUIData()",
                          "public slot m_Slot_Add()", "public slot m_Slot_Delete()"}));
}

void tst_OneParameterDlg::EveryTextIsTranslatable()
{
    const EmptyDesignStores stores;
    const TextRecorder recorder;
    ModalDriver user;
    const OneParameterDlg inert(nullptr, "");
    StoreRange("a", 1, 0, 1);
    StoreRange("b", 0, 1, 1, Gauss);
    const OneParameterDlg refused(nullptr, "a");
    const OneParameterDlg dialog(nullptr, "b");
    Click(dialog, "pushButton_Delete");
    QCOMPARE(user.Boxes().size(), 4);
    QCOMPARE(recorder.TextsOf("OneParameterDlg"), QStringList({"0",
                                                               "1",
                                                               "Add",
                                                               "Cancel",
                                                               "Check input data!",
                                                               "Delete",
                                                               "Delta",
                                                               "Error",
                                                               "Gauss",
                                                               "Linear",
                                                               "Ln",
                                                               "Log10",
                                                               "Max",
                                                               "Min",
                                                               "No parameter input",
                                                               "Not implement yet",
                                                               "Notify",
                                                               "OK",
                                                               "OneParameterDlg",
                                                               "Range",
                                                               "Select one row first!",
                                                               "Table",
                                                               "Type",
                                                               "Value"}));
}

void tst_OneParameterDlg::AnEmptyNameIsRefused()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    const OneParameterDlg dialog(nullptr, QString());
    QCOMPARE(user.Boxes(), Boxes({ShownBox::Notice("Error", "No parameter input")}));
    QVERIFY(g_mapParaArrays.empty());
    QCOMPARE(Fields(dialog), QStringList({"0", "1", "1"}));
    QCOMPARE(CheckedTypes(dialog), QStringList({"Linear"}));
    QCOMPARE(Rows(dialog), QStringList());
}

void tst_OneParameterDlg::TheDialogOfAnEmptyNameIsInert()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "");
    user.Then([](QDialog& shown) {
        Type(shown, "lineEdit_Max", "-5");
        for (const char* const name : {"radioButton_Log", "pushButton_Add", "pushButton_Delete",
                                       "pushButton_OK", "pushButton_Cancel"})
            Click(shown, name);
        QVERIFY(shown.isVisible());
        QCOMPARE(Rows(shown), QStringList());
        QTest::keyClick(&shown, Qt::Key_Escape);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes().size(), 1);
    QVERIFY(g_mapParaArrays.empty());
}

void tst_OneParameterDlg::ANewParameterOpensWithTheDefaults()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    const OneParameterDlg dialog(nullptr, "a");
    QCOMPARE(Fields(dialog), QStringList({"0", "1", "1"}));
    QCOMPARE(CheckedTypes(dialog), QStringList({"Linear"}));
    QCOMPARE(Rows(dialog), QStringList({"0", "1"}));
    QCOMPARE(user.Boxes(), Boxes());
}

void tst_OneParameterDlg::TheEntryIsMadeByTheOpeningAlone_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("letters") << "height";
    QTest::newRow("Chinese") << "长度";
    QTest::newRow("a blank") << " ";
}

void tst_OneParameterDlg::TheEntryIsMadeByTheOpeningAlone()
{
    const EmptyDesignStores stores;
    QFETCH(QString, name);
    ModalDriver user;
    OneParameterDlg dialog(nullptr, name);
    user.Then([](QDialog& shown) { Click(shown, "pushButton_Cancel"); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(g_mapParaArrays.size(), std::size_t(1));
    const sParaArrayData& record = g_mapParaArrays.at(name);
    QCOMPARE(record.bChecked, 0);
    QCOMPARE(record.strName, QString());
    QVERIFY(record.vecValues.empty());
}

void tst_OneParameterDlg::TheStoredRangeIsShownWithSixDigits()
{
    const EmptyDesignStores stores;
    StoreRange("a", 0.123456789, 1234567.0, 200000.0);
    const OneParameterDlg dialog(nullptr, "a");
    QCOMPARE(Fields(dialog), QStringList({"0.123457", "1.23457e+06", "200000"}));
}

void tst_OneParameterDlg::TheStoredTypeIsChecked_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("checked");
    QTest::addColumn<QStringList>("rows");
    QTest::newRow("Linear") << 0 << "Linear" << QStringList({"1", "10"});
    QTest::newRow("Log10") << 1 << "Log10" << QStringList({"0", "1"});
    QTest::newRow("Ln") << 2 << "Ln" << QStringList({"0", "2.30259"});
    QTest::newRow("Gauss") << 3 << "Gauss" << QStringList();
    QTest::newRow("unknown") << 4 << "Linear" << QStringList({"1", "10"});
    QTest::newRow("negative") << -1 << "Linear" << QStringList({"1", "10"});
}

void tst_OneParameterDlg::TheStoredTypeIsChecked()
{
    const EmptyDesignStores stores;
    QFETCH(int, type);
    QFETCH(QString, checked);
    QFETCH(QStringList, rows);
    StoreRange("a", 1, 10, 9, type);
    ModalDriver user;
    const OneParameterDlg dialog(nullptr, "a");
    QCOMPARE(CheckedTypes(dialog), QStringList(checked));
    QCOMPARE(Rows(dialog), rows);
    QCOMPARE(user.Boxes(), type == Gauss ? Boxes({NoGauss}) : Boxes());
}

void tst_OneParameterDlg::StoredValuesAreNotShownAgain()
{
    const EmptyDesignStores stores;
    StoreRange("a", 0, 2, 1);
    g_mapParaArrays["a"].vecValues = {7, 8};
    const OneParameterDlg dialog(nullptr, "a");
    QCOMPARE(Rows(dialog), QStringList({"0", "1", "2"}));
    QCOMPARE(g_mapParaArrays["a"].vecValues, Values({7, 8}));
}

void tst_OneParameterDlg::AddAppendsAnEmptyRow()
{
    const EmptyDesignStores stores;
    OneParameterDlg dialog(nullptr, "a");
    Table(dialog).setCurrentCell(0, 0);
    Click(dialog, "pushButton_Add");
    QCOMPARE(Rows(dialog), QStringList({"0", "1", "(no item)"}));
}

void tst_OneParameterDlg::DeleteRemovesTheCurrentRow()
{
    const EmptyDesignStores stores;
    StoreRange("a", 0, 3, 1);
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    Table(dialog).setCurrentCell(1, 0);
    Click(dialog, "pushButton_Delete");
    QCOMPARE(Rows(dialog), QStringList({"0", "2", "3"}));
    Table(dialog).setCurrentCell(2, 0);
    Click(dialog, "pushButton_Delete");
    QCOMPARE(Rows(dialog), QStringList({"0", "2"}));
    QCOMPARE(user.Boxes(), Boxes());
}

void tst_OneParameterDlg::DeleteWithoutACurrentRowIsRefused()
{
    const EmptyDesignStores stores;
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    Click(dialog, "pushButton_Delete");
    QCOMPARE(user.Boxes(), Boxes({NoRow}));
    QCOMPARE(Rows(dialog), QStringList({"0", "1"}));
}

void tst_OneParameterDlg::OkStoresTheRecord()
{
    const EmptyDesignStores stores;
    g_mapParaArrays["b"].bChecked = 0;
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    user.Then([](QDialog& shown) {
        Type(shown, "lineEdit_Min", "1");
        Type(shown, "lineEdit_Max", "2");
        Type(shown, "lineEdit_Deta", "0.25");
        Click(shown, "radioButton_Log");
        Click(shown, "radioButton_Linear");
        Click(shown, "pushButton_OK");
    });
    // The first edit leaves min = max, which is refused on the way.
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), Boxes({BadInput}));
    const sParaArrayData& record = g_mapParaArrays.at("a");
    QCOMPARE(record.bChecked, 1);
    QCOMPARE(record.strName, QStringLiteral("a"));
    QCOMPARE(record.vecValues, Values({1, 1.25, 1.5, 1.75, 2}));
    QCOMPARE(record.dMin, 1.0);
    QCOMPARE(record.dMax, 2.0);
    QCOMPARE(record.dDelta, 0.25);
    QCOMPARE(record.nSampleType, int(Linear));
    QCOMPARE(g_mapParaArrays.at("b").bChecked, 0);
    QCOMPARE(g_mapParaArrays.size(), std::size_t(2));
}

void tst_OneParameterDlg::TheNextOkReplacesTheSamples()
{
    // The same dialog, run twice.
    const EmptyDesignStores stores;
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    user.Then([](QDialog& shown) { Click(shown, "pushButton_OK"); });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(g_mapParaArrays.at("a").vecValues, Values({0, 1}));
    Table(dialog).item(1, 0)->setText("5");
    user.Then([](QDialog& shown) { Click(shown, "pushButton_OK"); });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(g_mapParaArrays.at("a").vecValues, Values({0, 5}));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes(), Boxes());
}

void tst_OneParameterDlg::OkChecksNothing_data()
{
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<Values>("stored");
    QTest::newRow("max below min") << QStringList({"2", "1", "0.5"}) << Values({2, 1, 0.5});
    QTest::newRow("step 0") << QStringList({"0", "1", "0"}) << Values({0, 1, 0});
    QTest::newRow("text") << QStringList({"a", "", "1,5"}) << Values({0, 0, 0});
    QTest::newRow("many digits") << QStringList({"0.123456789", "1e9", "1"})
                                 << Values({0.123456789, 1e9, 1});
}

void tst_OneParameterDlg::OkChecksNothing()
{
    const EmptyDesignStores stores;
    QFETCH(QStringList, fields);
    QFETCH(Values, stored);
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    SetFields(dialog, fields[0], fields[1], fields[2]);
    Click(dialog, "pushButton_OK");
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(user.Boxes(), Boxes());
    const sParaArrayData& record = g_mapParaArrays.at("a");
    QCOMPARE(Values({record.dMin, record.dMax, record.dDelta}), stored);
    QCOMPARE(record.vecValues, Values({0, 1}));
}

void tst_OneParameterDlg::OkStoresEditedRows()
{
    const EmptyDesignStores stores;
    OneParameterDlg dialog(nullptr, "a");
    Table(dialog).item(0, 0)->setText("0.123456789");
    Table(dialog).item(1, 0)->setText("none");
    Click(dialog, "pushButton_OK");
    QCOMPARE(g_mapParaArrays["a"].vecValues, Values({0.123456789, 0}));
}

void tst_OneParameterDlg::ARowWithoutItemCountsAsZero()
{
    const EmptyDesignStores stores;
    OneParameterDlg dialog(nullptr, "a");
    Click(dialog, "pushButton_Add");
    Click(dialog, "pushButton_Add");
    Table(dialog).setItem(3, 0, new QTableWidgetItem("5"));
    Click(dialog, "pushButton_OK");
    QCOMPARE(g_mapParaArrays["a"].vecValues, Values({0, 1, 0, 5}));
}

void tst_OneParameterDlg::OkStoresTheRowsAsShown()
{
    // What is shown with six digits is stored with six digits.
    const EmptyDesignStores stores;
    StoreRange("a", 1, 3, 2, Ln);
    OneParameterDlg dialog(nullptr, "a");
    Click(dialog, "pushButton_OK");
    QCOMPARE(g_mapParaArrays["a"].vecValues, Values({0, 1.09861}));
}

void tst_OneParameterDlg::OkOfGaussStoresTheRowsThatAreThere()
{
    const EmptyDesignStores stores;
    StoreRange("a", 0, 1, 1, Gauss);
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    Click(dialog, "pushButton_Add");
    Table(dialog).setItem(0, 0, new QTableWidgetItem("4.5"));
    Click(dialog, "pushButton_OK");
    QCOMPARE(user.Boxes(), Boxes({NoGauss}));
    QCOMPARE(g_mapParaArrays["a"].nSampleType, int(Gauss));
    QCOMPARE(g_mapParaArrays["a"].vecValues, Values({4.5}));
}

void tst_OneParameterDlg::CancelLeavesTheRegistryAlone_data()
{
    QTest::addColumn<bool>("escape");
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << true;
}

void tst_OneParameterDlg::CancelLeavesTheRegistryAlone()
{
    const EmptyDesignStores stores;
    QFETCH(bool, escape);
    g_mapParaArrays["a"] = {0, "kept", {4, 5}, 1, 2, 0.5, Log10};
    ModalDriver user;
    OneParameterDlg dialog(nullptr, "a");
    user.Then([&](QDialog& shown) {
        Type(shown, "lineEdit_Max", "3");
        Click(shown, "radioButton_Linear");
        Click(shown, "pushButton_Add");
        if (escape)
            QTest::keyClick(&shown, Qt::Key_Escape);
        else
            Click(shown, "pushButton_Cancel");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QVERIFY(user.IsDone());
    const sParaArrayData& record = g_mapParaArrays.at("a");
    QCOMPARE(record.bChecked, 0);
    QCOMPARE(record.strName, QStringLiteral("kept"));
    QCOMPARE(record.vecValues, Values({4, 5}));
    QCOMPARE(Values({record.dMin, record.dMax, record.dDelta}), Values({1, 2, 0.5}));
    QCOMPARE(record.nSampleType, int(Log10));
}

void tst_OneParameterDlg::TheHostMayChangeTheRegistryBehindABox()
{
    const EmptyDesignStores stores;
    StoreRange("a", 2, 1, 0.5);
    ModalDriver user;
    user.WhileBoxOpen([](QMessageBox&) { g_mapParaArrays.clear(); });
    OneParameterDlg dialog(nullptr, "a");
    QVERIFY(user.IsDone());
    QVERIFY(g_mapParaArrays.empty());
    QCOMPARE(Fields(dialog), QStringList({"2", "1", "0.5"}));
    Click(dialog, "pushButton_OK");
    QCOMPARE(g_mapParaArrays.at("a").dMin, 2.0);
    QCOMPARE(g_mapParaArrays.at("a").bChecked, 1);
}

void tst_OneParameterDlg::TheHostMayDestroyTheDialogBehindABox_data()
{
    QTest::addColumn<QString>("max");
    QTest::addColumn<QString>("text");
    QTest::newRow("RefreshTableData, bad range") << "-1" << BadInput.text;
    QTest::newRow("RefreshTableData, Gauss") << "1" << NoGauss.text;
    QTest::newRow("m_Slot_Delete") << "1" << NoRow.text;
}

void tst_OneParameterDlg::TheHostMayDestroyTheDialogBehindABox()
{
    const EmptyDesignStores stores;
    QFETCH(QString, max);
    QFETCH(QString, text);
    auto* const dialog = new OneParameterDlg(nullptr, "a");
    SetFields(*dialog, "0", max, "1");
    Find<QRadioButton>(*dialog, "radioButton_Gauss").setChecked(true);
    ModalDriver user;
    user.WhileBoxOpen([dialog](QMessageBox&) { delete dialog; });
    const QByteArray slot = QByteArray(QTest::currentDataTag()).split(',').constFirst();
    QVERIFY(QMetaObject::invokeMethod(dialog, slot.constData()));
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes().size(), 1);
    QCOMPARE(user.Boxes().first().text, text);
}

TARN_TEST_MAIN(tst_OneParameterDlg)
#include "tst_OneParameterDlg.moc"
