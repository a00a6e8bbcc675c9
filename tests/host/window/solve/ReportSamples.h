#pragma once

#include "SolveReport.h"

#include <memory>

// Reports about a mesh of one triangle.

inline SolveReport MeshReport()
{
    SolveResult result;
    result.outcome = SolveResult::Failed;
    result.model.mesh.nodes = {{0, 0, 0},  {20, 0, 0},  {0, 20, 0},
                               {10, 0, 0}, {10, 10, 0}, {0, 10, 0}};
    result.model.mesh.facets = {{{0, 1, 2, 3, 4, 5}, 3, 1}};
    result.quality.worst = 0.25;
    result.quality.worstPlace = {1.5, 2, 3};
    return ReportOf(result, SolveKind::Mesh);
}

inline SolveReport ModesReport()
{
    SolveReport report = MeshReport();
    report.kind = SolveKind::Vibration;
    report.modes = {{1234.56789, {0.001, 0.0, 0.0125, 0, 0, 0}}, {2000.0, {}}};
    std::vector<MeshSkin::Point> moves(report.skin.points.size());
    moves[1] = {0, 0, 1};
    report.moves = {moves, moves};
    return report;
}

inline SolveReport StaticReport()
{
    SolveReport report = MeshReport();
    report.kind = SolveKind::Static;
    report.moves = {std::vector<MeshSkin::Point>(report.skin.points.size(), {0, 0, 0.5F})};
    report.stresses.assign(report.skin.points.size(), 10.0F);
    report.stresses[2] = 40.0F;
    report.displacement = {0.5, {20, 0, 0}};
    report.stress = {40.0, {0, 20, 0}};
    report.reaction = {0, 0, -7.5};
    return report;
}

inline std::shared_ptr<const SolveReport> Shared(const SolveReport& report)
{
    return std::make_shared<SolveReport>(report);
}
