#pragma once

#include "SetupCheck.h"

#include <QDockWidget>

class QLabel;
class QListWidget;
class QListWidgetItem;

/// The list of what the last check of the set-up has found. A click on a line chooses its entry.
class SetupCheckDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit SetupCheckDock(QWidget* parent);
    ~SetupCheckDock() override;

    /// Shows @p problems, and posts one line about them to the message channel.
    void ShowProblems(const std::vector<SetupProblem>& problems);

    /// Marks what is shown as the result of an earlier set-up.
    void MarkAsOld();

Q_SIGNALS:
    void EntryChosen(const AnalysisEntry& entry);

private:
    void Choose(const QListWidgetItem* item);

    QLabel* m_summary;
    QListWidget* m_list;
    std::vector<SetupProblem> m_problems;
};
