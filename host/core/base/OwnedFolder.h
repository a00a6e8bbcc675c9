#pragma once

#include "FileLock.h"

#include <QString>
#include <QTemporaryDir>

/// A folder for temporary files, removed with this object. A lock in it says that its owner is
/// still there: if the program is killed, another one can remove the folder.
class OwnedFolder
{
public:
    /// Makes a folder whose name begins with @p name. @throws HostError
    explicit OwnedFolder(const QString& name);

    /// Removes the user's folders of that name whose owners are gone.
    static void RemoveAbandoned(const QString& name);

    QString Path() const { return m_folder.path(); }
    QString PathOf(const QString& name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
    FileLock m_lock; // Ends first.
};
