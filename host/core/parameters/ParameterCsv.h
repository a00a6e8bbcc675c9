#pragma once

#include "ParameterEntry.h"

/// @file
/// Parameters as a table of text with the columns name, type, value, unit and description, for
/// files and for the clipboard.

/// With a header. @p separator is a comma in files and a tab in the clipboard.
QString ParametersToText(const ParameterEntries& entries, QChar separator);

/// Reads what ParametersToText() wrote or a user typed: the separator may be a tab, a comma or a
/// semicolon. A header may leave out columns or change their order; without a header, the columns
/// are name, value, unit and description. The type is Scalar where none is given.
/// @throws ParameterError that names the row
ParameterEntries ParametersFromText(const QString& text);

/// @p entries with those of @p added: one of a known name replaces value, type, unit and
/// description, others follow at the end.
ParameterEntries Merged(ParameterEntries entries, const ParameterEntries& added);
