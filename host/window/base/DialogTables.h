#pragma once

class QDialog;

/// Enlarges a dialog that is about to be shown to fit a table of parameters, and fits the columns
/// to their content. Otherwise a dialog opens in the size of its form.
void FitTables(QDialog& dialog);
