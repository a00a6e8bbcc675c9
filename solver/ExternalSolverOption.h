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
    explicit ExternalSolverOption(QWidget* parent);
    ~ExternalSolverOption() override;

    Ui::ExternalSolverOption ui;
};
