#pragma once

#include <QByteArray>

/// Texts of decks: numbers in the C locale, whatever the program's locale is.

/// The shortest text of @p value that reads back as the same number; with fewer digits if it has
/// more than @p width characters.
QByteArray NumberInWidth(double value, int width);

/// The same as a real number of bulk data: always with a full stop, at most @p width characters.
QByteArray RealInWidth(double value, int width);
