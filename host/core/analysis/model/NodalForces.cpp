#include "NodalForces.h"

NodalForces::NodalForces(const Mesh& mesh)
    : m_mesh(mesh)
    , m_shares(mesh.nodes.size(), 0.0)
{
}

void NodalForces::Add(int node, double share)
{
    m_shares[std::size_t(node)] += share;
    m_content += share;
}

void NodalForces::Add(const Mesh::Facet& facet)
{
    for (const FacetPoint& point : FacetPoints(facet.corners)) {
        const double area = point.weight * Length(FacetNormal(m_mesh, facet, point.shape));
        for (std::size_t i = 0; i < facet.NodeCount(); ++i)
            Add(facet.nodes[i], point.shape.values[i] * area);
    }
}

void NodalForces::Add(const Mesh::Line& line)
{
    const std::array<std::pair<double, double>, 3> points = {
        {{-std::sqrt(0.6), 5.0 / 9.0}, {0.0, 8.0 / 9.0}, {std::sqrt(0.6), 5.0 / 9.0}}};
    for (const auto& [r, weight] : points) {
        const std::array<double, 3> values = {r * (r - 1.0) / 2.0, r * (r + 1.0) / 2.0,
                                              1.0 - r * r};
        const std::array<double, 3> slopes = {r - 0.5, r + 0.5, -2.0 * r};
        Vector3 tangent{};
        for (std::size_t i = 0; i < 3; ++i)
            tangent = tangent + slopes[i] * m_mesh.nodes[std::size_t(line.nodes[i])];
        for (std::size_t i = 0; i < 3; ++i)
            Add(line.nodes[i], values[i] * weight * Length(tangent));
    }
}

void NodalForces::Spread(const Vector3& force, std::vector<Vector3>& forces) const
{
    for (std::size_t node = 0; node < m_shares.size(); ++node) {
        if (m_shares[node] != 0.0)
            forces[node] = forces[node] + (m_shares[node] / m_content) * force;
    }
}
