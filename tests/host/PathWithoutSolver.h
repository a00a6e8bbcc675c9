#pragma once

#include "AnalysisTools.h"

#include <QDir>
#include <QFile>
#include <QtGlobal>

/// While it lives, the mesher is the only program in PATH. It is in the folder "bin" of the working
/// directory.
class PathWithoutSolver
{
public:
    PathWithoutSolver()
        : m_before(qgetenv("PATH"))
    {
        QDir().mkpath(QStringLiteral("bin"));
        const QString mesher = AnalysisTools().mesher.Executable();
        QFile::link(mesher, QStringLiteral("bin/gmsh"));
        qputenv("PATH", QFile::encodeName(QDir::current().absoluteFilePath(QStringLiteral("bin"))));
    }
    ~PathWithoutSolver() { qputenv("PATH", m_before); }
    Q_DISABLE_COPY(PathWithoutSolver)

private:
    QByteArray m_before;
};
