#include "CsvText.h"
#include "TestCase.h"

using Rows = std::vector<QStringList>;
Q_DECLARE_METATYPE(Rows)

class tst_CsvText : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void CellsAreQuotedWhereNeeded();
    void WrittenLinesAreReadBack();
    void RowsAreSplit_data();
    void RowsAreSplit();
};

void tst_CsvText::CellsAreQuotedWhereNeeded()
{
    QCOMPARE(CsvLine({"a", "b,c", "d\"e", "f\ng", ""}),
             QString("a,\"b,c\",\"d\"\"e\",\"f\ng\",\n"));
    QCOMPARE(CsvLine({"a,b", "c"}, '\t'), QString("a,b\tc\n"));
}

void tst_CsvText::WrittenLinesAreReadBack()
{
    const QStringList cells = {"a", "b,c", "d\"e", "f\ng", "", "长"};
    for (const char separator : {',', '\t', ';'})
        QVERIFY(CsvRows(CsvLine(cells, separator), separator) == Rows({cells}));
}

void tst_CsvText::RowsAreSplit_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<Rows>("rows");
    NewRow("nothing", QString(), Rows());
    NewRow("no line end", QString("a,b\nc"), Rows({{"a", "b"}, {"c"}}));
    NewRow("carriage returns", QString("a\r\nb\r\n"), Rows({{"a"}, {"b"}}));
    NewRow("empty cells", QString(",\n"), Rows({{"", ""}}));
    NewRow("open quote", QString("\"a,b\nc"), Rows({{"a,b\nc"}}));
}

void tst_CsvText::RowsAreSplit()
{
    QFETCH(QString, text);
    QTEST(CsvRows(text), "rows");
}

TARN_TEST_MAIN(tst_CsvText)
#include "tst_CsvText.moc"
