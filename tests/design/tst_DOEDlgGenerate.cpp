#include "DOEDlgTables.h"

#include <QCheckBox>
#include <QPointer>
#include <QSignalSpy>

// "Generate".

namespace {

const ShownBox NotEqual = ShownBox::Notice("Notify", "Number not equal");
const ShownBox TooMany = ShownBox::Notice("Notify", "Too many runs");

ShownBox NoRow(QWidget* parent)
{
    return {"Warning", "Select one row first", QMessageBox::Information, QMessageBox::Ok, parent};
}

Values Counted(int count)
{
    Values values;
    for (int i = 0; i < count; ++i)
        values.push_back(i);
    return values;
}

void Generate(const QWidget& dialog, int row)
{
    Runs(dialog).setCurrentCell(row, 0);
    Click(dialog, "pushButton_GenGeo");
}

} // namespace

class tst_DOEDlgGenerate : public With<DialogTest, EmptyDesignStores>
{
    Q_OBJECT

private Q_SLOTS:
    void GenerateWritesTheRunIntoTheStore();
    void GenerateSetsAllOtherParametersToZero();
    void GenerateLeavesTheOtherFieldsAlone();
    void GenerateWritesTheShownValues();
    void GenerateReadsEditedCells_data();
    void GenerateReadsEditedCells();
    void GenerateOfAnAddedRowWritesZeros();
    void GenerateReadsTheRowsAsSorted();
    void GenerateTakesTheCurrentRow();
    void GenerateWithoutARowIsRefused();
    void TheHostMayDestroyTheDialogDuringTheRefusal();
    void WithoutATickTheMissingRowIsReported();
    void FewerColumnsThanBeforeAreRefusedUntilReopened();
    void FewerColumnsWithoutARowReportTheMissingRow();
    void MoreColumnsThanBeforeAreAccepted();
    void OtherColumnsThanBeforeAreAccepted();
    void AHandMadeColumnIsRefused();
    void TheLastOfTwoColumnsOfOneNameCounts();
    void AParameterAddedLaterIsSetToZero();
    void AParameterRemovedLaterIsNotEntered();
    void TheSignalComesAfterTheStoreIsWritten();
    void TheSignalIsConnectedByItsSignature();
    void TheHostMayRefreshFromTheSignal();
    void RefusedRunsCountAsColumnsOfTheDialog();
};

void tst_DOEDlgGenerate::GenerateWritesTheRunIntoTheStore()
{
    AddParameters({"b", "a"});
    Tick("a", {1, 2});
    Tick("b", {0.1, 1234567});
    const DOEDlg dialog(nullptr);
    QSignalSpy spy(&dialog, &DOEDlg::m_Signal_RegenerateGeo);
    Generate(dialog, 2);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(Stored("a").m_dValue, 2.0);
    QCOMPARE(Stored("a").m_varRawValue, QVariant(2.0));
    QCOMPARE(Stored("a").m_varRawValue.type(), QVariant::Double);
    QCOMPARE(Stored("a").m_strValue, QStringLiteral("2"));
    QCOMPARE(Stored("b").m_dValue, 0.1);
    QCOMPARE(Stored("b").m_varRawValue, QVariant(0.1));
    QCOMPARE(Stored("b").m_strValue, QStringLiteral("0.1"));
    QCOMPARE(RunTableSize(dialog), QSize(2, 4));
}

void tst_DOEDlgGenerate::GenerateSetsAllOtherParametersToZero()
{
    AddParameter("a");
    AddParameter("other", 7);
    AddParameter("untaken", 8);
    Tick("a", {1});
    AddRecord("untaken", 0, {9});
    const DOEDlg dialog(nullptr);
    Generate(dialog, 0);
    for (const char* const name : {"other", "untaken"}) {
        QCOMPARE(Stored(name).m_dValue, 0.0);
        QCOMPARE(Stored(name).m_varRawValue, QVariant(0.0));
        QCOMPARE(Stored(name).m_strValue, QStringLiteral("0"));
    }
    QCOMPARE(Stored("a").m_dValue, 1.0);
}

