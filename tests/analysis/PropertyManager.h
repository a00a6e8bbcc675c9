#pragma once

#include "CQLTElemPropDef.h"
#include "DialogTest.h"
#include "ELementPropGUI.h"
#include "EmptyAnalysisStores.h"
#include "Tables.h"

#include <functional>
#include <map>

/// Shared by the tests of the manager of element properties: its store, its file and its table.

using Properties = std::map<QString, CQLTElemPropDef*>;

inline const char* const File = "./ElementProperty.xml";

inline ShownBox NoSelection()
{
    return ShownBox::Notice("Warning", "No Element Property is selected");
}

inline ShownBox NoRecord()
{
    return ShownBox::Notice("Warning", "Current element property is null");
}

inline ShownBox Question()
{
    return {"Warning", "This operation can't be undo, Confirm to delete current property?",
            QMessageBox::Information, QMessageBox::Yes | QMessageBox::No, nullptr};
}

inline KVPropertyData& Store()
{
    return *KVPropertyData::GetInstance();
}

inline CQLTElemPropDef* Hold(const QString& name, const QString& material = "Steel")
{
    auto* const property =
        new CQLTElemPropDef{name, 0, material, 2.0, "Shell", CQLTElemPropDef::ShellType};
    Store().AddPropInfo(property);
    return property;
}

inline void HoldAll(const QStringList& names)
{
    for (const QString& name : names)
        Hold(name);
}

/// Writes the file with these properties and clears the store.
inline void WriteProperties(const QStringList& names)
{
    for (const QString& name : names)
        Hold(name, name + " material");
    QCOMPARE(Store().WriteXML(File), 0);
    Store().Clear();
}

inline QStringList StoredNames()
{
    QStringList names;
    for (const auto& entry : Store().GetProptyDataMap())
        names << entry.first;
    return names;
}

inline QTableWidget& Table(const QWidget& manager)
{
    return Find<QTableWidget>(manager, "tabwidget_Prop");
}

/// The step for the property editor: confirm with this name.
inline std::function<void(QDialog&)> Confirm(const QString& name)
{
    return [name](QDialog& editor) {
        Type(editor, "lineEdit_PropName", name);
        Click(editor, "pushbu_OK");
    };
}

/// The step for the property editor: confirm the empty name, which is refused, then cancel.
inline void BeRefusedAndCancel(QDialog& editor)
{
    Type(editor, "lineEdit_PropName", "");
    Click(editor, "pushbu_OK");
    Click(editor, "pubut_Cancel");
}
