#pragma once

#include "BodyVolumes.h"
#include "FaceOrigins.h"

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QString>

#include <list>

/// The results of features by key, in bounded memory: the one that was not used for longest goes
/// first.
class ResultCache
{
public:
    static constexpr qint64 DefaultSize = qint64(512) * 1024 * 1024; ///< In bytes, as estimated.

    explicit ResultCache(qint64 size = DefaultSize)
        : m_size(size)
    {
    }

    /// The result with this key; a null shape if it is not kept.
    TracedShape Find(const QByteArray& key);
    /// Results that are larger than the whole cache are not kept.
    void Keep(const QByteArray& key, const TracedShape& result);

    /// The volumes of results that are kept, for all who measure them.
    BodyVolumes& Volumes() { return m_volumes; }
    /// It keeps the bodies that it has measured: call it where a result will not be kept.
    void ForgetVolumes() { m_volumes = BodyVolumes(); }

    /// A hash of the content of the file at @p path. If the file cannot be read, a value that no
    /// other call returns.
    ///
    /// Reads the file again only if its size or time has changed, or if it has changed so recently
    /// that a further change would not show in its time.
    QByteArray ContentHash(const QString& path);

private:
    struct Entry
    {
        QByteArray key;
        TracedShape result;
        qint64 size;
    };
    struct KnownFile
    {
        qint64 size;
        QDateTime time;
        QByteArray hash;
    };

    qint64 m_size;
    qint64 m_used = 0;
    std::list<Entry> m_entries; // The one that was used last comes first.
    QHash<QByteArray, std::list<Entry>::iterator> m_places;
    QHash<QString, KnownFile> m_files;
    BodyVolumes m_volumes;
};
