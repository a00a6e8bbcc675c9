#pragma once

#include "ui_KVMaterialLibrary.h"

#include "tarnguicommon_export.h"

#include <QDialog>
#include <QString>

class MaterialEditer;

/// Asks for a material, out of those of the system library and the user's own.
///
///     KVMaterialLibrary library;
///     library.SetComToItemData(nameToSelect);
///     library.Reset();
///     if (library.exec() == QDialog::Accepted)
///         Use(library.selectedMaterialName());
///
/// Works on KVMaterialData: materials can be viewed, added, cloned and removed. OK writes
/// "./UserMaterial.xml"; Cancel does not, but leaves the store as it has become.
class TARNGUICOMMON_EXPORT KVMaterialLibrary : public QDialog
{
    Q_OBJECT

public:
    /// Reads "SysMaterial.xml" and lists it; the user's materials come with Reset().
    explicit KVMaterialLibrary(QWidget* parent = nullptr);
    ~KVMaterialLibrary() override;

    /// Fills the store anew from both files, lists it, and selects the pre-selected material.
    /// Materials that were not written yet are lost, and pointers to records end.
    void Reset();

    /// Writes the user's materials to "./UserMaterial.xml".
    void WriteData();

    /// The name in the current row; empty without one.
    QString selectedMaterialName() const;

    /// Sets the name that Reset() selects.
    void SetComToItemData(QString name);

    /// The name that Reset() selects; empty at first.
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
