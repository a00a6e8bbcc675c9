#include "SafeFile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <functional>
#include <string_view>

#ifdef Q_OS_UNIX
#include <unistd.h>

#include <cerrno>
#endif

namespace tarn {

namespace {

constexpr int MaximumLinks = 40;
constexpr int CopyBlock = 1024 * 1024;

/// The absolute path that @p path leads to, whether there is a file or not; empty for a folder that
/// is missing and for links that turn in a circle.
QString Target(const QString& path)
{
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

/// Puts on the disk what was written to @p file so far. QSaveFile::commit() and QFile::close() do
/// not report that the last buffer found no room; this does.
bool Flush(QFileDevice& file)
{
    if (!file.flush() || file.error() != QFileDevice::NoError)
        return false;
#ifdef Q_OS_UNIX
    return fsync(file.handle()) == 0 || errno == EINVAL || errno == ENOTSUP;
#else
    return true;
#endif
}

bool CopyContent(QFile& from, QFile& to)
{
    // Permissions first: what others may not read they may not read in the copy either.
    if (!to.setPermissions(from.permissions()))
        return false;
    QByteArray block;
    do {
        block = from.read(CopyBlock);
        if (from.error() != QFileDevice::NoError || to.write(block) != block.size())
            return false;
    } while (!block.isEmpty());
    return Flush(to);
}

/// Copies @p target beside itself under a name that no file has yet.
bool KeepCopy(const QString& target)
{
    QFile original(target);
    if (!original.open(QIODevice::ReadOnly))
        return false;
    const QString stamp =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss-zzz"));
    const QString stem = target + QLatin1Char('.') + stamp;
    QFile copy(stem + QStringLiteral(".bak"));
    // NewOnly, because another process may keep a copy of its own in the same instant.
    for (int i = 2; !copy.open(QIODevice::WriteOnly | QIODevice::NewOnly); ++i) {
        if (!copy.exists())
            return false;
        copy.setFileName(QStringLiteral("%1-%2.bak").arg(stem).arg(i));
    }
    if (CopyContent(original, copy))
        return true;
    copy.remove();
    return false;
}

} // namespace

bool SafeFile::Read(const QString& path, QByteArray& content)
{
    // Opening a pipe would wait for somebody to write into it.
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > MaximumSize)
        return false;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    content = file.readAll();
    return file.error() == QFileDevice::NoError;
}

void SafeFile::Remember(const QString& path, const QByteArray& content)
{
    m_known.insert(Target(path), PrintOf(content));
}

bool SafeFile::Write(const QString& path, const QByteArray& content)
{
    const QString target = Target(path);
    const QFileInfo info(target);
    if (target.isEmpty() || content.size() > MaximumSize || (info.exists() && !info.isFile()))
        return false;

    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    const bool isWritten = file.write(content) == content.size() && Flush(file);
    if (!isWritten || (QFile::exists(target) && !IsRemembered(target) && !KeepCopy(target)))
        file.cancelWriting();
    if (!file.commit())
        return false;
    m_known.insert(target, PrintOf(content));
    return true;
}

SafeFile::Print SafeFile::PrintOf(const QByteArray& content)
{
    const std::string_view bytes(content.constData(), std::size_t(content.size()));
    return {content.size(), std::hash<std::string_view>()(bytes)};
}

bool SafeFile::IsRemembered(const QString& target) const
{
    const auto known = m_known.constFind(target);
    QByteArray content;
    if (known == m_known.constEnd() || known->size != QFileInfo(target).size() ||
        !Read(target, content))
        return false;
    const Print print = PrintOf(content);
    return print.size == known->size && print.hash == known->hash;
}

} // namespace tarn
