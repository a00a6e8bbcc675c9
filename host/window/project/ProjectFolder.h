#pragma once

#include "FileLock.h"

#include <QString>
#include <QStringList>

#include <memory>

/// The folder of the open project, which is the working directory while it is open: files such as
/// UserMaterial.xml are the project's own.
///
/// A project that is not saved yet has a folder of its own among the user's data, which ends with
/// this object. The former working directory comes back then.
class ProjectFolder
{
public:
    ProjectFolder();
    ~ProjectFolder();
    Q_DISABLE_COPY(ProjectFolder)

    /// Works in the folder of a saved project.
    void Enter(const QString& folder);
    /// Works in a new, empty folder, or in @p folder, which an earlier session left.
    void EnterOwn(const QString& folder = QString());
    /// Whether the working directory is one of EnterOwn().
    bool IsOwn() const { return m_isInOwn; }

    /// Copies the files of the project to @p folder: all of an own folder, otherwise those that the
    /// dialogs share with it. Files there stay as they are; returns the names of those that were in
    /// the way and differ.
    QStringList CopyFilesTo(const QString& folder) const;

    /// The folders of projects that were never saved and whose programs have ended without closing
    /// them, the latest first.
    static QStringList Abandoned();

private:
    void RemoveOwn();

    const QString m_before;
    QString m_own; // Empty if there is none.
    std::unique_ptr<FileLock> m_lock;
    bool m_isInOwn = false;
};
