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
/// The row labelled "FY" deliberately holds FZ, and the row labelled "FZ" holds FY. A name that
/// AttributeCommonMgr knows already is refused. The host registers what it accepted.
class TARNGUICOMMON_EXPORT CQLTLoadForceEditor : public QDialog
{
    Q_OBJECT

public:
    /// Opens with the name "Default" and the force (1000, 0, 0). @p parent may be null.
    explicit CQLTLoadForceEditor(QWidget* parent);
    ~CQLTLoadForceEditor() override;

    /// Stores the record and shows its name and kind, and for kind 1 its components; a kind that
    /// is neither 1 nor 2 is shown as 1. Only here can the kind be chosen.
    void InitData(sLoadForceData data);

    /// The record of the last OK; before one, the record of InitData() or a default one.
    sLoadForceData GetLoadForceData() const;

public Q_SLOTS:
    /// Refuses a name that is taken; otherwise stores name and kind, and for kind 1 the components
    /// (a text that is no number counts as 0), and accepts.
    void on_okButton_clicked(); // clazy:exclude=connect-by-name

private:
    Ui::QLTLoadForceEditor m_ui;
    sLoadForceData m_data;
};
