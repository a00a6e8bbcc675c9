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
/// Apply and OK write all rows into GlobalParaMeterMgr, evaluate the expressions there in one pass,
/// and rebuild the table. Cancel writes nothing. Rows deleted in the table stay in the store.
class TARNGUICOMMON_EXPORT ParameterEditor : public QDialog
{
    Q_OBJECT

public:
    /// The table is empty until m_Slot_RefreshGUI() runs.
    explicit ParameterEditor(QWidget* parent);
    ~ParameterEditor() override;

Q_SIGNALS:
    /// The store was written, by Apply or by OK.
    void m_Signal_Apply();

public Q_SLOTS:
    /// Writes the rows, evaluates the expressions, rebuilds the table, tells the host.
    void m_Slot_Apply();
    /// Removes the current row of the table; the store keeps the parameter.
    void m_Slot_Delete();
    /// Appends an empty Scalar row.
    void m_Slot_Add();
    /// As m_Slot_Apply(), then accepts, also when a row was refused.
    void m_Slot_OK();
    /// Emits rejected() and closes, which emits it once more while the dialog is visible; the
    /// store is left as it is.
    void m_Slot_Cancel();
    /// Called when a cell is pressed; does nothing.
    void m_Slot_ProcessExp();
    /// Rebuilds the table from the store, in the store's order.
    void m_Slot_RefreshGUI();
    /// While "Value" is the current column, refuses and clears a changed cell whose text holds more
    /// than digits and full stops.
    void m_Slot_NoNumber(QTableWidgetItem* item);

private:
    void UpdateAllParameterDef();
    void RefreshParameterData();
    bool IsValidExpressPara(QString names);
    double GetCurrParaValueByExprsion(ParametersDef def);
    void AddOneRecord(ParametersDef& def);

    Ui::ParameterEditor m_ui;
};
