#pragma once

/// A rectangular array, as MatrixArrayDlg asks for it.
struct sMatrixArraydata
{
    int m_nXNumber = 0;        ///< instances along X
    int m_nYNumber = 0;        ///< instances along Y
    double m_dXDistance = 0.0; ///< spacing along X, in the model's length unit
    double m_dYDistance = 0.0; ///< spacing along Y, in the model's length unit
};
