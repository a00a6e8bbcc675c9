#pragma once

#include <QPalette>
#include <QString>

#include <functional>

class Project;
class QWidget;

/// Light text on dark.
QPalette DarkPalette();

/// Calls @p visit with the name of its class for the main window and for every dialog: newly made,
/// filled with the samples of @p project, not shown yet. Replaces what the stores hold, and the
/// working directory until it returns.
void VisitWindows(const Project& project,
                  const std::function<void(const QString& name, QWidget& window)>& visit);

/// Writes a picture of every dialog, filled with the samples of @p project, and of the main window
/// into @p directory, which is made when it is not there: one PNG each, named after the class.
/// Replaces what the stores hold. @throws HostError
void WriteScreenshots(const Project& project, const QString& directory);
