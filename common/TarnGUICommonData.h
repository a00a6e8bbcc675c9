#pragma once

#include "tarnguicommon_export.h"

#include <QLocale>
#include <QString>

/// The files that come with the library. They are found relative to the file of the library, so
/// that an installation can be moved.
///
///     TarnGUICommonData::InstallTranslations(QLocale());
class TARNGUICOMMON_EXPORT TarnGUICommonData
{
public:
    TarnGUICommonData() = delete;

    /// The absolute path of the folder with the files. It is returned whether it exists or not.
    static QString Folder();

    /// The path of the system library of materials, which a host copies as "SysMaterial.xml" into
    /// its working directory.
    static QString SystemMaterials();

    /// The path of the picture that dialogs use as their window icon.
    static QString WindowIcon();

    /// Loads the texts of the dialogs for @p locale into the application object, which must exist.
    /// Another call replaces them; dialogs that are open keep their texts. Without texts for
    /// @p locale, the dialogs become English. Returns false if the files are missing: some texts
    /// are Chinese then.
    ///
    /// The buttons of message boxes belong to Qt, and their texts to Qt's own translations.
    static bool InstallTranslations(const QLocale& locale);
};
