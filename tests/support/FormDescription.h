#pragma once

#include <QDialog>
#include <QMetaObject>
#include <QStringList>

/// The text of a widget, or its title.
QString ShownText(const QWidget& widget);

/// The object names below @p window, sorted, without those that the toolkit gives.
QStringList WidgetNames(const QWidget& window);

/// Describes a form: a line for each named widget and layout and for each spacer, such as
///
///     QLineEdit lineEdit_Num in ArcArrayDlg at 270,20 81x21: 4
///     QLabel label_5 in ArcArrayDlg at 190,20 81x21: Number, for lineEdit_Num
///     QPushButton pushButton_OK in DOEDlg at gridLayout[2,1 1x3]: OK, disabled
///     QHBoxLayout hboxLayout: spacing 6, margins 0 0 0 0
///     QSpacerItem at hboxLayout[0]: 131x31, horizontal
///
/// The place is that in the layout (in a grid: row, column, rows x columns) or, without a layout,
/// that in the parent. The text or title is followed by the buddy of a label and by anything
/// unusual: checked, disabled, read-only, validator. Each widget also has a line without its place.
QStringList DescribeForm(const QWidget& form);

/// The texts that a form shows: of its widgets, tabs and column headers, its accessible names and
/// its window title. Sorted, each once.
QStringList ShownTexts(const QWidget& form);

/// The buttons that Enter may press, by object name; the default button first, marked by a star.
QStringList EnterButtons(const QDialog& dialog);

/// The signals and slots that a class adds to its base, in order, such as "public slot Run(int)".
QStringList OwnMethods(const QMetaObject& meta);
