#include "FileSystem.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#else
#include <io.h>
#include <windows.h>
#endif

namespace tarn {

#ifdef Q_OS_UNIX

namespace {

FileKind KindOf(const struct stat& status)
{
    if (S_ISDIR(status.st_mode))
        return FileKind::Folder;
    return S_ISREG(status.st_mode) ? FileKind::Regular : FileKind::Other;
}

bool Sync(int handle)
{
    // Some file systems cannot do this.
    return fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP;
}

} // namespace

FileKind KindOf(const QString& path)
{
    struct stat status
    {
    };
    const bool isThere = stat(QFile::encodeName(path).constData(), &status) == 0;
    return isThere ? KindOf(status) : FileKind::Missing;
}

bool OpenForReading(const QString& path, QFile& file, FileKind& kind)
{
    // The kind is checked afterwards, because the path may lead elsewhere a moment later.
    const int handle =
        open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    struct stat status
    {
    };
    if (handle < 0 || !file.open(handle, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle) ||
        fstat(handle, &status) != 0)
        return false;
    kind = KindOf(status);
    return true;
}

bool MayWrite(const QString& path)
{
    return faccessat(AT_FDCWD, QFile::encodeName(path).constData(), W_OK, AT_EACCESS) == 0;
}

bool Sync(const QFile& file)
{
    return Sync(file.handle());
}

bool SyncFolder(const QString& path)
{
    const QByteArray name = QFile::encodeName(QFileInfo(path).path());
    const int folder = open(name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    // A folder in which one may write is not always one that one may read.
    if (folder < 0)
        return true;
    const bool isSynced = Sync(folder);
    const int error = errno;
    close(folder);
    errno = error;
    return isSynced;
}

// Not QFile::rename(), which does not replace files.
bool Replace(const QString& from, const QString& to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

QString IncompleteWriteError()
{
    return qt_error_string(EIO);
}

#else

namespace {

std::wstring NativeName(const QString& path)
{
    return QDir::toNativeSeparators(path).toStdWString();
}

} // namespace

FileKind KindOf(const QString& path)
{
    const QFileInfo info(path);
    if (info.isDir())
        return FileKind::Folder;
    if (info.isFile())
        return FileKind::Regular;
    return info.exists() ? FileKind::Other : FileKind::Missing;
}

bool OpenForReading(const QString& path, QFile& file, FileKind& kind)
{
    kind = KindOf(path);
    // Opening a device could wait; opening a folder fails here.
    if (kind == FileKind::Folder || kind == FileKind::Other)
        return true;
    file.setFileName(path);
    return file.open(QIODevice::ReadOnly);
}

bool MayWrite(const QString& path)
{
    const DWORD attributes = GetFileAttributesW(NativeName(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return false;
    if ((attributes & FILE_ATTRIBUTE_READONLY) == 0)
        return true;
    SetLastError(ERROR_ACCESS_DENIED);
    return false;
}

bool Sync(const QFile& file)
{
    return FlushFileBuffers(reinterpret_cast<HANDLE>(_get_osfhandle(file.handle()))) != 0;
}

bool SyncFolder(const QString& /*path*/)
{
    return true; // Replace() has waited for the disk.
}

bool Replace(const QString& from, const QString& to)
{
    return MoveFileExW(NativeName(from).c_str(), NativeName(to).c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

QString IncompleteWriteError()
{
    return qt_error_string(ERROR_WRITE_FAULT);
}

#endif

} // namespace tarn
