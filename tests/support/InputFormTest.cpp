#include "InputFormTest.h"

#include "DialogFacts.h"

#include <utility>

InputFormChecks::InputFormChecks(Facts facts)
    : m_facts(std::move(facts))
{
}

void InputFormChecks::TheFontIsSetOnTheDialog()
{
    const std::unique_ptr<QDialog> dialog = NewDialog();
    QCOMPARE(dialog->font().family(), QString("微软雅黑"));
    QCOMPARE(dialog->font().pointSize(), QApplication::font().pointSize());
}

void InputFormChecks::TabFollowsTheReadingOrder()
{
    QStringList names;
    for (const auto& field : std::as_const(m_facts.typed))
        names << field.first;
    QCOMPARE(TabOrder(*NewDialog()), names + QStringList({"pushButton_OK", "pushButton_Cancel"}));
}

void InputFormChecks::EnterConfirmsAndEscapeLeaves()
{
    const std::unique_ptr<QDialog> dialog = NewDialog();
    const char* const field = m_facts.typed.first().first;
    QCOMPARE(EnterButtons(*dialog), QStringList({"pushButton_OK*"}));
    QCOMPARE(PressKey(*dialog, field, Qt::Key_Escape), int(QDialog::Rejected));
    QCOMPARE(ValuesOf(*dialog), m_facts.unset);
    QCOMPARE(PressKey(*dialog, field, Qt::Key_Return), int(QDialog::Accepted));
    QCOMPARE(ValuesOf(*dialog), m_facts.defaults);
}

void InputFormChecks::TheSlotsAreAsGiven()
{
    const std::unique_ptr<QDialog> dialog = NewDialog();
    QCOMPARE(OwnMethods(*dialog->metaObject()), QStringList({"private slot " + m_facts.slot}));
    QCOMPARE(dialog->metaObject()->superClass(), &QDialog::staticMetaObject);
}

void InputFormChecks::OKStoresTheDefaults()
{
    const std::unique_ptr<QDialog> dialog = NewDialog();
    QCOMPARE(ValuesOf(*dialog), m_facts.unset);
    QCOMPARE(FillAndPress(*dialog, {}, "pushButton_OK"), int(QDialog::Accepted));
    QCOMPARE(ValuesOf(*dialog), m_facts.defaults);
}

void InputFormChecks::OKStoresTheFields()
{
    const std::unique_ptr<QDialog> dialog = NewDialog();
    QCOMPARE(FillAndPress(*dialog, m_facts.typed, "pushButton_OK"), int(QDialog::Accepted));
    QCOMPARE(ValuesOf(*dialog), m_facts.entered);
}

void InputFormChecks::CancelStoresNothing()
{
    const std::unique_ptr<QDialog> dialog = NewDialog();
    FillAndPress(*dialog, {}, "pushButton_OK");
    QCOMPARE(FillAndPress(*dialog, m_facts.typed, "pushButton_Cancel"), int(QDialog::Rejected));
    QCOMPARE(ValuesOf(*dialog), m_facts.defaults);
}
