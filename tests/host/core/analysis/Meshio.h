#pragma once

#include "Mesh.h"
#include "TestFiles.h"

#include <QProcess>

/// Nodes and elements, one line each, as an independent reader finds them in the deck @p file of
/// that @p format. Returns its complaint if it fails.
inline QByteArray ReadByMeshio(const QString& file, const QString& format)
{
    Put("read.py", "import sys, meshio\n"
                   "mesh = meshio.read(sys.argv[1], file_format=sys.argv[2])\n"
                   "for point in mesh.points:\n"
                   "    print('%.9g %.9g %.9g' % tuple(point + 0.0))\n"
                   "lines = [' '.join([cells.type] + [str(node) for node in cell])\n"
                   "         for cells in mesh.cells for cell in cells.data]\n"
                   "print('\\n'.join(sorted(lines)))\n");
    QProcess reader;
    reader.start("/usr/bin/python3", {"-B", "read.py", file, format});
    reader.waitForFinished();
    return reader.readAllStandardOutput() + reader.readAllStandardError();
}

/// What ReadByMeshio() is to find.
inline QByteArray AsMeshioWrites(const Mesh& mesh)
{
    QByteArray text;
    for (const Vector3& node : mesh.nodes)
        text += QString::asprintf("%.9g %.9g %.9g\n", node[0], node[1], node[2]).toLatin1();
    QList<QByteArray> lines;
    const auto add = [&lines](const char* type, const auto& nodes, std::size_t count) {
        QByteArray line = type;
        for (std::size_t i = 0; i < count; ++i)
            line += ' ' + QByteArray::number(nodes[i]);
        lines << line;
    };
    for (const Mesh::Tetrahedron& element : mesh.tetrahedra)
        add("tetra10", element.nodes, 10);
    if (!mesh.IsSolid()) {
        for (const Mesh::Facet& facet : mesh.facets)
            add(facet.corners == 3 ? "triangle6" : "quad8", facet.nodes, facet.NodeCount());
    }
    std::sort(lines.begin(), lines.end());
    return text + lines.join('\n') + '\n';
}
