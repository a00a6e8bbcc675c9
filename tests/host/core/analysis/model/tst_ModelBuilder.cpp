#include "Bodies.h"
#include "Meshed.h"
#include "ModelBuilder.h"
#include "PlanParts.h"
#include "ShapeIndex.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>

#include <functional>

Q_DECLARE_METATYPE(std::function<void(AnalysisPlan&)>)

class tst_ModelBuilder : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void UnitsAreThoseOfTheDecks();
    void ASupportHoldsAllNodesOfItsTarget();
    void SeveralSupportsOfANodeAddUp();
    void LoadsAddUp();
    void ShellsHaveTheThicknessOfTheirFace();
    void WrongPlansAreRefused_data();
    void WrongPlansAreRefused();
    void RotationsHeldOnSolidsAreReported();
    void RigidModesAreCountedInAllParts();
    void AStaticAnalysisNeedsSupportsAndALoad();
    void AModelWhereAllIsHeldIsRefused();

private:
    AnalysisPlan SolidPlan() const;
    AnalysisPlan ShellPlan() const;

    TopoDS_Shape m_box;
    Mesh m_solid;
    Mesh m_shell;
    int m_top = 0;
    int m_bottom = 0;
    int m_side = 0; // At x = 0.
    int m_edge = 0; // Of top and side.
};

namespace {

QString Refusal(const std::function<void()>& act)
{
    try {
        act();
        return "accepted";
    } catch (const ModelError& error) {
        return error.Reason();
    }
}

} // namespace

void tst_ModelBuilder::initTestCase()
{
    EnterTemporaryDirectory();
    m_box = BRepPrimAPI_MakeBox(40.0, 30.0, 20.0).Shape();
    m_top = FaceAt(m_box, 20, 15, 20);
    m_bottom = FaceAt(m_box, 20, 15, 0);
    m_side = FaceAt(m_box, 0, 15, 10);
    m_edge = EdgeAt(m_box, 0, 15, 20);
    m_solid = Meshed(m_box, OfSize(10));
    MeshRequest request = OfSize(10);
    request.shellFaces = {m_top, m_side};
    m_shell = Meshed(m_box, request);
}

AnalysisPlan tst_ModelBuilder::SolidPlan() const
{
    AnalysisPlan plan;
    plan.properties = {SteelSolid()};
    plan.constraints = {OnFaces("clamp", Displacements, {m_bottom})};
    plan.loads = {LoadOnFaces("push", {1, 2, 3}, {m_top})};
    return plan;
}

AnalysisPlan tst_ModelBuilder::ShellPlan() const
{
    AnalysisPlan plan;
    plan.properties = {SteelShell("web", 2.0, {m_top}), SteelShell("flange", 3.0, {m_side})};
    plan.constraints = {OnEdges("clamp", AllFreedoms, {m_edge})};
    return plan;
}

void tst_ModelBuilder::UnitsAreThoseOfTheDecks()
{
    const FiniteElementModel model = BuildModel(m_solid, SolidPlan()).model;
    QCOMPARE(model.materials[0].elasticModulus, 210000.0);
    QCOMPARE(model.materials[0].poisson, 0.3);
    QCOMPARE(model.materials[0].density, 7.85e-9);
    QCOMPARE(model.sections[0].elements.size(), model.mesh.tetrahedra.size());
}

void tst_ModelBuilder::ASupportHoldsAllNodesOfItsTarget()
{
    const FiniteElementModel model = BuildModel(m_solid, SolidPlan()).model;
    for (std::size_t node = 0; node < model.mesh.nodes.size(); ++node)
        QCOMPARE(int(model.held[node]), std::abs(model.mesh.nodes[node][2]) < 1e-9 ? 7 : 0);
}

