#pragma once

#include "HostError.h"

#include <QString>

class Project;

/// Why the pictures could not be written: one line.
class ScreenshotError : public HostError
{
public:
    using HostError::HostError;
};

/// Writes a picture of every dialog, filled with the samples of @p project, and of the main window
/// into @p directory, which is made when it is not there: one PNG each, named after the class.
/// Replaces what the stores hold. @throws ScreenshotError
void WriteScreenshots(const Project& project, const QString& directory);
