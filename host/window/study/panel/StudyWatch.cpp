#include "StudyWatch.h"

#include "HostError.h"
#include "StudyFolder.h"

namespace {

constexpr int Pause = 500; // ms

} // namespace

/// What the thread has read.
struct StudyWatch::Reading
{
    std::shared_ptr<StudyFollower> follower;
    StudyFollower::News news;
    QString problem;
    bool isMissing = false;
};

StudyWatch::StudyWatch(QObject* parent)
    : QObject(parent)
    , m_reader(new QObject)
{
    m_reader->moveToThread(&m_thread);
    connect(&m_thread, &QThread::finished, m_reader, &QObject::deleteLater);
    m_thread.start();
    m_pause.setSingleShot(true);
    m_pause.setInterval(Pause);
    connect(&m_pause, &QTimer::timeout, this, &StudyWatch::Read);
}

StudyWatch::~StudyWatch()
{
    m_thread.quit();
    m_thread.wait();
}

void StudyWatch::Follow(const QString& path, bool isExpected)
{
    m_path = path;
    m_follower = std::make_shared<StudyFollower>(path);
    m_isExpected = isExpected;
    Read();
}

void StudyWatch::Stop()
{
    m_follower.reset();
    m_pause.stop();
}

void StudyWatch::Hurry()
{
    m_isHurried = m_isReading;
    if (!m_isReading && m_follower != nullptr)
        Read();
}

void StudyWatch::Read()
{
    m_pause.stop();
    if (m_isReading || m_follower == nullptr)
        return;
    m_isReading = true;
    const auto read = [this, follower = m_follower, path = m_path, isExpected = m_isExpected] {
        auto reading = std::make_shared<Reading>();
        reading->follower = follower;
        try {
            reading->isMissing = isExpected && !StudyFolder::Exists(path);
            if (!reading->isMissing)
                reading->news = follower->Next();
        } catch (const HostError& error) {
            reading->problem = error.Reason();
        }
        QMetaObject::invokeMethod(
            this, [this, reading] { Take(*reading); }, Qt::QueuedConnection);
    };
    QMetaObject::invokeMethod(m_reader, read, Qt::QueuedConnection);
}

void StudyWatch::Take(const Reading& reading)
{
    m_isReading = false;
    if (m_follower != reading.follower)
        return Read(); // Another folder, or none, since.
    const bool isHurried = m_isHurried;
    m_isHurried = false;
    if (!reading.problem.isEmpty()) {
        Stop();
        Q_EMIT Failed(reading.problem);
        return;
    }
    m_pause.start(isHurried ? 0 : Pause);
    if (!reading.isMissing)
        Q_EMIT NewsCame(reading.news);
}
