#pragma once

#include "KVMaterialData.h"
#include "TestCase.h"

#include <QStringList>
#include <QTableWidget>
#include <QVector>

/// What the tests of the dialogs with tables of materials and properties share.

/// Writes a file of materials, each as name, elastic modulus, Poisson's ratio and density, by way
/// of the store, which is empty afterwards.
inline void WriteMaterials(const std::string& path, const QVector<QStringList>& materials)
{
    KVMaterialData& store = *KVMaterialData::GetInstance();
    store.ClearInfo();
    for (const QStringList& texts : materials) {
        auto* const material = new KVMaterialInfo;
        material->m_nType = MATERIAL_USER;
        material->m_strName = texts.value(0);
        material->m_strElasticModulus = texts.value(1);
        material->m_strPoisson = texts.value(2);
        material->m_strDensity = texts.value(3);
        store.AddMaterialInfo(material);
    }
    QCOMPARE(store.WriteXML(path), 0);
    store.ClearInfo();
}

/// The texts of a row; a cell that is missing is "-".
inline QStringList RowTexts(const QTableWidget& table, int row)
{
    QStringList texts;
    for (int column = 0; column < table.columnCount(); ++column) {
        const QTableWidgetItem* const item = table.item(row, column);
        texts << (item != nullptr ? item->text() : QStringLiteral("-"));
    }
    return texts;
}

/// The first column.
inline QStringList Names(const QTableWidget& table)
{
    QStringList names;
    for (int row = 0; row < table.rowCount(); ++row)
        names << RowTexts(table, row).value(0);
    return names;
}

/// The rows that are selected as a whole.
inline QVector<int> SelectedRows(const QTableWidget& table)
{
    QVector<int> rows;
    const QModelIndexList indexes = table.selectionModel()->selectedRows();
    for (const QModelIndex& index : indexes)
        rows << index.row();
    return rows;
}

/// Clicks into a row.
inline void ClickRow(QTableWidget& table, int row)
{
    table.scrollToItem(table.item(row, 0));
    const QPoint place = table.visualItemRect(table.item(row, 0)).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, place);
}

/// Clicks twice into a cell, as a user does.
inline void DoubleClickCell(QTableWidget& table, int row, int column)
{
    table.scrollToItem(table.item(row, column));
    const QPoint place = table.visualItemRect(table.item(row, column)).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, place);
}
