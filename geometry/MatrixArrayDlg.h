#pragma once

#include "ui_MatrixArrayDlg.h"

#include "sMatrixArraydata.h"
#include "tarnguicommon_export.h"

#include <QDialog>

/// Asks for a rectangular array along X and Y: numbers of instances and distances.
///
///     MatrixArrayDlg dialog(parentDialog);
///     if (dialog.exec() == QDialog::Accepted)
///         CopyAlong(dialog.GetArrayParameter());
///
/// The number fields accept up to four digits. An empty number counts as 0. In the distances,
/// "nan", "inf" and "1e999" are accepted; other non-numeric text counts as 0.
class TARNGUICOMMON_EXPORT MatrixArrayDlg : public QDialog
{
    Q_OBJECT

public:
    /// Opens with 5 by 4 instances at distances of 50 and 100. @p parent may be null.
    explicit MatrixArrayDlg(QDialog* parent);
    ~MatrixArrayDlg() override;

    /// The record of the last OK; meaningless before OK.
    sMatrixArraydata GetArrayParameter() const;

private Q_SLOTS:
    void m_slot_OkPushed();
    /// Does nothing: another connection of Cancel closes the dialog.
    void m_slot_CancelPushed();

private:
    Ui::MatrixArrayDlg m_ui;
    sMatrixArraydata m_data;
};
