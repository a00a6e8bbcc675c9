#pragma once

#include "sParaArrayData.h"

#include <QString>

/// Keeps the samples of one parameter through a run of OneParameterDlg, which regenerates them from
/// their range in six digits.
///
///     const SamplingGuard guard("width"); // before the dialog
///     dialog.exec();
///     guard.Finish();                     // after it
class SamplingGuard
{
public:
    /// Gives a parameter without samples a range around its value.
    explicit SamplingGuard(const QString& parameter);

    /// Restores the samples if OK has only stored what the dialog showed. Returns whether the
    /// samples have changed.
    bool Finish() const;

private:
    QString m_parameter;
    sParaArrayData m_before;
};
