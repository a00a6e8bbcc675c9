#include "MeshParts.h"

#include <map>
#include <numeric>

namespace {

/// Sets of nodes that are joined step by step.
class NodeSets
{
public:
    explicit NodeSets(std::size_t count)
        : m_parents(count)
    {
        std::iota(m_parents.begin(), m_parents.end(), 0);
    }

    int Find(int node)
    {
        while (Parent(node) != node) {
            Parent(node) = Parent(Parent(node));
            node = Parent(node);
        }
        return node;
    }

    void Join(int a, int b)
    {
        a = Find(a);
        b = Find(b);
        // The least node stands for its set.
        Parent(a > b ? a : b) = a > b ? b : a;
    }

private:
    int& Parent(int node) { return m_parents[std::size_t(node)]; }

    std::vector<int> m_parents;
};

} // namespace

std::vector<MeshPart> PartsOf(const Mesh& mesh)
{
    NodeSets sets(mesh.nodes.size());
    for (const Mesh::Tetrahedron& element : mesh.tetrahedra) {
        for (const int node : element.nodes)
            sets.Join(element.nodes[0], node);
    }
    for (const Mesh::Facet& facet : mesh.facets) {
        for (std::size_t i = 1; i < facet.NodeCount(); ++i)
            sets.Join(facet.nodes[0], facet.nodes[i]);
    }
    std::map<int, MeshPart> parts;
    for (int node = 0; node < int(mesh.nodes.size()); ++node)
        parts[sets.Find(node)].nodes.push_back(node);
    for (const Mesh::Tetrahedron& element : mesh.tetrahedra)
        parts[sets.Find(element.nodes[0])].body = element.body;
    std::vector<MeshPart> list;
    list.reserve(parts.size());
    for (auto& [first, part] : parts)
        list.push_back(std::move(part));
    return list;
}
