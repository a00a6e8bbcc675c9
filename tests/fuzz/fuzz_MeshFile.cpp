#include "InputFile.h"
#include "MeshFile.h"

// A mesh that is read refers to its own nodes only, and has elements.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const InputFile input(data, size);
    try {
        const Mesh mesh = ReadMeshFile(QString::fromStdString(input.Path()));
        const auto check = [&mesh](int node) {
            if (node < 0 || std::size_t(node) >= mesh.nodes.size())
                __builtin_trap();
        };
        for (const Mesh::Tetrahedron& element : mesh.tetrahedra) {
            for (const int node : element.nodes)
                check(node);
        }
        for (const Mesh::Facet& facet : mesh.facets) {
            for (std::size_t i = 0; i < facet.NodeCount(); ++i)
                check(facet.nodes[i]);
        }
        for (const Mesh::Line& line : mesh.lines) {
            for (const int node : line.nodes)
                check(node);
        }
        if (mesh.ElementCount() == 0)
            __builtin_trap();
    } catch (const MeshError&) {
        return 0;
    }
    return 0;
}
