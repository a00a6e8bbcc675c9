#pragma once

#include <QProcess>
#include <QString>

class QDialog;

namespace tarn {

/// Lets the user pick an executable, without parent or filter; empty when the user cancels.
/// @p caption goes to a file dialog that @p owner keeps and nobody sees.
QString PickExecutable(QDialog& owner, const QString& caption);

/// Runs a command line in the working directory and waits, without time limit, until it ends.
/// A program that cannot be started counts as one that ended normally.
QProcess::ExitStatus RunToEnd(const QString& command);

} // namespace tarn
