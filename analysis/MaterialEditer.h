#pragma once

#include "ui_Editconductor.h"

#include <QDialog>

struct KVMaterialInfo;

/// Asks for one material: its name, elastic modulus, Poisson's ratio and density.
///
/// Private to the library: the material library runs it to view, add and clone, and stores the
/// record if it is accepted. Refuses a name that the material store already holds; does not check
/// values. Never writes to the store.
class MaterialEditer : public QDialog
{
    Q_OBJECT

public:
    explicit MaterialEditer(QWidget* parent);
    ~MaterialEditer() override;

    /// Shows @p name and the first three of @p values. With fewer than three, the program aborts.
    void SetMaterialData(const QString& name, const QStringList& values);

    /// Creates a user material from the fields; the caller owns it.
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