void tst_DOEDlgGenerate::GenerateLeavesTheOtherFieldsAlone()
{
    AddParameter("v");
    ParametersDef& vector = GlobalParaMeterMgr::m_nameMapParameters["v"];
    vector.m_nType = ParametersDef::VectorType;
    vector.m_dX = 1;
    vector.m_dY = 2;
    vector.m_dZ = 3;
    vector.m_strValue = "1,2,3";
    vector.m_strExpression = "a*2";
    vector.m_strExpressPara = "a";
    vector.m_strDescription = "text";
    Tick("a", {1});
    const DOEDlg dialog(nullptr);
    Generate(dialog, 0);
    const ParametersDef& stored = Stored("v");
    // A number for every parameter, even for a Vector.
    QCOMPARE(stored.m_strValue, QStringLiteral("0"));
    QCOMPARE(stored.m_nType, int(ParametersDef::VectorType));
    QCOMPARE(Values({stored.m_dX, stored.m_dY, stored.m_dZ}), Values({1, 2, 3}));
    QCOMPARE(stored.m_strExpression, std::string("a*2"));
    QCOMPARE(stored.m_strExpressPara, QStringLiteral("a"));
    QCOMPARE(stored.m_strDescription, QStringLiteral("text"));
    QCOMPARE(stored.m_strName, QStringLiteral("v"));
    QCOMPARE(GlobalParaMeterMgr::m_nameMapParameters.size(), std::size_t(1));
}

void tst_DOEDlgGenerate::GenerateWritesTheShownValues()
{
    // The text with its six digits counts, not the original number.
    AddParameter("a");
    Tick("a", {1.0 / 3});
    const DOEDlg dialog(nullptr);
    Generate(dialog, 0);
    QCOMPARE(Stored("a").m_dValue, 0.333333);
    QCOMPARE(Stored("a").m_strValue, QStringLiteral("0.333333"));
}

void tst_DOEDlgGenerate::GenerateReadsEditedCells_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    NewRow("number", "7.50", 7.5, "7.5");
    NewRow("many digits", "0.123456789", 0.123456789, "0.123457");
    NewRow("exponent", "-1e3", -1000.0, "-1000");
    NewRow("comma", "1,5", 0.0, "0");
    NewRow("no number", "seven", 0.0, "0");
}

void tst_DOEDlgGenerate::GenerateReadsEditedCells()
{
    QFETCH(QString, typed);
    QFETCH(double, value);
    QFETCH(QString, text);
    AddParameter("a");
    Tick("a", {1, 2});
    DOEDlg dialog(nullptr);
    Then([&](QDialog& shown) {
        TypeIntoCell(Runs(shown), 1, 0, typed);
        QCOMPARE(Rows(shown), QStringList({"1", typed}));
        Click(shown, "pushButton_GenGeo");
        shown.reject();
    });
    dialog.exec();
    QCOMPARE(Stored("a").m_dValue, value);
    QCOMPARE(Stored("a").m_strValue, text);
    QCOMPARE(g_mapParaArrays["a"].vecValues, Values({1, 2}));
}

void tst_DOEDlgGenerate::GenerateOfAnAddedRowWritesZeros()
{
    AddParameters({"a", "b"});
    Tick("a", {1});
    Tick("b", {2});
    const DOEDlg dialog(nullptr);
    QSignalSpy spy(&dialog, &DOEDlg::m_Signal_RegenerateGeo);
    Click(dialog, "pushButton_Add");
    Runs(dialog).setItem(1, 1, new QTableWidgetItem("4"));
    Generate(dialog, 1);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(Stored("a").m_dValue, 0.0);
    QCOMPARE(Stored("a").m_strValue, QStringLiteral("0"));
    QCOMPARE(Stored("b").m_dValue, 4.0);
}

void tst_DOEDlgGenerate::GenerateReadsTheRowsAsSorted()
{
    AddParameter("a");
    Tick("a", {3, 1, 2});
    const DOEDlg dialog(nullptr);
    Runs(dialog).sortItems(0);
    QCOMPARE(Rows(dialog), QStringList({"1", "2", "3"}));
    Generate(dialog, 0);
    QCOMPARE(Stored("a").m_dValue, 1.0);
}

void tst_DOEDlgGenerate::GenerateTakesTheCurrentRow()
{
    AddParameter("a");
    Tick("a", {1, 2, 3});
    const DOEDlg dialog(nullptr);
    Runs(dialog).setCurrentCell(0, 0);
    Click(dialog, "pushButton_Delete");
    Generate(dialog, 0);
    QCOMPARE(Stored("a").m_dValue, 2.0);
    Generate(dialog, 1);
    QCOMPARE(Stored("a").m_dValue, 3.0);
}

