#pragma once

#include <QString>

namespace tarn {

/// A number as the dialogs show it: general format with 6 significant digits.
QString NumberText(double value);

/// True when @p text, as Latin-1, holds only the digits 0 to 9 and the full stop; the empty text
/// passes. Deliberately narrow: signs, exponents, blanks and commas fail.
bool IsNumberText(const QString& text);

} // namespace tarn
