#pragma once

#include <QDir>
#include <QFile>
#include <QTest>

#include <sys/stat.h>

/// @file
/// What can have the name of a file without being one. Opening some of it would wait forever.

/// A row for each kind with the error that reading and writing report.
inline void AddNotAFileRows()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("error");
    QTest::newRow("folder") << "folder"
                            << "is a folder, not a file";
    QTest::newRow("pipe") << "pipe"
                          << "is not a regular file";
    QTest::newRow("link to a pipe") << "link to a pipe"
                                    << "is not a regular file";
    QTest::newRow("device") << "device"
                            << "is not a regular file";
}

/// Puts what the row is about in the place of the file @p path.
inline bool PutNotAFile(const QString& kind, const QString& path)
{
    const auto pipe = [](const QString& name) {
        return mkfifo(QFile::encodeName(name).constData(), 0600) == 0;
    };
    if (kind == QLatin1String("folder"))
        return QDir().mkpath(path);
    if (kind == QLatin1String("pipe"))
        return pipe(path);
    if (kind == QLatin1String("device"))
        return QFile::link(QStringLiteral("/dev/zero"), path);
    const QString target = path + QStringLiteral(".target");
    return pipe(target) && QFile::link(QFileInfo(target).absoluteFilePath(), path);
}
