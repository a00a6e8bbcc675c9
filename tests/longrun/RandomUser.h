#pragma once

#include "Dice.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>

class QFileDialog;

/// A user without a plan: while it lives and a modal window is open, it presses, types and chooses
/// at random in that and in whatever comes out of it, and in the end gets rid of it.
class RandomUser : public QObject
{
public:
    /// @p files are what it picks in file dialogs; an empty one stands for giving up.
    RandomUser(Dice& dice, QStringList files);

    /// Opens @p window as a modal one, works in it and returns when it has gone from the screen.
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
    int m_patience = 0; ///< Actions until the user wants to be done.
};
