#include "FormDescription.h"
#include "FormTest.h"
#include "OneParameterDlgTable.h"
#include "TextRecorder.h"

#include <QRadioButton>

// The window and what OK stores. tst_OneParameterDlgSamples tests the samples.

namespace {

FormFacts Form()
{
    FormFacts form;
    form.name = "OneParameterDlg";
    form.title = "OneParameterDlg";
    form.size = {300, 560};
    form.lines = {
        "QGroupBox groupBox in OneParameterDlg at gridLayout_4[0,0]: Type",
        "QRadioButton radioButton_Log in groupBox at verticalLayout[0]: Log10",
        "QRadioButton radioButton_Linear in groupBox at verticalLayout[1]: Linear, checked",
        "QRadioButton radioButton_Ln in groupBox at verticalLayout[2]: Ln",
        "QRadioButton radioButton_Gauss in groupBox at verticalLayout[3]: Gauss",
        "QGroupBox groupBox_2 in OneParameterDlg at gridLayout_4[0,1 1x2]: Range",
        "QLabel label in groupBox_2 at gridLayout[0,0]: Min, for lineEdit_Min",
        "QLineEdit lineEdit_Min in groupBox_2 at gridLayout[0,1]: 0",
        "QLabel label_2 in groupBox_2 at gridLayout[1,0]: Max, for lineEdit_Max",
        "QLineEdit lineEdit_Max in groupBox_2 at gridLayout[1,1]: 1",
        "QLabel label_3 in groupBox_2 at gridLayout[2,0]: Delta, for lineEdit_Deta",
        "QLineEdit lineEdit_Deta in groupBox_2 at gridLayout[2,1]: 1",
        "QGroupBox groupBox_3 in OneParameterDlg at gridLayout_4[1,0 1x3]: Table",
        "QTableWidget tableWidget in groupBox_3 at gridLayout_2[0,0 1x2]: ",
        "QPushButton pushButton_Add in groupBox_3 at gridLayout_2[1,0]: Add",
        "QPushButton pushButton_Delete in groupBox_3 at gridLayout_2[1,1]: Delete",
        "QPushButton pushButton_OK in OneParameterDlg at gridLayout_4[2,1]: OK",
        "QPushButton pushButton_Cancel in OneParameterDlg at gridLayout_4[2,2]: Cancel",
    };
    form.tabOrder = {"radioButton_Log",   "radioButton_Linear", "radioButton_Ln",
                     "radioButton_Gauss", "lineEdit_Min",       "lineEdit_Max",
                     "lineEdit_Deta",     "tableWidget",        "pushButton_Add",
                     "pushButton_Delete", "pushButton_OK",      "pushButton_Cancel"};
    form.methods = {"public slot RefreshTableData()", "public slot m_Slot_OK()",
                    "public slot m_Slot_Cancel()",    "public slot InitGUIData()",
                    "public slot m_Slot_Add()",       "public slot m_Slot_Delete()"};
    form.hasFont = true;
    return form;
}

const ShownBox NoRow = ShownBox::Notice("Notify", "Select one row first!");

using Values = std::vector<double>;

} // namespace

class tst_OneParameterDlg : public With<FormChecks, EmptyDesignStores>
{
    Q_OBJECT

public:
    tst_OneParameterDlg()
        : With(Form())
    {
    }

private Q_SLOTS:
    void TheTableHasOneColumn();
    void MessagesAreTranslatedInTheContextOfTheClass();

    void AnEmptyNameIsRefused();
    void TheDialogOfAnEmptyNameIsInert();
    void ANewParameterOpensWithTheDefaults();
    void OpeningAloneMakesTheEntry_data();
    void OpeningAloneMakesTheEntry();
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
    void OkOfGaussStoresTheExistingRows();
    void CancelLeavesTheRegistryAlone_data();
    void CancelLeavesTheRegistryAlone();
    void TheHostMayChangeTheRegistryWhileABoxIsOpen();
    void TheHostMayDestroyTheDialogWhileABoxIsOpen_data();
    void TheHostMayDestroyTheDialogWhileABoxIsOpen();

private:
    std::unique_ptr<QDialog> NewDialog(QDialog* parent) const override
    {
        return std::make_unique<OneParameterDlg>(parent, "a");
    }
};

void tst_OneParameterDlg::TheTableHasOneColumn()
{
    QCOMPARE(HeaderTexts(Table(OneParameterDlg(nullptr, "a"))), QStringList({"Value"}));
}

