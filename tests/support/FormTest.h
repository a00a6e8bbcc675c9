#pragma once

#include "DialogTest.h"

#include <QDialog>
#include <QSize>
#include <QString>
#include <QVector>

#include <memory>

/// The appearance of a dialog when it opens, and its use by keyboard.
struct FormFacts
{
    const char* name = nullptr; ///< Class of the form: name of the dialog and context of its texts.
    QString title;              ///< Of the window.
    QSize size;                 ///< Of the window.
    QVector<QString> lines; ///< Of DescribeForm(): the widgets, and layouts and spacers as needed.
    QVector<QString> tabOrder; ///< The widgets that Tab goes through.
    QString enter;             ///< The button that Enter presses in all of them, if any.
    QVector<QString> methods;  ///< Signals and slots, as OwnMethods() lists them.

    bool hasFont = false;          ///< The form sets the font of the dialog.
    bool hasIcon = false;          ///< The dialog sets a window icon.
    QVector<QString> unshown;      ///< Translated texts of the form that the dialog replaces.
    QVector<QString> untranslated; ///< Shown texts that are not translated with the form.
};

/// The checks that all dialogs with a form have in common.
///
/// A test class derives from FormTest and passes the facts of its form; these functions then run
/// before its own.
class FormChecks : public DialogTest
{
    Q_OBJECT

protected:
    explicit FormChecks(FormFacts facts);

    const FormFacts& Facts() const { return m_facts; }

    /// A new dialog.
    virtual std::unique_ptr<QDialog> NewDialog(QDialog* parent) const = 0;

    /// A dialog that a host has filled, so that its default button confirms it.
    virtual std::unique_ptr<QDialog> NewFilledDialog() const { return NewDialog(nullptr); }

    /// Compares what Enter has done to @p dialog: by default, that it was accepted or, if Enter
    /// presses no button, that it is still open.
    virtual void CompareAfterEnter(QDialog& dialog);

private Q_SLOTS:
    void TheFormHasItsWidgets_data();
    void TheFormHasItsWidgets();
    void TheFormHasNoOtherWidgets();
    void TheWindowIsAsDesigned();
    void TheFontIsTheOneOfTheForm();
    void TheTextsAreTranslatedInTheContextOfTheForm();
    void TheClassDeclaresItsSignalsAndSlots();
    void TheParentIsOptional();
    void TabFollowsTheReadingOrder();
    void EnterPressesTheDefaultButton_data();
    void EnterPressesTheDefaultButton();
    void EscapeRejects();
    void OpeningAndClosingLeaksNoMemory();

private:
    const FormFacts m_facts;
};

template<class Dialog>
class FormTest : public FormChecks
{
protected:
    using FormChecks::FormChecks;

    std::unique_ptr<QDialog> NewDialog(QDialog* parent) const override
    {
        return std::make_unique<Dialog>(parent);
    }
};
