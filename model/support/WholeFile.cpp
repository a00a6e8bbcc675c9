#include "WholeFile.h"

#include <QFile>
#include <QLocale>

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>

namespace tarn {

WholeFile::WholeFile(const QString& path, int maximumSize)
    : m_path(path)
    , m_maximumSize(maximumSize)
{
}

bool WholeFile::Fail(const QString& error)
{
    m_error = error;
    return false;
}

bool WholeFile::FailBySize()
{
    return Fail(tr("exceeds the limit of %1")
                    .arg(QLocale().formattedDataSize(m_maximumSize, 0,
                                                     QLocale::DataSizeTraditionalFormat)));
}

bool WholeFile::Open(QFile& file)
{
    if (m_path.startsWith(QLatin1String(":/"))) {
        file.setFileName(m_path);
        return file.open(QIODevice::ReadOnly) ||
               Fail(tr("cannot be opened: %1").arg(file.errorString()));
    }
    // Without blocking, because opening a pipe would wait for a writer. What was opened is then
    // looked at itself, because the path can mean something else by then.
    const int handle =
        open(QFile::encodeName(m_path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (handle < 0)
        return Fail(tr("cannot be opened: %1").arg(qt_error_string()));
    file.open(handle, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    struct stat status
    {
    };
    if (fstat(handle, &status) != 0)
        return Fail(tr("cannot be opened: %1").arg(qt_error_string()));
    if (S_ISDIR(status.st_mode))
        return Fail(tr("is a folder, not a file"));
    return S_ISREG(status.st_mode) || Fail(tr("is not a regular file"));
}

bool WholeFile::Read(QByteArray& content)
{
    constexpr qint64 BlockSize = qint64(1024) * 1024;
    QFile file;
    if (!Open(file))
        return false;
    if (file.size() > m_maximumSize)
        return FailBySize();
    QByteArray bytes;
    bytes.reserve(int(file.size()));
    // The size is only a hint: the file can grow meanwhile.
    for (QByteArray block(1, '\0'); !block.isEmpty() && bytes.size() <= m_maximumSize;) {
        block = file.read(BlockSize);
        bytes += block;
    }
    if (file.error() != QFileDevice::NoError)
        return Fail(tr("cannot be read: %1").arg(file.errorString()));
    if (bytes.size() > m_maximumSize)
        return FailBySize();
    content = bytes;
    return true;
}

} // namespace tarn
