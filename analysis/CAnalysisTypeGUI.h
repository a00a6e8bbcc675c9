#pragma once

#include "ui_CAnalysisTypeGUI.h"

#include "tarnguicommon_export.h"

#include <QDialog>

/// Asks for the kind of analysis, a pair of codes: family and kind. AnalysisType.h names the codes.
///
///     CAnalysisTypeGUI dialog(window);
///     dialog.InitData(family, kind);
///     dialog.exec();                       // always Rejected: OK only hides the dialog
///     dialog.getSolverType(family, kind);
///
/// OK gives (1, 1) for Static, (1, 2) for Vibration, (1, 3) for Buckling, (1, 4) for Transient,
/// (1, 6) for Frequency Response and (7, 7) for Complex EigenValue; Cancel keeps the pair.
class TARNGUICOMMON_EXPORT CAnalysisTypeGUI : public QDialog
{
    Q_OBJECT

public:
    /// Opens with "Vibration" checked. @p parent may be null.
    explicit CAnalysisTypeGUI(QWidget* parent);
    ~CAnalysisTypeGUI() override;

    /// Stores the pair and checks its button, even one that the user cannot select. Only family 1
    /// has buttons, with kind 7 for Complex EigenValue. A pair without a button leaves the checked
    /// button unchanged.
    void InitData(int family, int kind);

    /// The pair of the last InitData() or OK; (0, 0) before both.
    void getSolverType(int& family, int& kind) const;

public Q_SLOTS:
    /// Stores the pair of the checked button, if it has one, and hides the dialog.
    void OnOKButtonPush();
    /// Closes the dialog and keeps the pair.
    void OnCloseButtonPush();

private:
    Ui::CAnalysisTypeGUI m_ui;
    int m_nFamily = 0;
    int m_nKind = 0;
};
