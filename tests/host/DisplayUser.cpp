#include "DisplayUser.h"

#include "GuardedTest.h"

#include <QByteArray>

#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>

#include <vector>

struct DisplayUser::Connection
{
    Display* display = XOpenDisplay(nullptr);

    ~Connection() { XCloseDisplay(display); }

    QByteArray Property(Window window, const char* name, Atom type, int bytes)
    {
        Atom actualType = None;
        int format = 0;
        unsigned long items = 0;
        unsigned long rest = 0;
        unsigned char* data = nullptr;
        constexpr long MaximumLength = 1024;
        XGetWindowProperty(display, window, XInternAtom(display, name, False), 0, MaximumLength,
                           False, type, &actualType, &format, &items, &rest, &data);
        if (data == nullptr)
            return QByteArray();
        const QByteArray value(reinterpret_cast<const char*>(data), int(items) * bytes);
        XFree(data);
        return value;
    }

    bool IsOfProcess(Window window, qint64 process)
    {
        // The library returns 32-bit properties as longs.
        const QByteArray id = Property(window, "_NET_WM_PID", XA_CARDINAL, sizeof(long));
        return id.size() == int(sizeof(long)) &&
               *reinterpret_cast<const long*>(id.constData()) == process;
    }

    bool IsVisible(Window window)
    {
        XWindowAttributes attributes;
        return XGetWindowAttributes(display, window, &attributes) != 0 &&
               attributes.map_state == IsViewable;
    }

    void SendKey(KeyCode key, bool isDown) { XTestFakeKeyEvent(display, key, isDown, 0); }
};

DisplayUser::DisplayUser()
    : m_connection(std::make_unique<Connection>())
{
    if (m_connection->display == nullptr)
        FailTest("There is no X display");
    // A window may disappear while it is looked at.
    XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });
}

DisplayUser::~DisplayUser() = default;

DisplayUser::WindowId DisplayUser::FindWindow(qint64 process, const QString& title)
{
    Display* const display = m_connection->display;
    Window root = 0;
    Window parent = 0;
    Window* windows = nullptr;
    unsigned int count = 0;
    XQueryTree(display, DefaultRootWindow(display), &root, &parent, &windows, &count);
    WindowId found = 0;
    const Atom text = XInternAtom(display, "UTF8_STRING", False);
    for (unsigned int i = 0; i < count; ++i) {
        if (m_connection->IsOfProcess(windows[i], process) && m_connection->IsVisible(windows[i]) &&
            m_connection->Property(windows[i], "_NET_WM_NAME", text, 1) == title.toUtf8())
            found = windows[i];
    }
    if (windows != nullptr)
        XFree(windows);
    return found;
}

void DisplayUser::Focus(WindowId window)
{
    XSetInputFocus(m_connection->display, window, RevertToParent, CurrentTime);
    XSync(m_connection->display, False);
}

void DisplayUser::Press(std::initializer_list<const char*> keys)
{
    std::vector<KeyCode> codes;
    for (const char* const key : keys)
        codes.push_back(XKeysymToKeycode(m_connection->display, XStringToKeysym(key)));
    for (const KeyCode code : codes)
        m_connection->SendKey(code, true);
    for (auto code = codes.rbegin(); code != codes.rend(); ++code)
        m_connection->SendKey(*code, false);
    XSync(m_connection->display, False);
}

void DisplayUser::Type(const QString& text)
{
    Display* const display = m_connection->display;
    const KeyCode shift = XKeysymToKeycode(display, XStringToKeysym("Shift_L"));
    for (const QChar character : text) {
        // The key symbols of Latin-1 are its codes.
        const KeySym symbol = character.unicode();
        const KeyCode key = XKeysymToKeycode(display, symbol);
        const bool isShifted = XkbKeycodeToKeysym(display, key, 0, 0) != symbol;
        if (isShifted)
            m_connection->SendKey(shift, true);
        m_connection->SendKey(key, true);
        m_connection->SendKey(key, false);
        if (isShifted)
            m_connection->SendKey(shift, false);
    }
    XSync(display, False);
}

void DisplayUser::Click(WindowId window, const QPoint& place, int times)
{
    Display* const display = m_connection->display;
    int x = 0;
    int y = 0;
    Window child = 0;
    XTranslateCoordinates(display, window, DefaultRootWindow(display), place.x(), place.y(), &x, &y,
                          &child);
    XTestFakeMotionEvent(display, -1, x, y, 0);
    for (int i = 0; i < times; ++i) {
        XTestFakeButtonEvent(display, Button1, True, 0);
        XTestFakeButtonEvent(display, Button1, False, 0);
    }
    XSync(display, False);
}
