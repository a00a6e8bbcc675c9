#pragma once

#include "tarnfemdata_export.h"

/// The frequency sweep of a frequency-domain analysis, shared by the whole application.
///
/// No unit is prescribed; the defaults suggest hertz.
class TARNFEMDATA_EXPORT FrequencyPref
{
public:
    /// The preferences of the process; created on first use and never freed.
    static FrequencyPref* GetInstance();

    static double m_MinFreq; ///< Lowest frequency; initially 1.0.
    static double m_MaxFreq; ///< Highest frequency; initially 1000000.0.
    static int m_NumFreq;    ///< Number of frequency points; initially 10.

private:
    FrequencyPref() = default;
};
