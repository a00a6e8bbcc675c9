#include "WholeFile.h"

#include "FileSystem.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRandomGenerator>
#include <QScopeGuard>

#include <optional>

namespace tarn {

namespace {

constexpr int BlockSize = 1024 * 1024;

bool IsResource(const QString& path)
{
    return path.startsWith(QLatin1String(":/"));
}

/// None for a new file and for a resource, so that the system's default applies.
std::optional<QFile::Permissions> PermissionsOf(const QString& path)
{
    if (IsResource(path) || !QFileInfo::exists(path))
        return std::nullopt;
    return QFile::permissions(path);
}

/// An unpredictable name in the folder of @p target, so that no other program can occupy it.
QString TemporaryName(const QString& target)
{
    constexpr int Letters = 6;
    QString name = target + QLatin1Char('.');
    for (int i = 0; i < Letters; ++i)
        name += QLatin1Char(char('a' + QRandomGenerator::system()->bounded('z' - 'a' + 1)));
    return name;
}

/// Creates @p file with all that @p from holds and puts it on the disk. On failure returns the
/// reason and leaves no file.
QString Create(QFile& file, QIODevice& from, std::optional<QFile::Permissions> permissions)
{
    // Unbuffered, so that each call reports its own failure.
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return file.errorString();
    auto removal = qScopeGuard([&file] { file.remove(); });
    // Before the content: nobody may read the copy who may not read the original. Not every file
    // system has permissions.
    if (permissions)
        file.setPermissions(*permissions);

    QByteArray block(BlockSize, Qt::Uninitialized);
    qint64 size = 0;
    for (;;) {
        const qint64 count = from.read(block.data(), block.size());
        if (count < 0)
            return from.errorString();
        if (count == 0)
            break;
        // A full disk takes a part of the block, and only the next call says why not more.
        for (qint64 done = 0; done < count;) {
            const qint64 written = file.write(block.constData() + done, count - done);
            if (written <= 0)
                return file.errorString();
            done += written;
        }
        size += count;
    }
    if (!Sync(file))
        return qt_error_string();
    if (file.size() != size)
        return IncompleteWriteError();
    removal.dismiss();
    return {};
}

} // namespace

WholeFile::WholeFile(const QString& path, int maximumSize)
    : m_path(path)
    , m_maximumSize(maximumSize)
{
}

QString WholeFile::Target(const QString& path)
{
    constexpr int MaximumLinks = 40;
    QFileInfo info(path);
    QString real = info.exists() ? info.canonicalFilePath() : QString();
    for (int i = 0; real.isEmpty() && i < MaximumLinks; ++i) {
        // Only in the real folder does ".." mean what it means to the system.
        const QString folder = info.dir().canonicalPath();
        if (folder.isEmpty() || info.fileName().isEmpty())
            break;
        info.setFile(folder + QLatin1Char('/') + info.fileName());
        if (info.isSymLink())
            info.setFile(info.symLinkTarget());
        else
            real = info.filePath();
    }
    return real;
}

bool WholeFile::Fail(const QString& error)
{
    m_error = error;
    return false;
}

bool WholeFile::FailBySize()
{
    const QString limit =
        QLocale().formattedDataSize(m_maximumSize, 0, QLocale::DataSizeTraditionalFormat);
    return Fail(tr("exceeds the limit of %1").arg(limit));
}

bool WholeFile::IsRegular(FileKind kind)
{
    if (kind == FileKind::Folder)
        return Fail(tr("is a folder, not a file"));
    return kind == FileKind::Regular || Fail(tr("is not a regular file"));
}

bool WholeFile::Open(QFile& file)
{
    if (IsResource(m_path)) {
        file.setFileName(m_path);
        return file.open(QIODevice::ReadOnly) ||
               Fail(tr("cannot be opened: %1").arg(file.errorString()));
    }
    FileKind kind = FileKind::Missing;
    if (!OpenForReading(m_path, file, kind))
        return Fail(tr("cannot be opened: %1").arg(qt_error_string()));
    return IsRegular(kind);
}

bool WholeFile::Read(QByteArray& content)
{
    QFile file;
    if (!Open(file))
        return false;
    if (file.size() > m_maximumSize)
        return FailBySize();
    QByteArray bytes;
    bytes.reserve(int(file.size()));
    // The size is only a hint: the file can grow meanwhile.
    for (QByteArray block(1, '\0'); !block.isEmpty() && bytes.size() <= m_maximumSize;) {
        block = file.read(BlockSize);
        bytes += block;
    }
    if (file.error() != QFileDevice::NoError)
        return Fail(tr("cannot be read: %1").arg(file.errorString()));
    if (bytes.size() > m_maximumSize)
        return FailBySize();
    content = bytes;
    return true;
}

QString WholeFile::WriteError(const QString& reason)
{
    return tr("cannot be written: %1").arg(reason);
}

bool WholeFile::Write(const QByteArray& content, const std::function<QString()>& beforeReplace)
{
    const auto fail = [this](const QString& reason) {
        return Fail(WriteError(reason));
    };
    if (content.size() > m_maximumSize)
        return FailBySize();
    const FileKind kind = KindOf(m_path);
    const bool isThere = kind != FileKind::Missing;
    const QString missing = qt_error_string();
    if (isThere && !IsRegular(kind))
        return false;
    const QString target = Target(m_path);
    if (target.isEmpty())
        return fail(missing);
    // Replacing a file needs no right to write it, but who took that right away meant it.
    if (isThere && !MayWrite(target))
        return fail(qt_error_string());

    QFile file(TemporaryName(target));
    QBuffer buffer;
    buffer.setData(content);
    buffer.open(QIODevice::ReadOnly);
    QString reason = Create(file, buffer, PermissionsOf(target));
    if (!reason.isEmpty())
        return fail(reason);
    if (beforeReplace)
        reason = beforeReplace();
    if (reason.isEmpty() && !Replace(file.fileName(), target))
        reason = qt_error_string();
    if (!reason.isEmpty()) {
        file.remove();
        return fail(reason);
    }
    return SyncFolder(target) || fail(qt_error_string());
}

bool WholeFile::CopyTo(const QString& copy)
{
    QFile file;
    if (!Open(file))
        return false;
    QFile other(copy);
    const QString reason = Create(other, file, PermissionsOf(m_path));
    return reason.isEmpty() || Fail(tr("cannot be copied: %1").arg(reason));
}

} // namespace tarn
