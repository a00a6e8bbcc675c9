#pragma once

/// @file
/// Makes the two dialogs that run outside programs.

#include "tarnguicommon_export.h"

class QDialog;
class QWidget;

/// The dialog that picks the Nastran executable and runs it on "Model_Active.bdf" in the working
/// directory. The run blocks the user interface until the program ends. The caller owns the dialog;
/// @p parent may be null.
TARNGUICOMMON_EXPORT QDialog* CreateSolverSetting(QWidget* parent);

/// The dialog that picks the HyperView executable and opens "Model_Active.op2" of the working
/// directory with it. The run blocks the user interface until the program ends. The caller owns
/// the dialog; @p parent may be null.
TARNGUICOMMON_EXPORT QDialog* CreateResultSetting(QWidget* parent);
