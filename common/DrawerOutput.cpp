#include "DrawerOutput.h"

#include <QTextCodec>

#include <locale.h>

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
    Q_DISABLE_COPY(CNumericLocale)

private:
    locale_t m_locale;
    locale_t m_previous;
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
