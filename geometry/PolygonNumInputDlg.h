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
/// The range is not checked: the host must refuse fewer than three edges.
class TARNGUICOMMON_EXPORT PolygonNumInputDlg : public QDialog
{
    Q_OBJECT

public:
    /// Opens with an empty field. @p parent may be null.
    explicit PolygonNumInputDlg(QWidget* parent);
    ~PolygonNumInputDlg() override;

    /// The number of edges at the last OK; 0 if the text was not a decimal integer, and before OK.
    int GetEdgeNumber() const;

private Q_SLOTS:
    void m_Slot_OK();

private:
    Ui::PolygonNumInputDlg m_ui;
    int m_nEdgeNumber = 0;
};
