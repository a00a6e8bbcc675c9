#pragma once

#include "ui_ArcArrayDlg.h"

#include "sMatrixArcdata.h"
#include "tarnguicommon_export.h"

#include <QDialog>

/// Asks for a polar array: an axis, an angle and a number of instances.
///
///     ArcArrayDlg dialog(parentDialog);
///     if (dialog.exec() == QDialog::Accepted)
///         CopyAround(dialog.GetArrayParameter());
///
/// Ranges are not checked; "nan", "inf" and "1e999" are accepted, other non-numeric text counts as
/// 0. With a zero direction, OK lets the kernel's Standard_ConstructionError propagate out of
/// exec(), and the dialog stays open. Angle and number are then those entered, but the axis is
/// unchanged.
class TARNGUICOMMON_EXPORT ArcArrayDlg : public QDialog
{
    Q_OBJECT

public:
    /// Opens with 90 degrees, 4 instances and the z axis. @p parent may be null.
    explicit ArcArrayDlg(QDialog* parent);
    ~ArcArrayDlg() override;

    /// The record of the last OK; before OK, only its axis (the z axis) is meaningful.
    sMatrixArcdata GetArrayParameter() const;

    /// Like QDialog::exec(), but lets an exception from OK propagate to the caller.
    int exec() override;

private Q_SLOTS:
    void m_slot_OkPushed();

private:
    Ui::ArcArrayDlg m_ui;
    sMatrixArcdata m_data;
};
