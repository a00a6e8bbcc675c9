#pragma once

#include <string>

/// One fixed support: a name and the degrees of freedom that it fixes.
struct sConstrainData
{
    std::string m_strName; ///< Attribute name, in the local 8-bit code page.
    bool m_bXD = false;    ///< Whether the displacement along X is fixed.
    bool m_bYD = false;    ///< Whether the displacement along Y is fixed.
    bool m_bZD = false;    ///< Whether the displacement along Z is fixed.
    bool m_bXR = false;    ///< Whether the rotation about X is fixed.
    bool m_bYR = false;    ///< Whether the rotation about Y is fixed.
    bool m_bZR = false;    ///< Whether the rotation about Z is fixed.
};
