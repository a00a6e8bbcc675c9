#include "SolverRun.h"

#include <QFileDialog>
#include <QVector>

QString tarn::PickExecutable(QDialog& owner, const QString& caption)
{
    // Never shown: the picker itself is the static one, with no caption.
    new QFileDialog(&owner, caption, QString(), QString());
    return QFileDialog::getOpenFileName(nullptr, QString(), QString(), QString());
}

QProcess::ExitStatus tarn::RunToEnd(const QString& command)
{
    // Processes are never deleted; they stay reachable here.
    static auto& processes = *new QVector<QProcess*>;
    auto* const process = new QProcess;
    processes.append(process);
    // Nobody reads the output: kept as well, that of a talkative program would fill the memory.
    QObject::connect(process, &QProcess::readyReadStandardOutput, process,
                     &QProcess::readAllStandardOutput);
    QObject::connect(process, &QProcess::readyReadStandardError, process,
                     &QProcess::readAllStandardError);

    QStringList arguments = QProcess::splitCommand(command);
    const QString program = arguments.takeFirst();
    process->setReadChannel(QProcess::StandardError);
    process->start(program, arguments, QIODevice::ReadWrite);
    process->waitForFinished(-1); // By default it gives up after half a minute.
    return process->exitStatus();
}
