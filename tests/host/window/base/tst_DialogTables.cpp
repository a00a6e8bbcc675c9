#include "DOEDlg.h"
#include "DialogTables.h"
#include "EmptyDesignStores.h"
#include "ParameterEditor.h"
#include "TestCase.h"

#include <QTableWidget>

class tst_DialogTables : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void EveryColumnIsAsWideAsItsContents();
    void NoColumnIsTooNarrowToTypeInto();
    void ADialogWithoutContentsIsLeftUsable();
};

namespace {

void Store(const QString& name, const QString& description)
{
    ParametersDef record;
    record.m_strName = name;
    record.m_nType = ParametersDef::ScalarType;
    record.m_strDescription = description;
    GlobalParaMeterMgr::AddParameter(name, record);
}

} // namespace

void tst_DialogTables::EveryColumnIsAsWideAsItsContents()
{
    const EmptyDesignStores stores;
    Store("a_rather_long_name_of_a_parameter", "And what it means, at some length, in words.");
    ParameterEditor editor(nullptr);
    editor.m_Slot_RefreshGUI();
    const auto& table = Find<QTableWidget>(editor, "tableWidget");
    QVERIFY(table.columnWidth(0) < table.sizeHintForIndex(table.model()->index(0, 0)).width());
    FitTables(editor);
    for (const int column : {0, 5}) {
        const QSize wanted = table.sizeHintForIndex(table.model()->index(0, column));
        QVERIFY(table.columnWidth(column) >= wanted.width());
    }
}

void tst_DialogTables::NoColumnIsTooNarrowToTypeInto()
{
    const EmptyDesignStores stores;
    Store("a", "");
    ParameterEditor editor(nullptr);
    editor.m_Slot_RefreshGUI();
    FitTables(editor);
    const auto& table = Find<QTableWidget>(editor, "tableWidget");
    for (int column = 0; column < table.columnCount(); ++column)
        QVERIFY(table.columnWidth(column) >= 80);
}

void tst_DialogTables::ADialogWithoutContentsIsLeftUsable()
{
    const EmptyDesignStores stores;
    DOEDlg dialog(nullptr);
    const QSize before = dialog.size();
    FitTables(dialog);
    QVERIFY(dialog.width() >= before.width());
    QCOMPARE(Find<QTableWidget>(dialog, "tableWidget_Final").columnCount(), 0);
}

TARN_TEST_MAIN(tst_DialogTables)
#include "tst_DialogTables.moc"
