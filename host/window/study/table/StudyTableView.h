#pragma once

#include <QTableView>

class StudySelection;
class StudyTable;

/// Shows a StudyTable. What the user selects in it is the shared selection.
class StudyTableView : public QTableView
{
    Q_OBJECT

public:
    /// The table and the selection must outlive the view.
    StudyTableView(StudyTable& table, StudySelection& selection, QWidget* parent);
    ~StudyTableView() override;

private:
    void TakeSelection();
    void FollowSelection();

    StudyTable& m_table;
    StudySelection& m_selection;
    bool m_isTaking = false;
};
