#include "RunLocks.h"

#include "SolveFolder.h"

#include <QCoreApplication>
#include <QFile>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace {

struct RunLocksText
{
    Q_DECLARE_TR_FUNCTIONS(RunLocks)
};

constexpr int CommonPlace = 0;

// Each run has a byte of the file, which stays empty.
struct flock LockAt(short type, int place)
{
    struct flock lock
    {
    };
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_start = place;
    lock.l_len = 1;
    return lock;
}

[[noreturn]] void Fail(const QString& path)
{
    throw FolderError(RunLocksText::tr("%1: cannot be locked: %2").arg(path, qt_error_string()));
}

} // namespace

RunLocks::RunLocks(const QString& path)
    : m_path(path)
    , m_file(open(QFile::encodeName(path).constData(),
                  O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666))
{
    if (m_file < 0)
        Fail(path);
}

RunLocks::~RunLocks()
{
    close(m_file);
}

bool RunLocks::Set(int command, short type, int place) const
{
    struct flock lock = LockAt(type, place);
    int result = 0;
    // Of the open file, and not of the process: whoever closes the file elsewhere keeps them.
    do
        result = fcntl(m_file, command, &lock);
    while (result != 0 && errno == EINTR);
    if (result != 0 && errno != EAGAIN && errno != EACCES)
        Fail(m_path);
    return result == 0;
}

bool RunLocks::Take(int run)
{
    return Set(F_OFD_SETLK, F_WRLCK, run);
}

void RunLocks::Release(int run)
{
    struct flock lock = LockAt(F_UNLCK, run);
    fcntl(m_file, F_OFD_SETLK, &lock);
}

bool RunLocks::IsTaken(const QString& path, int run)
{
    const int file = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file < 0)
        return false;
    struct flock lock = LockAt(F_WRLCK, run);
    const bool isTaken = fcntl(file, F_OFD_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
    close(file);
    return isTaken;
}

RunLocks::Common::Common(RunLocks& locks)
    : m_locks(locks)
{
    m_locks.Set(F_OFD_SETLKW, F_WRLCK, CommonPlace);
}

RunLocks::Common::~Common()
{
    m_locks.Release(CommonPlace);
}
