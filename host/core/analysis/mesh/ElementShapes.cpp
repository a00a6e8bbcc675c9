#include "ElementShapes.h"

namespace {

FacetShape ShapeOfTriangle(double r, double s)
{
    const std::array<double, 3> area = {1.0 - r - s, r, s};
    const std::array<std::array<double, 2>, 3> slope = {{{-1.0, -1.0}, {1.0, 0.0}, {0.0, 1.0}}};
    FacetShape shape;
    for (std::size_t i = 0; i < 3; ++i) {
        const std::size_t next = (i + 1) % 3;
        shape.values[i] = area[i] * (2.0 * area[i] - 1.0);
        shape.values[3 + i] = 4.0 * area[i] * area[next];
        for (std::size_t k = 0; k < 2; ++k) {
            shape.slopes[i][k] = (4.0 * area[i] - 1.0) * slope[i][k];
            shape.slopes[3 + i][k] = 4.0 * (area[i] * slope[next][k] + area[next] * slope[i][k]);
        }
    }
    return shape;
}

FacetShape ShapeOfQuadrilateral(double r, double s)
{
    constexpr std::array<std::array<double, 2>, 8> Nodes = {
        {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}, {0, -1}, {1, 0}, {0, 1}, {-1, 0}}};
    FacetShape shape;
    for (std::size_t i = 0; i < Nodes.size(); ++i) {
        const double a = Nodes[i][0];
        const double b = Nodes[i][1];
        const double u = 1.0 + a * r;
        const double v = 1.0 + b * s;
        if (i < 4) {
            shape.values[i] = u * v * (a * r + b * s - 1.0) / 4.0;
            shape.slopes[i] = {a * v * (2.0 * a * r + b * s) / 4.0,
                               b * u * (2.0 * b * s + a * r) / 4.0};
        } else if (a == 0.0) {
            shape.values[i] = (1.0 - r * r) * v / 2.0;
            shape.slopes[i] = {-r * v, b * (1.0 - r * r) / 2.0};
        } else {
            shape.values[i] = (1.0 - s * s) * u / 2.0;
            shape.slopes[i] = {a * (1.0 - s * s) / 2.0, -s * u};
        }
    }
    return shape;
}

// The formula with seven points, from the source above, table 8.2.
std::vector<FacetPoint> TrianglePoints()
{
    const double root = std::sqrt(15.0);
    std::vector<FacetPoint> points = {{ShapeOfTriangle(1.0 / 3.0, 1.0 / 3.0), 9.0 / 80.0}};
    for (const double sign : {1.0, -1.0}) {
        const double a = (6.0 + sign * root) / 21.0;
        const double b = 1.0 - 2.0 * a;
        const double weight = (155.0 + sign * root) / 2400.0;
        points.push_back({ShapeOfTriangle(a, a), weight});
        points.push_back({ShapeOfTriangle(a, b), weight});
        points.push_back({ShapeOfTriangle(b, a), weight});
    }
    return points;
}

std::vector<FacetPoint> QuadrilateralPoints()
{
    const double outer = std::sqrt(0.6);
    const std::array<std::pair<double, double>, 3> line = {
        {{-outer, 5.0 / 9.0}, {0.0, 8.0 / 9.0}, {outer, 5.0 / 9.0}}};
    std::vector<FacetPoint> points;
    for (const auto& [r, weightR] : line) {
        for (const auto& [s, weightS] : line)
            points.push_back({ShapeOfQuadrilateral(r, s), weightR * weightS});
    }
    return points;
}

} // namespace

TetrahedronSlopes SlopesOfTetrahedron(const Vector3& place)
{
    const std::array<double, 4> volume = {1.0 - place[0] - place[1] - place[2], place[0], place[1],
                                          place[2]};
    const std::array<Vector3, 4> slope = {{{-1, -1, -1}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
    TetrahedronSlopes slopes;
    for (std::size_t i = 0; i < 4; ++i)
        slopes[i] = (4.0 * volume[i] - 1.0) * slope[i];
    for (std::size_t i = 0; i < TetrahedronEdges.size(); ++i) {
        const auto [a, b] = TetrahedronEdges[i];
        slopes[4 + i] = 4.0 * volume[a] * slope[b] + 4.0 * volume[b] * slope[a];
    }
    return slopes;
}

FacetShape ShapeOfFacet(int corners, double r, double s)
{
    return corners == 3 ? ShapeOfTriangle(r, s) : ShapeOfQuadrilateral(r, s);
}

const std::vector<FacetPoint>& FacetPoints(int corners)
{
    static const std::vector<FacetPoint> triangle = TrianglePoints();
    static const std::vector<FacetPoint> quadrilateral = QuadrilateralPoints();
    return corners == 3 ? triangle : quadrilateral;
}

Vector3 FacetNormal(const Mesh& mesh, const Mesh::Facet& facet, const FacetShape& shape)
{
    Vector3 alongR{};
    Vector3 alongS{};
    for (std::size_t i = 0; i < facet.NodeCount(); ++i) {
        const Vector3& node = mesh.nodes[std::size_t(facet.nodes[i])];
        alongR = alongR + shape.slopes[i][0] * node;
        alongS = alongS + shape.slopes[i][1] * node;
    }
    return Cross(alongR, alongS);
}
