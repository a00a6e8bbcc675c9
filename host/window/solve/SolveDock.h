#pragma once

#include "SolveProcess.h"

#include <QDockWidget>
#include <QElapsedTimer>
#include <QTimer>

#include <memory>

namespace Ui {
class SolvePanel;
}

/// Shows what an analysis is doing: its stage, the time that it has taken, and its log; cancels it.
class SolveDock : public QDockWidget
{
    Q_OBJECT

public:
    /// @p process must outlive the dock.
    SolveDock(SolveProcess& process, QWidget* parent);
    ~SolveDock() override;

    /// An analysis begins, which @p title names.
    void Begin(const QString& title);

private:
    void Take(const SolveMessage& message);
    void End(SolveProcess::Outcome outcome, const QString& problem);
    void ShowTime();

    std::unique_ptr<Ui::SolvePanel> m_ui;
    QElapsedTimer m_since;
    QTimer m_clock;
};