void tst_OneParameterDlg::MessagesAreTranslatedInTheContextOfTheClass()
{
    const QStringList formTexts = ShownTexts(*NewDialog(nullptr));
    StoreRange("a", 1, 0, 1);
    StoreRange("b", 0, 1, 1, Gauss);
    const TextRecorder recorder;
    const OneParameterDlg inert(nullptr, "");
    const OneParameterDlg refused(nullptr, "a");
    const OneParameterDlg dialog(nullptr, "b");
    Click(dialog, "pushButton_Delete");
    QCOMPARE(Boxes().size(), 4);
    QStringList texts = recorder.TextsOf("OneParameterDlg");
    for (const QString& text : formTexts)
        texts.removeAll(text);
    QCOMPARE(texts, QStringList({"Check input data!", "Error", "No parameter input",
                                 "Not implement yet", "Notify", "Select one row first!"}));
}

void tst_OneParameterDlg::AnEmptyNameIsRefused()
{
    const OneParameterDlg dialog(nullptr, QString());
    QCOMPARE(Boxes(), ShownBoxes({ShownBox::Notice("Error", "No parameter input")}));
    QVERIFY(g_mapParaArrays.empty());
    QCOMPARE(Fields(dialog), QStringList({"0", "1", "1"}));
    QCOMPARE(CheckedTypes(dialog), QStringList({"Linear"}));
    QCOMPARE(Rows(dialog), QStringList());
}

