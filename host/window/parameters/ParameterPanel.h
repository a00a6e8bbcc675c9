#pragma once

#include <QDockWidget>

class DesignModel;
class ParameterTable;
class QAction;

/// The parameters of the project, to work in: adds, removes, moves, copies and pastes them, and
/// reads and writes them as CSV files. ParameterTable edits them in place.
class ParameterPanel : public QDockWidget
{
    Q_OBJECT

public:
    /// The model must outlive the panel.
    ParameterPanel(DesignModel& model, QWidget* parent);
    ~ParameterPanel() override;

Q_SIGNALS:
    /// The user wants the project to lose the parameters @p names, which others may use.
    void RemovalWanted(const QStringList& names);

private:
    void CreateActions();
    QAction* Add(const QString& text, const char* name, const char* icon,
                 void (ParameterPanel::*act)(), const QKeySequence& shortcut = {});
    void UpdateActions();

    void AddParameter();
    void AskForRemoval();
    void MoveUp() { Move(-1); }
    void MoveDown() { Move(1); }
    void Move(int step);
    void Copy();
    void Paste();
    void Import();
    void Export();
    void Take(const QString& text, const QString& undoText);

    DesignModel& m_model;
    ParameterTable* m_table;
    QAction* m_remove = nullptr;
    QAction* m_up = nullptr;
    QAction* m_down = nullptr;
};
