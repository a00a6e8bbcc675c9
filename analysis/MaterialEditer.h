#pragma once

#include "ui_Editconductor.h"

#include <QDialog>

struct KVMaterialInfo;

/// Asks for one material: its name, elastic modulus, Poisson ratio and density.
///
/// Private to the library: the material library runs it to view, add and clone, and builds the
/// record when it was accepted. A name that the material store holds is refused; values are not
/// checked. The store is never written here.
class MaterialEditer : public QDialog
{
    Q_OBJECT

public:
    explicit MaterialEditer(QWidget* parent);
    ~MaterialEditer() override;

    /// Shows @p name and the first three of @p values; fewer than three end the program.
    void SetMaterialData(const QString& name, const QStringList& values);

    /// A new user material of what the fields hold; the caller owns it.
    KVMaterialInfo* CreateMaterialInfo() const;

private Q_SLOTS:
    void onOkButtonClicked();
    void onCancelButtonClicked();

private:
    void InitTable();
    void InitDefaultValues();
    QString Value(int row) const;

    Ui::Editconductor m_ui;
};
