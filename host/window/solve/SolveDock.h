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

    /// The analysis that @p title names begins when the running one has ended.
    void SetNext(const QString& title);

    /// Results of another solver can be shown, until the next analysis begins.
    void OfferResults();

Q_SIGNALS:
    /// The user wants to see the results that were offered.
    void ResultsWanted();

private:
    void Take(const SolveMessage& message);
    void End(SolveProcess::Outcome outcome, const QString& problem);
    void ShowTime();

    std::unique_ptr<Ui::SolvePanel> m_ui;
    QElapsedTimer m_since;
    QTimer m_clock;
};
