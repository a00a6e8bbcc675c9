#include "ResultWatch.h"

#include "SolveFolder.h"

#include <QFileInfo>

namespace {

constexpr int Delay = 200; // ms; a solver writes several files.

}

ResultWatch::ResultWatch(QObject* parent)
    : QObject(parent)
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(Delay);
    connect(&m_delay, &QTimer::timeout, this, &ResultWatch::Check);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, &m_delay,
            QOverload<>::of(&QTimer::start));
}

ResultWatch::~ResultWatch() = default;

void ResultWatch::Follow(const QString& folder)
{
    if (folder == m_folder)
        return;
    if (!m_folder.isEmpty())
        m_watcher.removePath(m_folder);
    m_folder = folder;
    m_watcher.addPath(folder);
    m_known = FileTime();
}

QDateTime ResultWatch::FileTime() const
{
    return QFileInfo(SolveFolder(m_folder).PathOf(SolveFolder::InJob(".frd"))).lastModified();
}

void ResultWatch::Check()
{
    const QDateTime time = FileTime();
    if (time == m_known)
        return;
    m_known = time;
    if (time.isValid())
        Q_EMIT Appeared();
}
