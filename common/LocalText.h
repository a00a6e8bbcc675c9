#pragma once

#include <QByteArray>
#include <QString>

#include <string>

/// Conversions between the dialogs' texts and the model libraries' local 8-bit strings.
namespace tarn {

/// Up to the first zero byte, as the model libraries take C strings.
inline std::string ToLocal8Bit(const QString& text)
{
    return std::string(text.toLocal8Bit().constData());
}

/// Up to the first zero byte.
inline QString FromLocal8Bit(const std::string& text)
{
    return QString::fromLocal8Bit(text.c_str());
}

} // namespace tarn
