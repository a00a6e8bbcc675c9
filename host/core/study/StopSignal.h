#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <csignal>

/// Catches SIGINT and SIGTERM for its lifetime, so that work can end in order. There is one at a
/// time.
class StopSignal : public QObject
{
    Q_OBJECT

public:
    StopSignal();
    ~StopSignal() override;

    /// The signal that came; 0 for none.
    int Number() const;

Q_SIGNALS:
    /// Emitted by the event loop after a signal.
    void Came();

private:
    struct sigaction m_interrupt; // The handlers before.
    struct sigaction m_terminate;
    QSocketNotifier* m_notifier;
};
