#pragma once

#include <QDialog>
#include <QMessageBox>
#include <QMetaType>
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

using ShownBoxes = QVector<ShownBox>;
Q_DECLARE_METATYPE(ShownBox)

/// So that QCOMPARE of a list of boxes prints what was shown.
char* toString(const ShownBoxes& boxes);

/// Drives modal windows as a user does, while it lives. Of several drivers the latest one works.
///
/// Message boxes are recorded and answered by a real click: on OK, or on the buttons queued with
/// Answer(). Every other modal dialog takes the next step queued with Then(). A dialog for which no
/// step is left is closed, and that counts as a failure. When the test has failed, all dialogs are
/// closed and the remaining steps are dropped.
///
///     ModalDriver user;
///     user.Then([](QDialog& dialog) { Click(dialog, "pushButton_OK"); });
///     QCOMPARE(dialog.exec(), int(QDialog::Accepted));
///     QVERIFY(user.IsDone());
///     QCOMPARE(user.Boxes(), ShownBoxes({ShownBox::Notice("Error", "Check input data!")}));
class ModalDriver : public QObject
{
public:
    ModalDriver();
    ~ModalDriver() override;

    /// Queues a step for the modal dialog that is active when its turn comes. A step may open
    /// further modal windows; the next step or answer then goes to these.
    void Then(std::function<void(QDialog&)> step);

    /// Queues the button for the next box that has none yet; Close is the button of its frame.
    void Answer(QMessageBox::StandardButton button);

    /// Runs @p action while the next box is open, before it is answered.
    void WhileBoxOpen(std::function<void(QMessageBox&)> action);

    /// The boxes shown so far.
    const ShownBoxes& Boxes() const;

    /// The boxes shown since the last call of Boxes(), except those that were waited for with
    /// Answer() or WhileBoxOpen().
    const ShownBoxes& UnseenBoxes() const { return m_unseen; }

    /// True if every step was taken, every answer given, and no unexpected dialog came up.
    bool IsDone() const;

private:
    void Poll();
    void PollLater();
    void AnswerBox(QMessageBox& box);
    void TakeStep(QDialog& dialog);
    void GiveUp(QPointer<QDialog> dialog);

    ModalDriver* const m_before;
    std::deque<std::function<void(QDialog&)>> m_steps;
    std::deque<QMessageBox::StandardButton> m_answers;
    std::deque<std::function<void(QMessageBox&)>> m_whileOpen;
    ShownBoxes m_boxes;
    mutable ShownBoxes m_unseen;
    QVector<QPointer<QWidget>> m_answered;
    QVector<QDialog*> m_inStep;
    int m_unexpected = 0;
};
