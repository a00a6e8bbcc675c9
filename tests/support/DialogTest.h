#pragma once

#include "ModalDriver.h"
#include "TestCase.h"

#include <QDialog>
#include <QPair>
#include <QVector>

#include <functional>
#include <memory>

/// The base of tests that drive modal dialogs.
///
/// Every test function has a user. At its end the user must have taken all steps, and a box that
/// the function did not look at is a failure.
class DialogTest : public TestCase
{
    Q_OBJECT

protected:
    ModalDriver& User() { return *m_user; }

    /// The boxes that the user has seen so far.
    const ShownBoxes& Boxes() { return m_user->Boxes(); }

    /// Queues what the user does in the next dialog.
    void Then(std::function<void(QDialog&)> step) { m_user->Then(std::move(step)); }

    /// Lets the rest of the test function run its dialogs without a user.
    void DismissUser() { m_user.reset(); }

    void SetUp() override;
    QStringList TearDown() override;

private:
    std::unique_ptr<ModalDriver> m_user;
};

/// Fields by object name, and what to type into them.
using FieldTexts = QVector<QPair<const char*, QString>>;

/// Types into the fields.
void Fill(const QDialog& dialog, const FieldTexts& fields);

/// Runs the dialog as a user who presses the button; returns exec()'s result.
int RunAndPress(QDialog& dialog, const char* button);

/// Runs the dialog as a user who fills the fields and presses the button; returns exec()'s result.
int FillAndPress(QDialog& dialog, const FieldTexts& fields, const char* button);

/// Runs the dialog as a user who presses a key in the named field; returns exec()'s result.
int PressKey(QDialog& dialog, const char* field, Qt::Key key);

/// Adds the column "way" with the rows "Cancel", "Escape" and "close": the ways to leave a dialog
/// without confirming it.
void AddWaysToLeave();

/// Leaves @p dialog in one of these ways; @p cancel is the name of its Cancel button.
void Leave(QDialog& dialog, const QString& way, const char* cancel);
