#include "ParameterEntry.h"
#include "TestCase.h"

#include <cmath>

class tst_ParameterEntry : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TextsBecomeValues_data();
    void TextsBecomeValues();
    void BadTextsAreRefused_data();
    void BadTextsAreRefused();
    void AnotherTypeKeepsWhatItCan();
    void ARenamedParameterIsFollowed();
    void EqualEntriesAreEqual();
};

void tst_ParameterEntry::TextsBecomeValues_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    NewRow("number", 1, QString(" -1.5e-3 "), QString("-0.0015"));
    NewRow("exact", 1, QString("0.30000000000000004"), QString("0.30000000000000004"));
    NewRow("expression", 1, QString("a / 2"), QString("a / 2"));
    NewRow("not a number", 1, QString("nan"), QString("nan"));
    NewRow("true", 0, QString("True"), QString("true"));
    NewRow("zero", 0, QString("0"), QString("false"));
    NewRow("vector", 2, QString("1,-2.5, 3e2"), QString("1, -2.5, 300"));
    NewRow("tensor", 3, QString("1 0; 0 1"), QString("1 0; 0 1"));
}

void tst_ParameterEntry::TextsBecomeValues()
{
    QFETCH(int, type);
    QFETCH(QString, text);
    ParameterEntry entry = NewParameter("b");
    entry.SetType(type);
    entry.SetValueText(text);
    QTEST(entry.ValueText(), "shown");
}

void tst_ParameterEntry::BadTextsAreRefused_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("text");
    NewRow("no value", 1, QString(" "));
    NewRow("not a flag", 0, QString("yes"));
    NewRow("two components", 2, QString("1,2"));
    NewRow("infinite component", 2, QString("1,2,inf"));
    NewRow("empty vector", 2, QString());
}

void tst_ParameterEntry::BadTextsAreRefused()
{
    QFETCH(int, type);
    QFETCH(QString, text);
    ParameterEntry entry = NewParameter("b");
    entry.SetType(type);
    const ParameterEntry before = entry;
    QVERIFY_EXCEPTION_THROWN(entry.SetValueText(text), ParameterError);
    QVERIFY(entry == before);
}

void tst_ParameterEntry::AnotherTypeKeepsWhatItCan()
{
    ParameterEntry entry = NewParameter("b");
    entry.SetNumber(2.5);
    entry.SetType(ParametersDef::VectorType);
    QCOMPARE(entry.ValueText(), QString("2.5, 0, 0"));
    entry.SetComponent(2, "-1");
    QCOMPARE(entry.record.m_strValue, QString("2.5,0,-1"));
    entry.SetType(ParametersDef::ScalarType);
    QCOMPARE(entry.Number(), 2.5);
    entry.SetType(ParametersDef::BoolType);
    QCOMPARE(entry.Number(), 1.0);
    entry.SetType(ParametersDef::TensorType);
    QCOMPARE(entry.ValueText(), QString("true"));
}

void tst_ParameterEntry::ARenamedParameterIsFollowed()
{
    ParameterEntries entries = {NewParameter("a"), NewParameter("b"), NewParameter("a b")};
    entries[1].SetValueText("a+aa");
    RenameParameter(entries, 0, "c");
    QCOMPARE(entries[1].Expression(), QString("c+aa"));
    QCOMPARE(FindParameter(entries, "c"), 0);
    QCOMPARE(FindParameter(entries, "a"), -1);
    QVERIFY_EXCEPTION_THROWN(RenameParameter(entries, 0, "b"), ParameterError);
    QVERIFY_EXCEPTION_THROWN(RenameParameter(entries, 0, "2"), ParameterError);
    RenameParameter(entries, 2, "ab");
    QCOMPARE(entries[2].Name(), QString("ab"));
}

void tst_ParameterEntry::EqualEntriesAreEqual()
{
    ParameterEntry a = NewParameter("a");
    ParameterEntry b = a;
    // A raw value that is not set is the number.
    b.record.m_varRawValue = 0.0;
    QVERIFY(a == b);
    a.SetNumber(std::nan(""));
    b.SetNumber(std::nan(""));
    QVERIFY(a == b);
    b.unit = "mm";
    QVERIFY(a != b);
}

TARN_TEST_MAIN(tst_ParameterEntry)
#include "tst_ParameterEntry.moc"
