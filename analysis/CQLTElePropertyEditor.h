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
///     editor.SetPropData(record); // or not, for a new one
///     if (editor.exec() == QDialog::Accepted)
///         Use(editor.GetPropData());
///
/// The caller owns the record, also one that OK allocated. A refused OK has already written the
/// record's type, thickness and name, and a later Cancel does not undo that.
class TARNGUICOMMON_EXPORT CQLTElePropertyEditor : public QDialog
{
    Q_OBJECT

public:
    /// Opens for a new shell of thickness 1, without name and material. @p parent may be null.
    explicit CQLTElePropertyEditor(QWidget* parent);
    ~CQLTElePropertyEditor() override;

    /// Shows @p property, which OK then changes in place; null stands for a new property. The
    /// caller keeps owning it.
    void SetPropData(CQLTElemPropDef* property);

    /// The record that was given or that OK allocated; null when neither happened.
    CQLTElemPropDef* GetPropData() const;

    /// The MATERIAL's name, as last picked with Browse or read by OK.
    QString selectedPropName() const;

    /// Writes the form into the record: 0 when done, -1 when the name is empty and was refused.
    int ApplyOk();

public Q_SLOTS:
    /// ApplyOk(), and accepts when that is done.
    void on_okButton_clicked();
    /// Rejects.
    void on_CancelButton_clicked();
    /// Runs the material library and takes over the material that it is accepted with, which may be
    /// none. The library reads its files anew: materials that were not written yet are lost.
    void on_getMat_brower();
    /// Shows the page of the checked element type, and writes the text of @p button, which must not
    /// be null, to the debug log.
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
