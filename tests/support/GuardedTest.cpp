#include "GuardedTest.h"

#include <QTest>

#include <exception>

void FailTest(const QString& reason)
{
    QTest::qFail(qPrintable(reason), __FILE__, __LINE__);
    throw TestEnded();
}

void CallGuarded(const std::function<void()>& function)
{
    try {
        function();
    } catch (const TestEnded&) {
        // The failure is recorded.
    } catch (const std::exception& exception) {
        QTest::qFail(exception.what(), __FILE__, __LINE__);
    } catch (...) {
        QTest::qFail("An exception of unknown type was thrown", __FILE__, __LINE__);
    }
}

VirtualMetaObject::VirtualMetaObject(const QMetaObject& original)
{
    for (const QMetaObject* meta = &original; meta != nullptr; meta = meta->superClass())
        m_copies.push_back(*meta);
    const QMetaObject* base = nullptr;
    for (auto copy = m_copies.rbegin(); copy != m_copies.rend(); ++copy) {
        copy->d.static_metacall = nullptr;
        copy->d.superdata = base;
        base = &*copy;
    }
}
