#include "ExpressionText.h"

#include <QString>
#include <QTextCodec>

#include <algorithm>

namespace {

constexpr int Latin1Mib = 4;

bool IsLossless(const QTextCodec& codec, const std::string& bytes, const QString& text,
                const QTextCodec::ConverterState& state)
{
    if (state.invalidChars != 0 || state.remainingChars != 0)
        return false;
    return codec.fromUnicode(text).toStdString() == bytes;
}

} // namespace

ExpressionText::ExpressionText(const std::string& bytes)
{
    if (IsAscii(bytes)) {
        m_utf8 = bytes;
        return;
    }
    m_codec = QTextCodec::codecForLocale();
    // A byte order mark is a character like any other, or it would not come back.
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    QString text = m_codec->toUnicode(bytes.data(), int(bytes.size()), &state);
    if (!IsLossless(*m_codec, bytes, text, state)) {
        m_codec = QTextCodec::codecForMib(Latin1Mib);
        text = QString::fromLatin1(bytes.data(), int(bytes.size()));
    }
    m_utf8 = text.toStdString();
}

std::string ExpressionText::LocalName(const std::string& name) const
{
    if (m_codec == nullptr || IsAscii(name))
        return name;
    return m_codec->fromUnicode(QString::fromStdString(name)).toStdString();
}

int ExpressionText::PositionOf(std::size_t offset) const
{
    const auto end = m_utf8.begin() + std::ptrdiff_t(std::min(offset, m_utf8.size()));
    const auto isFirstByte = [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
    };
    return 1 + int(std::count_if(m_utf8.begin(), end, isFirstByte));
}

bool ExpressionText::IsAscii(const std::string& bytes)
{
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}
