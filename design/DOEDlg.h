#pragma once

#include "ui_DOEDlg.h"

#include "tarnguicommon_export.h"

#include <QDialog>
#include <QString>

#include <map>

class QCheckBox;
class QPushButton;

/// Asks for a design of experiments: which parameters take part, with which samples, and which of
/// the resulting runs is to be built.
///
///     DOEDlg dialog(window);
///     connect(&dialog, SIGNAL(m_Signal_RegenerateGeo()), window, SLOT(Regenerate()));
///     dialog.exec();
///
/// Ticks and samples live in g_mapParaArrays and outlive the dialog. "Generate" writes the chosen
/// run into GlobalParaMeterMgr; every parameter that is no column of the run table becomes 0.
class TARNGUICOMMON_EXPORT DOEDlg : public QDialog
{
    Q_OBJECT

public:
    /// The most runs that are built; a larger product of samples is refused with a notice, and so
    /// are more than 20 million cells.
    static constexpr int MaximumRuns = 1000000;

    /// Shows the parameters of the store and the runs of the registry's ticks and samples.
    explicit DOEDlg(QWidget* parent);
    ~DOEDlg() override;

    /// Enters a row for every parameter of the store, in the store's order. To be called once: the
    /// constructor does.
    void InitGUI();

    /// Shows the registry's ticks: the i-th record in name order on the i-th row.
    void InitGUIData();

Q_SIGNALS:
    /// A run was written into the parameter store; the host rebuilds the geometry.
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
