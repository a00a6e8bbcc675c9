#pragma once

#include "ui_WedgeInputDlg.h"

#include "tarnguicommon_export.h"

#include <QDialog>

/// Asks for a wedge: its height and the limits of its top face.
///
///     WedgeInputDlg dialog(window);
///     double height, xMin, xMax, zMin, zMax;
///     if (dialog.exec() == QDialog::Accepted)
///         dialog.GetWedgeParameter(height, xMin, xMax, zMin, zMax);
///
/// Ranges are not checked; "nan", "inf" and "1e999" are accepted, other non-numeric text counts as
/// 0.
class TARNGUICOMMON_EXPORT WedgeInputDlg : public QDialog
{
    Q_OBJECT

public:
    /// Opens with height 30, X from 5 to 15 and Z from 8 to 20. @p parent may be null.
    explicit WedgeInputDlg(QWidget* parent);
    ~WedgeInputDlg() override;

    /// The values of the last OK in the model's length unit; 0 before OK.
    void GetWedgeParameter(double& height, double& xMin, double& xMax, double& zMin,
                           double& zMax) const;

private Q_SLOTS:
    void m_Slot_OK();

private:
    Ui::WedgeInputDlg m_ui;
    double m_dHeight = 0.0;
    double m_dXMin = 0.0;
    double m_dXMax = 0.0;
    double m_dZMin = 0.0;
    double m_dZMax = 0.0;
};
