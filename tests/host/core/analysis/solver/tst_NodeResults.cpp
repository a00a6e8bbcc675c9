#include "DeckModels.h"
#include "Solved.h"
#include "TestCase.h"

class tst_NodeResults : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void StressIsThatOfVonMises_data();
    void StressIsThatOfVonMises();
    void ModeShapesAreInTheOrderOfTheFile();
    void ShellsHaveTheGreaterStressOfBothSides();
    void ResultsOfAnotherMeshAreRefused_data();
    void ResultsOfAnotherMeshAreRefused();
    void AFileWithoutResultsIsRefused();
};

namespace {

Mesh OneNode()
{
    Mesh mesh;
    mesh.nodes.resize(1);
    mesh.tetrahedra.resize(1);
    return mesh;
}

ResultField Moves(std::vector<int> nodes, std::vector<double> values)
{
    return {"DISP", 1.0, 3, std::move(nodes), std::move(values)};
}

ResultField Stress(std::vector<int> nodes, std::vector<double> values)
{
    return {"STRESS", 1.0, 6, std::move(nodes), std::move(values)};
}

QString Refusal(const ResultFile& file)
{
    try {
        StaticResults(file, OneNode());
        return "read";
    } catch (const ResultError& error) {
        return error.Reason();
    }
}

} // namespace

void tst_NodeResults::StressIsThatOfVonMises_data()
{
    QTest::addColumn<QList<double>>("stress");
    QTest::addColumn<double>("expected");
    NewRow("tension", QList<double>{-100, 0, 0, 0, 0, 0}, 100.0);
    NewRow("pressure from all sides", QList<double>{7, 7, 7, 0, 0, 0}, 0.0);
    NewRow("shear", QList<double>{0, 0, 0, 10, 0, 0}, 10.0 * std::sqrt(3.0));
    NewRow("all", QList<double>{60, 20, -20, 10, 10, 10}, std::sqrt(4800.0 + 900.0));
}

void tst_NodeResults::StressIsThatOfVonMises()
{
    QFETCH(QList<double>, stress);
    QFETCH(double, expected);
    ResultFile file;
    file.fields = {Moves({1}, {3, 4, 12}), Stress({1}, {stress.begin(), stress.end()})};
    const StaticResult result = StaticResults(file, OneNode());
    QVERIFY(std::abs(result.maximumStress - expected) < 1e-12);
    QCOMPARE(result.maximumDisplacement, 13.0);
}

void tst_NodeResults::ModeShapesAreInTheOrderOfTheFile()
{
    ResultFile file;
    file.fields = {Moves({1}, {1, 0, 0}), Moves({1}, {0, 2, 0})};
    const auto shapes = ModeShapes(file, OneNode());
    QCOMPARE(shapes.size(), std::size_t(2));
    QVERIFY((shapes[1][0] == Vector3{0, 2, 0}));
}

void tst_NodeResults::ShellsHaveTheGreaterStressOfBothSides()
{
    // A strip of 100 x 10 x 1 mm that is held at one end and bent by 1 N: 60 MPa at its faces.
    EnterTemporaryDirectory();
    const TopoDS_Shape shape = BRepPrimAPI_MakeBox(100.0, 10.0, 5.0).Shape();
    AnalysisPlan plan;
    plan.properties = {SteelShell("strip", 1.0, {FaceAt(shape, 50, 5, 0)})};
    plan.properties[0].material.poisson = 0.0;
    plan.constraints = {OnEdges("clamp", AllFreedoms, {EdgeAt(shape, 0, 5, 0)})};
    plan.loads = {LoadOnEdges("tip", {0, 0, 1}, {EdgeAt(shape, 100, 5, 0)})};
    MeshRequest request = OfSize(5);
    request.shellFaces = plan.ShellFaces();
    const FiniteElementModel model = BuildModel(Meshed(shape, request), plan).model;
    const StaticResult result = SolvedStatic(model);
    QVERIFY2(std::abs(result.maximumStress / 60.0 - 1.0) < 0.02,
             qPrintable(QString::number(result.maximumStress)));
    QVERIFY(std::abs(model.mesh.nodes[std::size_t(result.stressedNode)][0]) < 1e-9);
    QVERIFY(std::abs(model.mesh.nodes[std::size_t(result.displacedNode)][0] - 100.0) < 1e-9);
    // F l^3 / 3 E I
    QVERIFY(std::abs(result.maximumDisplacement / (1e6 / (3.0 * 210000.0 / 1.2)) - 1.0) < 0.01);
    for (std::size_t node = 0; node < model.mesh.nodes.size(); ++node)
        QVERIFY(result.displacements[node][2] >= -1e-12);
}

void tst_NodeResults::ResultsOfAnotherMeshAreRefused_data()
{
    QTest::addColumn<QList<int>>("nodes");
    NewRow("more nodes", QList<int>{1, 2});
    NewRow("node 0", QList<int>{0});
    NewRow("no nodes", QList<int>{});
}

void tst_NodeResults::ResultsOfAnotherMeshAreRefused()
{
    QFETCH(QList<int>, nodes);
    ResultFile file;
    const std::vector<int> list(nodes.begin(), nodes.end());
    file.fields = {Moves(list, std::vector<double>(3 * list.size())),
                   Stress({1}, std::vector<double>(6))};
    QCOMPARE(Refusal(file), QString("The solver's results do not belong to this mesh."));
    file.fields = {Moves({1}, {0, 0, 0}), Stress({2}, std::vector<double>(6))};
    QCOMPARE(Refusal(file), QString("The solver's results do not belong to this mesh."));
}

void tst_NodeResults::AFileWithoutResultsIsRefused()
{
    QCOMPARE(Refusal({}), QString("The solver's file has no results."));
}

TARN_TEST_MAIN(tst_NodeResults)
#include "tst_NodeResults.moc"
