#include "ResultCache.h"

#include "WholeFile.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QSet>
#include <QUuid>
#include <TopoDS_Iterator.hxx>

namespace {

// Of a face, edge or vertex, with its geometry.
constexpr qint64 BytesPerSubshape = 1024;
// Of a reference to a shape from the one that contains it.
constexpr qint64 BytesPerReference = 64;

// Shapes that several results share count for each of them.
qint64 EstimatedSize(const TopoDS_Shape& shape, QSet<const TopoDS_TShape*>& counted)
{
    if (counted.contains(shape.TShape().get()))
        return BytesPerReference;
    counted.insert(shape.TShape().get());
    qint64 size = BytesPerSubshape;
    for (TopoDS_Iterator child(shape, false, false); child.More(); child.Next())
        size += EstimatedSize(child.Value(), counted);
    return size;
}

} // namespace

TracedShape ResultCache::Find(const QByteArray& key)
{
    const auto place = m_places.constFind(key);
    if (place == m_places.cend())
        return {};
    m_entries.splice(m_entries.begin(), m_entries, *place);
    return m_entries.front().result;
}

void ResultCache::Keep(const QByteArray& key, const TracedShape& result)
{
    QSet<const TopoDS_TShape*> counted;
    const qint64 size = EstimatedSize(result.shape, counted) + result.faces.Size();
    if (size > m_size)
        ForgetVolumes();
    if (size > m_size || m_places.contains(key))
        return;
    m_entries.push_front({key, result, size});
    m_places.insert(key, m_entries.begin());
    m_used += size;
    while (m_used > m_size) {
        m_used -= m_entries.back().size;
        m_places.remove(m_entries.back().key);
        m_entries.pop_back();
        ForgetVolumes();
    }
}

QByteArray ResultCache::ContentHash(const QString& path)
{
    constexpr qint64 TimeResolution = 2000; // ms, of the coarsest file systems.
    const QFileInfo info(path);
    const KnownFile known = m_files.value(path, {-1, {}, {}});
    if (known.size == info.size() && known.time == info.lastModified())
        return known.hash;
    const qint64 age = info.lastModified().msecsTo(QDateTime::currentDateTime());
    tarn::WholeFile file(path);
    QByteArray content;
    if (!file.Read(content))
        return QUuid::createUuid().toRfc4122();
    QByteArray hash = QCryptographicHash::hash(content, QCryptographicHash::Sha256);
    if (age > TimeResolution)
        m_files.insert(path, {content.size(), info.lastModified(), hash});
    return hash;
}
