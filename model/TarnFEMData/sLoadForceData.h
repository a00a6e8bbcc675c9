#pragma once

#include <string>

/// One force load, in the force unit of the model.
struct sLoadForceData
{
    /// The codes of m_nKind.
    enum Kind
    {
        ComponentKind = 1,   ///< The force has the three components.
        NormalToFaceKind = 2 ///< The force is normal to the surface.
    };

    std::string m_strName; ///< Attribute name, in the local 8-bit code page.
    int m_nKind = 0;       ///< A Kind; 0 until it is set.
    double m_dFX = 0.0;    ///< Component along X.
    double m_dFY = 0.0;    ///< Component along Y.
    double m_dFZ = 0.0;    ///< Component along Z.
};
