#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

class QFile;

namespace tarn {

/// A regular file that is read as a whole.
///
/// A folder, a pipe or a device is refused, and none of them is waited for.
class WholeFile
{
    Q_DECLARE_TR_FUNCTIONS(WholeFile)

public:
    /// The limit for files that set none of their own, in bytes.
    static constexpr int MaximumSize = 256 * 1024 * 1024;

    /// @p path may lead through symbolic links, or, for reading, to a Qt resource. A content of
    /// more than @p maximumSize bytes is refused.
    explicit WholeFile(const QString& path, int maximumSize = MaximumSize);

    /// Puts the file's content into @p content. On failure returns false and leaves it as it was.
    bool Read(QByteArray& content);

    /// Why the last call failed, to follow the file's name: "cannot be opened: Permission denied".
    const QString& Error() const { return m_error; }

private:
    bool Fail(const QString& error);
    bool FailBySize();
    bool Open(QFile& file);

    QString m_path;
    int m_maximumSize;
    QString m_error;
};

} // namespace tarn
