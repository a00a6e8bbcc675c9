#include "InputFormTest.h"

#include <utility>

InputFormChecks::InputFormChecks(FormFacts form, InputFacts input)
    : FormChecks(std::move(form))
    , m_input(std::move(input))
{
}

void InputFormChecks::CompareAfterEnter(QDialog& dialog)
{
    FormChecks::CompareAfterEnter(dialog);
    QCOMPARE(ValuesOf(dialog), m_input.defaults);
}

void InputFormChecks::OKStoresTheDefaults()
{
    const std::unique_ptr<QDialog> dialog = NewDialog(nullptr);
    QCOMPARE(ValuesOf(*dialog), m_input.unset);
    QCOMPARE(FillAndPress(*dialog, {}, qPrintable(Facts().enter)), int(QDialog::Accepted));
    QCOMPARE(ValuesOf(*dialog), m_input.defaults);
}

void InputFormChecks::OKStoresTheFields()
{
    const std::unique_ptr<QDialog> dialog = NewDialog(nullptr);
    QCOMPARE(FillAndPress(*dialog, m_input.typed, qPrintable(Facts().enter)),
             int(QDialog::Accepted));
    QCOMPARE(ValuesOf(*dialog), m_input.entered);
}

void InputFormChecks::LeavingStoresNothing_data()
{
    AddWaysToLeave();
}

void InputFormChecks::LeavingStoresNothing()
{
    QFETCH(QString, way);
    const std::unique_ptr<QDialog> unconfirmed = NewDialog(nullptr);
    const std::unique_ptr<QDialog> confirmed = NewDialog(nullptr);
    FillAndPress(*confirmed, {}, qPrintable(Facts().enter));
    for (QDialog* const dialog : {unconfirmed.get(), confirmed.get()}) {
        const QString before = ValuesOf(*dialog);
        Then([&](QDialog& shown) {
            Fill(shown, m_input.typed);
            Leave(shown, way, m_input.cancel);
        });
        QCOMPARE(dialog->exec(), int(QDialog::Rejected));
        QCOMPARE(ValuesOf(*dialog), before);
    }
}

void InputFormChecks::TextIsConverted_data()
{
    AddConversionRows();
}

void InputFormChecks::TextIsConverted()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, text);
    QFETCH(double, number);
    QFETCH(int, integer);
    UseLocale(locale);
    const std::unique_ptr<QDialog> dialog = NewDialog(nullptr);
    FieldTexts fields;
    for (const char* const field : m_input.converted)
        fields << qMakePair(field, text);
    QCOMPARE(FillAndPress(*dialog, fields, qPrintable(Facts().enter)), int(QDialog::Accepted));
    QString expected = m_input.conversion;
    expected.replace(QLatin1String("%1"), AllDigits(number));
    expected.replace(QLatin1String("%2"), QString::number(integer));
    expected.replace(QLatin1String("%3"), QString::number(number, 'g', 12));
    QCOMPARE(ValuesOf(*dialog), expected);
}
