#include "FullDisk.h"

#include "GuardedTest.h"

#include <QDir>
#include <QFile>

#include <sched.h>
#include <sys/mount.h>

#include <cerrno>
#include <csignal>

namespace {

constexpr int PageSize = 4096;

} // namespace

FileSizeLimit::FileSizeLimit(rlim_t size)
    : m_handler(std::signal(SIGXFSZ, SIG_IGN))
{
    getrlimit(RLIMIT_FSIZE, &m_before);
    const rlimit limit{size, m_before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
}

FileSizeLimit::~FileSizeLimit()
{
    setrlimit(RLIMIT_FSIZE, &m_before);
    std::signal(SIGXFSZ, m_handler);
}

FullDisk::FullDisk()
    : m_before(QDir::currentPath())
    , m_isMounted(Mount())
{
    // The filler must not be among the files of the test.
    const QString folder = m_directory.filePath(QStringLiteral("disk"));
    if (!QDir().mkdir(folder) || !QDir::setCurrent(folder))
        FailTest("The test's disk could not be entered.");
}

FullDisk::~FullDisk()
{
    m_limit.reset();
    QDir::setCurrent(m_before);
    if (m_isMounted)
        umount2(QFile::encodeName(m_directory.path()).constData(), MNT_DETACH);
}

bool FullDisk::Mount()
{
    // In a separate namespace, the system unmounts it even if the test crashes.
    return unshare(CLONE_NEWNS) == 0 &&
           mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount("none", QFile::encodeName(m_directory.path()).constData(), "tmpfs", 0,
                 "size=64k") == 0;
}

QString FullDisk::Filler() const
{
    return m_directory.filePath(QStringLiteral("filler"));
}

void FullDisk::Fill(int pages)
{
    if (!m_isMounted) {
        m_limit.emplace(rlim_t(pages) * PageSize);
        return;
    }
    QFile filler(Filler());
    if (!filler.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        FailTest("The test's disk could not be filled.");
    const QByteArray page(PageSize, '\0');
    while (filler.write(page) == page.size()) {
    }
    filler.resize(filler.size() - pages * PageSize);
}

void FullDisk::Empty()
{
    m_limit.reset();
    QFile::remove(Filler());
}

QString FullDisk::Reason() const
{
    return qt_error_string(m_isMounted ? ENOSPC : EFBIG);
}
