#pragma once

#include "Conversions.h"
#include "FormTest.h"

/// How a form that keeps its values on OK, and nothing on Cancel, is filled in.
struct InputFacts
{
    QString unset;    ///< The values before the first OK.
    QString defaults; ///< The values of the form as it opens.
    FieldTexts typed; ///< Other texts,
    QString entered;  ///< and the values that they give.

    /// Fields that take any text, and the values when all of them hold the same text: %1 is the
    /// number that it converts to, %2 the integer, %3 the number as KernelText() shows it.
    QVector<const char*> converted;
    QString conversion;

    const char* cancel = "pushButton_Cancel";
};

/// The checks that all small forms for numbers have in common.
///
/// A test class derives from InputFormTest and passes the facts of its form; these functions then
/// run before its own.
class InputFormChecks : public FormChecks
{
    Q_OBJECT

protected:
    InputFormChecks(FormFacts form, InputFacts input);

    /// The values as the getters return them, as one text.
    virtual QString ValuesOf(const QDialog& dialog) const = 0;

    void CompareAfterEnter(QDialog& dialog) override;

private Q_SLOTS:
    void OKStoresTheDefaults();
    void OKStoresTheFields();
    void LeavingStoresNothing_data();
    void LeavingStoresNothing();
    void TextIsConverted_data();
    void TextIsConverted();

private:
    const InputFacts m_input;
};

template<class Dialog>
class InputFormTest : public InputFormChecks
{
protected:
    using InputFormChecks::InputFormChecks;

    virtual QString Values(const Dialog& dialog) const = 0;

private:
    std::unique_ptr<QDialog> NewDialog(QDialog* parent) const override
    {
        return std::make_unique<Dialog>(parent);
    }
    QString ValuesOf(const QDialog& dialog) const override
    {
        return Values(static_cast<const Dialog&>(dialog));
    }
};
