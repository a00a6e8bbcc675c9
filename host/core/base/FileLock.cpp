#include "FileLock.h"

#include <QFile>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

FileLock::FileLock(const QString& path)
    : m_path(QFile::encodeName(path))
{
    while (!Try()) {
    }
}

FileLock::~FileLock()
{
    if (m_handle < 0)
        return;
    unlink(m_path.constData());
    close(m_handle);
}

bool FileLock::Try()
{
    constexpr mode_t Permissions = 0666;
    const int handle = open(m_path.constData(),
                            O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW, Permissions);
    if (handle < 0)
        return true;
    if (flock(handle, LOCK_EX | LOCK_NB) != 0) {
        m_isHeldElsewhere = errno == EWOULDBLOCK;
        close(handle);
        return true;
    }
    // Its last holder may have removed the file in between.
    struct stat ours
    {
    };
    struct stat there
    {
    };
    if (fstat(handle, &ours) != 0 || stat(m_path.constData(), &there) != 0 ||
        ours.st_ino != there.st_ino || ours.st_dev != there.st_dev) {
        close(handle);
        return false;
    }
    m_handle = handle;
    return true;
}
