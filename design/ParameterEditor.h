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
    /// Rejects and closes; the store is left as it is.
    void m_Slot_Cancel();
    /// Called when a cell is pressed; does nothing.
    void m_Slot_ProcessExp();
    /// Rebuilds the table from the store, in the store's order.
    void m_Slot_RefreshGUI();
    /// Refuses and clears a changed cell that is no plain number while "Value" is current.
    void m_Slot_NoNumber(QTableWidgetItem* item);

private:
    void UpdateAllParameterDef();
    void RefreshParameterData();
    bool IsValidExpressPara(QString names);
    double GetCurrParaValueByExprsion(ParametersDef def);
    void AddOneRecord(ParametersDef& def);

    Ui::ParameterEditor m_ui;
};