void tst_OneParameterDlg::TheDialogOfAnEmptyNameIsInert()
{
    OneParameterDlg dialog(nullptr, "");
    Then([](QDialog& shown) {
        Type(shown, "lineEdit_Max", "-5");
        for (const char* const name : {"radioButton_Log", "pushButton_Add", "pushButton_Delete",
                                       "pushButton_OK", "pushButton_Cancel"})
            Click(shown, name);
        QVERIFY(shown.isVisible());
        QCOMPARE(Rows(shown), QStringList());
        QTest::keyClick(&shown, Qt::Key_Escape);
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    QCOMPARE(Boxes().size(), 1);
    QVERIFY(g_mapParaArrays.empty());
}

void tst_OneParameterDlg::ANewParameterOpensWithTheDefaults()
{
    const OneParameterDlg dialog(nullptr, "a");
    QCOMPARE(Fields(dialog), QStringList({"0", "1", "1"}));
    QCOMPARE(CheckedTypes(dialog), QStringList({"Linear"}));
    QCOMPARE(Rows(dialog), QStringList({"0", "1"}));
}

void tst_OneParameterDlg::OpeningAloneMakesTheEntry_data()
{
    QTest::addColumn<QString>("name");
    NewRow("letters", "height");
    NewRow("Chinese", "长度");
    NewRow("a blank", " ");
}

void tst_OneParameterDlg::OpeningAloneMakesTheEntry()
{
    QFETCH(QString, name);
    OneParameterDlg dialog(nullptr, name);
    QCOMPARE(RunAndPress(dialog, "pushButton_Cancel"), int(QDialog::Rejected));
    QCOMPARE(g_mapParaArrays.size(), std::size_t(1));
    const sParaArrayData& record = g_mapParaArrays.at(name);
    QCOMPARE(record.bChecked, 0);
    QCOMPARE(record.strName, QString());
    QVERIFY(record.vecValues.empty());
}

void tst_OneParameterDlg::TheStoredRangeIsShownWithSixDigits()
{
    StoreRange("a", 0.123456789, 1234567.0, 200000.0);
    const OneParameterDlg dialog(nullptr, "a");
    QCOMPARE(Fields(dialog), QStringList({"0.123457", "1.23457e+06", "200000"}));
}

void tst_OneParameterDlg::TheStoredTypeIsChecked_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("checked");
    QTest::addColumn<QStringList>("rows");
    NewRow("Linear", 0, "Linear", QStringList({"1", "10"}));
    NewRow("Log10", 1, "Log10", QStringList({"0", "1"}));
    NewRow("Ln", 2, "Ln", QStringList({"0", "2.30259"}));
    NewRow("Gauss", 3, "Gauss", QStringList());
    NewRow("unknown", 4, "Linear", QStringList({"1", "10"}));
    NewRow("negative", -1, "Linear", QStringList({"1", "10"}));
}

void tst_OneParameterDlg::TheStoredTypeIsChecked()
{
    QFETCH(int, type);
    QFETCH(QString, checked);
    QFETCH(QStringList, rows);
    StoreRange("a", 1, 10, 9, type);
    const OneParameterDlg dialog(nullptr, "a");
    QCOMPARE(CheckedTypes(dialog), QStringList(checked));
    QCOMPARE(Rows(dialog), rows);
    QCOMPARE(Boxes(), type == Gauss ? ShownBoxes({NoGauss}) : ShownBoxes());
}

void tst_OneParameterDlg::StoredValuesAreNotShownAgain()
{
    StoreRange("a", 0, 2, 1);
    g_mapParaArrays["a"].vecValues = {7, 8};
    const OneParameterDlg dialog(nullptr, "a");
    QCOMPARE(Rows(dialog), QStringList({"0", "1", "2"}));
    QCOMPARE(g_mapParaArrays["a"].vecValues, Values({7, 8}));
}

void tst_OneParameterDlg::AddAppendsAnEmptyRow()
{
    OneParameterDlg dialog(nullptr, "a");
    Table(dialog).setCurrentCell(0, 0);
    Click(dialog, "pushButton_Add");
    QCOMPARE(Rows(dialog), QStringList({"0", "1", "-"}));
}

void tst_OneParameterDlg::DeleteRemovesTheCurrentRow()
{
    StoreRange("a", 0, 3, 1);
    OneParameterDlg dialog(nullptr, "a");
    Table(dialog).setCurrentCell(1, 0);
    Click(dialog, "pushButton_Delete");
    QCOMPARE(Rows(dialog), QStringList({"0", "2", "3"}));
    Table(dialog).setCurrentCell(2, 0);
    Click(dialog, "pushButton_Delete");
    QCOMPARE(Rows(dialog), QStringList({"0", "2"}));
}

void tst_OneParameterDlg::DeleteWithoutACurrentRowIsRefused()
{
    OneParameterDlg dialog(nullptr, "a");
    Click(dialog, "pushButton_Delete");
    QCOMPARE(Boxes(), ShownBoxes({NoRow}));
    QCOMPARE(Rows(dialog), QStringList({"0", "1"}));
}

void tst_OneParameterDlg::OkStoresTheRecord()
{
    g_mapParaArrays["b"].bChecked = 0;
    OneParameterDlg dialog(nullptr, "a");
    Then([](QDialog& shown) {
        Type(shown, "lineEdit_Min", "1");
        Type(shown, "lineEdit_Max", "2");
        Type(shown, "lineEdit_Deta", "0.25");
        Click(shown, "radioButton_Log");
        Click(shown, "radioButton_Linear");
        Click(shown, "pushButton_OK");
    });
    // The first edit gives min = max, which is refused in between.
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(Boxes(), ShownBoxes({BadInput}));
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
    // The same dialog runs twice.
    OneParameterDlg dialog(nullptr, "a");
    QCOMPARE(RunAndPress(dialog, "pushButton_OK"), int(QDialog::Accepted));
    QCOMPARE(g_mapParaArrays.at("a").vecValues, Values({0, 1}));
    Table(dialog).item(1, 0)->setText("5");
    QCOMPARE(RunAndPress(dialog, "pushButton_OK"), int(QDialog::Accepted));
    QCOMPARE(g_mapParaArrays.at("a").vecValues, Values({0, 5}));
}

void tst_OneParameterDlg::OkChecksNothing_data()
{
    QTest::addColumn<QStringList>("fields");
    QTest::addColumn<Values>("stored");
    NewRow("max below min", QStringList({"2", "1", "0.5"}), Values({2, 1, 0.5}));
    NewRow("step 0", QStringList({"0", "1", "0"}), Values({0, 1, 0}));
    NewRow("text", QStringList({"a", "", "1,5"}), Values({0, 0, 0}));
    NewRow("many digits", QStringList({"0.123456789", "1e9", "1"}), Values({0.123456789, 1e9, 1}));
}

void tst_OneParameterDlg::OkChecksNothing()
{
    QFETCH(QStringList, fields);
    QFETCH(Values, stored);
    OneParameterDlg dialog(nullptr, "a");
    SetFields(dialog, fields[0], fields[1], fields[2]);
    Click(dialog, "pushButton_OK");
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    const sParaArrayData& record = g_mapParaArrays.at("a");
    QCOMPARE(Values({record.dMin, record.dMax, record.dDelta}), stored);
    QCOMPARE(record.vecValues, Values({0, 1}));
}

void tst_OneParameterDlg::OkStoresEditedRows()
{
    OneParameterDlg dialog(nullptr, "a");
    Table(dialog).item(0, 0)->setText("0.123456789");
    Table(dialog).item(1, 0)->setText("none");
    Click(dialog, "pushButton_OK");
    QCOMPARE(g_mapParaArrays["a"].vecValues, Values({0.123456789, 0}));
}

void tst_OneParameterDlg::ARowWithoutItemCountsAsZero()
{
    OneParameterDlg dialog(nullptr, "a");
    Click(dialog, "pushButton_Add");
    Click(dialog, "pushButton_Add");
    Table(dialog).setItem(3, 0, new QTableWidgetItem("5"));
    Click(dialog, "pushButton_OK");
    QCOMPARE(g_mapParaArrays["a"].vecValues, Values({0, 1, 0, 5}));
}

void tst_OneParameterDlg::OkStoresTheRowsAsShown()
{
    // Values are stored with the six digits that are shown.
    StoreRange("a", 1, 3, 2, Ln);
    OneParameterDlg dialog(nullptr, "a");
    Click(dialog, "pushButton_OK");
    QCOMPARE(g_mapParaArrays["a"].vecValues, Values({0, 1.09861}));
}

void tst_OneParameterDlg::OkOfGaussStoresTheExistingRows()
{
    StoreRange("a", 0, 1, 1, Gauss);
    OneParameterDlg dialog(nullptr, "a");
    Click(dialog, "pushButton_Add");
    Table(dialog).setItem(0, 0, new QTableWidgetItem("4.5"));
    Click(dialog, "pushButton_OK");
    QCOMPARE(Boxes(), ShownBoxes({NoGauss}));
    QCOMPARE(g_mapParaArrays["a"].nSampleType, int(Gauss));
    QCOMPARE(g_mapParaArrays["a"].vecValues, Values({4.5}));
}

void tst_OneParameterDlg::CancelLeavesTheRegistryAlone_data()
{
    QTest::addColumn<bool>("escape");
    NewRow("Cancel", false);
    NewRow("Escape", true);
}

void tst_OneParameterDlg::CancelLeavesTheRegistryAlone()
{
    QFETCH(bool, escape);
    g_mapParaArrays["a"] = {0, "kept", {4, 5}, 1, 2, 0.5, Log10};
    OneParameterDlg dialog(nullptr, "a");
    Then([&](QDialog& shown) {
        Type(shown, "lineEdit_Max", "3");
        Click(shown, "radioButton_Linear");
        Click(shown, "pushButton_Add");
        if (escape)
            QTest::keyClick(&shown, Qt::Key_Escape);
        else
            Click(shown, "pushButton_Cancel");
    });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    const sParaArrayData& record = g_mapParaArrays.at("a");
    QCOMPARE(record.bChecked, 0);
    QCOMPARE(record.strName, QStringLiteral("kept"));
    QCOMPARE(record.vecValues, Values({4, 5}));
    QCOMPARE(Values({record.dMin, record.dMax, record.dDelta}), Values({1, 2, 0.5}));
    QCOMPARE(record.nSampleType, int(Log10));
}

void tst_OneParameterDlg::TheHostMayChangeTheRegistryWhileABoxIsOpen()
{
    StoreRange("a", 2, 1, 0.5);
    User().WhileBoxOpen([](QMessageBox&) { g_mapParaArrays.clear(); });
    OneParameterDlg dialog(nullptr, "a");
    QVERIFY(g_mapParaArrays.empty());
    QCOMPARE(Fields(dialog), QStringList({"2", "1", "0.5"}));
    Click(dialog, "pushButton_OK");
    QCOMPARE(g_mapParaArrays.at("a").dMin, 2.0);
    QCOMPARE(g_mapParaArrays.at("a").bChecked, 1);
}

void tst_OneParameterDlg::TheHostMayDestroyTheDialogWhileABoxIsOpen_data()
{
    QTest::addColumn<QString>("max");
    QTest::addColumn<QString>("text");
    NewRow("RefreshTableData, bad range", "-1", BadInput.text);
    NewRow("RefreshTableData, Gauss", "1", NoGauss.text);
    NewRow("m_Slot_Delete", "1", NoRow.text);
}

void tst_OneParameterDlg::TheHostMayDestroyTheDialogWhileABoxIsOpen()
{
    QFETCH(QString, max);
    QFETCH(QString, text);
    auto* const dialog = new OneParameterDlg(nullptr, "a");
    SetFields(*dialog, "0", max, "1");
    Find<QRadioButton>(*dialog, "radioButton_Gauss").setChecked(true);
    User().WhileBoxOpen([dialog](QMessageBox&) { delete dialog; });
    const QByteArray slot = QByteArray(QTest::currentDataTag()).split(',').constFirst();
    QVERIFY(QMetaObject::invokeMethod(dialog, slot.constData()));
    QCOMPARE(Boxes().size(), 1);
    QCOMPARE(Boxes().first().text, text);
}

TARN_TEST_MAIN(tst_OneParameterDlg)
#include "tst_OneParameterDlg.moc"
