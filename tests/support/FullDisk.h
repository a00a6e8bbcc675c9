#pragma once

#include <QString>
#include <QTemporaryDir>

#include <sys/resource.h>

#include <optional>

/// While it lives, no file that this process writes can grow beyond a size, and the process gets an
/// error instead of the signal.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t size);
    ~FileSizeLimit();
    Q_DISABLE_COPY(FileSizeLimit)

private:
    void (*m_handler)(int);
    rlimit m_before{};
};

/// A small disk that a test fills up. Its folder is the working directory while it lives.
///
/// It is a file system of its own in memory, which nobody but this process sees and which goes with
/// the process. Without the right to mount one, a FileSizeLimit replaces it.
class FullDisk
{
public:
    FullDisk();
    ~FullDisk();
    Q_DISABLE_COPY(FullDisk)

    /// Leaves room for @p pages more pages of 4 kB.
    void Fill(int pages = 0);

    /// Makes room again.
    void Empty();

    /// What the system says when there is no more room.
    QString Reason() const;

private:
    bool Mount();
    QString Filler() const;

    QTemporaryDir m_directory;
    QString m_before;
    bool m_isMounted = false;
    std::optional<FileSizeLimit> m_limit;
};
