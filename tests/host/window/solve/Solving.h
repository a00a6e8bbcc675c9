#pragma once

#include "Script.h"
#include "SolveProcess.h"
#include "SolvedProject.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

#include <csignal>

Q_DECLARE_METATYPE(SolveProcess::Outcome)

/// The beam, with the stores filled.
inline Project BeamFrom(const QByteArray& json = BeamProject)
{
    Put(QStringLiteral("p.json"), json);
    Project project = Project::Load(QStringLiteral("p.json"));
    project.FillParameterStore();
    ReadMaterials(project.Folder());
    return project;
}

/// While it lives, the solver is a program that does not end.
class EndlessSolver
{
public:
    EndlessSolver()
        : m_id(QDir::current().absoluteFilePath(QStringLiteral("id")))
    {
        QByteArray script = "echo $$ > ID.new\nmv ID.new ID\nexec sleep 600\n";
        AnalysisTools tools;
        tools.solver.path =
            PutScript(QStringLiteral("endless"), script.replace("ID", QFile::encodeName(m_id)));
        tools.Store();
    }
    ~EndlessSolver() { AnalysisTools().Store(); }
    Q_DISABLE_COPY(EndlessSolver)

    bool HasStarted() const { return QFile::exists(m_id); }
    bool IsRunning() const { return ::kill(pid_t(ContentOf(m_id).toInt()), 0) == 0; }

private:
    QString m_id;
};
