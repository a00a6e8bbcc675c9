#include "MeshRepair.h"

#include "ElementShapes.h"

#include <algorithm>

namespace {

// Elements below it are straightened. The solver refuses those at 0.
constexpr double LeastRatio = 0.1;

struct Distortion
{
    double least = 0.0;
    double greatest = 0.0;

    double Ratio() const { return greatest > 0.0 ? least / greatest : -1.0; }
};

template<class Values>
Distortion DistortionOf(const Values& values)
{
    const auto [least, greatest] = std::minmax_element(values.begin(), values.end());
    return {*least, *greatest};
}

// The nodes and the points of integration.
std::array<TetrahedronSlopes, 14> MakeTetrahedronPlaces()
{
    const std::array<Vector3, 4> corners = {{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
    std::array<TetrahedronSlopes, 14> slopes;
    std::size_t next = 0;
    for (const Vector3& corner : corners)
        slopes[next++] = SlopesOfTetrahedron(corner);
    for (const auto& [a, b] : TetrahedronEdges)
        slopes[next++] = SlopesOfTetrahedron(0.5 * (corners[a] + corners[b]));
    const double near = (5.0 - std::sqrt(5.0)) / 20.0;
    const double far = 1.0 - 4.0 * near;
    const Vector3 all = {near, near, near};
    for (const Vector3& corner : corners)
        slopes[next++] = SlopesOfTetrahedron(all + far * corner);
    return slopes;
}

std::vector<FacetShape> MakeFacetPlaces(int corners)
{
    std::vector<FacetShape> places;
    for (const FacetPoint& point : FacetPoints(corners))
        places.push_back(point.shape);
    const std::vector<std::pair<double, double>> nodes =
        corners == 3 ? std::vector<std::pair<double, double>>{{0, 0},   {1, 0},     {0, 1},
                                                              {0.5, 0}, {0.5, 0.5}, {0, 0.5}}
                     : std::vector<std::pair<double, double>>{{-1, -1}, {1, -1}, {1, 1}, {-1, 1},
                                                              {0, -1},  {1, 0},  {0, 1}, {-1, 0}};
    for (const auto& [r, s] : nodes)
        places.push_back(ShapeOfFacet(corners, r, s));
    return places;
}

Distortion DistortionOf(const Mesh& mesh, const Mesh::Tetrahedron& element)
{
    static const auto places = MakeTetrahedronPlaces();
    std::array<double, 14> determinants{};
    for (std::size_t place = 0; place < places.size(); ++place) {
        std::array<Vector3, 3> jacobian{};
        for (std::size_t i = 0; i < element.nodes.size(); ++i) {
            const Vector3& node = mesh.nodes[std::size_t(element.nodes[i])];
            for (std::size_t k = 0; k < 3; ++k)
                jacobian[k] = jacobian[k] + places[place][i][k] * node;
        }
        determinants[place] = Dot(jacobian[0], Cross(jacobian[1], jacobian[2]));
    }
    return DistortionOf(determinants);
}

Distortion DistortionOf(const Mesh& mesh, const Mesh::Facet& facet)
{
    static const auto triangle = MakeFacetPlaces(3);
    static const auto quadrilateral = MakeFacetPlaces(4);
    const Vector3 middle = FacetNormal(mesh, facet,
                                       facet.corners == 3 ? ShapeOfFacet(3, 1.0 / 3.0, 1.0 / 3.0)
                                                          : ShapeOfFacet(4, 0, 0));
    const double length = Length(middle);
    std::vector<double> areas;
    for (const FacetShape& place : facet.corners == 3 ? triangle : quadrilateral)
        areas.push_back(length > 0.0 ? Dot(FacetNormal(mesh, facet, place), middle) / length : 0.0);
    return DistortionOf(areas);
}

std::pair<std::size_t, std::size_t> EdgeOf(const Mesh::Tetrahedron&, std::size_t i)
{
    return TetrahedronEdges[i];
}

std::pair<std::size_t, std::size_t> EdgeOf(const Mesh::Facet& facet, std::size_t i)
{
    return {i, (i + 1) % std::size_t(facet.corners)};
}

std::size_t CornerCount(const Mesh::Tetrahedron&)
{
    return 4;
}

std::size_t CornerCount(const Mesh::Facet& facet)
{
    return std::size_t(facet.corners);
}

std::size_t NodeCount(const Mesh::Tetrahedron& element)
{
    return element.nodes.size();
}

std::size_t NodeCount(const Mesh::Facet& facet)
{
    return facet.NodeCount();
}

// The number of nodes that were not in the middle of their edge.
template<class Element>
int Straighten(Mesh& mesh, const Element& element)
{
    int moved = 0;
    for (std::size_t i = CornerCount(element); i < NodeCount(element); ++i) {
        const auto [a, b] = EdgeOf(element, i - CornerCount(element));
        const Vector3 middle = 0.5 * (mesh.nodes[std::size_t(element.nodes[a])] +
                                      mesh.nodes[std::size_t(element.nodes[b])]);
        Vector3& node = mesh.nodes[std::size_t(element.nodes[i])];
        if (node == middle)
            continue;
        node = middle;
        ++moved;
    }
    return moved;
}

template<class Element>
Vector3 MiddleOf(const Mesh& mesh, const Element& element)
{
    Vector3 sum{};
    for (std::size_t i = 0; i < CornerCount(element); ++i)
        sum = sum + mesh.nodes[std::size_t(element.nodes[i])];
    return (1.0 / double(CornerCount(element))) * sum;
}

template<class Element>
MeshQuality Repair(Mesh& mesh, const std::vector<Element>& elements)
{
    MeshQuality quality;
    // A straight element stays straight, so this ends; what it does to its neighbours is seen in
    // the next round.
    for (int moved = 1; moved > 0; quality.movedNodes += moved) {
        moved = 0;
        quality.worst = 1.0;
        for (const Element& element : elements) {
            const double ratio = DistortionOf(mesh, element).Ratio();
            if (ratio < LeastRatio)
                moved += Straighten(mesh, element);
            if (ratio >= quality.worst)
                continue;
            quality.worst = ratio;
            quality.worstPlace = MiddleOf(mesh, element);
        }
    }
    quality.isUsable = quality.worst > 0.0;
    return quality;
}

} // namespace

MeshQuality RepairMesh(Mesh& mesh)
{
    return mesh.IsSolid() ? Repair(mesh, mesh.tetrahedra) : Repair(mesh, mesh.facets);
}
