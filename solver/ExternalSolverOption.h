#pragma once

#include "ui_ExternalSolverOption.h"

#include "tarnguicommon_export.h"

#include <QDialog>

/// A form with a path field for each of several external solvers.
///
///     ExternalSolverOption dialog(window);
///     dialog.ui.lineEdit_Nastran->setText(path);
///     dialog.exec();
///
/// The form is inert: its buttons do nothing and its paths are not stored. The host works with the
/// widgets directly. Without connections, only Escape and the window's close button leave it.
class TARNGUICOMMON_EXPORT ExternalSolverOption : public QDialog
{
    Q_OBJECT

public:
    /// Opens with empty paths. @p parent may be null.
    explicit ExternalSolverOption(QWidget* parent);
    ~ExternalSolverOption() override;

    /// The widgets: lineEdit_Ansys, lineEdit_Abaqus, lineEdit_Nastran, then lineEdit_4 to
    /// lineEdit_9 for Fluent, openFOAM, OOFEM, HFSS, CST and COMSOL; pushButton is OK, pushButton_2
    /// is Cancel.
    Ui::ExternalSolverOption ui;
};
