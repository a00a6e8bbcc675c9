#pragma once

#include "KernelWorker.h"

#include <QString>
#include <QTemporaryDir>

/// What is done for one seed, in the worker process. The result is one word, and for some a reason
/// after it. The worker may crash or exceed 20 s: "crash" and "timeout".
class Work
{
public:
    Work();

    /// "models" writes a random part to a STEP file and imports it: "same", "different", "unbuilt"
    /// or "refused". "files" damages a STEP file at random and imports it: "sound" or "refused".
    QString Do(const QString& work, unsigned seed);

private:
    QString RoundTrip(unsigned seed);
    QString ReadDamagedFile(unsigned seed);

    /// Builds the random part and writes it to the file.
    PartReply Write(unsigned seed);
    /// Imports the file.
    PartReply Read();

    QTemporaryDir m_directory;
    QString m_path;
    KernelWorker m_worker;
};
