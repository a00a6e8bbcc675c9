#pragma once

#include <gp_Ax1.hxx>

/// A polar array, as ArcArrayDlg asks for it.
struct sMatrixArcdata
{
    gp_Ax1 m_axis;         ///< axis of rotation; the z axis by default
    double m_dAngle = 0.0; ///< degrees; total sweep or step, as the host defines it
    int m_nNumber = 0;     ///< number of instances
};
