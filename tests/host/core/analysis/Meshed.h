#pragma once

#include "AnalysisTools.h"
#include "MeshFile.h"
#include "MeshScript.h"
#include "TestFiles.h"

#include <BRepTools.hxx>
#include <QProcess>
#include <TopoDS_Shape.hxx>

#include <stdexcept>

/// The mesh of a shape, made by the mesher in the working directory. Throws if it fails.
inline Mesh Meshed(const TopoDS_Shape& shape, MeshRequest request)
{
    request.shapeFile = "part.brep";
    BRepTools::Write(shape, "part.brep");
    Put("part.geo", MeshScript(request));
    QProcess mesher;
    mesher.setProcessChannelMode(QProcess::MergedChannels);
    mesher.start(AnalysisTools().mesher.Executable(),
                 {request.shellFaces.empty() ? "-3" : "-2", "part.geo", "-o", "part.msh"});
    if (!mesher.waitForFinished(120000) || mesher.exitCode() != 0)
        throw std::runtime_error(mesher.readAll().toStdString());
    return ReadMeshFile("part.msh");
}

inline MeshRequest OfSize(double size)
{
    MeshRequest request;
    request.size = size;
    return request;
}
