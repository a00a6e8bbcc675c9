#include "TestCase.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QVector>

#include <locale.h>

#include <clocale>

#ifdef __SANITIZE_ADDRESS__
// The leak check names what is kept by a library only while it is loaded; graphics drivers come and
// go.
extern "C" __attribute__((visibility("default"))) int dlclose(void*)
{
    return 0;
}
#endif

namespace {

QtMessageHandler g_nextHandler = nullptr;
QStringList g_unexpected;
QVector<QRegularExpression> g_expected;

// Offscreen, every window says that it has no size hints and cannot be raised. Under X without a
// window manager, the toolkit may focus a dialog that is closed already.
bool IsPlatformNoise(const QString& text)
{
    return text.contains(QLatin1String("propagateSizeHints")) ||
           text.contains(QLatin1String("does not support raise()")) ||
           text.contains(QLatin1String("(SetInputFocus)"));
}

void CollectWarnings(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (IsPlatformNoise(text))
        return;
    if (type != QtDebugMsg && type != QtInfoMsg) {
        for (int i = 0; i < g_expected.size(); ++i) {
            if (g_expected[i].match(text).hasMatch()) {
                g_expected.remove(i);
                return;
            }
        }
        g_unexpected << text;
    }
    if (g_nextHandler != nullptr)
        g_nextHandler(type, context, text);
}

void UseDefaultLocale()
{
    std::setlocale(LC_ALL, "C.UTF-8");
    std::setlocale(LC_NUMERIC, "C");
    QLocale::setDefault(QLocale::c());
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

} // namespace

void TestCase::ExpectWarning(const QString& pattern)
{
    g_expected << QRegularExpression(pattern);
}

QString TestCase::EnterTemporaryDirectory()
{
    m_directory.reset();
    m_directory = std::make_unique<TemporaryDirectory>();
    return m_directory->Path();
}

void TestCase::UseLocale(const char* name)
{
    QLocale::setDefault(QLocale(QString::fromLatin1(name)));
    if (std::setlocale(LC_ALL, name) == nullptr)
        FailTest(QStringLiteral("The system has no locale ") + QString::fromLatin1(name));
}

void TestCase::UseCodePage(const char* codec)
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName(codec));
}

void TestCase::init()
{
    // The test framework puts its own handler in place when it starts, so ours comes in here.
    const QtMessageHandler previous = qInstallMessageHandler(CollectWarnings);
    if (previous != CollectWarnings)
        g_nextHandler = previous;
    g_unexpected.clear();
    g_expected.clear();
    UseDefaultLocale();
    SetUp();
}

void TestCase::cleanup()
{
    QStringList failures = TearDown();
    UseDefaultLocale();
    m_directory.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    for (const QString& text : qAsConst(g_unexpected))
        failures << QStringLiteral("unexpected warning: ") + text;
    for (const QRegularExpression& pattern : qAsConst(g_expected))
        failures << QStringLiteral("a warning did not come: ") + pattern.pattern();
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* const window : windows) {
        if (window->isVisible())
            failures << QStringLiteral("a window was left open: ") + window->windowTitle();
    }
    if (!failures.isEmpty())
        QFAIL(qPrintable(failures.join(QLatin1Char('\n'))));
}

void NewNameRows(const char* column, std::initializer_list<const char*> names)
{
    QTest::addColumn<QByteArray>(column);
    for (const char* const name : names)
        QTest::newRow(name) << QByteArray(name);
}

QWidget& FindWidget(const QWidget& parent, const QString& name, const QMetaObject& type)
{
    QStringList names;
    const QList<QWidget*> children = parent.findChildren<QWidget*>();
    for (QWidget* const child : children) {
        if (child->objectName() == name && type.cast(child) != nullptr)
            return *child;
        if (!child->objectName().isEmpty())
            names << QStringLiteral("%1 %2").arg(
                QString::fromLatin1(child->metaObject()->className()), child->objectName());
    }
    FailTest(QStringLiteral("There is no %1 \"%2\" in \"%3\", which has: %4")
                 .arg(QString::fromLatin1(type.className()), name, parent.objectName(),
                      names.join(QStringLiteral(", "))));
}

void Click(const QWidget& parent, const char* name)
{
    auto& button = Find<QAbstractButton>(parent, name);
    // The middle of a wide check box or radio button may lie beside its text and press nothing.
    const bool hasIndicator = button.inherits("QCheckBox") || button.inherits("QRadioButton");
    if (!hasIndicator && button.isEnabled() && button.isVisible() && button.window()->isVisible())
        QTest::mouseClick(&button, Qt::LeftButton);
    else
        QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(3, button.height() / 2));
}

void Type(const QWidget& parent, const char* name, const QString& text)
{
    auto& edit = Find<QLineEdit>(parent, name);
    // A field of a window that is not active yet would not notice that it is left.
    edit.activateWindow();
    if (edit.isVisible())
        QVERIFY(QTest::qWaitForWindowActive(edit.window()));
    edit.setFocus();
    TypeText(edit, text);
    QTest::keyClick(&edit, Qt::Key_Tab);
}

void TypeText(QWidget& field, const QString& text)
{
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Delete);
    // QTest::keyClicks() types Latin-1 only.
    for (const QChar letter : text)
        QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, QString(letter), {});
}

void DeliverEvents()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QStringList TabOrder(QWidget& window)
{
    QStringList names;
    const QWidget* widget = &window;
    do {
        widget = widget->nextInFocusChain();
        if (widget != &window && window.isAncestorOf(widget) && widget->isEnabled() &&
            (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisibleTo(&window) &&
            !widget->objectName().startsWith(QLatin1String("qt_")))
            names << widget->objectName();
    } while (widget != &window);
    return names;
}

QString SourcePath(const QString& place)
{
    return QStringLiteral(TARN_SOURCE_DIR "/") + place;
}

void PrepareTestProgram()
{
    // Neither reads nor changes the settings and data of the user.
    static const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()) + "/config");
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()) + "/data");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("LOCPATH"))
        qputenv("LOCPATH", TARN_TEST_LOCALES);
    qputenv("QT_LOGGING_RULES", "*.debug=true;qt.*.debug=false");
}
