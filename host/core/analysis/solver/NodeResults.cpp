#include "NodeResults.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace {

[[noreturn]] void Fail()
{
    throw ResultError(ResultError::tr("The solver's results do not belong to this mesh."));
}

double VonMises(const double* stress)
{
    const double xx = stress[0];
    const double yy = stress[1];
    const double zz = stress[2];
    const double shear = stress[3] * stress[3] + stress[4] * stress[4] + stress[5] * stress[5];
    return std::sqrt(((xx - yy) * (xx - yy) + (yy - zz) * (yy - zz) + (zz - xx) * (zz - xx)) / 2.0 +
                     3.0 * shear);
}

/// The values of a field by the solver's node number.
class NodeValues
{
public:
    explicit NodeValues(const ResultField& field)
        : m_field(field)
    {
        for (std::size_t place = 0; place < field.nodes.size(); ++place)
            m_places[field.nodes[place]] = place;
    }

    const double* At(int node) const
    {
        const auto found = m_places.find(node);
        if (found == m_places.end())
            Fail();
        return m_field.values.data() + found->second * m_field.components;
    }

    Vector3 VectorAt(int node) const
    {
        const double* const values = At(node);
        return {values[0], values[1], values[2]};
    }

private:
    const ResultField& m_field;
    std::unordered_map<int, std::size_t> m_places;
};

std::vector<Vector3> DisplacementsOf(const ResultField& field, const Mesh& mesh)
{
    std::vector<Vector3> displacements(mesh.nodes.size());
    std::vector<bool> isKnown(mesh.nodes.size(), false);
    for (std::size_t place = 0; place < field.nodes.size(); ++place) {
        const int node = field.nodes[place] - 1;
        if (node < 0 || node >= int(mesh.nodes.size()))
            Fail();
        const double* const values = field.values.data() + place * field.components;
        displacements[std::size_t(node)] = {values[0], values[1], values[2]};
        isKnown[std::size_t(node)] = true;
    }
    if (std::find(isKnown.begin(), isKnown.end(), false) != isKnown.end())
        Fail();
    return displacements;
}

/// Where the solver has put the nodes of a shell: the corners of both sides, the mid-nodes of the
/// first side, those between the sides, those of the second one.
class ExpandedShell
{
public:
    ExpandedShell(const ResultElement& element, const Mesh::Facet& facet)
        : m_element(element)
        , m_corners(std::size_t(facet.corners))
    {
        if (element.nodes.size() != 5 * m_corners)
            Fail();
    }

    /// The nodes on both sides at node @p i of the facet.
    std::pair<int, int> Sides(std::size_t i) const
    {
        const std::size_t first = i < m_corners ? i : m_corners + i;
        const std::size_t second = i < m_corners ? m_corners + i : 3 * m_corners + i;
        return {m_element.nodes[first], m_element.nodes[second]};
    }

private:
    const ResultElement& m_element;
    std::size_t m_corners;
};

void FillShells(const ResultFile& file, const ResultField& moves, const ResultField& stresses,
                const Mesh& mesh, StaticResult& result)
{
    const NodeValues move(moves);
    const NodeValues stress(stresses);
    if (file.elements.size() != mesh.facets.size())
        Fail();
    for (const ResultElement& element : file.elements) {
        if (element.id < 1 || element.id > int(mesh.facets.size()))
            Fail();
        const Mesh::Facet& facet = mesh.facets[std::size_t(element.id) - 1];
        const ExpandedShell shell(element, facet);
        for (std::size_t i = 0; i < facet.NodeCount(); ++i) {
            const auto node = std::size_t(facet.nodes[i]);
            const auto [first, second] = shell.Sides(i);
            result.displacements[node] = 0.5 * (move.VectorAt(first) + move.VectorAt(second));
            result.stresses[node] = std::max(
                {result.stresses[node], VonMises(stress.At(first)), VonMises(stress.At(second))});
        }
    }
}

void FillSolids(const ResultField& moves, const ResultField& stresses, const Mesh& mesh,
                StaticResult& result)
{
    result.displacements = DisplacementsOf(moves, mesh);
    const NodeValues stress(stresses);
    for (std::size_t node = 0; node < mesh.nodes.size(); ++node)
        result.stresses[node] = VonMises(stress.At(int(node) + 1));
}

const ResultField& LastField(const ResultFile& file, QLatin1String name)
{
    const auto found = std::find_if(file.fields.rbegin(), file.fields.rend(),
                                    [&](const ResultField& field) { return field.name == name; });
    if (found == file.fields.rend())
        throw ResultError(ResultError::tr("The solver's file has no results."));
    return *found;
}

} // namespace

std::vector<std::vector<Vector3>> ModeShapes(const ResultFile& file, const Mesh& mesh)
{
    std::vector<std::vector<Vector3>> shapes;
    for (const ResultField& field : file.fields) {
        if (field.name == QLatin1String("DISP"))
            shapes.push_back(DisplacementsOf(field, mesh));
    }
    return shapes;
}

StaticResult StaticResults(const ResultFile& file, const Mesh& mesh)
{
    const ResultField& moves = LastField(file, QLatin1String("DISP"));
    const ResultField& stresses = LastField(file, QLatin1String("STRESS"));
    StaticResult result;
    result.displacements.resize(mesh.nodes.size());
    result.stresses.resize(mesh.nodes.size());
    if (mesh.IsSolid())
        FillSolids(moves, stresses, mesh, result);
    else
        FillShells(file, moves, stresses, mesh, result);
    for (std::size_t node = 0; node < mesh.nodes.size(); ++node) {
        if (const double length = Length(result.displacements[node]);
            length > result.maximumDisplacement) {
            result.maximumDisplacement = length;
            result.displacedNode = int(node);
        }
        if (result.stresses[node] > result.maximumStress) {
            result.maximumStress = result.stresses[node];
            result.stressedNode = int(node);
        }
    }
    return result;
}
