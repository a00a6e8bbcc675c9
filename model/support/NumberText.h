#pragma once

#include <QString>

namespace tarn {

/// Formats a number as the dialogs show it: general format with 6 significant digits.
QString NumberText(double value);

/// True if @p text, as Latin-1, contains only the digits 0 to 9 and the full stop; also true for
/// the empty text. Deliberately strict: signs, exponents, blanks and commas fail.
bool IsNumberText(const QString& text);

} // namespace tarn
