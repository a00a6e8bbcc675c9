#pragma once

#include "ui_ResultSetting.h"

#include <QDialog>

/// Picks the HyperView executable and opens the active model's results with it. Made by
/// CreateResultSetting().
class ResultSetting : public QDialog
{
    Q_OBJECT

public:
    explicit ResultSetting(QWidget* parent);
    ~ResultSetting() override;

public Q_SLOTS:
    /// Asks for the executable; cancelling empties the path.
    void SelectExecuteHyper();
    /// Runs it and reports nothing. The path is quoted: it may hold blanks.
    void RunCommand();

private:
    Ui::ResultSetting m_ui;
    QString m_strCommandPrefix;
};
