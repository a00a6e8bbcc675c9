#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

/// A finer or coarser mesh on some faces and edges, by their indices in the shape, from 1.
struct LocalMesh
{
    double size = 0.0; ///< Of the elements in mm; 0 where a number is given.
    int number = 0;    ///< Of elements along each edge; 0 where a size is given.
    std::vector<int> faces;
    std::vector<int> edges;
};

/// What the mesher has to do.
struct MeshRequest
{
    QString shapeFile; ///< The name of a BREP file in the mesher's folder; ASCII, without quotes.
    double size = 0.0; ///< Of the elements, in mm.
    std::vector<LocalMesh> local;
    std::vector<int> shellFaces; ///< Only these faces get elements; empty for solids.
};

/// The mesher's input: second-order elements, the same each time.
QByteArray MeshScript(const MeshRequest& request);
