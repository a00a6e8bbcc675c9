#pragma once

#include "ui_DOEDlg.h"

#include "tarnguicommon_export.h"

#include <QDialog>
#include <QString>

#include <map>

class QCheckBox;
class QPushButton;

/// Asks for a design of experiments: which parameters take part, with which samples, and which of
/// the resulting runs to build.
///
///     DOEDlg dialog(window);
///     connect(&dialog, SIGNAL(m_Signal_RegenerateGeo()), window, SLOT(Regenerate()));
///     dialog.exec();
///
/// g_mapParaArrays holds ticks and samples, so they outlive the dialog. "Generate" writes the
/// chosen run to GlobalParaMeterMgr and sets every parameter without a column in the run table to
/// 0; DesignRun restores these.
class TARNGUICOMMON_EXPORT DOEDlg : public QDialog
{
    Q_OBJECT

public:
    /// The maximum number of runs. A notice refuses more runs, and more than 20 million cells.
    static constexpr int MaximumRuns = 1000000;

    /// Shows the parameters of the store, and the runs for the ticks and samples in the registry.
    /// @p parent may be null.
    explicit DOEDlg(QWidget* parent);
    ~DOEDlg() override;

    /// Adds a row for every parameter of the store, in the order of the store. Only the constructor
    /// should call this.
    void InitGUI();

    /// Shows the ticks of the registry: the i-th record in name order on the i-th row.
    void InitGUIData();

Q_SIGNALS:
    /// "Generate" has written a run to the parameter store; the host must complete the run and
    /// rebuild the geometry.
    void m_Signal_RegenerateGeo();

private Q_SLOTS:
    void m_slot_ProcessCheck();
    void m_slot_ProcessButton();
    void m_Slot_Add();
    void m_Slot_Delete();
    void m_Refresh_Final_Table();
    void m_Slot_UpdateGeoemtry();

private:
    QString GetCurrentParaName(int row) const;
    QPushButton* GetCurrentButton(int row) const;
    QCheckBox* GetCurrentCheck(int row) const;
    void CollectAllRecord();

    Ui::DOEDlg m_ui;
    std::map<int, QString> m_mapColumnNames;
    std::map<QString, double> m_mapChosenValues;
};
