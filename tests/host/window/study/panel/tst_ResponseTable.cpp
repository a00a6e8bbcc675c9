#include "OpenWindow.h"
#include "ResponseTable.h"
#include "TestCase.h"

#include <QSignalSpy>

class tst_ResponseTable : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AResponseIsAdded();
    void AResponseIsChangedAndRemoved();
    void ARowThatIsBeingFilledInStays();
};

using Responses = std::vector<StudyResponse>;

void tst_ResponseTable::AResponseIsAdded()
{
    ResponseTable table;
    table.resize(400, 200);
    table.show();
    const QSignalSpy edited(&table, &ResponseTable::Edited);
    table.Add();
    TypeIntoCell(table, 0, 0, "ratio");
    QCOMPARE(edited.count(), 0); // Its expression is missing.
    QVERIFY(table.Responses().empty());
    TypeIntoCell(table, 0, 1, "f1_hz / mass_kg");
    QCOMPARE(edited.count(), 1);
    QVERIFY(table.Responses() == Responses({{"ratio", "f1_hz / mass_kg"}}));
}

void tst_ResponseTable::AResponseIsChangedAndRemoved()
{
    ResponseTable table;
    table.resize(400, 200);
    table.show();
    table.Show({{"a", "1"}, {"b", "2"}});
    const QSignalSpy edited(&table, &ResponseTable::Edited);
    TypeIntoCell(table, 1, 1, "a + 1");
    QVERIFY(table.Responses() == Responses({{"a", "1"}, {"b", "a + 1"}}));
    table.setCurrentCell(0, 0);
    table.RemoveSelected();
    QVERIFY(table.Responses() == Responses({{"b", "a + 1"}}));
    QCOMPARE(edited.count(), 2);
}

void tst_ResponseTable::ARowThatIsBeingFilledInStays()
{
    ResponseTable table;
    table.Show({{"a", "1"}});
    table.Add();
    table.Show({{"a", "1"}});
    QCOMPARE(table.rowCount(), 2);
    table.Show({{"b", "1"}});
    QCOMPARE(table.rowCount(), 1);
}

TARN_TEST_MAIN(tst_ResponseTable)
#include "tst_ResponseTable.moc"
