#pragma once

#include "SampleList.h"
#include "StudyPlot.h"

#include <vector>

class OptimumTable;
class QComboBox;
class QLabel;
class QPushButton;

/// The best point within limits, of quadratic surfaces over the runs that are shown; and the run
/// there that shows how good the prediction is.
class OptimumPage : public StudyPlot
{
    Q_OBJECT

public:
    OptimumPage(StudyTable& table, StudySelection& selection, QWidget* parent);
    ~OptimumPage() override;

    /// Values of the table's inputs; empty while no optimum is known.
    const std::vector<double>& Point() const { return m_point; }
    /// The value at Point() of a parameter that varies, for a study of one run.
    SampleList Samples() const;
    /// Whether a run can be started now.
    void AllowRun(bool isAllowed);

Q_SIGNALS:
    /// A run at Point() is to be done.
    void VerifyWanted();
    /// Point() is to become the design.
    void DesignWanted();

protected:
    void ShowRows() override;
    void ShowSelection() override {}
    QWidget& Canvas() override { return *m_content; }

private:
    void AddControls();
    QPushButton* AddButton(const QString& text, const char* name);
    void Forget();
    void Find();
    void FindWithin();
    void ShowRun();
    int RunAtPoint() const;

    ColumnBox& m_goal;
    QComboBox* m_aim = nullptr;
    QWidget* m_content;
    OptimumTable* m_table;
    QLabel* m_text;
    QPushButton* m_verify = nullptr;
    QPushButton* m_makeDesign = nullptr;
    std::vector<int> m_columns; // Of the rows of the table.
    std::vector<double> m_point;
    QString m_found; // What the text says about the optimum.
    bool m_isRunAllowed = true;
};
