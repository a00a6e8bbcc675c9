#pragma once

#include "ui_MirrorDialog.h"

#include "tarnguicommon_export.h"

#include <QDialog>
#include <gp_Trsf.hxx>

/// Asks for a symmetry: about a point, about an axis, or about a face to be picked.
///
///     MirrorDialog dialog(parentDialog);
///     gp_Trsf symmetry;
///     if (dialog.exec() == QDialog::Accepted)
///         dialog.GetMirrorData(symmetry);
///
/// The point mode always mirrors through the origin, whatever its fields say. In the face mode the
/// transform is left as it was, and the host picks the face. Cancel does nothing; the dialog is
/// left by OK, Escape or its title bar. OK with a zero axis direction lets the kernel's
/// Standard_ConstructionError pass, out of exec() to the host, and the dialog stays open.
class TARNGUICOMMON_EXPORT MirrorDialog : public QDialog
{
    Q_OBJECT

public:
    /// Opens with the symmetry about the z axis. @p parent may be null.
    explicit MirrorDialog(QDialog* parent);
    ~MirrorDialog() override;

    /// Copies the symmetry of the last OK; the identity before.
    void GetMirrorData(gp_Trsf& transform) const;

    /// As QDialog::exec(), and an exception from OK may leave it.
    int exec() override;

private Q_SLOTS:
    void m_Slot_OK_Pushed();

private:
    Ui::MirrorDialog m_ui;
    gp_Trsf m_transform;
};
