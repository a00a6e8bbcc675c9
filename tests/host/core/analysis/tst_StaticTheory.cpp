#include "DeckModels.h"
#include "MeshRepair.h"
#include "Solved.h"
#include "TestCase.h"
#include "Verification.h"

/// Displacements and stresses against formulas; docs/verification.md names their sources.
class tst_StaticTheory : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void ABarInTension();
    void ABeamUnderATipForce_data();
    void ABeamUnderATipForce();
    void TheSupportsTakeTheLoad();
};

namespace {

constexpr double ElasticModulus = 210000.0; // MPa

double Nearest(const FiniteElementModel& model, const std::vector<double>& values,
               const Vector3& place)
{
    std::size_t best = 0;
    for (std::size_t node = 0; node < values.size(); ++node) {
        if (Length(model.mesh.nodes[node] - place) < Length(model.mesh.nodes[best] - place))
            best = node;
    }
    return values[best];
}

std::vector<double> Component(const StaticResult& result, std::size_t axis)
{
    std::vector<double> values;
    for (const Vector3& displacement : result.displacements)
        values.push_back(displacement[axis]);
    return values;
}

} // namespace

void tst_StaticTheory::init()
{
    TestCase::init();
    EnterTemporaryDirectory();
}

void tst_StaticTheory::ABarInTension()
{
    const TopoDS_Shape shape = BRepPrimAPI_MakeBox(100.0, 20.0, 10.0).Shape();
    AnalysisPlan plan;
    plan.properties = {SteelSolid()};
    const auto held = [](std::size_t axis) {
        std::array<bool, 6> freedoms{};
        freedoms[axis] = true;
        return freedoms;
    };
    // Free to become thinner.
    plan.constraints = {OnFaces("x", held(0), {FaceAt(shape, 0, 10, 5)}),
                        OnFaces("y", held(1), {FaceAt(shape, 50, 0, 5)}),
                        OnFaces("z", held(2), {FaceAt(shape, 50, 10, 0)})};
    plan.loads = {LoadOnFaces("pull", {20000, 0, 0}, {FaceAt(shape, 100, 10, 5)})};
    const FiniteElementModel model = BuildModel(Meshed(shape, OfSize(10)), plan).model;
    const StaticResult result = SolvedStatic(model);
    const QString name = "Bar in tension, solids, size 10";
    Verify(name, "elongation, mm", 20000.0 * 100 / (ElasticModulus * 200),
           Nearest(model, Component(result, 0), {100, 10, 5}), 1e-4);
    Verify(name, "greatest stress, MPa", 100.0, result.maximumStress, 1e-4);
    Verify(name, "narrowing, mm", -0.3 * 100.0 / ElasticModulus * 20,
           Nearest(model, Component(result, 1), {50, 20, 5}), 1e-4);
}

void tst_StaticTheory::ABeamUnderATipForce_data()
{
    QTest::addColumn<bool>("isSolid");
    NewRow("solids", true);
    NewRow("shells", false);
}

void tst_StaticTheory::ABeamUnderATipForce()
{
    QFETCH(bool, isSolid);
    const double height = isSolid ? 10.0 : 2.0;
    const double force = isSolid ? 1000.0 : 20.0;
    const TopoDS_Shape shape = BRepPrimAPI_MakeBox(200.0, 20.0, height).Shape();
    AnalysisPlan plan;
    if (isSolid) {
        plan.properties = {SteelSolid()};
        plan.constraints = {OnFaces("clamp", Displacements, {FaceAt(shape, 0, 10, height / 2)})};
        plan.loads = {LoadOnFaces("tip", {0, 0, force}, {FaceAt(shape, 200, 10, height / 2)})};
    } else {
        plan.properties = {SteelShell("strip", height, {FaceAt(shape, 100, 10, 0)})};
        plan.constraints = {OnEdges("clamp", AllFreedoms, {EdgeAt(shape, 0, 10, 0)})};
        plan.loads = {LoadOnEdges("tip", {0, 0, force}, {EdgeAt(shape, 200, 10, 0)})};
    }
    MeshRequest request = OfSize(isSolid ? 5 : 4);
    request.shellFaces = plan.ShellFaces();
    const FiniteElementModel model = BuildModel(Meshed(shape, request), plan).model;
    const StaticResult result = SolvedStatic(model);
    const QString name = isSolid ? "Beam under a tip force, solids, size 5"
                                 : "Strip under a tip force, shells, size 4";
    const double inertia = 20.0 * std::pow(height, 3) / 12.0;
    // With the share of shear, Timoshenko's factor being 5/6.
    const double shear = force * 200 / (5.0 / 6.0 * ElasticModulus / 2.6 * 20 * height);
    Verify(name, "deflection, mm",
           force * std::pow(200.0, 3) / (3 * ElasticModulus * inertia) + shear,
           Nearest(model, Component(result, 2), {200, 10, isSolid ? height / 2 : 0.0}), 0.015);
    // Half way, where the clamp has no effect.
    Verify(name, "stress half way, MPa", force * 100 * height / 2 / inertia,
           Nearest(model, result.stresses, {100, 10, isSolid ? height : 0.0}), 0.02);
}

void tst_StaticTheory::TheSupportsTakeTheLoad()
{
    const FiniteElementModel model = SolidModel();
    const StaticResult result = SolvedStatic(model);
    // The held nodes do not move, all others do.
    for (std::size_t node = 0; node < model.held.size(); ++node)
        QCOMPARE(Length(result.displacements[node]) > 0.0, model.held[node] == 0);
}

TARN_TEST_MAIN(tst_StaticTheory)
#include "tst_StaticTheory.moc"
