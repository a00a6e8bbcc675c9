#pragma once

#include "ui_SolverSetting.h"

#include <QDialog>

/// Lets the user pick the Nastran executable and runs it on the active model. Created by
/// CreateSolverSetting().
class SolverSetting : public QDialog
{
    Q_OBJECT

public:
    explicit SolverSetting(QWidget* parent);
    ~SolverSetting() override;

public Q_SLOTS:
    /// Asks for the executable; cancelling clears the path.
    void SelectExecuteNas();
    /// Runs the executable and shows a notice when it ends, unless it crashes. The path is not
    /// quoted, so blanks split it.
    void RunCommand();

private:
    Ui::SolverSetting m_ui;
    QString m_strExecutePath;
};
