#pragma once

#include <QPalette>
#include <QString>

#include <functional>

class Project;
class QWidget;

/// Light text on a dark ground.
QPalette DarkPalette();

/// Calls @p visit with the main window and every dialog, and with the name of its class. Each
/// window is new, filled with sample data and the parameters of @p project, and hidden. Replaces
/// the content of the stores, and the working directory until it returns.
void VisitWindows(const Project& project,
                  const std::function<void(const QString& name, QWidget& window)>& visit);

/// Writes a PNG of each of these windows into @p directory, named after the class. Creates the
/// folder if it is missing. Replaces the content of the stores. @throws HostError
void WriteScreenshots(const Project& project, const QString& directory);
