#pragma once

#include "DOEDlg.h"
#include "DialogTest.h"
#include "EmptyDesignStores.h"
#include "Tables.h"

#include <vector>

/// Shared by the tests of the DOE dialog: its two tables and their stores.

using Values = std::vector<double>;

inline void AddParameter(const QString& name, double value = 5.0)
{
    ParametersDef record;
    record.m_strName = name;
    record.m_nType = ParametersDef::ScalarType;
    record.m_dValue = value;
    record.m_varRawValue = value;
    record.m_strValue = QString::number(value);
    GlobalParaMeterMgr::AddParameter(name, record);
}

inline void AddParameters(const QStringList& names)
{
    for (const QString& name : names)
        AddParameter(name);
}

/// Enters the samples of a parameter; any @p checked but 0 takes them into the runs.
inline void AddRecord(const QString& name, int checked, const Values& values)
{
    sParaArrayData& record = g_mapParaArrays[name];
    record.bChecked = checked;
    record.strName = name;
    record.vecValues = values;
}

inline void Tick(const QString& name, const Values& values)
{
    AddRecord(name, 1, values);
}

inline const ParametersDef& Stored(const QString& name)
{
    return GlobalParaMeterMgr::m_nameMapParameters.at(name);
}

inline QTableWidget& Parameters(const QWidget& dialog)
{
    return Find<QTableWidget>(dialog, "tableWidget_Parameters");
}

inline QTableWidget& Runs(const QWidget& dialog)
{
    return Find<QTableWidget>(dialog, "tableWidget_Final");
}

/// Columns and rows of the run table.
inline QSize RunTableSize(const QWidget& dialog)
{
    return {Runs(dialog).columnCount(), Runs(dialog).rowCount()};
}

/// The runs, each as its values with a blank between them.
inline QStringList Rows(const QWidget& dialog)
{
    QStringList rows;
    for (int row = 0; row < Runs(dialog).rowCount(); ++row)
        rows << RowTexts(Runs(dialog), row).join(' ');
    return rows;
}

inline void Refresh(const QWidget& dialog)
{
    Click(dialog, "pushButton_RefreshData");
}