void tst_ModelBuilder::SeveralSupportsOfANodeAddUp()
{
    AnalysisPlan plan = ShellPlan();
    plan.constraints = {OnEdges("a", {true, false, false, false, false, true}, {m_edge}),
                        OnFaces("b", {false, true, false, false, false, false}, {m_top})};
    const FiniteElementModel model = BuildModel(m_shell, plan).model;
    for (std::size_t node = 0; node < model.mesh.nodes.size(); ++node) {
        const Vector3& place = model.mesh.nodes[node];
        const bool onTop = std::abs(place[2] - 20.0) < 1e-9;
        const bool onEdge = onTop && std::abs(place[0]) < 1e-9;
        QCOMPARE(int(model.held[node]), onEdge ? 35 : onTop ? 2 : 0);
    }
}

void tst_ModelBuilder::LoadsAddUp()
{
    AnalysisPlan plan = SolidPlan();
    plan.loads.push_back(LoadOnEdges("pull", {0, 0, -10}, {m_edge}));
    Vector3 sum{};
    for (const Vector3& force : BuildModel(m_solid, plan).model.forces)
        sum = sum + force;
    QVERIFY(Length(sum - Vector3{1, 2, -7}) < 1e-9);
}

void tst_ModelBuilder::ShellsHaveTheThicknessOfTheirFace()
{
    const FiniteElementModel model = BuildModel(m_shell, ShellPlan()).model;
    QCOMPARE(model.sections.size(), std::size_t(2));
    for (const ModelSection& section : model.sections) {
        for (const std::size_t element : section.elements)
            QCOMPARE(model.mesh.facets[element].face, section.thickness == 2.0 ? m_top : m_side);
    }
    QCOMPARE(model.sections[0].elements.size() + model.sections[1].elements.size(),
             model.mesh.facets.size());
}

void tst_ModelBuilder::WrongPlansAreRefused_data()
{
    using Change = std::function<void(AnalysisPlan&)>;
    QTest::addColumn<bool>("isSolid");
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("reason");
    NewRow("no material", true, Change([](AnalysisPlan& plan) { plan.properties.clear(); }),
           QString("The part has no material."));
    NewRow("two materials", true, Change([](AnalysisPlan& plan) {
               plan.properties = {SteelShell("a", 0, {}), SteelShell("b", 0, {})};
           }),
           QString("The element properties a and b both hold for the whole part: delete one of "
                   "them, or give it faces."));
    NewRow("solids and shells", false,
           Change([](AnalysisPlan& plan) { plan.properties[1].faces.clear(); }),
           QString("The element property flange has no faces, but others have: one model has "
                   "either shells or solids."));
    NewRow("a face twice", false,
           Change([](AnalysisPlan& plan) { plan.properties[1].faces = plan.properties[0].faces; }),
           QString("The element properties web and flange have a face in common."));
    NewRow("no freedom", true, Change([](AnalysisPlan& plan) { plan.constraints[0].held = {}; }),
           QString("The boundary condition \"clamp\" fixes no degree of freedom."));
    NewRow("no target", true, Change([](AnalysisPlan& plan) { plan.constraints[0].target = {}; }),
           QString("The boundary condition \"clamp\" has no faces and no edges."));
    NewRow("a support without elements", false, Change([this](AnalysisPlan& plan) {
               plan.constraints[0] = OnFaces("100% %1", Displacements, {m_bottom});
           }),
           QString("The boundary condition \"100% %1\" is on a face or an edge without elements: "
                   "give the face an element property, or choose another one."));
    NewRow("a load without elements", false, Change([this](AnalysisPlan& plan) {
               plan.loads = {LoadOnEdges("pull", {1, 0, 0}, {EdgeAt(m_box, 40, 15, 0)})};
           }),
           QString("The load \"pull\" is on a face or an edge without elements: give the face an "
                   "element property, or choose another one."));
    NewRow("a load on both", true,
           Change([this](AnalysisPlan& plan) { plan.loads[0].target.edges = {m_edge}; }),
           QString("The load \"push\" needs either faces or edges."));
    NewRow("a load on nothing", true, Change([](AnalysisPlan& plan) { plan.loads[0].target = {}; }),
           QString("The load \"push\" needs either faces or edges."));
}

