#include "MeshSkin.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace {

/// Gives the nodes of each face points of their own.
class Skin
{
public:
    explicit Skin(const Mesh& mesh)
        : m_mesh(mesh)
    {
    }

    MeshSkin Make()
    {
        std::map<int, std::vector<const Mesh::Facet*>> faces;
        for (const Mesh::Facet& facet : m_mesh.facets)
            faces[facet.face].push_back(&facet);
        for (const auto& [face, facets] : faces) {
            m_points.clear();
            m_lines.clear();
            for (const Mesh::Facet* const facet : facets)
                Add(*facet);
        }
        return std::move(m_skin);
    }

private:
    int PointOf(int node)
    {
        const auto [point, isNew] = m_points.emplace(node, int(m_skin.points.size()));
        if (isNew) {
            const Vector3& place = m_mesh.nodes[std::size_t(node)];
            m_skin.points.push_back({float(place[0]), float(place[1]), float(place[2])});
            m_skin.nodes.push_back(node);
        }
        return point->second;
    }

    void Add(const Mesh::Facet& facet)
    {
        std::array<int, 8> points{};
        for (std::size_t i = 0; i < facet.NodeCount(); ++i)
            points[i] = PointOf(facet.nodes[i]);
        const auto corners = std::size_t(facet.corners);
        for (std::size_t i = 0; i < corners; ++i) {
            const std::size_t before = (i + corners - 1) % corners;
            const int middle = points[corners + i];
            m_skin.triangles.push_back({points[i], middle, points[corners + before]});
            AddLine(points[i], middle);
            AddLine(middle, points[(i + 1) % corners]);
        }
        // What is left between the mid-nodes.
        for (std::size_t i = 2; i < corners; ++i)
            m_skin.triangles.push_back(
                {points[corners], points[corners + i - 1], points[corners + i]});
    }

    // Neighbours share an edge.
    void AddLine(int from, int to)
    {
        const auto [least, greatest] = std::minmax(from, to);
        if (m_lines.insert((std::uint64_t(least) << 32) | std::uint64_t(greatest)).second)
            m_skin.lines.push_back({least, greatest});
    }

    const Mesh& m_mesh;
    MeshSkin m_skin;
    std::unordered_map<int, int> m_points; // Of the face at hand, by node.
    std::unordered_set<std::uint64_t> m_lines;
};

} // namespace

MeshSkin SkinOf(const Mesh& mesh)
{
    return Skin(mesh).Make();
}
