#pragma once

#include "ui_QLTElemProperty.h"

#include "tarnguicommon_export.h"

#include <QDialog>
#include <QString>

#include <map>

class QAbstractButton;
struct CQLTElemPropDef;

/// Asks for one element property: name, element type, material and, for shells, the thickness.
///
///     CQLTElePropertyEditor editor(window);
///     editor.SetPropData(record); // omit for a new property
///     if (editor.exec() == QDialog::Accepted)
///         Use(editor.GetPropData());
///
/// The caller owns the record, even if OK allocated it. A refused OK has already written type,
/// thickness and name to the record, and a later Cancel does not undo that.
class TARNGUICOMMON_EXPORT CQLTElePropertyEditor : public QDialog
{
    Q_OBJECT

public:
    /// Opens for a new shell with thickness 1 and without name and material. @p parent may be null.
    explicit CQLTElePropertyEditor(QWidget* parent);
    ~CQLTElePropertyEditor() override;

    /// Shows @p property, which OK then changes in place; null means a new property. The caller
    /// retains ownership.
    void SetPropData(CQLTElemPropDef* property);

    /// The record passed to SetPropData() or allocated by OK; otherwise null.
    CQLTElemPropDef* GetPropData() const;

    /// The name of the MATERIAL, as last picked with Browse or read by OK.
    QString selectedPropName() const;

    /// Writes the form into the record. Returns 0 on success, -1 if the name is empty and refused.
    int ApplyOk();

public Q_SLOTS:
    /// Calls ApplyOk(), and accepts if that succeeds.
    void on_okButton_clicked();
    /// Rejects.
    void on_CancelButton_clicked();
    /// Runs the material library and adopts the material selected there, which may be none. The
    /// library reloads its files, so unsaved materials are lost.
    void on_getMat_brower();
    /// Shows the page of the checked element type and writes the text of @p button to the debug
    /// log.
    /// @p button must not be null.
    void onButtonClicked(QAbstractButton* button);
    /// Does nothing.
    void on_ApplyOk();

private:
    QString m_strMaterialName;
    QString m_strPropName;
    QString m_strTypeName;
    Ui::QLTElemProperty m_ui;
    CQLTElemPropDef* m_pPropData = nullptr;
    std::map<QString, int> m_mapTypePages;
};
