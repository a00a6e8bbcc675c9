#include "ModalDriver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <QTimer>

ShownBox ShownBox::Notice(const QString& title, const QString& text)
{
    return {title, text, QMessageBox::Information, QMessageBox::Ok, nullptr};
}

bool ShownBox::operator==(const ShownBox& other) const
{
    return title == other.title && text == other.text && icon == other.icon &&
           buttons == other.buttons && parent == other.parent;
}

char* toString(const QVector<ShownBox>& boxes)
{
    QStringList lines;
    for (const ShownBox& box : boxes)
        lines << QStringLiteral("[%1 | %2 | icon %3 | buttons 0x%4 | %5]")
                     .arg(box.title, box.text)
                     .arg(int(box.icon))
                     .arg(int(box.buttons), 0, 16)
                     .arg(box.parent ? QStringLiteral("with parent") : QStringLiteral("no parent"));
    return qstrdup(qPrintable(
        QStringLiteral("%1 box(es) %2").arg(boxes.size()).arg(lines.join(QLatin1Char(' ')))));
}

ModalDriver::ModalDriver()
{
    PollLater();
}

ModalDriver::~ModalDriver() = default;

void ModalDriver::Then(std::function<void(QDialog&)> step)
{
    m_steps.push_back(std::move(step));
}

void ModalDriver::Answer(QMessageBox::StandardButton button)
{
    m_answers.push_back(button);
}

void ModalDriver::WhileBoxOpen(std::function<void(QMessageBox&)> action)
{
    m_whileOpen.push_back(std::move(action));
}

bool ModalDriver::IsDone() const
{
    return m_steps.empty() && m_answers.empty() && m_whileOpen.empty() && m_unexpected == 0;
}

void ModalDriver::PollLater()
{
    QTimer::singleShot(5, this, [this] { Poll(); });
}

void ModalDriver::Poll()
{
    // Armed anew before anything is pressed: a press may run a modal loop that needs driving, too.
    PollLater();

    QWidget* const window = QApplication::activeModalWidget();
    if (window == nullptr || !window->isVisible() || m_answered.contains(window))
        return;
    if (auto* const box = qobject_cast<QMessageBox*>(window)) {
        m_answered.append(box);
        AnswerBox(*box);
        return;
    }
    auto* const dialog = qobject_cast<QDialog*>(window);
    // A step that waits for something keeps its dialog to itself.
    if (dialog == nullptr || m_inStep.contains(dialog))
        return;
    if (m_steps.empty()) {
        ++m_unexpected;
        qWarning("ModalDriver: no step is left for the dialog \"%s\"",
                 qPrintable(dialog->windowTitle()));
        dialog->reject();
        return;
    }
    const auto step = std::move(m_steps.front());
    m_steps.pop_front();
    m_inStep.append(dialog);
    step(*dialog);
    m_inStep.removeLast();
}

void ModalDriver::AnswerBox(QMessageBox& box)
{
    m_boxes.append(
        {box.windowTitle(), box.text(), box.icon(), box.standardButtons(), box.parentWidget()});
    if (!m_whileOpen.empty()) {
        const auto action = std::move(m_whileOpen.front());
        m_whileOpen.pop_front();
        action(box);
    }
    QMessageBox::StandardButton button = QMessageBox::Ok;
    if (!m_answers.empty()) {
        button = m_answers.front();
        m_answers.pop_front();
    }
    if (QAbstractButton* const pressed = box.button(button)) {
        QTest::mouseClick(pressed, Qt::LeftButton);
    } else {
        if (button != QMessageBox::Close)
            ++m_unexpected;
        box.close();
    }
}
