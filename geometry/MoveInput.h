#pragma once

#include "ui_MoveInput.h"

#include "tarnguicommon_export.h"

#include <QDialog>

/// Asks for a translation vector.
///
///     MoveInput dialog(window);
///     double dx, dy, dz;
///     if (dialog.exec() == QDialog::Accepted)
///         dialog.GetMoveData(dx, dy, dz);
///
/// Nothing is checked; "nan", "inf" and "1e999" are accepted, other non-numeric text counts as 0.
class TARNGUICOMMON_EXPORT MoveInput : public QDialog
{
    Q_OBJECT

public:
    /// Opens with three zeros. @p parent may be null.
    explicit MoveInput(QWidget* parent);
    ~MoveInput() override;

    /// Reads the components, in the model's length unit, from the fields when called, even after
    /// Cancel.
    void GetMoveData(double& dx, double& dy, double& dz) const;

private Q_SLOTS:
    void m_Slot_OK();
    /// Does nothing: the form closes the dialog.
    void m_Slot_Cancel();

private:
    Ui::MoveInput m_ui;
};
