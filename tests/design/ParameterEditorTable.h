#pragma once

#include "GlobalParaMeterMgr.h"
#include "TestCase.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTableWidget>
#include <QTranslator>

/// What the tests of the parameter editor share: its table and the store behind it.

enum Column
{
    NameColumn,
    ValueColumn,
    TypeColumn,
    ExpressionColumn,
    ExpressionParaColumn,
    DescriptionColumn
};

inline QTableWidget& Table(const QWidget& editor)
{
    return Find<QTableWidget>(editor, "tableWidget");
}

inline QComboBox& Combo(const QWidget& editor, int row)
{
    return *qobject_cast<QComboBox*>(Table(editor).cellWidget(row, TypeColumn));
}

inline QStringList RowTexts(const QWidget& editor, int row)
{
    QStringList texts;
    for (int column = NameColumn; column <= DescriptionColumn; ++column)
        texts << (column == TypeColumn ? Combo(editor, row).currentText()
                                       : Table(editor).item(row, column)->text());
    return texts;
}

inline void Store(const QString& name, const QString& text, int type = 1)
{
    ParametersDef record;
    record.m_strName = name;
    record.m_nType = type;
    record.m_strValue = text;
    record.m_dValue = text.toDouble();
    GlobalParaMeterMgr::AddParameter(name, record);
}

inline ParametersDef& Stored(const QString& name)
{
    return GlobalParaMeterMgr::m_nameMapParameters.at(name);
}

/// Types into a cell as a user does, and leaves it with Enter.
inline void TypeIntoCell(QWidget& editor, int row, int column, const QString& text)
{
    QTableWidget& table = Table(editor);
    table.setCurrentCell(row, column);
    editor.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&editor));
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_F2);
    auto* const field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    QVERIFY(field != nullptr);
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_Delete);
    field->insert(text); // and not by keys, which have no full-width digits
    QTest::keyClick(field, Qt::Key_Enter);
    QCoreApplication::processEvents();
}

/// Translates every text of every context, so that a text that stays shows itself.
class Marker : public QTranslator
{
public:
    Marker() { QCoreApplication::installTranslator(this); }
    ~Marker() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return QString("%1:%2").arg(context, text);
    }
};
