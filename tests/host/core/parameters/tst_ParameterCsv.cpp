#include "ParameterCsv.h"
#include "TestCase.h"

class tst_ParameterCsv : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void WrittenParametersAreReadBack_data();
    void WrittenParametersAreReadBack();
    void TypedTablesAreRead_data();
    void TypedTablesAreRead();
    void BadRowsAreNamed_data();
    void BadRowsAreNamed();
    void KnownNamesAreReplaced();
};

void tst_ParameterCsv::WrittenParametersAreReadBack_data()
{
    QTest::addColumn<QChar>("separator");
    NewRow("file", QChar(','));
    NewRow("clipboard", QChar('\t'));
}

void tst_ParameterCsv::WrittenParametersAreReadBack()
{
    QFETCH(QChar, separator);
    ParameterEntries entries;
    const std::pair<int, const char*> values[] = {
        {ParametersDef::BoolType, "true"},
        {ParametersDef::ScalarType, "0.30000000000000004"},
        {ParametersDef::ScalarType, "max(p0, 2)"},
        {ParametersDef::VectorType, "1, -2, 3e-7"}};
    for (const auto& [type, value] : values) {
        entries.push_back(NewParameter(QString("p%1").arg(entries.size())));
        entries.back().SetType(type);
        entries.back().SetValueText(value);
        entries.back().unit = "mm";
        entries.back().record.m_strDescription = "\"a\",\nb";
    }
    QVERIFY(ParametersFromText(ParametersToText(entries, separator)) == entries);
}

void tst_ParameterCsv::TypedTablesAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("read");
    NewRow("without header", QString("a\t1\tmm\tlength\nb\ta*2\n"), QString("a=1 mm length|b=a*2"));
    NewRow("other order", QString("value,name\n2,a\n"), QString("a=2"));
    NewRow("semicolons", QString("Name;Value\na;1\n"), QString("a=1"));
    NewRow("empty rows", QString("a,1\n,,\n\nb,2"), QString("a=1|b=2"));
    NewRow("unknown columns", QString("name,colour,value\na,red,1\n"), QString("a=1"));
    NewRow("nothing", QString(), QString());
}

void tst_ParameterCsv::TypedTablesAreRead()
{
    QFETCH(QString, text);
    QStringList read;
    for (const ParameterEntry& entry : ParametersFromText(text))
        read << QString("%1=%2 %3 %4")
                    .arg(entry.Name(), entry.ValueText(), entry.unit, entry.record.m_strDescription)
                    .trimmed();
    QTEST(read.join('|'), "read");
}

void tst_ParameterCsv::BadRowsAreNamed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reason");
    NewRow("name", QString("a,1\n2b,1"), QString("row 2: \"2b\" is not a name"));
    NewRow("value", QString("a"), QString("row 1: a value is missing"));
    NewRow("type", QString("name,type,value\na,Text,1"),
           QString("row 2: \"Text\" is not a type of parameter"));
    NewRow("twice", QString("a,1\na,2"), QString("row 2: there are two parameters \"a\""));
}

void tst_ParameterCsv::BadRowsAreNamed()
{
    QFETCH(QString, text);
    QFETCH(QString, reason);
    try {
        ParametersFromText(text);
        QFAIL("It was read.");
    } catch (const ParameterError& error) {
        QVERIFY2(error.Reason().startsWith(reason), qPrintable(error.Reason()));
    }
}

void tst_ParameterCsv::KnownNamesAreReplaced()
{
    const ParameterEntries merged =
        Merged({NewParameter("a"), NewParameter("b")}, ParametersFromText("b,2,mm\nc,3\n"));
    QCOMPARE(merged.size(), std::size_t(3));
    QCOMPARE(merged[1].Number(), 2.0);
    QCOMPARE(merged[1].unit, QString("mm"));
    QCOMPARE(merged[2].Name(), QString("c"));
}

TARN_TEST_MAIN(tst_ParameterCsv)
#include "tst_ParameterCsv.moc"
