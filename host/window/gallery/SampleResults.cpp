#include "SampleResults.h"

std::shared_ptr<const SolveReport> SampleResults()
{
    auto report = std::make_shared<SolveReport>();
    report->kind = SolveKind::Vibration;
    report->nodes = 17766;
    report->elements = 10043;
    report->worst = 0.15;
    report->worstPlace = {-83.4, 7.85, 17.3};
    report->skin.points = {{0, 0, 0}, {100, 0, 0}, {0, 100, 0}};
    report->skin.nodes = {0, 1, 2};
    report->skin.triangles = {{0, 1, 2}};
    // Masses are in t.
    report->modes = {{5138.81, {13.6e-6, 0.7e-6, 0}},
                     {5140.33, {0.7e-6, 13.7e-6, 0}},
                     {5185.6, {0, 0, 2.57e-3}},
                     {5481.29, {}},
                     {5482.3, {}}};
    report->moves.assign(report->modes.size(), report->skin.points);
    return report;
}
