#pragma once

#include "ui_ExtrudInputDlg.h"

#include "tarnguicommon_export.h"

#include <QDialog>
#include <gp_Dir.hxx>

/// Asks for a linear extrusion: a direction and a length.
///
///     ExtrudInputDlg dialog(window);
///     if (dialog.exec() == QDialog::Accepted)
///         Extrude(dialog.GetExtrudeDirection(), dialog.GetHeightValue());
///
/// "nan", "inf" and "1e999" are accepted; other non-numeric text counts as 0. With a zero
/// direction, OK lets the kernel's Standard_ConstructionError propagate out of exec(), and the
/// dialog stays open. The length is then the one entered, but the direction is unchanged.
class TARNGUICOMMON_EXPORT ExtrudInputDlg : public QDialog
{
    Q_OBJECT

public:
    /// Opens with the direction (0, 0, 1) and the length 10. @p parent may be null.
    explicit ExtrudInputDlg(QWidget* parent);
    ~ExtrudInputDlg() override;

    /// The length in the model's length unit; 0 before OK.
    double GetHeightValue() const;
    /// The direction entered; (1, 0, 0) before OK.
    gp_Dir GetExtrudeDirection() const;

    /// Like QDialog::exec(), but lets an exception from OK propagate to the caller.
    int exec() override;

private Q_SLOTS:
    void m_Slot_OK_Pushed();

private:
    Ui::ExtrudInputDlg m_ui;
    double m_dHeight = 0.0;
    gp_Dir m_direction;
};
