#include "Journal.h"

#include "SolveFolder.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace {

constexpr qint64 SyncPause = 1000; // ms
constexpr int MaximumJournals = 1000000;

const QByteArray BeginWord = "begin";
const QByteArray OkWord = "ok";
const QByteArray FailedWord = "failed";

// A line that a power failure has damaged must not count.
QByteArray CheckSum(const QByteArray& text)
{
    constexpr int Length = 12;
    return QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex().left(Length);
}

QByteArray Line(const QByteArray& text)
{
    return CheckSum(text) + ',' + text + '\n';
}

QByteArray HashOf(const QString& path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    return file.open(QIODevice::ReadOnly) && hash.addData(&file) ? hash.result().toHex()
                                                                 : QByteArray();
}

} // namespace

const QString Journal::NamePattern = QStringLiteral("journal_*.csv");

StepStamp StepStamp::Of(const QString& path)
{
    StepStamp stamp;
    const QFileInfo info(path);
    if (!info.isFile())
        return stamp;
    stamp.size = info.size();
    stamp.time = info.lastModified().toMSecsSinceEpoch();
    stamp.hash = HashOf(path);
    return stamp;
}

bool StepStamp::IsOf(const QString& path) const
{
    struct stat status
    {
    };
    // Not QFileInfo, which takes far longer: a study may have 200,000 files.
    if (stat(QFile::encodeName(path).constData(), &status) != 0 || !S_ISREG(status.st_mode) ||
        status.st_size != size)
        return false;
    constexpr qint64 Thousand = 1000;
    const qint64 changed =
        status.st_mtim.tv_sec * Thousand + status.st_mtim.tv_nsec / (Thousand * Thousand);
    return changed == time || HashOf(path) == hash;
}

JournalLine JournalLine::Parse(const QByteArray& line)
{
    JournalLine parsed;
    const int sumEnd = line.indexOf(',');
    const QByteArray text = line.mid(sumEnd + 1);
    if (sumEnd < 0 || line.left(sumEnd) != CheckSum(text))
        return parsed;
    // begin,RUN or STATE,RUN,SIZE,TIME,HASH,ROW
    constexpr int Cells = 5;
    int begin = 0;
    QList<QByteArray> cells;
    while (cells.size() < Cells && begin <= text.size()) {
        const int end = text.indexOf(',', begin);
        cells << text.mid(begin, end < 0 ? -1 : end - begin);
        begin = end < 0 ? text.size() + 1 : end + 1;
    }
    if (cells.size() < 2 || (cells[0] != BeginWord && cells.size() < Cells))
        return parsed;
    parsed.run = cells[1].toInt();
    parsed.isEnd = cells[0] != BeginWord;
    if (parsed.isEnd) {
        parsed.record.state = cells[0] == OkWord ? RunRecord::Ok : RunRecord::Failed;
        parsed.record.step.size = cells[2].toLongLong();
        parsed.record.step.time = cells[3].toLongLong();
        parsed.record.step.hash = cells[4];
        parsed.record.row = text.mid(begin) + '\n';
    }
    return parsed;
}

Journal::Journal(QString folder)
    : m_folder(std::move(folder))
{
    m_sinceSync.start();
}

Journal::~Journal()
{
    if (m_file >= 0)
        close(m_file);
}

void Journal::Begin(int run)
{
    Write(Line(BeginWord + ',' + QByteArray::number(run)));
}

void Journal::End(int run, const RunRecord& record)
{
    const QByteArray cells = (record.state == RunRecord::Ok ? OkWord : FailedWord) + ',' +
                             QByteArray::number(run) + ',' + QByteArray::number(record.step.size) +
                             ',' + QByteArray::number(record.step.time) + ',' + record.step.hash;
    Write(Line(cells + ',' + record.row.trimmed()));
}

void Journal::Sync()
{
    if (m_isSynced)
        return;
    // Some file systems cannot do this.
    if (fdatasync(m_file) != 0 && errno != EINVAL && errno != ENOTSUP)
        Fail();
    m_isSynced = true;
    m_sinceSync.restart();
}

void Journal::Open()
{
    constexpr int NumberWidth = 4;
    constexpr int Decimal = 10;
    for (int number = 1; m_file < 0 && number <= MaximumJournals; ++number) {
        m_path = QDir(m_folder).filePath(
            QStringLiteral("journal_%1.csv").arg(number, NumberWidth, Decimal, QLatin1Char('0')));
        // Always a new one: programs on other machines may be at work in the folder.
        m_file = open(QFile::encodeName(m_path).constData(),
                      O_WRONLY | O_CREAT | O_EXCL | O_APPEND | O_CLOEXEC, 0666);
        if (m_file < 0 && errno != EEXIST)
            Fail();
    }
    if (m_file < 0)
        Fail();
}

void Journal::Write(const QByteArray& line)
{
    if (m_file < 0)
        Open();
    const off_t before = lseek(m_file, 0, SEEK_END);
    qint64 done = 0;
    while (done < line.size()) {
        const ssize_t written =
            write(m_file, line.constData() + done, std::size_t(line.size() - done));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0) {
            const int error = errno;
            if (ftruncate(m_file, before) != 0)
                m_isSynced = false;
            errno = error;
            Fail();
        }
        done += written;
    }
    m_isSynced = false;
    if (m_sinceSync.elapsed() >= SyncPause)
        Sync();
}

void Journal::Fail() const
{
    throw FolderError(QStringLiteral("%1: cannot be written: %2").arg(m_path, qt_error_string()));
}
