#include "SetupCheck.h"

#include "AnalysisType.h"
#include "BuildError.h"
#include "BuiltPart.h"
#include "ExpressionEngine.h"
#include "FieldValues.h"
#include "MaterialLibrary.h"
#include "NumberTexts.h"
#include "PartFaces.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <set>

namespace {

/// Collects the problems of one set-up.
class Check
{
    Q_DECLARE_TR_FUNCTIONS(SetupCheck)

public:
    Check(const AnalysisDefinition& analysis, const SetupContext& context)
        : m_analysis(analysis)
        , m_context(context)
    {
    }

    std::vector<SetupProblem> Run()
    {
        CheckPart();
        CheckType();
        CheckProperties();
        CheckConstraints();
        CheckLoads();
        CheckFrequencies();
        CheckMeshes();
        return m_problems;
    }

private:
    void CheckPart();
    void CheckType();
    void CheckProperties();
    void CheckMaterial(const QString& name, const AnalysisEntry& entry);
    void CheckConstraints();
    void CheckLoads();
    void CheckFrequencies();
    void CheckMeshes();

    bool IsStatic() const { return m_analysis.type.kind == AnalysisType::StaticKind; }
    void Fail(const AnalysisEntry& entry, const QString& text)
    {
        m_problems.push_back({text, entry});
    }
    void Warn(const AnalysisEntry& entry, const QString& text)
    {
        m_problems.push_back({text, entry, true});
    }
    // NaN if the text has no value, which is then a problem. @p what begins the message.
    double Value(const AnalysisEntry& entry, const QString& what, const QString& text);
    // Of faces and edges: each has to mean some of the part.
    void CheckTargets(const AnalysisEntry& entry, const QString& what,
                      const std::vector<FaceReference>& faces,
                      const std::vector<EdgeReference>& edges);
    // Of a number that has to be above 0.
    void CheckPositive(const AnalysisEntry& entry, const QString& what, const QString& text,
                       const QString& unit);

