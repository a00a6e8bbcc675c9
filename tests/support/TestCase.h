#pragma once

#include "GuardedTest.h"
#include "TemporaryDirectory.h"

#include <QApplication>
#include <QObject>
#include <QStringList>
#include <QTest>
#include <QWidget>

#include <initializer_list>
#include <memory>

/// The base of all test classes; the test functions are private slots.
///
/// Before each test function the numeric locale is "C" and the local 8-bit code page UTF-8. After
/// it, every warning on the debug log that was not announced with ExpectWarning() and every
/// top-level window that is still open is a failure.
class TestCase : public QObject
{
    Q_OBJECT

public:
    /// Announces a warning that the running test function will cause; it must come.
    void ExpectWarning(const QString& pattern);

    /// Makes a new temporary directory the working directory until the test function ends, and
    /// returns its path.
    QString EnterTemporaryDirectory();

protected:
    /// Sets the locale to @p name for the running test function; fails if the system lacks it.
    void UseLocale(const char* name);

    /// Sets the local 8-bit code page to @p codec for the running test function.
    void UseCodePage(const char* codec);

    /// Run by a fixture before and after each test function. An override of TearDown() returns
    /// the failures that it found.
    virtual void SetUp() {}
    virtual QStringList TearDown() { return {}; }

protected Q_SLOTS:
    /// Run before and after each test function. An override calls this one as well.
    virtual void init();
    virtual void cleanup();

private:
    std::unique_ptr<TemporaryDirectory> m_directory;
};

/// A test class whose functions run while one object of each of @p Guards lives, such as
/// EmptyDesignStores or TemporaryDirectory. The guards are made in their order.
template<class Base, class... Guards>
class With : public Base
{
protected:
    using Base::Base;

    void SetUp() override
    {
        m_guards = std::make_unique<AllGuards>();
        Base::SetUp();
    }
    QStringList TearDown() override
    {
        QStringList failures = Base::TearDown();
        m_guards.reset();
        return failures;
    }

private:
    struct AllGuards : Guards...
    {
    };
    std::unique_ptr<AllGuards> m_guards;
};

/// QTest::newRow() with the values of the row as arguments.
template<class... Values>
void NewRow(const char* name, const Values&... values)
{
    (QTest::newRow(name) << ... << values);
}

/// Adds the column @p column and a row for each name, which is the value of the row, too.
void NewNameRows(const char* column, std::initializer_list<const char*> names);

/// The widget of @p type named @p name below @p parent. If there is none, the test fails and lists
/// the names that exist.
QWidget& FindWidget(const QWidget& parent, const QString& name, const QMetaObject& type);

template<class Widget>
Widget& Find(const QWidget& parent, const char* name)
{
    return static_cast<Widget&>(
        FindWidget(parent, QString::fromLatin1(name), Widget::staticMetaObject));
}

/// Presses the button named @p name with the mouse.
void Click(const QWidget& parent, const char* name);

/// Replaces the text of the line edit named @p name by typing @p text, and leaves it with Tab.
void Type(const QWidget& parent, const char* name, const QString& text);

/// Replaces the text of @p field by typing @p text, which may hold any character.
void TypeText(QWidget& field, const QString& text);

/// Delivers all events that are waiting, including those that delete objects.
void DeliverEvents();

/// The visible widgets that Tab goes through, by object name, from the first of the window.
QStringList TabOrder(QWidget& window);

/// The path of a file or folder of the project, from its @p place relative to the top folder.
QString SourcePath(const QString& place);

/// Prepares a test program; called before it creates its application object.
void PrepareTestProgram();

/// Runs a test class as a program: main() of every test.
template<class Test, class Application = QApplication>
int RunTest(int argc, char** argv)
{
    PrepareTestProgram();
    Application application(argc, argv);
    GuardedTest<Test> test;
    return QTest::qExec(&test, argc, argv);
}

#define TARN_TEST_MAIN(...)                                                                        \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        return RunTest<__VA_ARGS__>(argc, argv);                                                   \
    }
