#pragma once

#include "ui_MeshSizeInput.h"

#include "tarnguicommon_export.h"

#include <QDialog>

/// Asks for one mesh size.
///
///     MeshSizeInput dialog(0.25, window);
///     if (dialog.exec() == QDialog::Accepted)
///         Mesh(dialog.GetMeshSize());
///
/// The size is not checked: it may be 0 or negative.
class TARNGUICOMMON_EXPORT MeshSizeInput : public QDialog
{
    Q_OBJECT

public:
    /// Opens with the size 1. @p parent may be null.
    explicit MeshSizeInput(QWidget* parent);
    /// Opens with @p meshSize, shown with 6 significant digits.
    MeshSizeInput(double meshSize, QWidget* parent);
    ~MeshSizeInput() override;

    /// The number in the field, in the model's length unit, when called, even after Cancel; 0 if
    /// the text is not a number. "nan", "inf" and "1e999" are accepted.
    double GetMeshSize();

private:
    Ui::MeshSizeInput m_ui;
    double m_dMeshSize = 0.0;
};
