#include "MeshFile.h"
#include "RunBenchmarks.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <random>
#include <string>

// Reads the mesh of a solid from a file such as the mesher writes.

namespace {

constexpr int NodesOfElement = 10;
constexpr int Skin = 6; // Nodes of a triangle.

// As many nodes for each element as in the mesh of the flange.
QByteArray MeshText(int nodes)
{
    const int elements = nodes * 3 / 5;
    const int facets = nodes / 8;
    std::mt19937 random(1);
    QByteArray text = "$MeshFormat\n2.2 0 8\n$EndMeshFormat\n$Nodes\n" + QByteArray::number(nodes);
    for (int node = 1; node <= nodes; ++node) {
        text += '\n' + QByteArray::number(node);
        for (int axis = 0; axis < 3; ++axis)
            text += ' ' + QByteArray::number(double(random()) / 1e7 - 200.0, 'g', 16);
    }
    text += "\n$EndNodes\n$Elements\n" + QByteArray::number(elements + facets);
    const auto add = [&](int id, const char* kind, int first, int count) {
        text += '\n' + QByteArray::number(id) + kind;
        for (int i = 0; i < count; ++i)
            text += ' ' + QByteArray::number(1 + (first + i) % nodes);
    };
    for (int facet = 0; facet < facets; ++facet)
        add(facet + 1, " 9 2 1 1", 8 * facet, Skin);
    for (int element = 0; element < elements; ++element)
        add(facets + element + 1, " 11 2 1 1", 5 * element / 3, NodesOfElement);
    return text + "\n$EndElements\n";
}

void Read(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("part.msh"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(MeshText(int(state.range(0)))) < 0)
        state.SkipWithError("the mesh was not written");
    file.close();
    for (auto _ : state) {
        if (ReadMeshFile(path).nodes.size() != std::size_t(state.range(0)))
            state.SkipWithError("nodes are missing");
    }
}

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarks(argc, argv, [] {
        benchmark::RegisterBenchmark("Read/ours", Read)
            ->Arg(1000000)
            ->Unit(benchmark::kMillisecond);
    });
}
