#include "StopSignal.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace {

// A handler may do little more than write into a pipe.
std::array<int, 2> ends = {-1, -1};
volatile std::sig_atomic_t number = 0;

void TakeSignal(int signal)
{
    const int error = errno;
    number = signal;
    const char byte = 0;
    if (write(ends[1], &byte, 1) < 0)
        errno = error;
    errno = error;
}

} // namespace

StopSignal::StopSignal()
{
    number = 0;
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        ends = {-1, -1};
    m_notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, [this] {
        m_notifier->setEnabled(false);
        Q_EMIT Came();
    });
    struct sigaction action
    {
    };
    action.sa_handler = TakeSignal;
    sigaction(SIGINT, &action, &m_interrupt);
    sigaction(SIGTERM, &action, &m_terminate);
}

StopSignal::~StopSignal()
{
    sigaction(SIGINT, &m_interrupt, nullptr);
    sigaction(SIGTERM, &m_terminate, nullptr);
    delete m_notifier;
    close(ends[0]);
    close(ends[1]);
}

int StopSignal::Number() const
{
    return number;
}
