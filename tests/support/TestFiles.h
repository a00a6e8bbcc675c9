#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Helpers to create and check files. Paths are relative to the working directory.

/// Writes @p content to the file @p path. On failure, aborts the test program.
void Put(const QString& path, const QByteArray& content);

/// The content of the file, or a remark that no file can have as its content.
QByteArray ContentOf(const QString& path);

/// The sorted names of everything in the working directory, including hidden files.
QStringList AllFiles();

/// The permission bits of the file, or 0.
unsigned int ModeOf(const QString& path);
