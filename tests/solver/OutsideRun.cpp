#include "OutsideRun.h"

#include "TestCase.h"

#include <QFile>
#include <QLineEdit>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <csignal>

namespace {

WaitForTheWait* g_wait = nullptr;

} // namespace

// The toolkit waits for a process with this function of the C library.
extern "C" __attribute__((visibility("default"))) int
ppoll(pollfd* files, nfds_t count, const timespec* limit, const sigset_t* mask)
{
    if (g_wait != nullptr)
        g_wait->Note(limit != nullptr);
    timespec left = limit != nullptr ? *limit : timespec{};
    return int(syscall(SYS_ppoll, files, count, limit != nullptr ? &left : nullptr, mask,
                       std::size_t(_NSIG / 8)));
}

WaitForTheWait::WaitForTheWait()
{
    // Open for reading as well, it needs no other end.
    if (mkfifo("go", 0600) != 0 || (m_pipe = open("go", O_RDWR | O_CLOEXEC)) < 0)
        FailTest(QStringLiteral("The pipe cannot be made"));
    g_wait = this;
}

WaitForTheWait::~WaitForTheWait()
{
    g_wait = nullptr;
    close(m_pipe);
}

void WaitForTheWait::Note(bool hasTimeLimit)
{
    m_hasTimeLimit = m_hasTimeLimit || hasTimeLimit;
    // Before that, the test program waits for the start.
    if (!m_isOver && !RunRecord().isEmpty())
        m_isOver = write(m_pipe, "x", 1) == 1;
}

void Browse(QDialog& dialog, const QString& path)
{
    ModalDriver user;
    user.Then([&](QDialog& picker) {
        auto& name = Find<QLineEdit>(picker, "fileNameEdit");
        name.setText(path);
        QTest::keyClick(&name, path.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
    });
    Click(dialog, "pushButton_Browse");
    QVERIFY(user.IsDone());
}

ShownBoxes PressRun(QDialog& dialog)
{
    ModalDriver user;
    Click(dialog, "pushButton_Run");
    return user.Boxes();
}

QString RunRecord()
{
    QFile file(QStringLiteral("run.txt"));
    return file.open(QIODevice::ReadOnly) ? QString::fromLocal8Bit(file.readAll()) : QString();
}
