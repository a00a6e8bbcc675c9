#pragma once

#include "ui_ResultSetting.h"

#include <QDialog>

/// Lets the user pick the HyperView executable and opens the results of the active model with it.
/// Created by CreateResultSetting().
class ResultSetting : public QDialog
{
    Q_OBJECT

public:
    explicit ResultSetting(QWidget* parent);
    ~ResultSetting() override;

public Q_SLOTS:
    /// Asks for the executable; cancelling clears the path.
    void SelectExecuteHyper();
    /// Runs the executable and reports nothing. The path is quoted, so it may contain blanks.
    void RunCommand();

private:
    Ui::ResultSetting m_ui;
    QString m_strCommandPrefix;
};
