#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <cstddef>

namespace tarn {

/// Writes the files of a store and keeps a copy of what the store does not hold. For this it
/// remembers which contents the store has taken over.
class SafeFile
{
public:
    /// The store holds all of @p content, the current content of the file @p path, so that
    /// replacing it loses nothing.
    void Remember(const QString& path, const QByteArray& content);

    /// Writes @p content to the file @p path. If the file's content is not remembered, it is first
    /// copied beside the file. Processes that write the same file wait for each other, so that none
    /// replaces what another has just written and nobody has copied.
    ///
    /// On failure returns false; the file is then as it was.
    bool Write(const QString& path, const QByteArray& content);

    /// Forgets all remembered contents.
    void Clear() { m_known.clear(); }

private:
    struct Print
    {
        qint64 size = -1;
        std::size_t hash = 0;
    };

    static Print PrintOf(const QByteArray& content);
    bool IsRemembered(const QString& target) const;

    QHash<QString, Print> m_known; ///< By WholeFile::Target().
};

} // namespace tarn
