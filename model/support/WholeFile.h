#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <functional>

class QFile;

namespace tarn {

enum class FileKind;

/// Reads and writes a regular file as a whole.
///
/// Folders, pipes and devices are refused, and opening them never blocks. Files are replaced
/// atomically: until the new content is completely on the disk, the old file stays as it is.
class WholeFile
{
    Q_DECLARE_TR_FUNCTIONS(WholeFile)

public:
    /// The default limit of a file's size, in bytes.
    static constexpr int MaximumSize = 256 * 1024 * 1024;

    /// Refers to the file at @p path, which may lead through symbolic links and, for reading, to a
    /// Qt resource. Read() and Write() refuse more than @p maximumSize bytes.
    explicit WholeFile(const QString& path, int maximumSize = MaximumSize);

    /// Reads the file into @p content. On failure returns false and leaves @p content as it was.
    bool Read(QByteArray& content);

    /// Error() after a Write() that failed for @p reason.
    static QString WriteError(const QString& reason);

    /// Replaces the content of the file, or creates the file. Symbolic links and the permissions of
    /// an existing file stay.
    ///
    /// @p beforeReplace is called when the new content is on the disk and is about to replace the
    /// old one. It may veto that by returning a reason. On failure returns false; the old file then
    /// is as it was, unless the disk failed only while it recorded the replacement.
    bool Write(const QByteArray& content, const std::function<QString()>& beforeReplace = {});

    /// Copies the file, regardless of its size, and its permissions to the new file @p copy.
    /// Returns false on failure. If @p copy already exists, this fails and does not change it.
    bool CopyTo(const QString& copy);

    /// The absolute path of the file behind all symbolic links, whether it exists or not. Empty for
    /// a missing folder and for circular links.
    static QString Target(const QString& path);

    /// Why the last call that returned false failed, as the continuation of the file's name, for
    /// example "cannot be opened: Permission denied".
    const QString& Error() const { return m_error; }

private:
    bool Fail(const QString& error);
    bool FailBySize();
    bool IsRegular(FileKind kind);
    bool Open(QFile& file);

    QString m_path;
    int m_maximumSize;
    QString m_error;
};

} // namespace tarn
