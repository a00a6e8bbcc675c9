#pragma once

#include <QString>
#include <QVariant>

#include <string>

/// One global design parameter.
struct ParametersDef
{
    /// The codes of m_nType.
    enum Type
    {
        BoolType = 0,   ///< A text that the dialogs do not interpret: m_strValue.
        ScalarType = 1, ///< One number: m_dValue.
        VectorType = 2, ///< Three components: m_dX, m_dY and m_dZ; "x,y,z" in m_strValue.
        TensorType = 3  ///< A text that is not evaluated: m_strValue.
    };

    QString m_strName;           ///< The parameter's name; also its key in the store.
    int m_nType = BoolType;      ///< A Type.
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
