#pragma once

#include <QString>

class QFile;

/// @file
/// What WholeFile needs of the file system and Qt does not offer, for each platform. After a
/// failure, qt_error_string() gives the reason.

namespace tarn {

enum class FileKind
{
    Missing,
    Regular,
    Folder,
    Other ///< A pipe, a device or a socket.
};

/// The kind of what is at @p path, behind symbolic links.
FileKind KindOf(const QString& path);

/// Opens @p file at @p path for reading and sets @p kind to the kind of what was opened. Never
/// waits for the other end of a pipe.
bool OpenForReading(const QString& path, QFile& file, FileKind& kind);

/// Whether this process may write to the existing file at @p path.
bool MayWrite(const QString& path);

/// Waits until the content of the open @p file is on the disk.
bool Sync(const QFile& file);

/// Waits until the disk has recorded the names in the folder of the file at @p path. Without this,
/// a power failure could undo the replacement of a file.
bool SyncFolder(const QString& path);

/// Gives the file at @p from the name @p to in one step, even if that file exists.
bool Replace(const QString& from, const QString& to);

/// The reason for a file that lacks a part of what was written to it.
QString IncompleteWriteError();

} // namespace tarn