void tst_DOEDlgGenerate::GenerateWithoutARowIsRefused()
{
    AddParameter("a");
    Tick("a", {1, 2});
    DOEDlg dialog(nullptr);
    QSignalSpy spy(&dialog, &DOEDlg::m_Signal_RegenerateGeo);
    Click(dialog, "pushButton_GenGeo");
    QCOMPARE(Boxes(), ShownBoxes({NoRow(&dialog)}));
    QCOMPARE(spy.count(), 0);
    QCOMPARE(Stored("a").m_dValue, 5.0);
}

void tst_DOEDlgGenerate::TheHostMayDestroyTheDialogDuringTheRefusal()
{
    auto* const dialog = new DOEDlg(nullptr);
    const QPointer<QWidget> watched = dialog;
    QPointer<QMessageBox> box;
    User().WhileBoxOpen([&](QMessageBox& shown) {
        box = &shown;
        delete dialog;
    });
    Click(*dialog, "pushButton_GenGeo");
    QVERIFY(watched == nullptr);
    QVERIFY(box == nullptr);
}

void tst_DOEDlgGenerate::WithoutATickTheMissingRowIsReported()
{
    DOEDlg dialog(nullptr);
    Click(dialog, "pushButton_GenGeo");
    QCOMPARE(Boxes(), ShownBoxes({NoRow(&dialog)}));
    QCOMPARE(RunTableSize(dialog), QSize(0, 0));
}

void tst_DOEDlgGenerate::FewerColumnsThanBeforeAreRefusedUntilReopened()
{
    for (const char* const name : {"a", "b", "c"}) {
        AddParameter(name);
        Tick(name, {1, 2});
    }
    {
        const DOEDlg dialog(nullptr);
        QSignalSpy spy(&dialog, &DOEDlg::m_Signal_RegenerateGeo);
        auto* const check = qobject_cast<QCheckBox*>(
            Find<QTableWidget>(dialog, "tableWidget_Parameters").cellWidget(0, 1));
        check->click();
        QCOMPARE(HeaderTexts(Runs(dialog)), QStringList({"b", "c"}));
        Generate(dialog, 3);
        QCOMPARE(Boxes(), ShownBoxes({NotEqual}));
        Refresh(dialog);
        Generate(dialog, 3);
        QCOMPARE(Boxes(), ShownBoxes({NotEqual, NotEqual}));
        QCOMPARE(spy.count(), 0);
        QCOMPARE(Stored("b").m_dValue, 5.0);
        // It works again with as many columns as before.
        check->click();
        Generate(dialog, 0);
        QCOMPARE(spy.count(), 1);
        check->click();
    }
    const DOEDlg dialog(nullptr);
    Generate(dialog, 3);
    QCOMPARE(Boxes().size(), 2);
    QCOMPARE(Stored("a").m_dValue, 0.0);
    QCOMPARE(Stored("b").m_dValue, 2.0);
    QCOMPARE(Stored("c").m_dValue, 2.0);
}

void tst_DOEDlgGenerate::FewerColumnsWithoutARowReportTheMissingRow()
{
    Tick("a", {1});
    Tick("b", {1});
    DOEDlg dialog(nullptr);
    g_mapParaArrays["a"].bChecked = 0;
    Refresh(dialog);
    Click(dialog, "pushButton_GenGeo");
    QCOMPARE(Boxes(), ShownBoxes({NoRow(&dialog)}));
}

void tst_DOEDlgGenerate::MoreColumnsThanBeforeAreAccepted()
{
    AddParameters({"a", "b"});
    Tick("b", {1});
    const DOEDlg dialog(nullptr);
    Tick("a", {3});
    Refresh(dialog);
    Generate(dialog, 0);
    QCOMPARE(Stored("a").m_dValue, 3.0);
    QCOMPARE(Stored("b").m_dValue, 1.0);
}

