#pragma once

#include "BodyFormulas.h"
#include "EmptyDesignStores.h"

#include <QTest>

Q_DECLARE_METATYPE(Mass)

// The rows of tests of kinds: what a list of features builds, or why it cannot be built. The list
// ends with the feature to be tested.

/// A feature "a" without inputs.
inline QByteArray Single(const char* kind, const char* fields)
{
    return QByteArray(R"({"name": "a", "kind": ")") + kind + R"(", "fields": {)" + fields + "}}";
}

/// A feature "b" on the brick "a".
inline QByteArray OnBrick(const char* kind, const char* fields)
{
    return Brick + R"(, {"name": "b", "kind": ")" + kind + R"(", "inputs": ["a"], "fields": {)" +
           fields + "}}";
}

inline void AddBodyColumns()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<Mass>("expected");
}

inline void AddBody(const char* name, const QByteArray& list, const Mass& expected)
{
    QTest::newRow(name) << list << expected;
}

/// Compares volume and centre of the row's list with the formula.
inline void CheckBody()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, list);
    QFETCH(Mass, expected);
    const Mass built = Built(list);
    QVERIFY2(AreClose(built, expected), "built " + Shown(built) + ", formula " + Shown(expected));
}

inline void AddFailureColumns()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QString>("reason");
}

inline void AddFailure(const char* name, const QByteArray& list, const char* reason)
{
    QTest::newRow(name) << list << QString(reason);
}

/// Compares the error of the row's list.
inline void CheckFailure()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, list);
    QTEST(Reason(List(list)), "reason");
}
