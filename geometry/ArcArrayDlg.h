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
/// No range is checked; text that is no number counts as 0. OK with a zero direction lets the
/// kernel's Standard_ConstructionError pass, out of exec() to the host, and the dialog stays open:
/// angle and number are then those entered, the axis is as before.
class TARNGUICOMMON_EXPORT ArcArrayDlg : public QDialog
{
    Q_OBJECT

public:
    /// Opens with 90 degrees, 4 instances and the z axis. @p parent may be null.
    explicit ArcArrayDlg(QDialog* parent);
    ~ArcArrayDlg() override;

    /// The record of the last OK; before, only its axis (the z axis) has a meaning.
    sMatrixArcdata GetArrayParameter() const;

    /// As QDialog::exec(), and an exception from OK may leave it.
    int exec() override;

private Q_SLOTS:
    void m_slot_OkPushed();

private:
    Ui::ArcArrayDlg m_ui;
    sMatrixArcdata m_data;
};
