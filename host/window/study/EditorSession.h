#pragma once

#include "ParameterEntry.h"

#include <QObject>

#include <vector>

class DesignModel;
class ParameterEditor;

/// What a host does around one ParameterEditor: keeps what the dialog cannot hold.
///
/// After Apply and OK the session takes the rows over once more: a Bool whose text did not change
/// keeps its value, the components of a Vector may be any numbers, a row that the dialog refuses
/// does not take the rows below it away, and the names that each expression uses stand beside it.
/// What cannot be taken is reported as a warning.
class EditorSession : public QObject
{
    Q_OBJECT

public:
    /// To be constructed before the dialog is shown; dialog and model must outlive the session.
    EditorSession(ParameterEditor& dialog, DesignModel& model, QObject* parent = nullptr);
    ~EditorSession() override;

private:
    void RememberRows();
    void TakeRows();
    void Correct(ParameterEntry& entry, const ParametersDef& row,
                 const ParameterEntry* before) const;

    ParameterEditor& m_dialog;
    DesignModel& m_model;
    ParameterEntries m_before;
    std::vector<ParametersDef> m_rows; // With the texts of the rows.
};
