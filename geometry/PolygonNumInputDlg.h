#pragma once

#include "ui_PolygonNumInputDlg.h"

#include "tarnguicommon_export.h"

#include <QDialog>

/// Asks for the number of edges of a regular polygon.
///
///     PolygonNumInputDlg dialog(window);
///     if (dialog.exec() == QDialog::Accepted)
///         MakePolygon(dialog.GetEdgeNumber());
///
/// No range is checked: the host refuses fewer than three edges.
class TARNGUICOMMON_EXPORT PolygonNumInputDlg : public QDialog
{
    Q_OBJECT

public:
    /// Opens with an empty field. @p parent may be null.
    explicit PolygonNumInputDlg(QWidget* parent);
    ~PolygonNumInputDlg() override;

    /// 0 where the text is no decimal integer; valid after OK.
    int GetEdgeNumber() const;

private Q_SLOTS:
    void m_Slot_OK();

private:
    Ui::PolygonNumInputDlg m_ui;
    int m_nEdgeNumber = 0;
};
