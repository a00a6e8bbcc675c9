#pragma once

class QDialog;

/// Makes room in a dialog that is about to be shown: as large as a table of parameters wants it,
/// with columns as wide as what is in them. By themselves the dialogs open as large as their forms.
void FitTables(QDialog& dialog);
