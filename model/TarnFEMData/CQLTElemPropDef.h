#pragma once

#include <QString>

/// One element property. Create it with new; the creator owns it until KVPropertyData takes it
/// over.
struct CQLTElemPropDef
{
    /// The codes of m_nTypeCode.
    enum TypeCode
    {
        SolidType = 1, ///< Fills a body; m_dThickness has no meaning.
        ShellType = 2  ///< Covers a face, m_dThickness thick.
    };

    QString m_strName;         ///< The property's name; its key in the store.
    qint64 m_nReserved = 0;    ///< Kept in the file; the dialogs neither read nor write it.
    QString m_strMaterialName; ///< Name of a material in KVMaterialData; may be empty.
    double m_dThickness = 0.0; ///< Thickness of a shell, in the model's length unit.
    QString m_strTypeName;     ///< The name of the element type; "Shell" for shells.
    int m_nTypeCode = 0;       ///< A TypeCode; 0 until it is set.
};
