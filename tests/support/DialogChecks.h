#pragma once

#include "DialogFacts.h"

#include <QDialog>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

/// The named widgets of a form, sorted, one line each: class, name, parent, geometry where asked
/// for, text or title, and "checked". For example
/// `QLineEdit lineEdit_Num in ArcArrayDlg at 270,20 81x21: 4`.
QStringList DescribeForm(const QWidget& form, bool withGeometry);

void CompareForm(const QWidget& form, const QString& name, const QWidget& plain,
                 const QStringList& translated);

/// Compares what all forms have in common: the root is named @p name, all texts are translated in
/// the context of that name, and the window is as the toolkit makes it, without icon.
template<class Form, class Plain = QDialog>
void CompareForm(const char* name)
{
    const TextRecorder recorder;
    const Form form(nullptr);
    const Plain plain;
    CompareForm(form, QString::fromLatin1(name), plain, recorder.TextsOf(name));
}

/// The buttons that Enter may press, by object name; the default button first, marked by a star.
QStringList EnterButtons(const QDialog& dialog);

/// Fields by object name, and what to type into them.
using FieldTexts = QVector<QPair<const char*, QString>>;

/// Runs the dialog as a user who fills the fields and presses the button; gives exec()'s result.
int FillAndPress(QDialog& dialog, const FieldTexts& fields, const char* button);

/// Runs the dialog as a user who presses a key in the named field; gives exec()'s result.
int PressKey(QDialog& dialog, const char* field, Qt::Key key);

/// Adds the columns "locale", "text", "number" and "integer": what typed texts convert to, under
/// a locale with a decimal point and under one with a comma.
void AddConversionRows();

/// A number as text with all its digits, so that QCOMPARE of it treats nan as equal to nan.
QString AllDigits(double value);
