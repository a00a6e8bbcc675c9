#pragma once

#include <QApplication>
#include <QObject>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <memory>

/// What all test classes share. A test class derives from it; its test functions are its own
/// private slots.
///
/// Before each test function the numeric locale is "C" and the local 8-bit code page UTF-8. After
/// it, every warning on the debug log that was not announced with ExpectWarning() and every
/// top-level window that was left behind is a failure.
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
    /// Puts the locale at @p name for the running test function; false when the system lacks it.
    bool UseLocale(const char* name);

    /// Puts the local 8-bit code page at @p codec for the running test function.
    void UseCodePage(const char* codec);

protected Q_SLOTS:
    /// What runs before and after each test function. An override calls this one as well.
    virtual void init();
    virtual void cleanup();

private:
    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_directoryBefore;
};

/// The widget of @p type named @p name below @p parent; a failure lists the names that are there.
QWidget* FindWidget(const QWidget& parent, const QString& name, const QMetaObject& type);

template<class Widget>
Widget& Find(const QWidget& parent, const char* name)
{
    return *static_cast<Widget*>(
        FindWidget(parent, QString::fromLatin1(name), Widget::staticMetaObject));
}

/// Presses the button named @p name with the mouse.
void Click(const QWidget& parent, const char* name);

/// Replaces the text of the line edit named @p name by typing @p text, and leaves it with Tab.
void Type(const QWidget& parent, const char* name, const QString& text);

/// The visible widgets that Tab goes through, by object name, from the first of the window.
QStringList TabOrder(QWidget& window);

/// The path of a file or folder of the project, from its @p place relative to the top folder.
QString SourcePath(const QString& place);

/// What a test program does before it makes its application object.
void PrepareTestProgram();

/// Runs a test class as a program: main() of every test.
template<class Test, class Application = QApplication>
int RunTest(int argc, char** argv)
{
    PrepareTestProgram();
    Application application(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

#define TARN_TEST_MAIN(...)                                                                        \
    int main(int argc, char** argv)                                                                \
    {                                                                                              \
        return RunTest<__VA_ARGS__>(argc, argv);                                                   \
    }
