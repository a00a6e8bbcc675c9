#include "NumberText.h"

#include <algorithm>

QString tarn::NumberText(double value)
{
    return QString::number(value, 'g', 6);
}

bool tarn::IsNumberText(const QString& text)
{
    const QByteArray bytes = text.toLatin1();
    return std::all_of(bytes.begin(), bytes.end(),
                       [](char c) { return (c >= '0' && c <= '9') || c == '.'; });
}
