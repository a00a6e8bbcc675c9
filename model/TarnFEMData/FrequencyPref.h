#pragma once

#include "tarnfemdata_export.h"

/// The frequency sweep of a frequency-domain analysis, shared by the whole application.
///
/// The values carry no unit of their own; the defaults suggest hertz.
class TARNFEMDATA_EXPORT FrequencyPref
{
public:
    /// The preferences of the process; created on first use and never freed.
    static FrequencyPref* GetInstance();

    static double m_MinFreq; ///< Lowest frequency; 1.0 at first.
    static double m_MaxFreq; ///< Highest frequency; 1000000.0 at first.
    static int m_NumFreq;    ///< Number of frequency points; 10 at first.

private:
    FrequencyPref() = default;
};
