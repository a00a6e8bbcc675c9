#include "BuiltPart.h"

#include "Bodies.h"

#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>

std::vector<std::size_t> BuiltPart::Results() const
{
    std::vector<bool> isUsed(plan.size());
    for (const BuildStep& step : plan) {
        for (const int input : step.inputs)
            isUsed[std::size_t(input)] = true;
    }
    std::vector<std::size_t> results;
    for (std::size_t place = 0; place < plan.size(); ++place) {
        if (!isUsed[place] && !shapes[place].IsNull())
            results.push_back(place);
    }
    return results;
}

std::vector<int> BuiltPart::StepsOfSolids() const
{
    TopTools_IndexedMapOfShape solids;
    std::vector<int> steps;
    for (const std::size_t place : Results()) {
        TopExp::MapShapes(shapes[place], TopAbs_SOLID, solids);
        steps.resize(std::size_t(solids.Extent()), int(place));
    }
    return steps;
}

void BuiltPart::JoinResults()
{
    std::vector<TopoDS_Shape> results;
    for (const std::size_t place : Results())
        results.push_back(shapes[place]);
    if (results.empty())
        shape = TopoDS_Shape();
    else
        shape = results.size() == 1 ? results.front() : Compound(results);
}
