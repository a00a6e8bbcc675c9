#include "FieldRule.h"

#include "NumberTexts.h"

#include <cmath>

bool FieldRule::Allows(double value) const
{
    if (!std::isfinite(value))
        return false;
    if (value == 0.0 && isZeroAllowed)
        return true;
    if (unit == WholeNumber && value != std::floor(value))
        return false;
    return (exclusiveMinimum ? value > minimum : value >= minimum) &&
           (exclusiveMaximum ? value < maximum : value <= maximum);
}

QString FieldRule::ValueText(double value) const
{
    const QString text = ShortText(value);
    if (unit == Millimetres)
        return QStringLiteral("%1 mm").arg(text);
    return unit == Degrees ? text + QChar(0xb0) : text;
}

QString FieldRule::Text() const
{
    const auto plain = [](double limit) {
        return limit == std::floor(limit) ? QString::number(limit, 'f', 0) : ExactText(limit);
    };
    const QString low = plain(minimum);
    const QString high = plain(maximum);
    QString text;
    if (exclusiveMinimum)
        text = tr("above %1 and at most %2").arg(low, high);
    else if (exclusiveMaximum)
        text = tr("at least %1 and below %2").arg(low, high);
    else
        text = tr("from %1 to %2").arg(low, high);
    if (isZeroAllowed)
        text = tr("0 or %1").arg(text);
    switch (unit) {
    case Millimetres:
        return tr("%1 mm").arg(text);
    case Degrees:
        return tr("%1 degrees").arg(text);
    case WholeNumber:
        return tr("a whole number %1").arg(text);
    case Number:
        break;
    }
    return text;
}
