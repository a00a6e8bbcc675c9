#pragma once

#include <QMap>
#include <QString>
#include <QWidget>

/// The texts of a window that its labels, buttons, group boxes, combo boxes, tabs and column
/// headers have no room for: by place, such as `QLabel label_2` or `QHeaderView of tableWidget,
/// section 1`. The window has to be laid out, as it is once it was shown.
QMap<QString, QString> ClippedTexts(const QWidget& window);
