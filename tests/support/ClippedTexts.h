#pragma once

#include <QMap>
#include <QString>
#include <QWidget>

/// The texts that labels, buttons, group boxes, combo boxes, tabs and column headers of a window
/// cut off. The keys are places such as `QLabel label_2` or `QHeaderView of tableWidget, section
/// 1`. The window must be laid out, as it is after it has been shown.
QMap<QString, QString> ClippedTexts(const QWidget& window);

/// Those of ClippedTexts() that no tool tip shows in full.
QMap<QString, QString> TextsWithoutToolTip(const QWidget& window);
