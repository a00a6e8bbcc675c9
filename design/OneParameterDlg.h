#pragma once

#include "ui_OneParameterDlg.h"

#include "tarnguicommon_export.h"

#include <QDialog>

#include <vector>

/// Asks for the sample values of one global parameter.
///
///     OneParameterDlg dialog(window, name);
///     if (dialog.exec() == QDialog::Accepted)
///         Use(g_mapParaArrays[name].vecValues);
///
/// A range and a spacing type generate the samples; rows can be added, deleted and edited. OK
/// stores them in g_mapParaArrays under the name and marks the parameter as taking part. Opening
/// for a name enters a default record, also when the user cancels. Reopening generates the samples
/// anew from the stored range: rows edited by hand are not shown again.
class TARNGUICOMMON_EXPORT OneParameterDlg : public QDialog
{
    Q_OBJECT

public:
    /// Shows the range stored under @p name. An empty name is refused with a notice and leaves an
    /// inert dialog.
    OneParameterDlg(QWidget* parent, QString name);
    ~OneParameterDlg() override;

    /// As in the base class; a field that loses the focus by it starts no regeneration.
    void done(int result) override;

public Q_SLOTS:
    /// Generates the samples from the range and the checked type. Refused with a notice, which
    /// leaves no rows: a step that is not above 0 or wider than the range, an empty range, numbers
    /// that are not finite, more than 1,000,000 rows, and Gauss.
    void RefreshTableData();
    /// Stores range, type and table rows in the registry and accepts; nothing is checked.
    void m_Slot_OK();
    /// Rejects; the registry is left as it is.
    void m_Slot_Cancel();
    /// Shows the stored range and type and generates the samples.
    void InitGUIData();
    /// Appends an empty row, which counts as the sample 0 until it is filled.
    void m_Slot_Add();
    /// Removes the current row; without one it says so.
    void m_Slot_Delete();

private:
    void Refuse(const QString& text);

    Ui::OneParameterDlg m_ui;
    QString m_strName;
    std::vector<double> m_vecValues;
    int m_nSampleType = 0;     // A SampleSpacing::Code, of the last generation.
    bool m_bKeepTable = false; // true while no regeneration may start
};
