#include "Autosave.h"

#include "MessageLevel.h"
#include "ProjectSession.h"

#include <QFile>
#include <QFileInfo>

Autosave::Autosave(ProjectSession& session, QObject* parent)
    : QObject(parent)
    , m_session(session)
{
    constexpr int Minute = 60 * 1000;
    m_timer.setObjectName(QStringLiteral("autosaveTimer"));
    m_timer.setParent(this);
    m_timer.setInterval(Minute);
    connect(&m_timer, &QTimer::timeout, this, &Autosave::SaveNow);
}

Autosave::~Autosave()
{
    Release();
}

QString Autosave::FileFor(const QString& path)
{
    return path + QStringLiteral(".autosave");
}

void Autosave::Release()
{
    RemoveFile();
    m_timer.stop();
    m_lock.reset();
    m_path.clear();
}

void Autosave::Follow(const QString& path)
{
    Release();
    m_path = path;
    m_failure.clear();
    m_lock = std::make_unique<FileLock>(path + QStringLiteral(".lock"));
    m_timer.start();
}

std::optional<Autosave::Rest> Autosave::LeftByCrash() const
{
    const QString file = FileFor(m_path);
    if (IsOpenElsewhere() || !QFileInfo::exists(file))
        return {};
    Rest rest = {Project::Load(file), QFileInfo(file).lastModified()};
    rest.project.SetPath(m_path);
    return rest;
}

void Autosave::RemoveFile()
{
    if (!m_path.isEmpty() && !IsOpenElsewhere())
        QFile::remove(FileFor(m_path));
    m_isWritten = false;
}

void Autosave::SaveNow()
{
    if (IsOpenElsewhere())
        return;
    if (!m_session.IsChanged()) {
        if (m_isWritten)
            RemoveFile();
        return;
    }
    const Project project = m_session.Current();
    if (m_isWritten && project.HasSameContent(m_written))
        return;
    try {
        Project copy = project;
        copy.Save(FileFor(m_path));
        m_written = project;
        m_isWritten = true;
        m_failure.clear();
    } catch (const ProjectError& error) {
        // Once, and not every minute.
        if (error.Reason() != m_failure)
            PostMessageToChannel(
                WarningLevel,
                tr("The changes are not saved automatically: %1").arg(error.Reason()));
        m_failure = error.Reason();
    }
}
