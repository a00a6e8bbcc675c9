#include "ModelBuilder.h"

#include "MeshParts.h"
#include "NodalForces.h"
#include "RigidMotions.h"

#include <algorithm>
#include <map>
#include <set>

namespace {

constexpr double PascalsPerMegapascal = 1e6;
constexpr double KilogramsPerCubicMetre = 1e12; // In a t/mm3.

SolverMaterial InSolverUnits(const Material& material)
{
    return {material.elasticModulus / PascalsPerMegapascal, material.poisson,
            material.density / KilogramsPerCubicMetre};
}

QString PropertyText(const PlannedProperty& property)
{
    return property.name.isEmpty() ? property.material.name : property.name;
}

void AddSolidSection(const AnalysisPlan& plan, FiniteElementModel& model)
{
    if (plan.properties.size() != 1)
        throw ModelError(
            plan.properties.empty()
                ? ModelError::tr("The part has no material.")
                : ModelError::tr("The element properties %1 and %2 both hold for the "
                                 "whole part: delete one of them, or give it faces.")
                      .arg(PropertyText(plan.properties[0]), PropertyText(plan.properties[1])));
    ModelSection section;
    for (std::size_t element = 0; element < model.mesh.tetrahedra.size(); ++element)
        section.elements.push_back(element);
    model.materials.push_back(InSolverUnits(plan.properties[0].material));
    model.sections.push_back(section);
}

void AddShellSections(const AnalysisPlan& plan, FiniteElementModel& model)
{
    std::map<int, std::size_t> sections; // By face.
    for (std::size_t place = 0; place < plan.properties.size(); ++place) {
        const PlannedProperty& property = plan.properties[place];
        if (property.faces.empty())
            throw ModelError(ModelError::tr("The element property %1 has no faces, but others "
                                            "have: one model has either shells or solids.")
                                 .arg(PropertyText(property)));
        for (const int face : property.faces) {
            const auto [entry, isNew] = sections.insert({face, place});
            if (!isNew && entry->second != place)
                throw ModelError(
                    ModelError::tr("The element properties %1 and %2 have a face in "
                                   "common.")
                        .arg(PropertyText(plan.properties[entry->second]), PropertyText(property)));
        }
        model.materials.push_back(InSolverUnits(property.material));
        model.sections.push_back({place, property.thickness, {}});
    }
    for (std::size_t element = 0; element < model.mesh.facets.size(); ++element) {
        const auto section = sections.find(model.mesh.facets[element].face);
        if (section == sections.end())
            throw ModelError(ModelError::tr("The mesh has shells on a face without a property."));
        model.sections[section->second].elements.push_back(element);
    }
    for (std::size_t place = 0; place < plan.properties.size(); ++place) {
        if (model.sections[place].elements.empty())
            throw ModelError(ModelError::tr("The element property %1 has no elements.")
                                 .arg(PropertyText(plan.properties[place])));
    }
}

/// The facets and lines of a mesh by face and edge.
class TargetElements
{
public:
    explicit TargetElements(const Mesh& mesh)
    {
        for (const Mesh::Facet& facet : mesh.facets)
            m_facets[facet.face].push_back(&facet);
        for (const Mesh::Line& line : mesh.lines)
            m_lines[line.edge].push_back(&line);
    }

    /// @throws ModelError if one of the faces or edges has no elements
    std::vector<const Mesh::Facet*> Facets(const QString& owner, const ShapeTarget& target) const
    {
        return Chosen(m_facets, target.faces, owner);
    }
    std::vector<const Mesh::Line*> Lines(const QString& owner, const ShapeTarget& target) const
    {
        return Chosen(m_lines, target.edges, owner);
    }

private:
    template<class Element>
    using ByIndex = std::map<int, std::vector<const Element*>>;

    template<class Element>
    static std::vector<const Element*> Chosen(const ByIndex<Element>& elements,
                                              const std::vector<int>& indices, const QString& owner)
    {
        std::vector<const Element*> chosen;
        for (const int index : std::set<int>(indices.begin(), indices.end())) {
            const auto found = elements.find(index);
            if (found == elements.end())
                throw ModelError(ModelError::tr("%1 is on a face or an edge without elements: give "
                                                "the face an element property, or choose another "
                                                "one.")
                                     .arg(owner));
            chosen.insert(chosen.end(), found->second.begin(), found->second.end());
        }
        return chosen;
    }