void tst_DOEDlgGenerate::OtherColumnsThanBeforeAreAccepted()
{
    // As many columns as before; nothing remains of the parameter that had one of them.
    AddParameters({"a", "b"});
    Tick("a", {1});
    AddRecord("b", 0, {2});
    const DOEDlg dialog(nullptr);
    Generate(dialog, 0);
    QCOMPARE(Stored("a").m_dValue, 1.0);
    QCOMPARE(Stored("b").m_dValue, 0.0);
    g_mapParaArrays["a"].bChecked = 0;
    g_mapParaArrays["b"].bChecked = 1;
    Refresh(dialog);
    Generate(dialog, 0);
    QCOMPARE(Stored("a").m_dValue, 0.0);
    QCOMPARE(Stored("b").m_dValue, 2.0);
}

void tst_DOEDlgGenerate::AHandMadeColumnIsRefused()
{
    Tick("a", {1});
    const DOEDlg dialog(nullptr);
    Runs(dialog).setColumnCount(2);
    Generate(dialog, 0);
    QCOMPARE(Boxes(), ShownBoxes({NotEqual}));
}

void tst_DOEDlgGenerate::TheLastOfTwoColumnsOfOneNameCounts()
{
    AddParameter("a");
    Tick("a", {1});
    Tick("b", {2});
    g_mapParaArrays["b"].strName = "a";
    const DOEDlg dialog(nullptr);
    Generate(dialog, 0);
    QCOMPARE(Stored("a").m_dValue, 2.0);
}

void tst_DOEDlgGenerate::AParameterAddedLaterIsSetToZero()
{
    Tick("a", {1});
    const DOEDlg dialog(nullptr);
    AddParameter("late");
    AddParameter("a");
    Generate(dialog, 0);
    QCOMPARE(Stored("late").m_dValue, 0.0);
    QCOMPARE(Stored("a").m_dValue, 1.0);
}

void tst_DOEDlgGenerate::AParameterRemovedLaterIsNotEntered()
{
    AddParameters({"a", "b"});
    Tick("a", {1});
    const DOEDlg dialog(nullptr);
    QSignalSpy spy(&dialog, &DOEDlg::m_Signal_RegenerateGeo);
    GlobalParaMeterMgr::m_nameMapParameters.erase("a");
    Generate(dialog, 0);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(GlobalParaMeterMgr::GetAllParametersName(), std::vector<QString>({"b"}));
}

void tst_DOEDlgGenerate::TheSignalComesAfterTheStoreIsWritten()
{
    AddParameters({"a", "b", "c"});
    Tick("b", {9});
    const DOEDlg dialog(nullptr);
    Values seen;
    connect(&dialog, &DOEDlg::m_Signal_RegenerateGeo, this, [&] {
        for (const auto& entry : GlobalParaMeterMgr::m_nameMapParameters)
            seen.push_back(entry.second.m_varRawValue.toDouble());
    });
    Generate(dialog, 0);
    QCOMPARE(seen, Values({0, 9, 0}));
}

void tst_DOEDlgGenerate::TheSignalIsConnectedByItsSignature()
{
    Tick("a", {1});
    const DOEDlg dialog(nullptr);
    QSignalSpy spy(&dialog, SIGNAL(m_Signal_RegenerateGeo()));
    QVERIFY(spy.isValid());
    Generate(dialog, 0);
    Generate(dialog, 0);
    QCOMPARE(spy.count(), 2);
}

void tst_DOEDlgGenerate::TheHostMayRefreshFromTheSignal()
{
    AddParameter("a");
    Tick("a", {1, 2});
    const DOEDlg dialog(nullptr);
    connect(&dialog, &DOEDlg::m_Signal_RegenerateGeo, this, [&] {
        GlobalParaMeterMgr::m_nameMapParameters.clear();
        g_mapParaArrays.clear();
        Refresh(dialog);
    });
    Generate(dialog, 1);
    QCOMPARE(RunTableSize(dialog), QSize(0, 0));
}

void tst_DOEDlgGenerate::RefusedRunsCountAsColumnsOfTheDialog()
{
    // As with an empty list, the names are collected, so fewer columns are refused later.
    Tick("a", Counted(2000));
    Tick("b", Counted(2000));
    const DOEDlg dialog(nullptr);
    g_mapParaArrays["b"].bChecked = 0;
    Refresh(dialog);
    Generate(dialog, 0);
    QCOMPARE(Boxes(), ShownBoxes({TooMany, NotEqual}));
}

TARN_TEST_MAIN(tst_DOEDlgGenerate)
#include "tst_DOEDlgGenerate.moc"
