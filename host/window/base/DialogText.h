#pragma once

#include <QString>

class QWidget;

// The line edits of dialogs whose getters turn a text that is not a number into 0 without a word.

/// The text of the line edit @p field of @p dialog: a finite number, or an expression that has a
/// finite value with the parameters of now. @throws HostError that names @p label otherwise
QString NumberOrExpression(const QWidget& dialog, const char* field, const QString& label);

/// Puts @p text into the line edit @p field of @p dialog.
void SetFieldText(const QWidget& dialog, const char* field, const QString& text);
