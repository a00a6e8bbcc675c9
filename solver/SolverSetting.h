#pragma once

#include "ui_SolverSetting.h"

#include <QDialog>

/// Picks the Nastran executable and runs it on the active model. Made by CreateSolverSetting().
class SolverSetting : public QDialog
{
    Q_OBJECT

public:
    explicit SolverSetting(QWidget* parent);
    ~SolverSetting() override;

public Q_SLOTS:
    /// Asks for the executable; cancelling empties the path.
    void SelectExecuteNas();
    /// Runs it and reports every end but a crash. The path is not quoted: blanks split it.
    void RunCommand();

private:
    Ui::SolverSetting m_ui;
    QString m_strExecutePath;
};
