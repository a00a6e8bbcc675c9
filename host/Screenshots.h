#pragma once

class Project;
class QString;

/// Writes a picture of every dialog, filled with the samples of @p project, and of the main window
/// into @p directory, which is made when it is not there: one PNG each, named after the class.
///
/// Replaces what the stores hold. Returns 0, or 1 after telling the first failure in one line on
/// the standard error.
int WriteScreenshots(const Project& project, const QString& directory);
