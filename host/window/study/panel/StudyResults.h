#pragma once

#include <QDockWidget>

#include <memory>

class OptimumPage;
class StudyPlot;
class StudySelection;
class StudyTable;
class StudyTableView;
class QAction;

namespace Ui {
class StudyResults;
}

/// The results of a study: the table of its runs with a filter, and plots of them.
class StudyResults : public QDockWidget
{
    Q_OBJECT

public:
    /// Table and selection must outlive the dock.
    StudyResults(StudyTable& table, StudySelection& selection, QWidget* parent);
    ~StudyResults() override;

    /// Of the menus of the table and of the dock.
    void SetActions(const QList<QAction*>& actions);
    /// The plot whose tab is open; null for the table.
    StudyPlot* CurrentPlot() const;
    OptimumPage& Optimum() { return *m_optimum; }

Q_SIGNALS:
    void CurrentPlotChanged();

private:
    void AddPlots();
    void ApplyFilter();
    void ShowCount();

    StudyTable& m_table;
    StudySelection& m_selection;
    std::unique_ptr<Ui::StudyResults> m_form;
    StudyTableView* m_view;
    OptimumPage* m_optimum;
};
