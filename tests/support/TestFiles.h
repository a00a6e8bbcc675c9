#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Files as tests make and check them. Paths are relative to the working directory.

/// Writes @p content to the file @p path. On failure the test program ends.
void Put(const QString& path, const QByteArray& content);

/// The content of the file, or a remark that no file can have as its content.
QByteArray ContentOf(const QString& path);

/// The names of everything in the working directory, also of what is hidden, sorted.
QStringList AllFiles();

/// The permission bits of the file, or 0.
unsigned int ModeOf(const QString& path);
