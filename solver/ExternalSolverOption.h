#pragma once

#include "ui_ExternalSolverOption.h"

#include "tarnguicommon_export.h"

#include <QDialog>

/// Lists outside solvers with a field for the path of each.
///
///     ExternalSolverOption dialog(window);
///     dialog.ui.lineEdit_Nastran->setText(path);
///     dialog.exec();
///
/// The form is inert: its buttons do nothing and its paths are stored nowhere. It is closed by its
/// window frame; the host works with the widgets directly.
class TARNGUICOMMON_EXPORT ExternalSolverOption : public QDialog
{
    Q_OBJECT

public:
    /// All paths are empty. @p parent may be null.
    explicit ExternalSolverOption(QWidget* parent);
    ~ExternalSolverOption() override;

    /// The widgets: lineEdit_Ansys, lineEdit_Abaqus, lineEdit_Nastran, then lineEdit_4 to
    /// lineEdit_9 for Fluent, openFOAM, OOFEM, HFSS, CST and COMSOL; pushButton is OK, pushButton_2
    /// is Cancel.
    Ui::ExternalSolverOption ui;
};
