#pragma once

#include <QMetaObject>
#include <QString>

#include <functional>
#include <list>

/// Thrown by FailTest(): the failure is recorded, and what was under way ends here.
struct TestEnded
{
};

/// Records a failure of the running test function and ends the function, or the step of ModalDriver
/// that is under way.
[[noreturn]] void FailTest(const QString& reason);

/// The object that @p pointer points to. If the pointer is null, the test fails with @p reason.
template<class Object>
Object& Require(Object* pointer, const QString& reason)
{
    if (pointer == nullptr)
        FailTest(reason);
    return *pointer;
}

/// Calls @p function. An exception fails the running test function and goes no further.
void CallGuarded(const std::function<void()>& function);

/// Copies of the meta-objects of a class and its bases. Functions that are invoked through a copy
/// go through the virtual qt_metacall(), which the originals bypass.
class VirtualMetaObject
{
public:
    explicit VirtualMetaObject(const QMetaObject& original);

    const QMetaObject* Get() const { return &m_copies.front(); }

private:
    std::list<QMetaObject> m_copies; ///< From the class itself to QObject.
};

/// A test class in which an exception fails the running test function and the program goes on with
/// the next one. The test framework by itself ends the program.
template<class Test>
class GuardedTest final : public Test
{
public:
    const QMetaObject* metaObject() const override { return m_metaObject.Get(); }

    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override
    {
        int left = -1;
        CallGuarded([&] { left = Test::qt_metacall(call, id, arguments); });
        return left;
    }

private:
    VirtualMetaObject m_metaObject{Test::staticMetaObject};
};
