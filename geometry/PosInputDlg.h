#pragma once

#include "ui_PosInputDlg.h"

#include "tarnguicommon_export.h"

#include <QWidget>

/// A strip of three coordinate fields, shown while the user places a point.
///
///     PosInputDlg* const input = PosInputDlg::GetInstance();
///     input->ui.lineEdit->setText(x);
///     input->show();
///
/// It has no logic: the host reads and writes the fields, which take any text. The shared instance
/// lives until the process ends; a widget with a parent is an ordinary child of it.
class TARNGUICOMMON_EXPORT PosInputDlg : public QWidget
{
    Q_OBJECT

public:
    /// The shared instance, made hidden and without parent by the first call. The library never
    /// deletes it; a host that does must not call GetInstance() again.
    static PosInputDlg* GetInstance();

    /// A widget of its own, apart from the shared instance.
    explicit PosInputDlg(QWidget* parent);
    ~PosInputDlg() override;

    /// The fields: lineEdit is x, lineEdit_2 is y, lineEdit_3 is z.
    Ui::PosInputDlg ui;

private:
    static PosInputDlg* m_Instance;
};
