#include "OpenGlSupport.h"

#include "PartScene.h"

#include <QCoreApplication>
#include <QOpenGLContext>
#include <Standard_Failure.hxx>

#include <fcntl.h>
#include <unistd.h>

namespace {

void DropMessage(QtMsgType, const QMessageLogContext&, const QString&) {}

// Silences a trial: the toolkit warns, and the driver writes to the console itself.
class QuietConsole
{
public:
    QuietConsole()
        : m_handler(qInstallMessageHandler(DropMessage))
        , m_console(dup(STDERR_FILENO))
    {
        const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
        dup2(nowhere, STDERR_FILENO);
        close(nowhere);
    }
    ~QuietConsole()
    {
        dup2(m_console, STDERR_FILENO);
        close(m_console);
        qInstallMessageHandler(m_handler);
    }
    Q_DISABLE_COPY(QuietConsole)

private:
    QtMessageHandler m_handler;
    int m_console;
};

} // namespace

QString OpenGlProblem()
{
    const QuietConsole quiet;
    QOpenGLContext context;
    if (!context.create())
        return QCoreApplication::translate("OpenGlSupport", "the system does not provide OpenGL");
    try {
        const PartScene scene(context);
    } catch (const Standard_Failure& failure) {
        return QString::fromLocal8Bit(failure.GetMessageString());
    }
    return {};
}
