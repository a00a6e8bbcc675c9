#pragma once

#include <QString>

class QWidget;

// The file dialogs for STEP files. They start in the project's @p folder; both return an empty path
// if the user cancels.

/// The file to import: relative to @p folder if it is in it, so that it stays valid when the folder
/// is moved.
QString AskForStepFile(QWidget* window, const QString& folder);

/// Where to write a STEP file.
QString AskForStepTarget(QWidget* window, const QString& folder);
