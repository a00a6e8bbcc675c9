#include "SafeFile.h"

#include "WholeFile.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QLockFile>
#include <QRandomGenerator>
#include <QThread>

#include <functional>
#include <string_view>

namespace tarn {

namespace {

/// Waits until no other process writes the file. If the lock file cannot be made or does not
/// disappear, the file is written without a lock.
void WaitFor(QLockFile& lock, const QString& path)
{
    // The lock would read a pipe or a device of its name, and wait for it forever.
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return;
    // Far longer than a process holds the lock, in ms.
    constexpr int StaleTime = 6000;
    constexpr int LongestWait = 8000;
    constexpr quint32 LongestPause = 5;
    lock.setStaleLockTime(StaleTime);
    const QDeadlineTimer deadline(LongestWait);
    // Not tryLock(LongestWait): its pauses grow, so that busier processes could always be first.
    while (!lock.tryLock(0) && lock.error() == QLockFile::LockFailedError && !deadline.hasExpired())
        QThread::msleep(1 + QRandomGenerator::global()->bounded(LongestPause));
}

/// Copies @p target beside itself under a new name. Returns why that failed.
QString KeepCopy(const QString& target)
{
    const QString stamp =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss-zzz"));
    const QString stem = target + QLatin1Char('.') + stamp;
    QString copy = stem + QStringLiteral(".bak");
    WholeFile file(target);
    for (int i = 2; !file.CopyTo(copy); ++i) {
        if (!QFileInfo::exists(copy))
            return file.Error();
        copy = QStringLiteral("%1-%2.bak").arg(stem).arg(i);
    }
    return {};
}

} // namespace

void SafeFile::Remember(const QString& path, const QByteArray& content)
{
    m_known.insert(WholeFile::Target(path), PrintOf(content));
}

bool SafeFile::Write(const QString& path, const QByteArray& content)
{
    const QString target = WholeFile::Target(path);
    const QString lockPath = target + QStringLiteral(".lock");
    QLockFile lock(lockPath);
    const auto keepCopy = [&] {
        WaitFor(lock, lockPath);
        return !QFileInfo::exists(target) || IsRemembered(target) ? QString() : KeepCopy(target);
    };
    if (!WholeFile(path).Write(content, keepCopy))
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
        !WholeFile(target).Read(content))
        return false;
    const Print print = PrintOf(content);
    return print.size == known->size && print.hash == known->hash;
}

} // namespace tarn
