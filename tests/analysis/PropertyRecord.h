#pragma once

#include "CQLTElePropertyEditor.h"
#include "CQLTElemPropDef.h"
#include "EmptyAnalysisStores.h"
#include "FormTest.h"

#include <QLineEdit>
#include <QRadioButton>

/// Shared by the tests of the property editor: records and how to fill in the form.

inline ShownBox EmptyName()
{
    return ShownBox::Notice("Error", "Property name is empty");
}

inline CQLTElemPropDef Record(int typeCode)
{
    return {"P1", 77, "Steel", 0.1234567, "Word", typeCode};
}

/// The fields in order.
inline QStringList Fields(const CQLTElemPropDef& record)
{
    return {record.m_strName,         QString::number(record.m_nReserved),
            record.m_strMaterialName, QString::number(record.m_dThickness, 'g', 17),
            record.m_strTypeName,     QString::number(record.m_nTypeCode)};
}

inline QString Text(const QWidget& editor, const char* field)
{
    return Find<QLineEdit>(editor, field).text();
}

/// A host may enable a type that this release disables.
inline void Choose(const QWidget& editor, const char* button)
{
    Find<QRadioButton>(editor, button).setEnabled(true);
    Click(editor, button);
}
