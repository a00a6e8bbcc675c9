#pragma once

#include "StudyPlot.h"

#include <QStringList>

class QLabel;
class QTableWidget;

/// Numbers about the runs that are shown: a summary of each column, and of one result its
/// correlations with the parameters, its quadratic surface over them, and their shares of its
/// variance.
class StatisticsPage : public StudyPlot
{
    Q_OBJECT

public:
    StatisticsPage(StudyTable& table, StudySelection& selection, QWidget* parent);
    ~StatisticsPage() override;

protected:
    void ShowRows() override;
    void ShowSelection() override {}
    QWidget& Canvas() override { return *m_content; }

private:
    QTableWidget* NewTable(const char* name, const QString& title, const QStringList& header);
    void Calculate();
    void ShowSummary();
    void ShowEffects();

    ColumnBox& m_response;
    QWidget* m_content;
    QLabel* m_surface;
    QTableWidget* m_effects;
    QTableWidget* m_summary;
};
