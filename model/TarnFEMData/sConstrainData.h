#pragma once

#include <string>

/// One fixed support: a name and the degrees of freedom that it holds.
struct sConstrainData
{
    std::string m_strName; ///< Attribute name, in the local 8-bit code page.
    bool m_bXD = false;    ///< True when the displacement along X is held.
    bool m_bYD = false;    ///< True when the displacement along Y is held.
    bool m_bZD = false;    ///< True when the displacement along Z is held.
    bool m_bXR = false;    ///< True when the rotation about X is held.
    bool m_bYR = false;    ///< True when the rotation about Y is held.
    bool m_bZR = false;    ///< True when the rotation about Z is held.
};
