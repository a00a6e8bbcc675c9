#pragma once

#include <QString>
#include <QTemporaryDir>

#include <sys/resource.h>

#include <optional>

/// Limits the size of the files that this process writes, for its lifetime. The process gets an
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

/// A small disk that a test fills up. Its folder is the working directory for its lifetime.
///
/// It is a separate file system in memory, visible only to this process and removed with it.
/// Without the right to mount one, a FileSizeLimit replaces it.
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

    /// The error text of the system for a full disk.
    QString Reason() const;

private:
    bool Mount();
    QString Filler() const;

    QTemporaryDir m_directory;
    QString m_before;
    bool m_isMounted = false;
    std::optional<FileSizeLimit> m_limit;
};
