#pragma once

#include "ui_MirrorDialog.h"

#include "tarnguicommon_export.h"

#include <QDialog>
#include <gp_Trsf.hxx>

/// Asks for a mirror transformation: about a point, about an axis, or about a face to be picked.
///
///     MirrorDialog dialog(parentDialog);
///     gp_Trsf symmetry;
///     if (dialog.exec() == QDialog::Accepted)
///         dialog.GetMirrorData(symmetry);
///
/// The point mode always mirrors through the origin, whatever its fields say. The face mode leaves
/// the transformation unchanged, and the host picks the face. Cancel does nothing: OK, Escape or
/// the title bar leave the dialog. With a zero axis direction, OK lets the kernel's
/// Standard_ConstructionError propagate out of exec(), and the dialog stays open.
class TARNGUICOMMON_EXPORT MirrorDialog : public QDialog
{
    Q_OBJECT

public:
    /// Opens with the mirror about the z axis. @p parent may be null.
    explicit MirrorDialog(QDialog* parent);
    ~MirrorDialog() override;

    /// Copies the transformation of the last OK; before OK, the identity.
    void GetMirrorData(gp_Trsf& transform) const;

    /// Like QDialog::exec(), but lets an exception from OK propagate to the caller.
    int exec() override;

private Q_SLOTS:
    void m_Slot_OK_Pushed();

private:
    Ui::MirrorDialog m_ui;
    gp_Trsf m_transform;
};
