#include "AnalysisTools.h"

#include "HostError.h"
#include "MemoryLimit.h"
#include "UserSettings.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

namespace {

const QLatin1String MesherKey("analysis/mesher");
const QLatin1String SolverKey("analysis/solver");
const QLatin1String SecondsKey("analysis/seconds");
const QLatin1String FreedomsKey("analysis/maximumFreedoms");

} // namespace

QString AnalysisTool::Executable() const
{
    if (!path.isEmpty()) {
        const QFileInfo file(path);
        if (!file.isFile() || !file.isExecutable())
            throw HostError(tr("%1 is not a program; choose the path of %2, or leave it empty to "
                               "look in PATH.")
                                .arg(path.simplified(), program));
        return file.absoluteFilePath();
    }
    QString found = QStandardPaths::findExecutable(program);
    if (found.isEmpty())
        throw HostError(tr("The program %1 is missing: install the Debian package %2, or set the "
                           "path of the program.")
                            .arg(program, package));
    return found;
}

AnalysisTools AnalysisTools::Stored()
{
    const UserSettings settings;
    AnalysisTools tools;
    tools.mesher.path = settings.value(MesherKey).toString();
    tools.solver.path = settings.value(SolverKey).toString();
    tools.seconds = qBound(1, settings.value(SecondsKey, tools.seconds).toInt(), MaximumSeconds);
    tools.maximumFreedoms = qBound(
        LeastFreedoms, settings.value(FreedomsKey, tools.maximumFreedoms).toInt(), MostFreedoms);
    // The largest permitted model takes the solver several times the memory that a part needs.
    tools.megabytes = std::max(BuildLimits::Stored().megabytes, PhysicalMegabytes() / 4 * 3);
    return tools;
}

void AnalysisTools::Store() const
{
    UserSettings settings;
    settings.setValue(MesherKey, mesher.path);
    settings.setValue(SolverKey, solver.path);
    settings.setValue(SecondsKey, seconds);
    settings.setValue(FreedomsKey, maximumFreedoms);
}
