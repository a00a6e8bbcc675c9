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
/// It has no logic: the host reads and writes the fields, which accept any text. The shared
/// instance lives until the process ends; a widget with a parent belongs to that parent.
class TARNGUICOMMON_EXPORT PosInputDlg : public QWidget
{
    Q_OBJECT

public:
    /// The shared instance. The first call creates it, hidden and without parent. The library never
    /// deletes it. If the host deletes it, it must not call GetInstance() again.
    static PosInputDlg* GetInstance();

    /// Creates a widget independent of the shared instance. @p parent may be null.
    explicit PosInputDlg(QWidget* parent);
    ~PosInputDlg() override;

    /// The fields: lineEdit is x, lineEdit_2 is y, lineEdit_3 is z.
    Ui::PosInputDlg ui;

private:
    static PosInputDlg* m_Instance;
};
