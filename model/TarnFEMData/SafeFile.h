#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <cstddef>

namespace tarn {

/// The files of one store, as bytes: read in full, replaced at once or not at all. It remembers
/// what the store has taken over of them, so that a write can keep a copy of everything else.
class SafeFile
{
public:
    /// Larger files are neither read nor written.
    static constexpr int MaximumSize = 256 * 1024 * 1024;

    /// The content of the regular file @p path; false when there is none or it cannot be read.
    static bool Read(const QString& path, QByteArray& content);

    /// The store holds all of @p content, the file's content now: replacing it loses nothing.
    void Remember(const QString& path, const QByteArray& content);

    /// Makes @p content the content of the file @p path, through symbolic links and with the
    /// permissions that it has. Content that was not remembered is first copied beside the file.
    /// False when that failed; the file is then as it was.
    bool Write(const QString& path, const QByteArray& content);

    /// Forgets what was remembered.
    void Clear() { m_known.clear(); }

private:
    struct Print
    {
        qint64 size = -1;
        std::size_t hash = 0;
    };

    static Print PrintOf(const QByteArray& content);
    bool IsRemembered(const QString& target) const;

    QHash<QString, Print> m_known; ///< By absolute path, links followed.
};

} // namespace tarn
