#pragma once

#include "ui_ELementPropGUI.h"

#include "tarnguicommon_export.h"

#include <QDialog>
#include <QString>

#include <map>
#include <vector>

struct CQLTElemPropDef;

/// Lists, adds, edits and deletes the element properties of the model.
///
///     ELementPropGUI manager(window);
///     manager.exec(); // always Rejected: both buttons hide the dialog
///     std::map<QString, CQLTElemPropDef*> added;
///     manager.GetPropData(added);
///
/// Works on KVPropertyData, which owns the records, and on "./ElementProperty.xml": the constructor
/// reads the file, OK writes it. Delete only removes the table row; the store and the file keep the
/// property.
class TARNGUICOMMON_EXPORT ELementPropGUI : public QDialog
{
    Q_OBJECT

public:
    /// Reads the file, lists the store and selects the last row. @p parent may be null.
    explicit ELementPropGUI(QWidget* parent);
    ~ELementPropGUI() override;

    /// The name in the current row; empty without one.
    QString GetSelectedPropName() const;

    /// The property of the current row if Add has added it since this dialog was created, otherwise
    /// null. The store owns it.
    CQLTElemPropDef* GetSelectedProp();

    /// Replaces @p properties with those added with Add since this dialog was created. The store
    /// owns them. Each name that GetSelectedProp() did not find has a null pointer.
    void GetPropData(std::map<QString, CQLTElemPropDef*>& properties) const;

public Q_SLOTS:
    /// Reads the file again without changing the table.
    void LoadBuildinProperty();
    /// Fills the table from the store and selects the last row.
    void ShowProperty();
    /// Runs the property editor for a new property. If accepted, adds the property to the table and
    /// to the store, where it replaces a property with the same name.
    void InsertProperty();
    /// Runs the property editor for the current row and refills the table; from then on its column
    /// headers are numbers. Without a current row, or if the store lacks the property, shows a
    /// notice.
    void EditProperty();
    /// Removes the current row after confirmation; the store keeps the property. Without a current
    /// row, does nothing.
    void DeleteProperty();
    /// Writes the file and hides the dialog.
    void on_OK_Button();
    /// Hides the dialog; additions and edits stay in the store.
    void on_Cancel_Button();

private:
    void FillRow(int row, const CQLTElemPropDef& property);

    Ui::ELementPropGUI m_ui;
    std::vector<QString> m_vecAddedNames;
    std::map<QString, CQLTElemPropDef*> m_mapAddedProps;
    int m_nRow = 0;
};
