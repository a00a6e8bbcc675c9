#include "RandomUser.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QEventLoop>
#include <QFileDialog>
#include <QLineEdit>
#include <QTabBar>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

namespace {

constexpr int MostActions = 16;

// Every action may close or destroy its target, so each half has its own guard.
void ClickAt(QWidget& widget, const QPoint& point, Qt::KeyboardModifiers modifiers = {})
{
    const QPointer<QWidget> guard = &widget;
    QTest::mousePress(&widget, Qt::LeftButton, modifiers, point);
    if (guard)
        QTest::mouseRelease(guard, Qt::LeftButton, modifiers, point);
}

void PressKey(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    const QPointer<QWidget> guard = &widget;
    QTest::keyPress(&widget, key, modifiers);
    if (guard)
        QTest::keyRelease(guard, key, modifiers);
}

bool IsForUse(const QWidget& widget)
{
    if (!widget.isVisible() || !widget.isEnabled())
        return false;
    return qobject_cast<const QAbstractButton*>(&widget) != nullptr ||
           qobject_cast<const QAbstractItemView*>(&widget) != nullptr ||
           qobject_cast<const QComboBox*>(&widget) != nullptr ||
           qobject_cast<const QLineEdit*>(&widget) != nullptr ||
           qobject_cast<const QTabBar*>(&widget) != nullptr ||
           qobject_cast<const QTextEdit*>(&widget) != nullptr;
}

QVector<QWidget*> UsableWidgets(const QWidget& window)
{
    QVector<QWidget*> usable;
    const QList<QWidget*> children = window.findChildren<QWidget*>();
    for (QWidget* const child : children) {
        if (child->window() == &window && IsForUse(*child))
            usable << child;
    }
    return usable;
}

QVector<QModelIndex> VisibleCells(const QAbstractItemView& view)
{
    QVector<QModelIndex> cells;
    const QAbstractItemModel* const model = view.model();
    if (model == nullptr)
        return cells;
    for (int row = 0; row < model->rowCount(view.rootIndex()); ++row) {
        for (int column = 0; column < model->columnCount(view.rootIndex()); ++column) {
            const QModelIndex cell = model->index(row, column, view.rootIndex());
            if (view.viewport()->rect().intersects(view.visualRect(cell)))
                cells << cell;
        }
        if (cells.size() > 200)
            break;
    }
    return cells;
}

} // namespace

RandomUser::RandomUser(Dice& dice, QStringList files)
    : m_dice(dice)
    , m_files(std::move(files))
{
    PollLater();
}

