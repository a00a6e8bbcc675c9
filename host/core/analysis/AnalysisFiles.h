#pragma once

#include <QString>

/// The path of the installed system library, or of the built-in one if the program is not
/// installed.
QString InstalledSystemMaterials();

/// Puts a copy of @p library into the working directory as "SysMaterial.xml", where the dialogs
/// look for it. Never replaces anything of that name. Returns false if there is no such file
/// afterwards.
bool ProvideSystemMaterials(const QString& library = InstalledSystemMaterials());

/// Reads the files of the working directory into the stores: the element properties that are not in
/// the store yet, and the materials if the store is empty. Provides the system library first.
/// Returns a warning for the user, or an empty text.
QString ReadAnalysisFiles();

/// Writes the store of element properties to the file of the working directory if there is one, so
/// that reading the file does not bring back what the store has lost.
void UpdatePropertyFile();
