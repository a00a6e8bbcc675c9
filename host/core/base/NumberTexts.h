#pragma once

#include "NumberText.h"

#include <QLocale>
#include <QString>

/// Six significant digits, as the dialogs show numbers.
inline QString ShortText(double value)
{
    return tarn::NumberText(value);
}

/// The shortest text that reads back as the same number: up to 17 digits, but 0.1 stays 0.1.
inline QString ExactText(double value)
{
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}
