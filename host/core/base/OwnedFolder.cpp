#include "OwnedFolder.h"

#include "HostError.h"

#include <QDir>
#include <QFileInfo>

#include <unistd.h>

namespace {

const QLatin1String LockName("owner.lock");

} // namespace

OwnedFolder::OwnedFolder(const QString& name)
    : m_folder(QDir::temp().filePath(name + QStringLiteral("-XXXXXX")))
    , m_lock(m_folder.filePath(LockName))
{
    if (!m_folder.isValid())
        throw HostError(QStringLiteral("%1: %2").arg(QDir::tempPath(), m_folder.errorString()));
    if (!m_lock.IsHeld())
        throw HostError(QStringLiteral("%1: %2").arg(m_folder.path(), qt_error_string()));
}

void OwnedFolder::RemoveAbandoned(const QString& name)
{
    const QFileInfoList folders = QDir::temp().entryInfoList(
        {name + QStringLiteral("-??????")}, QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot);
    for (const QFileInfo& folder : folders) {
        QDir content(folder.absoluteFilePath());
        // Without a lock, its owner may be about to take it.
        if (folder.ownerId() != ::geteuid() || !content.exists(LockName))
            continue;
        if (FileLock(content.filePath(LockName)).IsHeld())
            content.removeRecursively();
    }
}
