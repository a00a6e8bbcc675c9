#pragma once

#include "Processes.h"
#include "TestFiles.h"
#include "XmlFiles.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <array>
#include <functional>

/// Lets three processes write the file at the same time. Each calls @p write for every name of its
/// own and makes it the only name in the file. Returns the names that are then neither in the file
/// nor in one of its copies, and what else went wrong.
inline QStringList LostAmongProcesses(const QString& file,
                                      const std::function<bool(const QString& name)>& write)
{
    constexpr int Processes = 3;
    // TARN_TEST_WRITES=600 takes a while on a real disk.
    const int writes = qMax(20, qEnvironmentVariableIntValue("TARN_TEST_WRITES"));
    const auto nameOf = [](int process, int i) {
        return QStringLiteral("p%1-%2").arg(process).arg(i);
    };
    std::array<pid_t, Processes> children{};
    for (int process = 0; process < Processes; ++process)
        children[std::size_t(process)] = Fork([&, process] {
            for (int i = 0; i < writes; ++i) {
                if (!write(nameOf(process, i)))
                    return false;
            }
            return true;
        });
    QStringList problems;
    for (const pid_t child : children) {
        if (ExitCodeOf(child) != 0)
            problems << QStringLiteral("a write failed");
    }
    const QStringList copies = CopiesOf(file);
    if (AllFiles().size() != copies.size() + 1)
        problems << QStringLiteral("other files: ") + AllFiles().join(QLatin1Char(' '));
    QByteArray contents = ContentOf(file);
    for (const QString& copy : copies)
        contents += ContentOf(copy);
    for (int process = 0; process < Processes; ++process) {
        for (int i = 0; i < writes; ++i) {
            if (!contents.contains('"' + nameOf(process, i).toUtf8() + '"'))
                problems << nameOf(process, i);
        }
    }
    return problems;
}
