#pragma once

#include <QString>

/// Locks by which the programs that work on one folder share its runs: one for each run, and one
/// for the files that all of them write. The system releases the locks of a process that ends,
/// however it ends.
class RunLocks
{
public:
    /// Opens the file at @p path, and creates it if it does not exist. @throws FolderError
    explicit RunLocks(const QString& path);
    ~RunLocks();
    Q_DISABLE_COPY(RunLocks)

    /// Takes the lock of a run, counted from 1, if no one else has it. @throws FolderError if the
    /// file system has no locks
    bool Take(int run);
    void Release(int run);

    /// Whether another program has the lock of a run. The file at @p path need not exist.
    static bool IsTaken(const QString& path, int run);

    /// Holds the lock of the common files for its lifetime, after waiting for it.
    class Common
    {
    public:
        /// @throws FolderError
        explicit Common(RunLocks& locks);
        ~Common();
        Q_DISABLE_COPY(Common)

    private:
        RunLocks& m_locks;
    };

private:
    bool Set(int command, short type, int place) const;

    QString m_path;
    int m_file;
};
