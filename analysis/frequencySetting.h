#pragma once

#include "ui_frequencySetting.h"

#include "tarnguicommon_export.h"

#include <QDialog>

/// Asks for the frequency sweep of a frequency-domain analysis.
///
///     frequencySetting dialog(window);
///     if (dialog.exec() == QDialog::Accepted)
///         Use(FrequencyPref::m_MinFreq, FrequencyPref::m_MaxFreq, FrequencyPref::m_NumFreq);
///
/// Opens with the values of FrequencyPref and writes them back on OK. Both frequencies must be
/// above 0 and the count at least 2; a minimum above the maximum is accepted.
class TARNGUICOMMON_EXPORT frequencySetting : public QDialog
{
    Q_OBJECT

public:
    /// Opens with the values of FrequencyPref, with six significant digits. @p parent may be null.
    explicit frequencySetting(QWidget* parent);
    ~frequencySetting() override;

    /// The values of the last OK, even a refused one; before that, the values of FrequencyPref when
    /// the dialog was created.
    void GetFreqParameter(double& min, double& max, int& count) const;

private Q_SLOTS:
    void m_Slot_OK();

private:
    Ui::frequencySetting m_ui;
    double m_dMaxFreq = 0.0;
    double m_dMinFreq = 0.0;
    int m_nNumFreq = 0;
};
