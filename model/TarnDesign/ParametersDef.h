#pragma once

#include <QString>
#include <QVariant>

#include <string>

/// One global design parameter.
struct ParametersDef
{
    QString m_strName;           ///< The parameter's name; also its key in the store.
    int m_nType = 0;             ///< 0 Bool, 1 Scalar, 2 Vector, 3 Tensor.
    std::string m_strExpression; ///< Local 8-bit text; empty if the parameter is a plain value.
    QString m_strExpressPara;    ///< The names that the expression uses, separated by ",".
    double m_dValue = 0.0;       ///< Value of a Scalar or of the evaluated expression.
    QVariant m_varRawValue;      ///< The value that expressions use; if invalid, they use m_dValue.
    double m_dX = 0.0;           ///< First component of a Vector.
    double m_dY = 0.0;           ///< Second component of a Vector.
    double m_dZ = 0.0;           ///< Third component of a Vector.
    QString m_strValue;          ///< The value as typed, or as formatted after evaluation.
    QString m_strDescription;    ///< Free text.
};
