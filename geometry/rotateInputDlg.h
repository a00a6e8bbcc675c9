#pragma once

#include "ui_rotateInputDlg.h"

#include "tarnguicommon_export.h"

#include <QDialog>
#include <gp_Ax1.hxx>
#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>

/// Asks for a rotation: an axis and an angle.
///
///     rotateInputDlg dialog(window);
///     if (dialog.exec() == QDialog::Accepted)
///         rotation.SetRotation(dialog.GetRotateAxis(), dialog.GetAngle());
///
/// Text that is no number counts as 0. OK with a zero direction lets the kernel's
/// Standard_ConstructionError pass, out of exec() to the host, and the dialog stays open: the
/// angle and the base point are then those entered, direction and axis as before.
class TARNGUICOMMON_EXPORT rotateInputDlg : public QDialog
{
    Q_OBJECT

public:
    /// Opens with 90 degrees about the z axis. @p parent may be null.
    explicit rotateInputDlg(QWidget* parent);
    ~rotateInputDlg() override;

    /// The axis point entered; the origin before OK.
    gp_Pnt GetBasePt() const;
    /// The direction entered; (1, 0, 0) before OK.
    gp_Dir GetRotateDir() const;
    /// Axis point and direction; the z axis before OK.
    gp_Ax1 GetRotateAxis() const;
    /// The angle in radians; without meaning before OK.
    double GetAngle() const;

    /// As QDialog::exec(), and an exception from OK may leave it.
    int exec() override;

private Q_SLOTS:
    void m_Slot_OK();

private:
    Ui::rotateInputDlg m_ui;
    gp_Ax1 m_axis;
    gp_Dir m_direction;
    double m_dAngle = 0.0;
    gp_Pnt m_basePoint;
};
