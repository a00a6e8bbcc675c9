#pragma once

#include "ui_sphereParaInputdlg.h"

#include "tarnguicommon_export.h"

#include <QDialog>

/// Asks for the angular limits of a sphere.
///
///     sphereParaInputdlg dialog(window);
///     if (dialog.exec() == QDialog::Accepted)
///         MakeSphere(dialog.GetAngle1(), dialog.GetAngle2(), dialog.GetAngle3());
///
/// The ranges beside the fields are only labels: the host must check them. Only the first field has
/// a validator. In the other two, "nan", "inf" and "1e999" are accepted. Other non-numeric text
/// counts as 0.
class TARNGUICOMMON_EXPORT sphereParaInputdlg : public QDialog
{
    Q_OBJECT

public:
    /// Opens with -90, 90 and 360 degrees. @p parent may be null.
    explicit sphereParaInputdlg(QWidget* parent);
    ~sphereParaInputdlg() override;

    /// The lower latitude in degrees, as typed; valid after OK.
    double GetAngle1() const;
    /// The upper latitude in degrees, as typed; valid after OK.
    double GetAngle2() const;
    /// The longitude in degrees, as typed; valid after OK.
    double GetAngle3() const;

private Q_SLOTS:
    void m_Slot_OKPushed();

private:
    Ui::sphereParaInputdlg m_ui;
    double m_dAngle1 = 0.0;
    double m_dAngle2 = 0.0;
    double m_dAngle3 = 0.0;
};
