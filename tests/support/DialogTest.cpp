#include "DialogTest.h"

#include <QLineEdit>

void DialogTest::SetUp()
{
    m_user = std::make_unique<ModalDriver>();
}

QStringList DialogTest::TearDown()
{
    if (m_user == nullptr)
        return {};
    QStringList failures;
    if (!m_user->IsDone())
        failures << QStringLiteral("the user is not done: a step or an answer is left");
    const ShownBoxes& unseen = m_user->UnseenBoxes();
    for (const ShownBox& box : unseen)
        failures << QStringLiteral("unexpected box: ") + box.text;
    m_user.reset();
    return failures;
}

void Fill(const QDialog& dialog, const FieldTexts& fields)
{
    for (const auto& field : fields)
        Type(dialog, field.first, field.second);
}

int RunAndPress(QDialog& dialog, const char* button)
{
    return FillAndPress(dialog, {}, button);
}

int FillAndPress(QDialog& dialog, const FieldTexts& fields, const char* button)
{
    ModalDriver user;
    user.Then([&](QDialog& shown) {
        Fill(shown, fields);
        Click(shown, button);
    });
    return dialog.exec();
}

int PressKey(QDialog& dialog, const char* field, Qt::Key key)
{
    ModalDriver user;
    user.Then([&](QDialog& shown) {
        auto& widget = Find<QWidget>(shown, field);
        widget.setFocus();
        QTest::keyClick(&widget, key);
    });
    return dialog.exec();
}

void AddWaysToLeave()
{
    QTest::addColumn<QString>("way");
    for (const char* const way : {"Cancel", "Escape", "close"})
        QTest::newRow(way) << way;
}

void Leave(QDialog& dialog, const QString& way, const char* cancel)
{
    if (way == QLatin1String("Cancel"))
        Click(dialog, cancel);
    else if (way == QLatin1String("Escape"))
        QTest::keyClick(dialog.focusWidget() != nullptr ? dialog.focusWidget() : &dialog,
                        Qt::Key_Escape);
    else
        dialog.close();
}
