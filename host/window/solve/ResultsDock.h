#pragma once

#include "SolveReport.h"

#include <QDockWidget>

#include <memory>

class PartView;
class ResultDisplay;

namespace Ui {
class ResultsPanel;
}

/// The results of the last analysis: a table, and what the view shows of them.
class ResultsDock : public QDockWidget
{
    Q_OBJECT

public:
    /// @p view may be null.
    ResultsDock(PartView* view, QWidget* parent);
    ~ResultsDock() override;

    /// Replaces what is shown.
    void ShowReport(const std::shared_ptr<const SolveReport>& report);
    /// Removes what is shown.
    void Clear();
    /// Whether part or set-up have changed since.
    void SetOld(bool isOld);

private:
    void ChooseMode();
    void ExportTable();

    std::unique_ptr<Ui::ResultsPanel> m_ui;
    ResultDisplay* m_display;
    std::shared_ptr<const SolveReport> m_report;
};
