#include "ExpressionText.h"

#include <QString>
#include <QTextCodec>

#include <algorithm>

namespace {

constexpr int Latin1Mib = 4;
constexpr int Utf8Mib = 106;

// A byte order mark is a character like any other, or it would be lost.
constexpr QTextCodec::ConversionFlag KeepAll = QTextCodec::IgnoreHeader;

QString Decoded(const QTextCodec& codec, const std::string& bytes)
{
    QTextCodec::ConverterState state(KeepAll);
    return codec.toUnicode(bytes.data(), int(bytes.size()), &state);
}

std::string Encoded(const QTextCodec& codec, const QString& text)
{
    QTextCodec::ConverterState state(KeepAll);
    return codec.fromUnicode(text.constData(), text.size(), &state).toStdString();
}

} // namespace

ExpressionText::ExpressionText(const std::string& bytes)
{
    if (IsAscii(bytes)) {
        m_utf8 = bytes;
        return;
    }
    m_codec = QTextCodec::codecForLocale();
    QString text = Decoded(*m_codec, bytes);
    if (Encoded(*m_codec, text) != bytes) {
        m_codec = QTextCodec::codecForMib(Latin1Mib);
        text = Decoded(*m_codec, bytes);
    }
    m_utf8 = text.toStdString();
}

std::string ExpressionText::LocalName(const std::string& name) const
{
    if (m_codec == nullptr || IsAscii(name))
        return name;
    return Encoded(*m_codec, Decoded(*QTextCodec::codecForMib(Utf8Mib), name));
}

int ExpressionText::PositionOf(std::size_t offset) const
{
    if (m_codec == nullptr)
        return int(offset) + 1;
    const auto isFirstByte = [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
    };
    return 1 +
           int(std::count_if(m_utf8.begin(), m_utf8.begin() + std::ptrdiff_t(offset), isFirstByte));
}

bool ExpressionText::IsAscii(const std::string& bytes)
{
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}
