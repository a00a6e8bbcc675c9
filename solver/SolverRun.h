#pragma once

#include <QProcess>
#include <QString>

class QDialog;

namespace tarn {

/// Lets the user pick an executable, in a file dialog without parent or filter. Returns its path;
/// empty if the user cancels. @p caption goes to a file dialog that @p owner owns but never shows.
QString PickExecutable(QDialog& owner, const QString& caption);

/// Runs a command line in the working directory, with the null device as its standard input, and
/// waits, without a time limit, until it ends. A program that cannot be started counts as having
/// exited normally.
QProcess::ExitStatus RunToEnd(const QString& command);

} // namespace tarn
