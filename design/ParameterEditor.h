#pragma once

#include "ui_ParameterEditor.h"

#include "tarnguicommon_export.h"

#include <QDialog>

class QTableWidgetItem;
struct ParametersDef;

/// Asks for the global design parameters: one table row per parameter.
///
///     ParameterEditor editor(window);
///     editor.m_Slot_RefreshGUI(); // the table opens empty
///     connect(&editor, SIGNAL(m_Signal_Apply()), window, SLOT(Regenerate()));
///     editor.exec();
///
/// Apply and OK write all rows to GlobalParaMeterMgr, evaluate the expressions there in one pass,
/// and rebuild the table. Cancel writes nothing. Deleting a row does not delete the parameter in
/// the store.
class TARNGUICOMMON_EXPORT ParameterEditor : public QDialog
{
    Q_OBJECT

public:
    /// The table is empty until m_Slot_RefreshGUI() runs. @p parent may be null.
    explicit ParameterEditor(QWidget* parent);
    ~ParameterEditor() override;

Q_SIGNALS:
    /// Apply or OK has written to the store.
    void m_Signal_Apply();

public Q_SLOTS:
    /// Writes the rows, evaluates the expressions, rebuilds the table and emits m_Signal_Apply().
    void m_Slot_Apply();
    /// Removes the current row of the table; the store keeps the parameter.
    void m_Slot_Delete();
    /// Appends an empty Scalar row.
    void m_Slot_Add();
    /// Calls m_Slot_Apply() and accepts, even if a row was refused.
    void m_Slot_OK();
    /// Emits rejected() and closes, which emits it again if the dialog is visible. Does not change
    /// the store.
    void m_Slot_Cancel();
    /// Does nothing; connected to the pressing of a cell.
    void m_Slot_ProcessExp();
    /// Rebuilds the table from the store, in the store's order.
    void m_Slot_RefreshGUI();
    /// While "Value" is the current column, clears a changed cell if its text contains anything but
    /// digits and full stops, and shows a notice.
    void m_Slot_NoNumber(QTableWidgetItem* item);

private:
    void UpdateAllParameterDef();
    void RefreshParameterData();
    bool IsValidExpressPara(QString names);
    double GetCurrParaValueByExprsion(ParametersDef def);
    void AddOneRecord(ParametersDef& def);

    Ui::ParameterEditor m_ui;
};
