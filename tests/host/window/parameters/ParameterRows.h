#pragma once

#include "DesignModel.h"
#include "GlobalParaMeterMgr.h"
#include "ParameterTable.h"
#include "Tables.h"
#include "TestCase.h"

/// Puts a parameter into the store; @p value is a number, an expression or what its type has.
inline void Store(const QString& name, const QString& value, int type = ParametersDef::ScalarType)
{
    ParameterEntry entry = NewParameter(name);
    entry.SetType(type);
    entry.SetValueText(value);
    GlobalParaMeterMgr::AddParameter(name, entry.record);
}

inline QString CellText(const QTableWidget& table, int row, int column)
{
    return table.item(row, column)->text();
}
