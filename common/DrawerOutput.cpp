#include "DrawerOutput.h"

#include <QTextCodec>

#include <locale.h>
#ifdef Q_OS_MACOS
#include <xlocale.h>
#endif

#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <new>

DrawerOutput* DrawerOutput::m_ConnectorInstance = nullptr;

namespace {

/// Sets LC_NUMERIC of this thread to "C" for its lifetime. Otherwise printf would use the locale
/// that the application object has set, and messages could contain decimal commas.
class CNumericLocale
{
public:
#ifdef Q_OS_UNIX
    CNumericLocale()
        : m_locale(newlocale(LC_NUMERIC_MASK, "C", duplocale(uselocale(locale_t(nullptr)))))
        , m_previous(uselocale(m_locale))
    {
    }
    ~CNumericLocale()
    {
        uselocale(m_previous);
        freelocale(m_locale);
    }

private:
    locale_t m_locale;
    locale_t m_previous;
#else
    CNumericLocale()
        : m_threads(_configthreadlocale(_ENABLE_PER_THREAD_LOCALE))
        , m_previous(setlocale(LC_NUMERIC, nullptr))
    {
        setlocale(LC_NUMERIC, "C");
    }
    ~CNumericLocale()
    {
        setlocale(LC_NUMERIC, m_previous.constData());
        _configthreadlocale(m_threads);
    }

private:
    int m_threads;
    QByteArray m_previous;
#endif
    Q_DISABLE_COPY(CNumericLocale)
};

QString FormatText(const char* format, va_list arguments)
{
    char buffer[1024] = {};
    int length = 0;
    {
        const CNumericLocale numericLocale;
        length = std::vsnprintf(buffer, sizeof buffer, format, arguments);
    }
    if (length < int(sizeof buffer))
        return QString::fromLocal8Bit(buffer);

    // Truncation may have split a character: a stateful decoder holds back such a fragment.
    QTextCodec::ConverterState state;
    return QTextCodec::codecForLocale()->toUnicode(buffer, int(std::strlen(buffer)), &state);
}

} // namespace

DrawerOutput::DrawerOutput() = default;

DrawerOutput::~DrawerOutput() = default;

DrawerOutput* DrawerOutput::GetInstance()
{
    if (m_ConnectorInstance == nullptr)
        m_ConnectorInstance = new (std::nothrow) DrawerOutput;
    return m_ConnectorInstance;
}

void DrawerOutput::EmitMessage2MessageWidget(int level, const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    const QString text = FormatText(format, arguments);
    va_end(arguments);
    Q_EMIT MessageWidgetMessage(level, text);
}

QString DrawerOutput::GetQStringFromChar(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    QString text = FormatText(format, arguments);
    va_end(arguments);
    return text;
}
