#pragma once

#include "ui_ELementPropGUI.h"

#include "tarnguicommon_export.h"

#include <QDialog>
#include <QString>

#include <map>
#include <vector>

struct CQLTElemPropDef;

/// Asks for the element properties of the model: lists, adds, edits and deletes them.
///
///     ELementPropGUI manager(window);
///     manager.exec(); // ends as rejected after OK, too: both buttons hide the dialog
///     std::map<QString, CQLTElemPropDef*> added;
///     manager.GetPropData(added);
///
/// Works on KVPropertyData, which owns the records, and on "./ElementProperty.xml": opening reads
/// it, OK writes it. Delete acts on the table only; the store and the file keep the property.
class TARNGUICOMMON_EXPORT ELementPropGUI : public QDialog
{
    Q_OBJECT

public:
    /// Reads the file and lists the store, with the last row selected. @p parent may be null.
    explicit ELementPropGUI(QWidget* parent);
    ~ELementPropGUI() override;

    /// The name in the current row; empty without one.
    QString GetSelectedPropName() const;

    /// The property of the current row if it was added with Add while this dialog lives, else null.
    /// The store owns it.
    CQLTElemPropDef* GetSelectedProp();

    /// Replaces @p properties by those added with Add while this dialog lives; the store owns them.
    /// A null pointer stands under each name that GetSelectedProp() looked for in vain.
    void GetPropData(std::map<QString, CQLTElemPropDef*>& properties) const;

public Q_SLOTS:
    /// Reads the file again; the table stays as it is.
    void LoadBuildinProperty();
    /// Fills the table from the store and selects the last row.
    void ShowProperty();
    /// Runs the property editor for a new property, and enters what was accepted in table and
    /// store, also in place of a property of the same name.
    void InsertProperty();
    /// Runs the property editor for the current row and fills the table anew, whose columns are
    /// numbered from then on. Without a row, or where the store lacks the property, it says so.
    void EditProperty();
    /// Removes the current row after a question; the store keeps the property. Without a row it
    /// does nothing.
    void DeleteProperty();
    /// Writes the file and hides the dialog.
    void on_OK_Button();
    /// Hides the dialog; what was added or edited stays in the store.
    void on_Cancel_Button();

private:
    void FillRow(int row, const CQLTElemPropDef& property);

    Ui::ELementPropGUI m_ui;
    std::vector<QString> m_vecAddedNames;
    std::map<QString, CQLTElemPropDef*> m_mapAddedProps;
    int m_nRow = 0;
};
