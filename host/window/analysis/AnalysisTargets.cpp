#include "AnalysisTargets.h"

#include "AnalysisRecords.h"
#include "AnalysisTree.h"
#include "MessageLevel.h"

namespace {

// Calls @p visit with the faces and edges of the entry; the latter are null if it has none.
template<class Definition, class Visit>
void VisitTargets(Definition& analysis, const AnalysisEntry& entry, const Visit& visit)
{
    const auto index = std::size_t(entry.index);
    if (entry.kind == AnalysisEntry::Constraint)
        visit(analysis.constraints.at(index).faces, &analysis.constraints.at(index).edges);
    else if (entry.kind == AnalysisEntry::Load)
        visit(analysis.loads.at(index).faces, &analysis.loads.at(index).edges);
    else if (entry.kind == AnalysisEntry::LocalMesh)
        visit(analysis.localMeshes.at(index).faces, &analysis.localMeshes.at(index).edges);
    else if (entry.kind == AnalysisEntry::Property)
        visit(analysis.properties.at(index).faces,
              decltype (&analysis.localMeshes.at(index).edges)(nullptr));
}

QString TitleFor(const AnalysisDefinition& analysis, const AnalysisEntry& entry)
{
    const auto index = std::size_t(entry.index);
    if (entry.kind == AnalysisEntry::Constraint)
        return AnalysisTargets::tr("Pick faces or edges for %1:")
            .arg(analysis.constraints.at(index).name);
    if (entry.kind == AnalysisEntry::Load)
        return AnalysisTargets::tr("Pick faces, or edges, for %1:")
            .arg(analysis.loads.at(index).name);
    if (entry.kind == AnalysisEntry::Property)
        return AnalysisTargets::tr("Pick faces for the shells of %1:")
            .arg(analysis.properties.at(index).name);
    return AnalysisTargets::tr("Pick faces or edges for local mesh %1:").arg(entry.index + 1);
}

} // namespace

AnalysisTargets::AnalysisTargets(AnalysisRecords& model, AnalysisTree& tree, ShapePicker& picker,
                                 QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_tree(tree)
    , m_picker(picker)
{
    connect(&tree, &AnalysisTree::PickWanted, this, &AnalysisTargets::Pick);
}

AnalysisTargets::~AnalysisTargets() = default;

ShapePicker::Choice AnalysisTargets::TargetsOf(const AnalysisDefinition& analysis,
                                               const AnalysisEntry& entry)
{
    ShapePicker::Choice choice;
    VisitTargets(analysis, entry, [&choice](const auto& faces, const auto* edges) {
        choice.faces = faces;
        if (edges != nullptr)
            choice.edges = *edges;
    });
    return choice;
}

void AnalysisTargets::Pick(const AnalysisEntry& entry)
{
    const AnalysisDefinition& analysis = m_model.Definition();
    ShapePicker::Request request;
    request.title = TitleFor(analysis, entry);
    request.choice = TargetsOf(analysis, entry);
    request.hasEdges = entry.kind != AnalysisEntry::Property;
    // A number of elements counts along edges only.
    request.hasFaces = entry.kind != AnalysisEntry::LocalMesh ||
                       analysis.localMeshes.at(std::size_t(entry.index)).number.isEmpty();
    request.done = [this, entry](const ShapePicker::Choice& choice) {
        Apply(entry, choice);
    };
    m_picker.Start(request);
}

void AnalysisTargets::Apply(const AnalysisEntry& entry, const ShapePicker::Choice& choice)
{
    if (entry.kind == AnalysisEntry::Load && !choice.faces.empty() && !choice.edges.empty()) {
        PostMessageToChannel(ErrorLevel,
                             tr("A load acts either on faces or on edges: pick one kind only"));
        return;
    }
    AnalysisDefinition analysis = m_model.Definition();
    VisitTargets(analysis, entry, [&choice](auto& faces, auto* edges) {
        faces = choice.faces;
        if (edges != nullptr)
            *edges = choice.edges;
    });
    m_model.SetDefinition(analysis);
    m_tree.Select(entry);
}
