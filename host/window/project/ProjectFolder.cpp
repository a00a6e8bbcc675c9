#include "ProjectFolder.h"

#include "HostError.h"
#include "WholeFile.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace {

const QLatin1String LockName("tarnhost.lock");

// What a project shares with the dialogs.
const QStringList SharedFiles = {QStringLiteral("UserMaterial.xml"),
                                 QStringLiteral("ElementProperty.xml")};

// Everything in it that is the project's. The library of the system is provided where it is needed.
QStringList FilesIn(const QDir& folder)
{
    QStringList places;
    QDirIterator files(folder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString place = folder.relativeFilePath(files.next());
        if (place != QLatin1String("SysMaterial.xml") &&
            !place.endsWith(QLatin1String(".autosave")) && !place.endsWith(QLatin1String(".lock")))
            places << place;
    }
    return places;
}

QDir ParentFolder()
{
    const QString place = QStringLiteral("/tarnhost/unsaved");
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (!data.isEmpty() && QDir().mkpath(data + place) && QFileInfo(data + place).isWritable())
        return QDir(data + place);
    QDir().mkpath(QDir::tempPath() + place);
    return QDir(QDir::tempPath() + place);
}

QString LockIn(const QString& folder)
{
    return QDir(folder).filePath(LockName);
}

} // namespace

ProjectFolder::ProjectFolder()
    : m_before(QDir::currentPath())
{
}

ProjectFolder::~ProjectFolder()
{
    QDir::setCurrent(m_before);
    RemoveOwn();
}

void ProjectFolder::RemoveOwn()
{
    m_lock.reset();
    if (!m_own.isEmpty())
        QDir(m_own).removeRecursively();
    m_own.clear();
    m_isInOwn = false;
}

void ProjectFolder::Enter(const QString& folder)
{
    // The own folder stays until another project is opened: imports may be in it.
    m_isInOwn = false;
    QDir::setCurrent(folder);
}

void ProjectFolder::EnterOwn(const QString& folder)
{
    QDir::setCurrent(m_before);
    if (folder != m_own)
        RemoveOwn();
    m_own = folder;
    if (m_own.isEmpty()) {
        QTemporaryDir made(ParentFolder().filePath(QStringLiteral("XXXXXX")));
        made.setAutoRemove(false);
        m_own = made.path();
    }
    if (!QDir::setCurrent(m_own))
        throw HostError(QStringLiteral("%1: no folder for the project can be made").arg(m_own));
    m_lock = std::make_unique<FileLock>(LockIn(m_own));
    m_isInOwn = true;
}

QStringList ProjectFolder::CopyFilesTo(const QString& folder) const
{
    const QDir here = QDir::current();
    const QDir target(folder);
    QStringList inTheWay;
    const QStringList places = m_isInOwn ? FilesIn(here) : SharedFiles;
    for (const QString& place : places) {
        const QString path = here.filePath(place);
        if (!QFileInfo::exists(path))
            continue;
        const QString copy = target.filePath(place);
        target.mkpath(QFileInfo(place).path());
        if (tarn::WholeFile(path).CopyTo(copy))
            continue;
        QByteArray ours;
        QByteArray theirs;
        if (!tarn::WholeFile(path).Read(ours) || !tarn::WholeFile(copy).Read(theirs) ||
            ours != theirs)
            inTheWay << place;
    }
    return inTheWay;
}

QStringList ProjectFolder::Abandoned()
{
    QStringList folders;
    const QFileInfoList all =
        ParentFolder().entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Time);
    for (const QFileInfo& folder : all) {
        if (FileLock(LockIn(folder.filePath())).IsHeld())
            folders << folder.filePath();
    }
    return folders;
}