void RandomUser::Use(QWidget& window)
{
    m_patience = 1 + m_dice.Below(MostActions);
    if (auto* const dialog = qobject_cast<QDialog*>(&window)) {
        dialog->exec();
    } else {
        window.setWindowModality(Qt::ApplicationModal);
        window.show();
        while (window.isVisible())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void RandomUser::PollLater()
{
    QMetaObject::invokeMethod(
        this, [this] { Poll(); }, Qt::QueuedConnection);
}

void RandomUser::Poll()
{
    // Schedule the next action first: this one may run a modal loop.
    PollLater();
    QWidget* window = QApplication::activePopupWidget();
    if (window == nullptr)
        window = QApplication::activeModalWidget();
    if (window == nullptr || !window->isVisible())
        return;
    if (auto* const files = qobject_cast<QFileDialog*>(window))
        PickFile(*files);
    else if (m_patience-- > 0)
        ActIn(*window);
    else
        Leave(*window);
}

void RandomUser::ActIn(QWidget& window)
{
    if (window.windowType() == Qt::Popup) {
        PressSomeKey(window);
        return;
    }
    window.activateWindow();
    const QVector<QWidget*> usable = UsableWidgets(window);
    QWidget* const focus = QApplication::focusWidget();
    if (usable.isEmpty() || (focus != nullptr && m_dice.OneIn(4)))
        PressSomeKey(focus != nullptr && focus->window() == &window ? *focus : window);
    else
        ActOn(*m_dice.Pick(usable));
}

void RandomUser::Leave(QWidget& window)
{
    // Half the time with a button, as long as that works; Escape and the close button always work.
    QVector<QWidget*> buttons;
    const QVector<QWidget*> usable = UsableWidgets(window);
    for (QWidget* const widget : usable) {
        if (qobject_cast<QAbstractButton*>(widget) != nullptr)
            buttons << widget;
    }
    if (!buttons.isEmpty() && m_dice.OneIn(2))
        ActOn(*m_dice.Pick(buttons));
    else if (m_dice.OneIn(2))
        PressKey(window, Qt::Key_Escape);
    else
        window.close();
}

void RandomUser::PickFile(QFileDialog& dialog)
{
    auto* const name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    const QString file = m_dice.Pick(m_files);
    name->setText(file);
    PressKey(*name, file.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
}

void RandomUser::ActOn(QWidget& widget)
{
    if (qobject_cast<QAbstractButton*>(&widget) != nullptr) {
        ClickAt(widget, QPoint(3, widget.height() / 2));
    } else if (auto* const tabs = qobject_cast<QTabBar*>(&widget)) {
        if (tabs->count() > 0)
            ClickAt(widget, tabs->tabRect(m_dice.Below(tabs->count())).center());
    } else if (qobject_cast<QComboBox*>(&widget) != nullptr) {
        if (m_dice.OneIn(3))
            ClickAt(widget, widget.rect().center());
        else
            PressKey(widget, m_dice.OneIn(2) ? Qt::Key_Down : Qt::Key_Up);
    } else if (auto* const view = qobject_cast<QAbstractItemView*>(&widget)) {
        const QVector<QModelIndex> cells = VisibleCells(*view);
        if (cells.isEmpty()) {
            ClickAt(*view->viewport(), view->viewport()->rect().center());
            return;
        }
        const QPoint point = view->visualRect(m_dice.Pick(cells)).center();
        const QVector<Qt::KeyboardModifiers> held = {Qt::NoModifier, Qt::NoModifier,
                                                     Qt::ControlModifier, Qt::ShiftModifier};
        const QPointer<QWidget> guard = view;
        ClickAt(*view->viewport(), point, m_dice.Pick(held));
        if (guard && view->isVisible() && m_dice.OneIn(2))
            QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, point);
        QWidget* const editor = QApplication::focusWidget();
        if (guard && editor != nullptr && editor->window() == view->window())
            TypeInto(*editor);
    } else {
        const QPointer<QWidget> guard = &widget;
        ClickAt(widget, widget.rect().center());
        if (guard)
            TypeInto(*guard);
    }
}

void RandomUser::TypeInto(QWidget& widget)
{
    const QPointer<QWidget> guard = &widget;
    if (m_dice.OneIn(2))
        PressKey(widget, Qt::Key_A, Qt::ControlModifier);
    const QString text = SomeText();
    for (const QChar letter : text) {
        if (!guard)
            return;
        QTest::sendKeyEvent(QTest::Click, guard, Qt::Key_unknown, QString(letter), Qt::NoModifier);
    }
    const QVector<Qt::Key> ends = {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return, Qt::Key_Escape};
    if (guard && m_dice.OneIn(2))
        PressKey(*guard, m_dice.Pick(ends));
}

void RandomUser::PressSomeKey(QWidget& widget)
{
    const QVector<Qt::Key> keys = {
        Qt::Key_Tab,       Qt::Key_Tab,      Qt::Key_Backtab, Qt::Key_Up,
        Qt::Key_Down,      Qt::Key_Left,     Qt::Key_Home,    Qt::Key_End,
        Qt::Key_Space,     Qt::Key_PageDown, Qt::Key_PageUp,  Qt::Key_F2,
        Qt::Key_Backspace, Qt::Key_Delete,   Qt::Key_Return,  Qt::Key_Escape};
    const QVector<Qt::Key> shortcuts = {Qt::Key_A, Qt::Key_C, Qt::Key_V, Qt::Key_X, Qt::Key_Z};
    if (m_dice.OneIn(4))
        PressKey(widget, m_dice.Pick(shortcuts), Qt::ControlModifier);
    else
        PressKey(widget, m_dice.Pick(keys));
}

QString RandomUser::SomeText()
{
    static const QStringList texts = {"",
                                      "0",
                                      "1",
                                      "2.5",
                                      "-3",
                                      "1e3",
                                      "1e308",
                                      "-1e-320",
                                      "1,5",
                                      "..",
                                      "12345678901234567890",
                                      "nan",
                                      "inf",
                                      "a",
                                      "b + 1",
                                      "c * (a + b)",
                                      "a / 0",
                                      "sin(a",
                                      "Steel",
                                      "User_1",
                                      "长度",
                                      "é<&>\"",
                                      "  ",
                                      "a,b",
                                      "0.1",
                                      "10"};
    if (m_dice.OneIn(2))
        return m_dice.Pick(texts);
    static const QString letters = QStringLiteral("0123456789.-+e*/()abc ,;\"<&长é");
    QString text;
    for (int count = m_dice.Below(12); count > 0; --count)
        text += letters[m_dice.Below(letters.size())];
    return text;
}
