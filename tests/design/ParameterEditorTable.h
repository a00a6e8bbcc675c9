#pragma once

#include "DialogTest.h"
#include "EmptyDesignStores.h"
#include "ParameterEditor.h"
#include "Tables.h"

#include <QComboBox>
#include <QTranslator>

/// Shared by the tests of the parameter editor: its table and its store.

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
    return CellWidget<QComboBox>(Table(editor), row, TypeColumn);
}

inline QStringList RowTexts(const QWidget& editor, int row)
{
    QStringList texts = RowTexts(Table(editor), row);
    texts[TypeColumn] = Combo(editor, row).currentText();
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

inline void TypeIntoCell(const QWidget& editor, int row, int column, const QString& text)
{
    TypeIntoCell(Table(editor), row, column, text);
}

inline const ShownBox VectorBox = ShownBox::Notice("Error", "invalid coordinate type");
inline const ShownBox EmptyNameBox =
    ShownBox::Notice("Error", "Please input parameters name for expression");
inline const ShownBox DigitalBox = ShownBox::Notice("Error", "Digital is not allowed as paramter");

inline ShownBox UnknownBox(const QString& name)
{
    return ShownBox::Notice("Error", "Not find parameter: " + name);
}

/// Appends a filled row. No cell is current, so numbers are not checked.
inline void AddRow(ParameterEditor& editor, const QString& name, const QString& value,
                   const QString& type = "Scalar", const QString& expression = QString(),
                   const QString& names = QString())
{
    editor.m_Slot_Add();
    const int row = Table(editor).rowCount() - 1;
    const QTableWidget& table = Table(editor);
    Cell(table, row, NameColumn).setText(name);
    Cell(table, row, ValueColumn).setText(value);
    Combo(editor, row).setCurrentText(type);
    Cell(table, row, ExpressionColumn).setText(expression);
    Cell(table, row, ExpressionParaColumn).setText(names);
}

inline void AddExpression(ParameterEditor& editor, const QString& name, const QString& expression,
                          const QString& names, const QString& value = QString())
{
    AddRow(editor, name, value, "Scalar", expression, names);
}

inline QStringList StoredNames()
{
    QStringList names;
    for (const auto& entry : GlobalParaMeterMgr::m_nameMapParameters)
        names << entry.first;
    return names;
}

/// Translates every text into its context and itself, which reveals the untranslated ones.
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
