#include "HostApplication.h"
#include "PartView.h"
#include "ResultObject.h"

#include <benchmark/benchmark.h>

#include <cmath>

// A frame of an animated mode of 100,000 triangles: everything but the drawing itself, which is the
// driver's. Needs a display.

namespace {

constexpr int Side = 224; // Squares along a side; two triangles each.

// A plate that bends, with a colour for each point.
ViewResult Plate()
{
    auto skin = std::make_shared<MeshSkin>();
    ViewResult result;
    const auto at = [](int x, int y) {
        return y * (Side + 1) + x;
    };
    for (int y = 0; y <= Side; ++y) {
        for (int x = 0; x <= Side; ++x) {
            const float height = std::sin(0.03F * float(x)) * std::sin(0.03F * float(y));
            skin->points.push_back({float(x), float(y), 0.0F});
            skin->nodes.push_back(at(x, y));
            result.moves.push_back({0.0F, 0.0F, height});
            result.values.push_back(std::abs(height));
        }
    }
    for (int y = 0; y < Side; ++y) {
        for (int x = 0; x < Side; ++x) {
            skin->triangles.push_back({at(x, y), at(x + 1, y), at(x, y + 1)});
            skin->triangles.push_back({at(x + 1, y), at(x + 1, y + 1), at(x, y + 1)});
            skin->lines.push_back({at(x, y), at(x + 1, y)});
        }
    }
    result.skin = skin;
    return result;
}

void Frame(benchmark::State& state)
{
    PartView view;
    view.show();
    QCoreApplication::processEvents();
    const Handle(ResultObject) object = new ResultObject(Plate(), view.devicePixelRatioF());
    view.ShowResult(object);
    double turn = 0.0;
    for (auto _ : state) {
        turn += 0.2;
        object->SetScale(10.0 * std::sin(turn));
        view.UpdateResult();
    }
}

} // namespace

int main(int argc, char** argv)
{
    const HostApplication application(argc, argv);
    if (!PartView::UnavailableReason().isEmpty())
        return 1;
    benchmark::RegisterBenchmark("Frame/ours", Frame)
        ->Arg(2 * Side * Side)
        ->Unit(benchmark::kMillisecond);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