void tst_ModelBuilder::WrongPlansAreRefused()
{
    QFETCH(bool, isSolid);
    QFETCH(std::function<void(AnalysisPlan&)>, change);
    AnalysisPlan plan = isSolid ? SolidPlan() : ShellPlan();
    change(plan);
    QTEST(Refusal([&] { BuildModel(isSolid ? m_solid : m_shell, plan); }), "reason");
}

void tst_ModelBuilder::RotationsHeldOnSolidsAreReported()
{
    AnalysisPlan plan = SolidPlan();
    QCOMPARE(BuildModel(m_solid, plan).warnings, QStringList());
    plan.constraints[0].held[4] = true;
    QCOMPARE(BuildModel(m_solid, plan).warnings,
             QStringList("The boundary condition \"clamp\": holding rotations has no effect on "
                         "solids."));
    plan.constraints[0].held = {false, false, false, true, true, true};
    QCOMPARE(BuildModel(m_solid, plan).warnings,
             QStringList("The boundary condition \"clamp\" has no effect: solids have no rotations "
                         "to hold."));
    QCOMPARE(BuildModel(m_shell, ShellPlan()).warnings, QStringList());
}

void tst_ModelBuilder::RigidModesAreCountedInAllParts()
{
    EnterTemporaryDirectory();
    AnalysisPlan plan = SolidPlan();
    QCOMPARE(CountRigidModes(BuildModel(m_solid, plan).model), 0);
    const TopoDS_Shape other = BRepPrimAPI_MakeBox(gp_Pnt(100, 0, 0), 10, 10, 10).Shape();
    const Mesh two = Meshed(Compound({m_box, other}), OfSize(10));
    QCOMPARE(CountRigidModes(BuildModel(two, plan).model), 6);
    plan.constraints.clear();
    QCOMPARE(CountRigidModes(BuildModel(two, plan).model), 12);
}

void tst_ModelBuilder::AStaticAnalysisNeedsSupportsAndALoad()
{
    EnterTemporaryDirectory();
    AnalysisPlan plan = SolidPlan();
    const auto refusal = [&](const Mesh& mesh, const std::vector<QString>& bodies) {
        return Refusal([&] { CheckStatic(BuildModel(mesh, plan).model, bodies); });
    };
    QCOMPARE(refusal(m_solid, {}), QString("accepted"));
    plan.constraints[0].held = {true, false, true, false, false, false};
    QCOMPARE(refusal(m_solid, {}), QString("The part is free to move along y: add supports."));
    plan.constraints[0].held = Displacements;
    const TopoDS_Shape other = BRepPrimAPI_MakeBox(gp_Pnt(100, 0, 0), 10, 10, 10).Shape();
    const Mesh two = Meshed(Compound({m_box, other}), OfSize(10));
    const QString free = " is free to move along x, y and z and to turn about x, y and z: add "
                         "supports.";
    QCOMPARE(refusal(two, {}), "Body 2" + free);
    QCOMPARE(refusal(two, {"plate", "pin"}), "pin" + free);
    plan.loads.clear();
    QCOMPARE(refusal(m_solid, {}),
             QString("The set-up has no load, so nothing moves. Add a load first."));
}

void tst_ModelBuilder::AModelWhereAllIsHeldIsRefused()
{
    AnalysisPlan plan = ShellPlan();
    plan.constraints = {OnFaces("all", Displacements, {m_top, m_side})};
    QCOMPARE(Refusal([&] { CheckVibration(BuildModel(m_shell, plan).model); }),
             QString("All nodes are held, so nothing can move: hold fewer faces, or make the mesh "
                     "finer."));
    plan.constraints.clear();
    CheckVibration(BuildModel(m_shell, plan).model);
}

TARN_TEST_MAIN(tst_ModelBuilder)
#include "tst_ModelBuilder.moc"
