#include "ParameterMap.h"
#include "TestCase.h"

#include <stdexcept>
#include <type_traits>

namespace {

ParametersDef Record(double value)
{
    ParametersDef record;
    record.m_dValue = value;
    return record;
}

QStringList Names(const ParameterMap& map)
{
    QStringList names;
    for (const auto& entry : map)
        names << entry.first;
    return names;
}

} // namespace

class tst_ParameterMap : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void IterationKeepsTheOrderOfInsertion();
    void ReplacingARecordKeepsItsPlace();
    void ANameAddedAgainAfterErasingComesLast();
    void EntriesAreChangedInPlace();
    void AtThrowsForAnUnknownName();
    void LookingUpInsertsNothing();
    void AnIndexInsertsADefaultRecord();
    void AConstantMapIsReadInTheSameWay();
    void EraseReturnsTheNumberOfRemovedRecords();
    void ACopyIsIndependent();
    void AMoveLeavesTheSourceEmpty();
    void AssigningAMapToItselfKeepsIt();
    void ClearRemovesAll();
};

void tst_ParameterMap::IterationKeepsTheOrderOfInsertion()
{
    ParameterMap map;
    QStringList names;
    for (int i = 0; i < 1000; ++i) {
        const QString name = QString::number((i * 7919) % 1000);
        names << name;
        map[name] = Record(i);
    }
    QCOMPARE(Names(map), names);
    QCOMPARE(map.size(), std::size_t(1000));
}

void tst_ParameterMap::ReplacingARecordKeepsItsPlace()
{
    ParameterMap map;
    map["b"] = Record(1);
    map["a"] = Record(2);
    map["b"] = Record(3);
    QCOMPARE(Names(map), QStringList({"b", "a"}));
    QCOMPARE(map.at("b").m_dValue, 3.0);
}

void tst_ParameterMap::ANameAddedAgainAfterErasingComesLast()
{
    ParameterMap map;
    map["b"];
    map["a"];
    map.erase("b");
    map["b"];
    QCOMPARE(Names(map), QStringList({"a", "b"}));
}

void tst_ParameterMap::EntriesAreChangedInPlace()
{
    static_assert(std::is_same_v<decltype(*std::declval<ParameterMap&>().begin()),
                                 std::pair<const QString, ParametersDef>&>);
    ParameterMap map;
    map["a"];
    for (auto& entry : map)
        entry.second.m_dValue = 5.0;
    QCOMPARE(map.find("a")->second.m_dValue, 5.0);
}

void tst_ParameterMap::AtThrowsForAnUnknownName()
{
    ParameterMap map;
    const ParameterMap& constant = map;
    QVERIFY_EXCEPTION_THROWN(map.at("a"), std::out_of_range);
    QVERIFY_EXCEPTION_THROWN(constant.at("a"), std::out_of_range);
}

void tst_ParameterMap::LookingUpInsertsNothing()
{
    ParameterMap map;
    const ParameterMap& constant = map;
    QVERIFY(map.find("a") == map.end());
    QVERIFY(constant.find("a") == constant.end());
    QCOMPARE(map.count("a"), std::size_t(0));
    QVERIFY(map.empty());
}

void tst_ParameterMap::AnIndexInsertsADefaultRecord()
{
    ParameterMap map;
    QCOMPARE(map["a"].m_nType, 0);
    QCOMPARE(map.count("a"), std::size_t(1));
    QVERIFY(!map["a"].m_varRawValue.isValid());
}

void tst_ParameterMap::AConstantMapIsReadInTheSameWay()
{
    static_assert(std::is_same_v<decltype(*std::declval<const ParameterMap&>().begin()),
                                 const std::pair<const QString, ParametersDef>&>);
    ParameterMap map;
    map["b"] = Record(1);
    map["a"] = Record(2);
    const ParameterMap& constant = map;
    QCOMPARE(Names(constant), QStringList({"b", "a"}));
    QCOMPARE(constant.find("a")->second.m_dValue, 2.0);
    QCOMPARE(constant.at("b").m_dValue, 1.0);
    QCOMPARE(constant.count("b"), std::size_t(1));
    QCOMPARE(constant.size(), std::size_t(2));
}

void tst_ParameterMap::EraseReturnsTheNumberOfRemovedRecords()
{
    ParameterMap map;
    map["a"];
    QCOMPARE(map.erase("a"), std::size_t(1));
    QCOMPARE(map.erase("a"), std::size_t(0));
    QVERIFY(map.empty());
    QVERIFY(map.begin() == map.end());
}

void tst_ParameterMap::ACopyIsIndependent()
{
    ParameterMap map;
    map["a"] = Record(1);
    ParameterMap copy = map;
    copy["a"].m_dValue = 2.0;
    copy["b"];
    QCOMPARE(map.at("a").m_dValue, 1.0);
    QCOMPARE(Names(map), QStringList({"a"}));

    map = copy;
    copy.erase("a");
    QCOMPARE(Names(map), QStringList({"a", "b"}));
    QCOMPARE(map.at("a").m_dValue, 2.0);
}

void tst_ParameterMap::AMoveLeavesTheSourceEmpty()
{
    ParameterMap map;
    map["b"];
    map["a"] = Record(1);
    ParameterMap moved = std::move(map);
    QVERIFY(map.empty()); // NOLINT(bugprone-use-after-move)
    QCOMPARE(map.count("a"), std::size_t(0));
    QCOMPARE(Names(moved), QStringList({"b", "a"}));
    moved.at("a").m_dValue = 4.0;
    QCOMPARE(moved.find("a")->second.m_dValue, 4.0);
    map = std::move(moved);
    QCOMPARE(map.at("a").m_dValue, 4.0);
    QVERIFY(map.find("x") == map.end());

    ParameterMap other;
    other["c"];
    other = std::move(map);
    QVERIFY(map.empty()); // NOLINT(bugprone-use-after-move)
    QCOMPARE(map.count("c"), std::size_t(0));
    QCOMPARE(Names(other), QStringList({"b", "a"}));
    QCOMPARE(other.count("c"), std::size_t(0));
}

void tst_ParameterMap::AssigningAMapToItselfKeepsIt()
{
    ParameterMap map;
    map["a"] = Record(1);
    const ParameterMap& same = map;
    map = same;
    QCOMPARE(map.at("a").m_dValue, 1.0);
}

void tst_ParameterMap::ClearRemovesAll()
{
    ParameterMap map;
    map["a"];
    map.clear();
    QVERIFY(map.empty());
    QCOMPARE(map.count("a"), std::size_t(0));
}

TARN_TEST_MAIN(tst_ParameterMap)
#include "tst_ParameterMap.moc"