    const AnalysisDefinition& m_analysis;
    const SetupContext& m_context;
    FieldValues m_values;
    std::set<QString> m_materials; // That were checked.
    std::vector<SetupProblem> m_problems;
};

double Check::Value(const AnalysisEntry& entry, const QString& what, const QString& text)
{
    const double value = m_values.Evaluate(text);
    if (!std::isnan(value))
        return value;
    Fail(entry, tr("%1 (\"%2\") has no value: %3").arg(what, text, ExpressionEngine::LastError()));
    return value;
}

void Check::CheckPositive(const AnalysisEntry& entry, const QString& what, const QString& text,
                          const QString& unit)
{
    const double value = Value(entry, what, text);
    if (!std::isnan(value) && !(value > 0.0 && std::isfinite(value)))
        Fail(entry,
             tr("%1 is %2 %3, but has to be greater than 0").arg(what, ExactText(value), unit));
}

void Check::CheckTargets(const AnalysisEntry& entry, const QString& what,
                         const std::vector<FaceReference>& faces,
                         const std::vector<EdgeReference>& edges)
{
    if (m_context.part == nullptr || m_context.part->shape.IsNull())
        return;
    const PartFaces part(*m_context.part);
    const auto check = [&](const auto& find) {
        try {
            find();
        } catch (const BuildError& error) {
            Fail(entry, tr("%1: %2", "name of an entry: what is wrong").arg(what, error.Reason()));
        }
    };
    for (const FaceReference& face : faces)
        check([&] { part.Faces(PartFaces::WholePart, m_values.Of(face)); });
    for (const EdgeReference& edge : edges)
        check([&] { part.Edges(PartFaces::WholePart, m_values.Of(edge)); });
}

void Check::CheckPart()
{
    const AnalysisEntry entry{AnalysisEntry::Part};
    if (!m_context.failure.isEmpty())
        Fail(entry, tr("The part cannot be built: %1").arg(m_context.failure));
    else if (m_context.longestSide <= 0.0)
        Fail(entry, tr("The project has no part. Add a body first."));
    const QString overlaps = m_context.overlaps.AnalysisProblem();
    if (!overlaps.isEmpty())
        Fail(entry, overlaps);
}

void Check::CheckType()
{
    const bool isSolvable = m_analysis.type.family == AnalysisType::MechanicsFamily &&
                            (m_analysis.type.kind == AnalysisType::VibrationKind || IsStatic());
    if (!isSolvable)
        Fail({AnalysisEntry::SolverType},
             tr("This kind of analysis cannot be solved here: choose vibration or static"));
}

void Check::CheckProperties()
{
    if (m_analysis.properties.empty()) {
        if (m_context.partMaterial.isEmpty())
            Fail({AnalysisEntry::Part},
                 tr("The part has no material: choose one, or define an element property"));
        else
            CheckMaterial(m_context.partMaterial, {AnalysisEntry::Part});
    }
    const bool hasShells =
        std::any_of(m_analysis.properties.begin(), m_analysis.properties.end(),
                    [](const PropertyDefinition& property) { return !property.faces.empty(); });
    bool hasSolid = false;
    for (std::size_t index = 0; index < m_analysis.properties.size(); ++index) {
        const PropertyDefinition& property = m_analysis.properties[index];
        const AnalysisEntry entry{AnalysisEntry::Property, int(index)};
        const QString what = tr("Element property \"%1\"").arg(property.name);
        if (property.material.isEmpty())
            Fail(entry, tr("%1 has no material").arg(what));
        else
            CheckMaterial(property.material, entry);
        if (!property.faces.empty())
            CheckPositive(entry, tr("%1: the thickness").arg(what), property.thickness,
                          QStringLiteral("mm"));
        else if (hasShells)
            Fail(entry, tr("%1 is not used: it has no faces, but other properties do").arg(what));
        else if (hasSolid)
            Fail(
                entry,
                tr("%1 is not used: another property already applies to the whole part").arg(what));
        hasSolid = hasSolid || property.faces.empty();
        CheckTargets(entry, what, property.faces, {});
    }
}

void Check::CheckMaterial(const QString& name, const AnalysisEntry& entry)
{
    if (!m_materials.insert(name).second)
        return;
    try {
        MaterialOf(name);
    } catch (const MaterialError& error) {
        Fail(entry, error.Reason());
    }
}

void Check::CheckConstraints()
{
    if (IsStatic() && m_analysis.constraints.empty())
        Fail({AnalysisEntry::Constraint, -1}, tr("A static analysis needs a boundary condition"));
    for (std::size_t index = 0; index < m_analysis.constraints.size(); ++index) {
        const ConstraintDefinition& constraint = m_analysis.constraints[index];
        const AnalysisEntry entry{AnalysisEntry::Constraint, int(index)};
        const QString what = tr("Boundary condition \"%1\"").arg(constraint.name);
        const auto& held = constraint.held;
        if (std::find(held.begin(), held.end(), true) == held.end())
            Fail(entry, tr("%1 fixes no degree of freedom").arg(what));
        if (constraint.faces.empty() && constraint.edges.empty())
            Fail(entry, tr("%1 acts nowhere: pick its faces or edges").arg(what));
        CheckTargets(entry, what, constraint.faces, constraint.edges);
    }
}

void Check::CheckLoads()
{
    if (IsStatic() && m_analysis.loads.empty())
        Fail({AnalysisEntry::Load, -1}, tr("A static analysis needs a load"));
    for (std::size_t index = 0; index < m_analysis.loads.size(); ++index) {
        const LoadDefinition& load = m_analysis.loads[index];
        const AnalysisEntry entry{AnalysisEntry::Load, int(index)};
        const QString what = tr("Load \"%1\"").arg(load.name);
        bool isZero = true;
        for (std::size_t axis = 0; axis < load.force.size(); ++axis) {
            const QString name = tr("%1: the force F%2").arg(what).arg("XYZ"[axis]);
            const double value = Value(entry, name, load.force[axis]);
            isZero = isZero && value == 0.0;
        }
        if (isZero)
            Fail(entry, tr("%1 is zero").arg(what));
        if (load.faces.empty() && load.edges.empty())
            Fail(entry, tr("%1 acts nowhere: pick its faces or edges").arg(what));
        CheckTargets(entry, what, load.faces, load.edges);
        if (!IsStatic())
            Warn(entry, tr("%1 has no effect on natural frequencies").arg(what));
    }
}

void Check::CheckFrequencies()
{
    const FrequencyRange& range = m_analysis.frequencies;
    const AnalysisEntry entry{AnalysisEntry::Frequencies};
    if (!std::isfinite(range.min) || !std::isfinite(range.max))
        Fail(entry, tr("Frequency range: %1 to %2 are not numbers")
                        .arg(ExactText(range.min), ExactText(range.max)));
    else if (range.min < 0.0)
        Fail(entry, tr("Frequency range: the minimum %1 Hz is below 0").arg(ExactText(range.min)));
    else if (range.min >= range.max)
        Fail(entry, tr("Frequency range: the minimum %1 Hz is not below the maximum %2 Hz")
                        .arg(ExactText(range.min), ExactText(range.max)));
    if (range.number < 1 || range.number > FrequencyRange::MaximumNumber)
        Fail(entry, tr("Frequency range: the number of modes is %1, but has to be 1 to %2")
                        .arg(range.number)
                        .arg(FrequencyRange::MaximumNumber));
}

void Check::CheckMeshes()
{
    const AnalysisEntry entry{AnalysisEntry::MeshSize};
    if (m_analysis.meshSize.isEmpty()) {
        Warn(entry, tr("No mesh size is set: a tenth of the part's longest side is used"));
    } else {
        CheckPositive(entry, tr("The mesh size"), m_analysis.meshSize, QStringLiteral("mm"));
        const double size = m_values.Evaluate(m_analysis.meshSize);
        if (m_context.longestSide > 0.0 && size > m_context.longestSide)
            Warn(entry, tr("The mesh size %1 mm is larger than the part, %2 mm")
                            .arg(ExactText(size), ShortText(m_context.longestSide)));
    }
    for (std::size_t index = 0; index < m_analysis.localMeshes.size(); ++index) {
        const LocalMeshDefinition& mesh = m_analysis.localMeshes[index];
        const AnalysisEntry local{AnalysisEntry::LocalMesh, int(index)};
        const QString what = tr("Local mesh %1").arg(index + 1);
        if (!mesh.size.isEmpty())
            CheckPositive(local, tr("%1: the size").arg(what), mesh.size, QStringLiteral("mm"));
        else
            CheckPositive(local, tr("%1: the number").arg(what), mesh.number, QString());
        if (mesh.faces.empty() && mesh.edges.empty())
            Fail(local, tr("%1 applies nowhere: pick its faces or edges").arg(what));
        CheckTargets(local, what, mesh.faces, mesh.edges);
    }
}

} // namespace

std::vector<SetupProblem> CheckSetup(const AnalysisDefinition& analysis,
                                     const SetupContext& context)
{
    return Check(analysis, context).Run();
}
