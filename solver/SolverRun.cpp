#include "SolverRun.h"

#include <QFileDialog>
#include <QVector>

QString tarn::PickExecutable(QDialog& owner, const QString& caption)
{
    // Never shown: the static function below shows the dialog, without a caption.
    new QFileDialog(&owner, caption, QString(), QString());
    return QFileDialog::getOpenFileName(nullptr, QString(), QString(), QString());
}

QProcess::ExitStatus tarn::RunToEnd(const QString& command)
{
    // Processes are never deleted; this keeps them reachable.
    static auto& processes = *new QVector<QProcess*>;
    auto* const process = new QProcess;
    processes.append(process);
    // Discard the output: buffering that of a verbose program would exhaust the memory.
    QObject::connect(process, &QProcess::readyReadStandardOutput, process,
                     &QProcess::readAllStandardOutput);
    QObject::connect(process, &QProcess::readyReadStandardError, process,
                     &QProcess::readAllStandardError);

    QStringList arguments = QProcess::splitCommand(command);
    const QString program = arguments.takeFirst();
    process->setReadChannel(QProcess::StandardError);
    // A program that asks something gets the end of its input; otherwise it would wait forever.
    process->setStandardInputFile(QProcess::nullDevice());
    process->start(program, arguments, QIODevice::ReadWrite);
    process->waitForFinished(-1); // The default is to give up after 30 seconds.
    return process->exitStatus();
}
