#pragma once

#include "DesignModel.h"
#include "GlobalParaMeterMgr.h"
#include "ParameterTable.h"
#include "TestCase.h"

#include <QLineEdit>

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

/// Types into a cell of a shown table as a user does: a click, F2, the text, Enter.
inline void TypeIn(QTableWidget& table, int row, int column, const QString& text)
{
    table.scrollToItem(table.item(row, column));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                      table.visualItemRect(table.item(row, column)).center());
    QTest::keyClick(table.viewport(), Qt::Key_F2);
    QLineEdit* edit = nullptr;
    const QList<QLineEdit*> edits = table.viewport()->findChildren<QLineEdit*>();
    for (QLineEdit* const child : edits) {
        if (child->isVisible())
            edit = child;
    }
    QVERIFY2(edit != nullptr, "The cell cannot be edited");
    TypeText(*edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
    QCoreApplication::sendPostedEvents();
}
