#pragma once

#include "ui_KVMaterialLibrary.h"

#include "tarnguicommon_export.h"

#include <QDialog>
#include <QString>

class MaterialEditer;

/// Asks for a material from the system library or from the user's own materials.
///
///     KVMaterialLibrary library;
///     library.SetComToItemData(nameToSelect);
///     library.Reset();
///     if (library.exec() == QDialog::Accepted)
///         Use(library.selectedMaterialName());
///
/// Works on KVMaterialData: the user can view, add, clone and remove materials. OK writes
/// "./UserMaterial.xml"; Cancel does not, but does not undo changes in the store either.
class TARNGUICOMMON_EXPORT KVMaterialLibrary : public QDialog
{
    Q_OBJECT

public:
    /// Adds "SysMaterial.xml" to the store and lists the store; Reset() also reads the user's file.
    explicit KVMaterialLibrary(QWidget* parent = nullptr);
    ~KVMaterialLibrary() override;

    /// Refills the store from both files, lists it, and selects the pre-selected material. Unsaved
    /// materials are lost, and pointers to records become invalid.
    void Reset();

    /// Writes the user's materials to "./UserMaterial.xml".
    void WriteData();

    /// The name in the current row; empty without one.
    QString selectedMaterialName() const;

    /// Sets the name that Reset() selects.
    void SetComToItemData(QString name);

    /// The name that Reset() selects; initially empty.
    QString GetComData() const;

private Q_SLOTS:
    void SearchValue();
    void TextStrChanged();
    void EditMaterial();
    void InsertMaterial();
    void ClonMaterial();
    void RemoveMaterial();
    void RecTableItemData();
    void ShowProject(bool shown);
    void ShowALL(bool shown);
    void ShowMaterial();
    void accept() override;
    void reject() override;
    void setCurrentMaterialName();

private:
    void GetSearchValue();
    void SetDataToItem();
    void SetLayerTablePropertyConductors();
    void UserName();
    int ItemRow(QString name) const;

    bool HasCurrentRow();
    QString CellText(int row, int column) const;
    QStringList ValuesOfRow(int row) const;
    void AppendNewMaterial(const MaterialEditer& editor);

    Ui::KVMaterialLibrary m_ui;
    QString m_strComData;
};
