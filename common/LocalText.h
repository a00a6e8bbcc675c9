#pragma once

#include <QByteArray>
#include <QString>

#include <string>

/// Conversions between the dialogs' texts and the local 8-bit strings of the model libraries.
namespace tarn {

/// Converts up to the first zero byte, because the model libraries expect C strings.
inline std::string ToLocal8Bit(const QString& text)
{
    return std::string(text.toLocal8Bit().constData());
}

/// Converts up to the first zero byte.
inline QString FromLocal8Bit(const std::string& text)
{
    return QString::fromLocal8Bit(text.c_str());
}

} // namespace tarn