    ByIndex<Mesh::Facet> m_facets;
    ByIndex<Mesh::Line> m_lines;
};

void AddConstraints(const AnalysisPlan& plan, const TargetElements& targets, BuiltModel& built)
{
    FiniteElementModel& model = built.model;
    for (const PlannedConstraint& constraint : plan.constraints) {
        const QString owner = ModelError::tr("The boundary condition \"%1\"").arg(constraint.name);
        if (constraint.target.faces.empty() && constraint.target.edges.empty())
            throw ModelError(ModelError::tr("%1 has no faces and no edges.").arg(owner));
        std::uint8_t held = 0;
        for (std::size_t freedom = 0; freedom < constraint.held.size(); ++freedom)
            held = std::uint8_t(held | (constraint.held[freedom] ? 1u << freedom : 0u));
        if (held == 0)
            throw ModelError(ModelError::tr("%1 fixes no degree of freedom.").arg(owner));
        if (model.mesh.IsSolid() && (held & FiniteElementModel::Displacements) == 0)
            built.warnings
                << ModelError::tr("%1 has no effect: solids have no rotations to hold.").arg(owner);
        else if (model.mesh.IsSolid() && (held & FiniteElementModel::Rotations) != 0)
            built.warnings
                << ModelError::tr("%1: holding rotations has no effect on solids.").arg(owner);
        held = std::uint8_t(held & model.Freedoms());
        for (const Mesh::Facet* const facet : targets.Facets(owner, constraint.target)) {
            for (std::size_t i = 0; i < facet->NodeCount(); ++i)
                model.held[std::size_t(facet->nodes[i])] |= held;
        }
        for (const Mesh::Line* const line : targets.Lines(owner, constraint.target)) {
            for (const int node : line->nodes)
                model.held[std::size_t(node)] |= held;
        }
    }
}

void AddLoads(const AnalysisPlan& plan, const TargetElements& targets, FiniteElementModel& model)
{
    for (const PlannedLoad& load : plan.loads) {
        const QString owner = ModelError::tr("The load \"%1\"").arg(load.name);
        if (load.target.faces.empty() == load.target.edges.empty())
            throw ModelError(ModelError::tr("%1 needs either faces or edges.").arg(owner));
        NodalForces forces(model.mesh);
        for (const Mesh::Facet* const facet : targets.Facets(owner, load.target))
            forces.Add(*facet);
        for (const Mesh::Line* const line : targets.Lines(owner, load.target))
            forces.Add(*line);
        forces.Spread(load.force, model.forces);
    }
}

} // namespace

std::vector<int> AnalysisPlan::ShellFaces() const
{
    std::set<int> shells;
    for (const PlannedProperty& property : properties)
        shells.insert(property.faces.begin(), property.faces.end());
    return {shells.begin(), shells.end()};
}

BuiltModel BuildModel(Mesh mesh, const AnalysisPlan& plan)
{
    BuiltModel built;
    FiniteElementModel& model = built.model;
    model.mesh = std::move(mesh);
    model.held.assign(model.mesh.nodes.size(), 0);
    model.forces.assign(model.mesh.nodes.size(), Vector3{});
    if (model.mesh.IsSolid())
        AddSolidSection(plan, model);
    else
        AddShellSections(plan, model);
    const TargetElements targets(model.mesh);
    AddConstraints(plan, targets, built);
    AddLoads(plan, targets, model);
    return built;
}

int CountRigidModes(const FiniteElementModel& model)
{
    int count = 0;
    for (const MeshPart& part : PartsOf(model.mesh))
        count += RigidMotions(model, part.nodes).Count();
    return count;
}

void CheckStatic(const FiniteElementModel& model, const std::vector<QString>& bodies)
{
    const std::vector<MeshPart> parts = PartsOf(model.mesh);
    for (const MeshPart& part : parts) {
        const QString words = RigidMotions(model, part.nodes).Words();
        if (words.isEmpty())
            continue;
        QString name = ModelError::tr("The part");
        if (parts.size() > 1) {
            name = ModelError::tr("Body %1").arg(part.body);
            if (part.body >= 1 && std::size_t(part.body) <= bodies.size())
                name = bodies[std::size_t(part.body) - 1];
        }
        throw ModelError(ModelError::tr("%1 is %2: add supports.").arg(name, words));
    }
    const bool isLoaded = std::any_of(model.forces.begin(), model.forces.end(),
                                      [](const Vector3& force) { return Length(force) > 0.0; });
    if (!isLoaded)
        throw ModelError(
            ModelError::tr("The set-up has no load, so nothing moves. Add a load first."));
    CheckVibration(model);
}

void CheckVibration(const FiniteElementModel& model)
{
    const bool canMove = std::any_of(model.held.begin(), model.held.end(), [&](std::uint8_t held) {
        return (held & FiniteElementModel::Displacements) != FiniteElementModel::Displacements;
    });
    if (!canMove)
        throw ModelError(
            ModelError::tr("All nodes are held, so nothing can move: hold fewer faces, "
                           "or make the mesh finer."));
}
