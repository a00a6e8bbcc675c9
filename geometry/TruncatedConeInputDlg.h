#pragma once

#include "ui_TruncatedConeInputDlg.h"

#include "tarnguicommon_export.h"

#include <QDialog>

/// Asks for height, top radius and angle of a truncated cone.
///
///     TruncatedConeInputDlg dialog(window);
///     dialog.DisableAngleInput(); // for a full cone
///     if (dialog.exec() == QDialog::Accepted)
///         MakeCone(dialog.GetTopRadius(), dialog.GetHeightValue(), dialog.GetAngle());
///
/// Ranges are not checked; "nan", "inf" and "1e999" are accepted, other non-numeric text counts as
/// 0.
class TARNGUICOMMON_EXPORT TruncatedConeInputDlg : public QDialog
{
    Q_OBJECT

public:
    /// Opens with height 10, top radius 5 and 360 degrees. @p parent may be null.
    explicit TruncatedConeInputDlg(QWidget* parent);
    ~TruncatedConeInputDlg() override;

    /// The height in the model's length unit; valid after OK or CollectData().
    double GetHeightValue() const;
    /// The top radius in the model's length unit; valid after OK or CollectData().
    double GetTopRadius() const;
    /// The sweep about the axis in degrees, as typed; valid after OK or CollectData().
    double GetAngle() const;

    /// Disables the angle field; OK still reads it.
    void DisableAngleInput();
    /// Reads the fields like OK, without closing the dialog.
    void CollectData();

private Q_SLOTS:
    void m_Slot_OK();

private:
    Ui::TruncatedConeInputDlg m_ui;
    double m_dHeight = 0.0;
    double m_dTopRadius = 0.0;
    double m_dAngle = 0.0;
};
