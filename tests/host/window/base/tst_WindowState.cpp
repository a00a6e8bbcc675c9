#include "TestCase.h"
#include "UserSettings.h"
#include "WindowState.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QScreen>

class tst_WindowState : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override
    {
        TestCase::init();
        UserSettings().clear();
    }
    void TheFirstSizeFitsTheScreen();
    void SizeAndLayoutReturn();
    void ADamagedStateIsIgnored();
};

namespace {

struct Window
{
    Window()
    {
        dock->setObjectName("dock");
        window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    }

    QMainWindow window;
    QDockWidget* dock = new QDockWidget(&window);
};

} // namespace

void tst_WindowState::TheFirstSizeFitsTheScreen()
{
    Window shown;
    WindowState::Restore(shown.window);
    const QSize screen = QGuiApplication::primaryScreen()->availableSize();
    QVERIFY(shown.window.width() < screen.width());
    QVERIFY(shown.window.height() < screen.height());
}

void tst_WindowState::SizeAndLayoutReturn()
{
    {
        Window first;
        first.window.resize(512, 384);
        first.window.addDockWidget(Qt::BottomDockWidgetArea, first.dock);
        first.window.show();
        WindowState::Store(first.window);
    }
    Window second;
    WindowState::Restore(second.window);
    QCOMPARE(second.window.size(), QSize(512, 384));
    QCOMPARE(second.window.dockWidgetArea(second.dock), Qt::BottomDockWidgetArea);
}

void tst_WindowState::ADamagedStateIsIgnored()
{
    UserSettings().setValue("window/geometry", QByteArray("nonsense"));
    UserSettings().setValue("window/layout", QByteArray("nonsense"));
    Window shown;
    WindowState::Restore(shown.window);
    QCOMPARE(shown.window.dockWidgetArea(shown.dock), Qt::LeftDockWidgetArea);
}

TARN_TEST_MAIN(tst_WindowState)
#include "tst_WindowState.moc"
