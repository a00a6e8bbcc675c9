#include "ModalDriver.h"
#include "TestCase.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTableWidget>
#include <QTimer>

// The example is a complete program; here its main() is an ordinary function.
#define main RunSmallHost
#include "main.cpp" // NOLINT(bugprone-suspicious-include)
#undef main

namespace {

QString g_messages;
bool g_isDone = false;

void SetLength(QDialog& dialog, const char* length)
{
    constexpr int ValueColumn = 1;
    auto& table = Find<QTableWidget>(dialog, "tableWidget");
    const QPoint cell = table.visualItemRect(table.item(0, ValueColumn)).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, cell);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, cell);
    auto* const field = table.viewport()->findChild<QLineEdit*>();
    QVERIFY(field != nullptr);
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, QString::fromLatin1(length));
    QTest::keyClick(field, Qt::Key_Enter);
    QCoreApplication::processEvents(); // The table commits the text in a queued event.
}

void ExtrudeAlong(QDialog& dialog, const char* z)
{
    Type(dialog, "lineEdit_ZDir", QString::fromLatin1(z));
    Click(dialog, "pushButton_OK");
}

// The actions of the user once the window is visible.
void UseTheHost()
{
    QMainWindow* window = nullptr;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* const widget : widgets) {
        if (auto* const found = qobject_cast<QMainWindow*>(widget))
            window = found;
    }
    if (window == nullptr)
        FailTest("The small host has no window");
    const QList<QAction*> actions = window->menuBar()->actions().first()->menu()->actions();

    ModalDriver user;
    user.Then([](QDialog& dialog) {
        SetLength(dialog, "2.5");
        Click(dialog, "pushButton_OK");
    });
    actions[0]->trigger();

    user.Then([](QDialog& dialog) { ExtrudeAlong(dialog, "0"); });
    // The dialog is still open for a second attempt.
    user.Then([](QDialog& dialog) { ExtrudeAlong(dialog, "-3"); });
    actions[1]->trigger();

    g_messages = window->findChild<QPlainTextEdit*>()->toPlainText();
    g_isDone = user.IsDone();
    window->close();
}

} // namespace

class tst_SmallHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ItEditsParametersAndSurvivesTheKernel();
};

void tst_SmallHost::ItEditsParametersAndSurvivesTheKernel()
{
    qAddPreRoutine([] { QTimer::singleShot(0, qApp, [] { UseTheHost(); }); });
    char name[] = "small_host";
    char* arguments[] = {name, nullptr};
    QCOMPARE(RunSmallHost(1, arguments), 0);

    QVERIFY(g_isDone);
    QCOMPARE(g_messages,
             QStringLiteral("0: The part is 2.5 long\n"
                            "1: The kernel reported an error: Standard_ConstructionError\n"
                            "0: Extruding by 10 along (0, 0, -1)"));
}

int main(int argc, char** argv)
{
    PrepareTestProgram(); // Without an application object: the small host creates its own.
    GuardedTest<tst_SmallHost> test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_SmallHost.moc"
