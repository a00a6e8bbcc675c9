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
/// "nan", "inf" and "1e999" are accepted; other non-numeric text counts as 0. With a zero
/// direction, OK lets the kernel's Standard_ConstructionError propagate out of exec(), and the
/// dialog stays open. Angle and base point are then those entered, but direction and axis are
/// unchanged.
class TARNGUICOMMON_EXPORT rotateInputDlg : public QDialog
{
    Q_OBJECT

public:
    /// Opens with 90 degrees about the z axis. @p parent may be null.
    explicit rotateInputDlg(QWidget* parent);
    ~rotateInputDlg() override;

    /// The axis point entered, in the model's length unit; the origin before OK.
    gp_Pnt GetBasePt() const;
    /// The direction entered; (1, 0, 0) before OK.
    gp_Dir GetRotateDir() const;
    /// Axis point and direction; the z axis before OK.
    gp_Ax1 GetRotateAxis() const;
    /// The angle in radians; 0 before OK.
    double GetAngle() const;

    /// Like QDialog::exec(), but lets an exception from OK propagate to the caller.
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
