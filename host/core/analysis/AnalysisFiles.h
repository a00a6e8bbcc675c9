#pragma once

#include <QString>

/// The system library that belongs to this program: the installed one, or, where the program is not
/// installed, the one that is built in.
QString InstalledSystemMaterials();

/// Puts a copy of @p library into the working directory as "SysMaterial.xml", where the dialogs
/// look for it. Whatever has that name there already stays as it is. Returns false when there is no
/// such file afterwards.
bool ProvideSystemMaterials(const QString& library = InstalledSystemMaterials());

/// Brings the stores up to the files of the working directory: the element properties that are not
/// held yet, and the materials where none is held. Provides the system library first. Returns a
/// warning for the user, or an empty text.
QString ReadAnalysisFiles();
