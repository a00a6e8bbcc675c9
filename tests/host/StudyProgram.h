#pragma once

#include "TestFiles.h"

#include <QProcess>
#include <QStringList>

#include <memory>

/// @file
/// The program, and the study of the project "p.json" in the working directory.

using Arguments = QStringList;

inline const Arguments Study = {"--study", "p.json", "--out", "out"};

inline std::unique_ptr<QProcess> Started(const Arguments& arguments)
{
    auto process = std::make_unique<QProcess>();
    process->start(TARN_HOST_PROGRAM, arguments);
    return process;
}

inline int CodeOf(QProcess& process)
{
    constexpr int Patience = 120000; // ms
    return process.waitForFinished(Patience) && process.exitStatus() == QProcess::NormalExit
               ? process.exitCode()
               : -1;
}

inline int Run(const Arguments& arguments, QString* output = nullptr)
{
    const std::unique_ptr<QProcess> process = Started(arguments);
    const int code = CodeOf(*process);
    if (output != nullptr)
        *output = QString::fromUtf8(process->readAllStandardOutput());
    return code;
}

/// The table of the study that one program has done in one go.
inline QByteArray Undisturbed()
{
    if (Run({"--study", "p.json", "--out", "whole", "--jobs", "1"}) < 0)
        return {};
    return ContentOf("whole/results.csv");
}
