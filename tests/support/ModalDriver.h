#pragma once

#include <QDialog>
#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVector>

#include <deque>
#include <functional>

/// A message box as the user saw it.
struct ShownBox
{
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons = QMessageBox::NoButton;
    QWidget* parent = nullptr;

    /// The library's usual notice: information icon, one OK button, no parent.
    static ShownBox Notice(const QString& title, const QString& text);

    bool operator==(const ShownBox& other) const;
};

/// So that QCOMPARE of a list of boxes prints what was shown.
char* toString(const QVector<ShownBox>& boxes);

/// Drives modal windows as a user does, while it lives.
///
/// Message boxes are recorded and answered by a real click: on OK, or on the buttons queued with
/// Answer(). Every other modal dialog takes the next step queued with Then(); a dialog for which no
/// step is left is closed, and that counts as a failure.
///
///     ModalDriver user;
///     user.Then([](QDialog& dialog) { Click(dialog, "pushButton_OK"); });
///     QCOMPARE(dialog.exec(), int(QDialog::Accepted));
///     QVERIFY(user.IsDone());
///     QCOMPARE(user.Boxes(), QVector<ShownBox>({ShownBox::Notice("Error", "Check input data!")}));
class ModalDriver : public QObject
{
public:
    ModalDriver();
    ~ModalDriver() override;

    /// Queues a step for the modal dialog that is active when its turn comes. A step may open
    /// further modal windows; the next step or answer then goes to these.
    void Then(std::function<void(QDialog&)> step);

    /// Queues the button for the next box that has none yet; Close stands for its close button.
    void Answer(QMessageBox::StandardButton button);

    /// Runs @p action while the next box is open, before it is answered.
    void WhileBoxOpen(std::function<void(QMessageBox&)> action);

    /// The boxes shown so far.
    const QVector<ShownBox>& Boxes() const { return m_boxes; }

    /// True when every step was taken, every answer given, and no dialog came up unexpected.
    bool IsDone() const;

private:
    void Poll();
    void PollLater();
    void AnswerBox(QMessageBox& box);

    std::deque<std::function<void(QDialog&)>> m_steps;
    std::deque<QMessageBox::StandardButton> m_answers;
    std::deque<std::function<void(QMessageBox&)>> m_whileOpen;
    QVector<ShownBox> m_boxes;
    QVector<QPointer<QWidget>> m_answered;
    QVector<QDialog*> m_inStep;
    int m_unexpected = 0;
};
