#pragma once

#include "ui_torusParaInputDlg.h"

#include "tarnguicommon_export.h"

#include <QDialog>

/// Asks for the sweep radius and the angular limits of a torus.
///
///     torusParaInputDlg dialog(window);
///     dialog.DisableAngleUI(); // for a full torus
///     if (dialog.exec() == QDialog::Accepted)
///         MakeTorus(dialog.GetSweepRadius(), dialog.GetAngle1(), ...);
///
/// The ranges beside the fields are only labels: the host must check them. "nan", "inf" and "1e999"
/// are accepted; other non-numeric text counts as 0.
class TARNGUICOMMON_EXPORT torusParaInputDlg : public QDialog
{
    Q_OBJECT

public:
    /// Opens with the sweep radius 3 and -180, 180 and 360 degrees. @p parent may be null.
    explicit torusParaInputDlg(QWidget* parent);
    ~torusParaInputDlg() override;

    /// The radius of the tube in the model's length unit; valid after OK.
    double GetSweepRadius() const;
    /// The start of the tube section in degrees, as typed; valid after OK.
    double GetAngle1() const;
    /// The end of the tube section in degrees, as typed; valid after OK.
    double GetAngle2() const;
    /// The sweep about the axis in degrees, as typed; valid after OK.
    double GetAngle3() const;

    /// Disables the three angle fields; OK still reads them.
    void DisableAngleUI();

private Q_SLOTS:
    void m_OK_Pushed();

private:
    Ui::torusParaInputDlg m_ui;
    double m_dSweepRadius = 0.0;
    double m_dAngle1 = 0.0;
    double m_dAngle2 = 0.0;
    double m_dAngle3 = 0.0;
};
