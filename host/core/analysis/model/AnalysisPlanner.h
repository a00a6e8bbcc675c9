#pragma once

#include "AnalysisPlan.h"
#include "ShapeTargets.h"
#include "WorkerMessages.h"

/// Makes a plan of an analysis in two steps: evaluates its numbers with the parameters, then takes
/// the faces and edges that a worker found.
class AnalysisPlanner
{
public:
    /// Evaluates @p definition with the values that the parameter store holds now. @p partMaterial
    /// is the material of a part without properties; empty for none. @throws HostError if a number
    /// has no valid value, or a material is not in the store
    AnalysisPlanner(const AnalysisDefinition& definition, const QString& partMaterial);

    /// Adds all faces and edges of the analysis to what the worker is to find.
    void AddTargets(PartRequest& request) const;

    /// The plan for the part in @p reply, which answers a request with the targets alone.
    /// @throws HostError if a face or an edge was not found, or bodies overlap
    AnalysisPlan Plan(const PartReply& reply) const;

private:
    /// Something that stands on faces and edges, and where these are in the list of all targets.
    struct Owner
    {
        QString text; ///< For messages.
        std::size_t firstFace = 0;
        std::size_t faces = 0;
        std::size_t firstEdge = 0;
        std::size_t edges = 0;
    };

    Owner Add(const QString& text, const std::vector<FaceReference>& faces,
              const std::vector<EdgeReference>& edges);
    static ShapeTarget TargetOf(const Owner& owner, const PartReply& reply);

    AnalysisPlan m_plan; // Without faces and edges.
    std::vector<Owner> m_properties;
    std::vector<Owner> m_constraints;
    std::vector<Owner> m_loads;
    std::vector<Owner> m_localMeshes;
    std::vector<FaceTarget> m_faces;
    std::vector<EdgeTarget> m_edges;
};
