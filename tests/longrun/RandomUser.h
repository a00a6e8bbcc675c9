#pragma once

#include "Dice.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>

class QFileDialog;

/// A random user: while it exists and a modal window is open, it presses, types and selects at
/// random in that window and in any window that this opens, and finally closes them.
class RandomUser : public QObject
{
public:
    /// @p files are the paths to pick in file dialogs; an empty path means cancelling.
    RandomUser(Dice& dice, QStringList files);

    /// Opens @p window modally, uses it, and returns when it is no longer visible.
    void Use(QWidget& window);

private:
    void Poll();
    void PollLater();
    void ActIn(QWidget& window);
    void Leave(QWidget& window);
    void PickFile(QFileDialog& dialog);
    void ActOn(QWidget& widget);
    void TypeInto(QWidget& widget);
    void PressSomeKey(QWidget& widget);
    QString SomeText();

    Dice& m_dice;
    const QStringList m_files;
    int m_patience = 0; ///< The number of actions until the user tries to leave.
};
