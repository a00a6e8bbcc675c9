#include "Meshed.h"
#include "NodalForces.h"
#include "ShapeIndex.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>

class tst_NodalForces : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void TheSumIsTheForce_data();
    void TheSumIsTheForce();
    void TheForceActsInTheMiddleOfItsArea();
    void ATriangleHasItsForceInTheMidNodes();
    void ALineIsSpreadByLength();
    void AreaAndLengthAreThoseOfTheShape();
};

namespace {

Vector3 Sum(const std::vector<Vector3>& forces)
{
    Vector3 sum{};
    for (const Vector3& force : forces)
        sum = sum + force;
    return sum;
}

NodalForces OnFace(const Mesh& mesh, int face)
{
    NodalForces forces(mesh);
    for (const Mesh::Facet& facet : mesh.facets) {
        if (facet.face == face)
            forces.Add(facet);
    }
    return forces;
}

constexpr double Pi = 3.14159265358979323846;

} // namespace

void tst_NodalForces::init()
{
    TestCase::init();
    EnterTemporaryDirectory();
}

void tst_NodalForces::TheSumIsTheForce_data()
{
    QTest::addColumn<double>("size");
    NewRow("coarse", 20.0);
    NewRow("fine", 3.0);
}

void tst_NodalForces::TheSumIsTheForce()
{
    QFETCH(double, size);
    const TopoDS_Shape shape = BRepPrimAPI_MakeCylinder(20.0, 30.0).Shape();
    const Mesh mesh = Meshed(shape, OfSize(size));
    const Vector3 force = {12345.678, -0.001, 1e7};
    std::vector<Vector3> forces(mesh.nodes.size());
    OnFace(mesh, FaceAt(shape, 20, 0, 15)).Spread(force, forces);
    QVERIFY(Length(Sum(forces) - force) < 1e-9 * Length(force));
}

void tst_NodalForces::TheForceActsInTheMiddleOfItsArea()
{
    const TopoDS_Shape shape = BRepPrimAPI_MakeBox(40.0, 30.0, 20.0).Shape();
    MeshRequest request = OfSize(10.0);
    LocalMesh local;
    local.size = 2.0;
    local.edges = {EdgeAt(shape, 20, 0, 20)};
    request.local = {local};
    const Mesh mesh = Meshed(shape, request);
    std::vector<Vector3> forces(mesh.nodes.size());
    OnFace(mesh, FaceAt(shape, 20, 15, 20)).Spread({0, 0, -100}, forces);
    Vector3 moment{};
    for (std::size_t node = 0; node < forces.size(); ++node)
        moment = moment + Cross(mesh.nodes[node], forces[node]);
    QVERIFY(Length(moment - Cross({20, 15, 20}, {0, 0, -100})) < 1e-8);
}

void tst_NodalForces::ATriangleHasItsForceInTheMidNodes()
{
    Mesh mesh;
    mesh.nodes = {{0, 0, 0}, {4, 0, 0}, {0, 3, 0}, {2, 0, 0}, {2, 1.5, 0}, {0, 1.5, 0}};
    Mesh::Facet facet;
    facet.nodes = {0, 1, 2, 3, 4, 5};
    NodalForces spread(mesh);
    spread.Add(facet);
    std::vector<Vector3> forces(6);
    spread.Spread({0, 0, 9}, forces);
    for (std::size_t node = 0; node < 6; ++node)
        QVERIFY(std::abs(forces[node][2] - (node < 3 ? 0.0 : 3.0)) < 1e-12);
}

void tst_NodalForces::ALineIsSpreadByLength()
{
    Mesh mesh;
    mesh.nodes = {{0, 0, 0}, {2, 0, 0}, {6, 0, 0}, {1, 0, 0}, {4, 0, 0}};
    NodalForces spread(mesh);
    spread.Add(Mesh::Line{{0, 1, 3}, 1});
    spread.Add(Mesh::Line{{1, 2, 4}, 1});
    std::vector<Vector3> forces(5);
    spread.Spread({6, 0, 0}, forces);
    const std::vector<double> expected = {1.0 / 3.0, 1.0, 2.0 / 3.0, 4.0 / 3.0, 8.0 / 3.0};
    for (std::size_t node = 0; node < 5; ++node)
        QVERIFY(std::abs(forces[node][0] - expected[node]) < 1e-12);
}

void tst_NodalForces::AreaAndLengthAreThoseOfTheShape()
{
    const TopoDS_Shape shape = BRepPrimAPI_MakeCylinder(20.0, 30.0).Shape();
    const Mesh mesh = Meshed(shape, OfSize(5.0));
    const double area = OnFace(mesh, FaceAt(shape, 20, 0, 15)).Content();
    QVERIFY(std::abs(area / (2.0 * Pi * 20.0 * 30.0) - 1.0) < 1e-4);
    NodalForces edge(mesh);
    for (const Mesh::Line& line : mesh.lines) {
        if (line.edge == EdgeAt(shape, 0, 20, 30))
            edge.Add(line);
    }
    QVERIFY(std::abs(edge.Content() / (2.0 * Pi * 20.0) - 1.0) < 1e-4);
}

TARN_TEST_MAIN(tst_NodalForces)
#include "tst_NodalForces.moc"
