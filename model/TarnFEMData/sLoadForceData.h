#pragma once

#include <string>

/// One force load.
struct sLoadForceData
{
    std::string m_strName; ///< Attribute name, in the local 8-bit code page.
    int m_nKind = 0;       ///< 1: given by components, 2: normal to the surface.
    double m_dFX = 0.0;    ///< Component along X.
    double m_dFY = 0.0;    ///< Component along Y.
    double m_dFZ = 0.0;    ///< Component along Z.
};
