#pragma once

#include "ui_QLTLoadForceEditor.h"

#include "sLoadForceData.h"
#include "tarnguicommon_export.h"

#include <QDialog>

/// Asks for one force load: its name and its components.
///
///     CQLTLoadForceEditor editor(window);
///     editor.InitData(load); // shows it
///     if (editor.exec() == QDialog::Accepted)
///         load = editor.GetLoadForceData();
///
/// The row labelled "FY" deliberately holds FZ, and the row labelled "FZ" holds FY. Refuses a name
/// that AttributeCommonMgr already holds. The host must register the accepted name.
class TARNGUICOMMON_EXPORT CQLTLoadForceEditor : public QDialog
{
    Q_OBJECT

public:
    /// Opens with the name "Default" and the force (1000, 0, 0). @p parent may be null.
    explicit CQLTLoadForceEditor(QWidget* parent);
    ~CQLTLoadForceEditor() override;

    /// Stores the record and shows its name and kind, and for kind 1 its components. A kind other
    /// than 1 and 2 is shown as 1. The user cannot change the kind.
    void InitData(sLoadForceData record);

    /// The record of the last OK or InitData(), whichever came later; initially a default record.
    sLoadForceData GetLoadForceData() const;

public Q_SLOTS:
    /// Refuses a name that is taken. Otherwise stores name and kind, and for kind 1 the components
    /// ("nan", "inf" and "1e999" are accepted, other non-numeric text counts as 0), and accepts.
    void on_okButton_clicked(); // clazy:exclude=connect-by-name

private:
    Ui::QLTLoadForceEditor m_ui;
    sLoadForceData m_data;
};
