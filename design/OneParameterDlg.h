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
/// stores the samples in g_mapParaArrays under the name and ticks the parameter. The constructor
/// adds a default record for a new name, even if the user then cancels. It regenerates the samples
/// from the stored range, so manually edited rows are not shown again.
class TARNGUICOMMON_EXPORT OneParameterDlg : public QDialog
{
    Q_OBJECT

public:
    /// Shows the range stored under @p name. An empty name causes a notice, and the dialog is then
    /// inert. @p parent may be null.
    OneParameterDlg(QWidget* parent, QString name);
    ~OneParameterDlg() override;

    /// Like QDialog::done(), without regenerating the samples when a field loses the focus.
    void done(int result) override;

public Q_SLOTS:
    /// Generates the samples from the range and the checked type. Clears the table and shows a
    /// notice if the range is empty, if the step is not above 0 or exceeds the range, if a number
    /// is not finite, if there would be more than 1,000,000 rows, or if the type is Gauss.
    void RefreshTableData();
    /// Stores range, type and table rows in the registry without checks, and accepts.
    void m_Slot_OK();
    /// Rejects without changing the registry.
    void m_Slot_Cancel();
    /// Shows the stored range and type, and generates the samples.
    void InitGUIData();
    /// Appends an empty row. Until it is filled, it counts as the sample 0.
    void m_Slot_Add();
    /// Removes the current row. Without a current row, shows a notice.
    void m_Slot_Delete();

private:
    void Refuse(const QString& text);

    Ui::OneParameterDlg m_ui;
    QString m_strName;
    std::vector<double> m_vecValues;
    int m_nSampleType = 0;     // A SampleSpacing::Code, of the last generation.
    bool m_bKeepTable = false; // True while regeneration is disabled.
};
