#include "TestFiles.h"

#include "GuardedTest.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

void Put(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.flush())
        FailTest(QString("The test's file %1 could not be written.").arg(path));
}

QByteArray ContentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be opened)");
}

QStringList AllFiles()
{
    return QDir().entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                            QDir::Name);
}

unsigned int ModeOf(const QString& path)
{
    constexpr unsigned int PermissionBits = 07777;
    struct stat status
    {
    };
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & PermissionBits
                                                                   : 0;
}
