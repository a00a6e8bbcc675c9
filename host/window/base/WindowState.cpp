#include "WindowState.h"

#include "UserSettings.h"

#include <QGuiApplication>
#include <QLayout>
#include <QMainWindow>
#include <QScreen>

namespace {

const QLatin1String GeometryKey("window/geometry");
const QLatin1String LayoutKey("window/layout");
constexpr int LayoutVersion = 3; // To be raised when docks are added or removed.
constexpr QSize RoomySize(1440, 940);

} // namespace

void WindowState::Restore(QMainWindow& window)
{
    const UserSettings settings;
    window.restoreState(settings.value(LayoutKey).toByteArray(), LayoutVersion);
    if (window.restoreGeometry(settings.value(GeometryKey).toByteArray()))
        return;
    // The layout still has the least size of docks that were hidden meanwhile.
    window.layout()->invalidate();
    window.layout()->activate();
    // Frame and title bar come on top.
    constexpr int Frame = 40;
    const QSize room = QGuiApplication::primaryScreen()->availableSize() - QSize(Frame, Frame);
    window.resize(RoomySize.boundedTo(room));
}

void WindowState::Store(const QMainWindow& window)
{
    UserSettings settings;
    settings.setValue(GeometryKey, window.saveGeometry());
    settings.setValue(LayoutKey, window.saveState(LayoutVersion));
}
