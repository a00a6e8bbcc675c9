#pragma once

#include "ui_SubShapeMeshParameterDlg.h"

#include "tarnguicommon_export.h"

#include <QDialog>

/// A form for the mesh size and the mesh number of a part of a shape.
///
///     SubShapeMeshParameterDlg dialog(window);
///     connect(dialog.ui.pushButton_OK, &QPushButton::clicked, &dialog, &QDialog::accept);
///     if (dialog.exec() == QDialog::Accepted)
///         Mesh(dialog.ui.lineEdit_MeshSize->text(), dialog.ui.lineEdit_MeshNumber->text());
///
/// The buttons are deliberately not connected: the host works with the widgets of the form.
class TARNGUICOMMON_EXPORT SubShapeMeshParameterDlg : public QDialog
{
    Q_OBJECT

public:
    /// Opens with empty fields. @p parent may be null.
    explicit SubShapeMeshParameterDlg(QWidget* parent);
    ~SubShapeMeshParameterDlg() override;

    /// The widgets: lineEdit_MeshSize, lineEdit_MeshNumber, pushButton_OK and pushButton_Cancel.
    Ui::SubShapeMeshParameterDlg ui;
};
