#pragma once

/// @file
/// Creates the two dialogs that run external programs.

#include "tarnguicommon_export.h"

class QDialog;
class QWidget;

/// Creates the dialog that lets the user pick the Nastran executable and runs it on
/// "Model_Active.bdf" in the working directory. The run blocks the user interface until the program
/// ends. The caller owns the dialog; @p parent may be null.
TARNGUICOMMON_EXPORT QDialog* CreateSolverSetting(QWidget* parent);

/// Creates the dialog that lets the user pick the HyperView executable and opens
/// "Model_Active.op2" in the working directory with it. The run blocks the user interface until the
/// program ends. The caller owns the dialog; @p parent may be null.
TARNGUICOMMON_EXPORT QDialog* CreateResultSetting(QWidget* parent);
