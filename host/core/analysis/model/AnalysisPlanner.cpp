#include "AnalysisPlanner.h"

#include "ExpressionEngine.h"
#include "FieldValues.h"
#include "JsonSection.h"
#include "ModelBuilder.h"
#include "NumberTexts.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double DefaultSize = 0.1; // Of the longest side of the part's box.
constexpr double MaximumNumber = 10000.0;

/// Evaluates texts; an error names the owner of the text.
class Numbers
{
public:
    double Of(const QString& owner, const QString& what, const QString& text)
    {
        const double value = m_values.Evaluate(text);
        if (!std::isfinite(value))
            throw ModelError(ModelError::tr("%1: the %2 (%3) has no value: %4.")
                                 .arg(owner, what, Quoted(text), ExpressionEngine::LastError()));
        return value;
    }

    double Positive(const QString& owner, const QString& what, const QString& text)
    {
        const double value = Of(owner, what, text);
        if (!(value > 0.0))
            throw ModelError(ModelError::tr("%1: the %2 is %3, but has to be greater than 0.")
                                 .arg(owner, what, ShortText(value)));
        return value;
    }

    int Count(const QString& owner, const QString& what, const QString& text)
    {
        const double value = Of(owner, what, text);
        if (value != std::floor(value) || value < 1.0 || value > MaximumNumber)
            throw ModelError(
                ModelError::tr("%1: the %2 is %3, but has to be a whole number from 1 to %4.")
                    .arg(owner, what, ShortText(value), ShortText(MaximumNumber)));
        return int(value);
    }

    FieldValues& Values() { return m_values; }

private:
    FieldValues m_values;
};

double LongestSide(const ShapeMeasures& measures)
{
    const std::array<double, 6>& box = measures.boundingBox;
    return std::max({box[3] - box[0], box[4] - box[1], box[5] - box[2]});
}

void Append(const std::vector<FoundTarget>& found, std::size_t first, std::size_t count,
            const QString& owner, std::vector<int>& numbers)
{
    for (std::size_t place = first; place < first + count; ++place) {
        const FoundTarget& target = found.at(place);
        if (target.numbers.empty())
            throw ModelError(QStringLiteral("%1: %2").arg(owner, target.error));
        numbers.insert(numbers.end(), target.numbers.begin(), target.numbers.end());
    }
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
}

} // namespace

AnalysisPlanner::AnalysisPlanner(const AnalysisDefinition& definition, const QString& partMaterial)
{
    Numbers numbers;
    if (!definition.meshSize.isEmpty())
        m_plan.meshSize = numbers.Positive(ModelError::tr("The mesh"), ModelError::tr("size"),
                                           definition.meshSize);
    m_plan.frequencies = definition.frequencies;
    for (const PropertyDefinition& property : definition.properties) {
        const QString owner = ModelError::tr("The element property \"%1\"").arg(property.name);
        PlannedProperty planned;
        planned.name = property.name;
        planned.material = MaterialOf(property.material);
        if (!property.faces.empty())
            planned.thickness =
                numbers.Positive(owner, ModelError::tr("thickness"), property.thickness);
        m_plan.properties.push_back(planned);
        m_properties.push_back(Add(owner, property.faces, {}));
    }
    if (definition.properties.empty() && !partMaterial.isEmpty()) {
        m_plan.properties.push_back({{}, MaterialOf(partMaterial), 0.0, {}});
        m_properties.push_back({});
    }
    for (const ConstraintDefinition& constraint : definition.constraints) {
        m_plan.constraints.push_back({constraint.name, constraint.held, {}});
        m_constraints.push_back(
            Add(ModelError::tr("The boundary condition \"%1\"").arg(constraint.name),
                constraint.faces, constraint.edges));
    }
    for (const LoadDefinition& load : definition.loads) {
        const QString owner = ModelError::tr("The load \"%1\"").arg(load.name);
        Vector3 force{};
        for (std::size_t axis = 0; axis < force.size(); ++axis)
            force[axis] = numbers.Of(owner, ModelError::tr("force"), load.force[axis]);
        m_plan.loads.push_back({load.name, force, {}});
        m_loads.push_back(Add(owner, load.faces, load.edges));
    }
    for (const LocalMeshDefinition& local : definition.localMeshes) {
        const QString owner = ModelError::tr("A local mesh");
        LocalMesh planned;
        if (local.number.isEmpty())
            planned.size = numbers.Positive(owner, ModelError::tr("size"), local.size);
        else
            planned.number =
                numbers.Count(owner, ModelError::tr("number of elements"), local.number);
        m_plan.localMeshes.push_back(planned);
        m_localMeshes.push_back(Add(owner, local.faces, local.edges));
    }
}

AnalysisPlanner::Owner AnalysisPlanner::Add(const QString& text,
                                            const std::vector<FaceReference>& faces,
                                            const std::vector<EdgeReference>& edges)
{
    FieldValues values;
    Owner owner{text, m_faces.size(), faces.size(), m_edges.size(), edges.size()};
    for (const FaceReference& face : faces)
        m_faces.push_back(values.Of(face));
    for (const EdgeReference& edge : edges)
        m_edges.push_back(values.Of(edge));
    return owner;
}

void AnalysisPlanner::AddTargets(PartRequest& request) const
{
    request.faces = m_faces;
    request.edges = m_edges;
}

ShapeTarget AnalysisPlanner::TargetOf(const Owner& owner, const PartReply& reply)
{
    ShapeTarget target;
    Append(reply.faces, owner.firstFace, owner.faces, owner.text, target.faces);
    Append(reply.edges, owner.firstEdge, owner.edges, owner.text, target.edges);
    return target;
}

AnalysisPlan AnalysisPlanner::Plan(const PartReply& reply) const
{
    const QString overlaps = reply.measures.overlaps.AnalysisProblem();
    if (!overlaps.isEmpty())
        throw ModelError(overlaps);
    AnalysisPlan plan = m_plan;
    if (!(plan.meshSize > 0.0))
        plan.meshSize = DefaultSize * LongestSide(reply.measures);
    for (const int step : reply.solids)
        plan.bodies.push_back(reply.part.plan.at(std::size_t(step)).name);
    if (!reply.contacts.empty()) {
        const auto name = [&plan](int solid) {
            return ModelError::tr("body %1 (%2)")
                .arg(solid)
                .arg(plan.bodies.at(std::size_t(solid) - 1));
        };
        const auto& [first, second] = reply.contacts.front();
        throw ModelError(ModelError::tr("The bodies touch without being joined: %1 and %2. Fuse "
                                        "them, or leave a gap.")
                             .arg(name(first), name(second)));
    }
    for (std::size_t i = 0; i < plan.properties.size(); ++i) {
        plan.properties[i].faces = TargetOf(m_properties[i], reply).faces;
        for (std::size_t face = 0; face < m_properties[i].faces; ++face)
            plan.shellArea += reply.faces.at(m_properties[i].firstFace + face).area;
    }
    for (std::size_t i = 0; i < plan.constraints.size(); ++i)
        plan.constraints[i].target = TargetOf(m_constraints[i], reply);
    for (std::size_t i = 0; i < plan.loads.size(); ++i)
        plan.loads[i].target = TargetOf(m_loads[i], reply);
    for (std::size_t i = 0; i < plan.localMeshes.size(); ++i) {
        const ShapeTarget target = TargetOf(m_localMeshes[i], reply);
        plan.localMeshes[i].faces = target.faces;
        plan.localMeshes[i].edges = target.edges;
    }
    return plan;
}
