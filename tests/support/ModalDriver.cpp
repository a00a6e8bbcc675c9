#include "ModalDriver.h"

#include "GuardedTest.h"

#include <QAbstractButton>
#include <QApplication>
#include <QScopeGuard>
#include <QTest>
#include <QTimer>

#include <utility>

ShownBox ShownBox::Notice(const QString& title, const QString& text)
{
    return {title, text, QMessageBox::Information, QMessageBox::Ok, nullptr};
}

bool ShownBox::operator==(const ShownBox& other) const
{
    return title == other.title && text == other.text && icon == other.icon &&
           buttons == other.buttons && parent == other.parent;
}

char* toString(const ShownBoxes& boxes)
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

namespace {

ModalDriver* g_driver = nullptr;

// An ended test must not leave through the event loop of a dialog, which would not survive it.
template<class Function>
void RunUntilFailure(const Function& function)
{
    try {
        function();
    } catch (const TestEnded&) {
    }
}

} // namespace

ModalDriver::ModalDriver()
    : m_before(std::exchange(g_driver, this))
{
    PollLater();
}

ModalDriver::~ModalDriver()
{
    g_driver = m_before;
}

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

const ShownBoxes& ModalDriver::Boxes() const
{
    m_unseen.clear();
    return m_boxes;
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
    // Armed again before anything is pressed: a press may run a modal loop that needs driving, too.
    PollLater();
    if (g_driver != this)
        return;

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
    if (!m_steps.empty()) {
        TakeStep(*dialog);
        return;
    }
    ++m_unexpected;
    if (!QTest::currentTestFailed())
        qWarning("ModalDriver: no step is left for the dialog \"%s\"",
                 qPrintable(dialog->windowTitle()));
    GiveUp(dialog);
}

void ModalDriver::TakeStep(QDialog& dialog)
{
    const auto step = std::move(m_steps.front());
    m_steps.pop_front();
    const QPointer<QDialog> guard = &dialog;
    {
        m_inStep.append(&dialog);
        const auto end = qScopeGuard([this] { m_inStep.removeLast(); });
        RunUntilFailure([&] { step(dialog); });
    }
    if (QTest::currentTestFailed())
        GiveUp(guard);
}

void ModalDriver::GiveUp(QPointer<QDialog> dialog)
{
    m_steps.clear();
    if (dialog)
        dialog->reject();
    // Some dialogs refuse to be rejected.
    if (dialog && dialog->isVisible())
        dialog->hide();
}

void ModalDriver::AnswerBox(QMessageBox& box)
{
    m_boxes.append(
        {box.windowTitle(), box.text(), box.icon(), box.standardButtons(), box.parentWidget()});
    if (m_whileOpen.empty() && m_answers.empty())
        m_unseen.append(m_boxes.last());
    const QPointer<QMessageBox> guard = &box;
    if (!m_whileOpen.empty()) {
        const auto action = std::move(m_whileOpen.front());
        m_whileOpen.pop_front();
        RunUntilFailure([&] { action(box); });
    }
    if (!guard)
        return;
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
