#include "ExpressionError.h"

QString ExpressionError::Text() const
{
    return tr("Position %1: %2").arg(QString::number(position), reason);
}

QString ExpressionError::Shown(std::string_view part)
{
    constexpr int MaxShown = 40;
    QString text = QString::fromUtf8(part.data(), int(part.size()));
    if (text.size() == 1 && !text.at(0).isPrint())
        return tr("the character with code %1").arg(text.at(0).unicode());
    if (text.size() > MaxShown) {
        text.truncate(text.at(MaxShown - 1).isHighSurrogate() ? MaxShown - 1 : MaxShown);
        text += QStringLiteral("...");
    }
    return QLatin1Char('\'') + text + QLatin1Char('\'');
}
