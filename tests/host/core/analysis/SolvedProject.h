#pragma once

#include "EmptyAnalysisStores.h"
#include "EmptyDesignStores.h"
#include "MaterialLibrary.h"
#include "Project.h"
#include "SolveJob.h"
#include "TestFiles.h"

#include <QDir>

/// A beam of l x 10 x 10 mm: clamped at x = 0, pulled at the other end.
const QByteArray BeamProject = R"({
    "version": 2, "material": "Steel S355",
    "parameters": [{"name": "l", "type": "Scalar", "value": 100},
                   {"name": "double_l", "type": "Scalar", "expression": "2 * l",
                    "expressionParameters": ["l"]}],
    "features": [{"name": "beam", "kind": "box", "fields": {"x": "l", "y": 10, "z": 10}}],
    "analysis": {
        "meshSize": "l / 10",
        "frequencies": {"number": 3},
        "constraints": [{"name": "clamp", "held": ["X_D", "Y_D", "Z_D"], "faces": ["beam.xmin"]}],
        "loads": [{"name": "pull", "force": [2000, 0, "l"], "faces": ["beam.xmax"]}]}})";

/// The beam with one piece of text replaced.
inline QByteArray Beam(const QByteArray& from, const QByteArray& to)
{
    QByteArray project = BeamProject;
    if (!project.contains(from))
        qFatal("The beam has no such text.");
    return project.replace(from, to);
}

/// Analyses of projects in the folder "out" of the working directory. Materials and parameters are
/// those of the last project.
struct SolvedProject
{
    SolvedProject() { QDir().mkpath("out"); }

    SolveInput Input(const QByteArray& json, bool isStatic = false)
    {
        Put("p.json", json);
        const Project project = Project::Load("p.json");
        project.FillParameterStore();
        ReadMaterials(project.Folder());
        PartRequest part;
        part.wantsShapes = false;
        part.plan = project.Plan();
        return {part,
                AnalysisPlanner(project.Analysis(), project.Material()),
                QDir::current().absoluteFilePath("out"),
                isStatic,
                false,
                tools};
    }

    SolveResultPointer Solve(const QByteArray& json, bool isStatic = false)
    {
        return job.Run(Input(json, isStatic));
    }

    EmptyDesignStores design;
    EmptyAnalysisStores analysis;
    AnalysisTools tools;
    KernelWorker worker;
    SolveJob job{worker};
};
