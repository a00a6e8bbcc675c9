#include "StudyRecords.h"

#include "HostError.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <utility>

StudyRecords::StudyRecords(QString folder)
    : m_folder(std::move(folder))
{
}

void StudyRecords::Refresh()
{
    const QStringList names =
        QDir(m_folder).entryList({Journal::NamePattern}, QDir::Files, QDir::Name);
    for (const QString& name : names)
        Read(name);
}

const RunRecord& StudyRecords::Of(int run) const
{
    static const RunRecord open;
    const auto index = std::size_t(run) - 1;
    return index < m_records.size() ? m_records[index] : open;
}

void StudyRecords::Read(const QString& name)
{
    constexpr qint64 BlockSize = qint64(64) * 1024 * 1024;
    QFile file(QDir(m_folder).filePath(name));
    qint64& read = m_read[name];
    if (file.size() <= read)
        return;
    if (!file.open(QIODevice::ReadOnly) || !file.seek(read))
        throw HostError(QCoreApplication::translate("StudyRecords", "%1: cannot be read: %2")
                            .arg(file.fileName(), file.errorString()));
    for (;;) {
        const QByteArray bytes = file.read(BlockSize);
        int begin = 0;
        // What follows the last line end is still being written, or was torn.
        for (int end = bytes.indexOf('\n'); end >= 0; end = bytes.indexOf('\n', begin)) {
            Take(JournalLine::Parse(bytes.mid(begin, end - begin)));
            begin = end + 1;
        }
        read += begin;
        if (begin == 0 || !file.seek(read))
            return;
    }
}

void StudyRecords::Take(const JournalLine& line)
{
    constexpr int MaximumRuns = 100000000;
    if (line.run < 1 || line.run > MaximumRuns)
        return;
    if (std::size_t(line.run) > m_records.size())
        m_records.resize(std::size_t(line.run));
    RunRecord& record = m_records[std::size_t(line.run) - 1];
    if (!line.isEnd) {
        record.isBegun = true;
        return;
    }
    const int ends = record.ends + 1;
    // What was measured once stays, even if its STEP file could not be written again.
    if (line.record.state >= record.state)
        record = line.record;
    record.isBegun = false;
    record.ends = ends;
}
