#pragma once

#include "ui_QLTConstrainEditor.h"

#include "sConstrainData.h"
#include "tarnguicommon_export.h"

#include <QDialog>

/// Asks for one fixed support: its name and the degrees of freedom that it fixes.
///
///     CQLTConstrainEditor editor(window);
///     if (editor.exec() == QDialog::Accepted)
///         Add(editor.GetConstrainData());
///
/// Refuses a name that AttributeCommonMgr already holds. The host must register the accepted name.
class TARNGUICOMMON_EXPORT CQLTConstrainEditor : public QDialog
{
    Q_OBJECT

public:
    /// Opens with the name "defaultBC" and all six degrees of freedom fixed. @p parent may be null.
    explicit CQLTConstrainEditor(QWidget* parent);
    ~CQLTConstrainEditor() override;

    /// Stores the record for GetConstrainData(); the widgets deliberately do not show it.
    void InitData(sConstrainData record);

    /// The record of the last OK or InitData(), whichever came later; initially a default record.
    sConstrainData GetConstrainData() const;

public Q_SLOTS:
    /// Refuses a name that is taken. Otherwise stores the name and the check boxes, and accepts.
    void m_OK_ButtonPushed();

private:
    Ui::QLTConstrainEditor m_ui;
    sConstrainData m_data;
};
