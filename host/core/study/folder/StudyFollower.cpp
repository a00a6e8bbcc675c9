#include "StudyFollower.h"

#include "CsvReader.h"
#include "HostError.h"
#include "ResultsFile.h"
#include "StudyFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <utility>

StudyFollower::StudyFollower(QString path)
    : m_path(std::move(path))
{
}

StudyFollower::~StudyFollower() = default;

StudyFollower::News StudyFollower::Next()
{
    const QString table = QDir(m_path).filePath(QStringLiteral("results.csv"));
    const bool hasOnlyTable = !StudyFolder::Exists(m_path) && QFileInfo::exists(table);
    return hasOnlyTable ? NextOfTable(table) : NextOfFolder();
}

StudyFollower::News StudyFollower::NextOfFolder()
{
    if (m_folder == nullptr || m_folder->HasMoreRuns())
        m_folder = StudyFolder::Open(m_path);
    m_folder->Records().Refresh();
    News news;
    news.runs = m_folder->Runs().Count();
    news.inputs = m_folder->Runs().Inputs();
    news.columns = m_folder->Table().EmptyColumns();
    m_ends.resize(std::size_t(news.runs));
    std::vector<QByteArray> cells;
    for (int run = 1; run <= news.runs; ++run) {
        const RunRecord& record = m_folder->Records().Of(run);
        int& ends = m_ends[std::size_t(run) - 1];
        if (record.isBegun && RunLocks::IsTaken(m_folder->LocksPath(), run))
            ++news.running;
        if (record.ends == ends || record.row.isEmpty())
            continue;
        ends = record.ends;
        CsvReader reader(record.row);
        reader.Next(cells);
        const QString fault = news.columns.Take(cells);
        if (!fault.isEmpty())
            throw HostError(QCoreApplication::translate("StudyFollower", "%1: run %2: %3")
                                .arg(m_path, QString::number(run), fault));
    }
    return news;
}

StudyFollower::News StudyFollower::NextOfTable(const QString& path)
{
    News news;
    const QDateTime time = QFileInfo(path).lastModified();
    if (time != m_tableTime)
        news.columns = ReadResults(path);
    m_tableTime = time;
    return news;
}
