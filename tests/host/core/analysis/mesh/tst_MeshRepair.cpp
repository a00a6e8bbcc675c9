#include "ElementShapes.h"
#include "MeshRepair.h"
#include "Meshed.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeTorus.hxx>

class tst_MeshRepair : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AStraightTetrahedronIsPerfect();
    void ADistortedTetrahedronIsStraightened();
    void ASlightlyCurvedTetrahedronStays();
    void ATetrahedronInsideOutCannotBeUsed();
    void AFoldedFacetCannotBeUsed();
    void ADistortedFacetIsStraightened_data();
    void ADistortedFacetIsStraightened();
    void EveryMeshOfACurvedPartCanBeUsed();
};

namespace {

Mesh OneTetrahedron(double z = 1.0)
{
    Mesh mesh;
    mesh.nodes = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, z}};
    for (const auto& [a, b] : TetrahedronEdges)
        mesh.nodes.push_back(0.5 * (mesh.nodes[a] + mesh.nodes[b]));
    mesh.tetrahedra.push_back({{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, 1});
    return mesh;
}

Mesh OneFacet(int corners)
{
    Mesh mesh;
    mesh.nodes = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
    mesh.nodes.resize(std::size_t(corners));
    for (int i = 0; i < corners; ++i)
        mesh.nodes.push_back(
            0.5 * (mesh.nodes[std::size_t(i)] + mesh.nodes[std::size_t((i + 1) % corners)]));
    Mesh::Facet facet;
    facet.corners = corners;
    facet.nodes = {0, 1, 2, 3, 4, 5, 6, 7};
    mesh.facets.push_back(facet);
    return mesh;
}

} // namespace

void tst_MeshRepair::AStraightTetrahedronIsPerfect()
{
    Mesh mesh = OneTetrahedron();
    const MeshQuality quality = RepairMesh(mesh);
    QVERIFY(quality.isUsable);
    QCOMPARE(quality.movedNodes, 0);
    QVERIFY(std::abs(quality.worst - 1.0) < 1e-12);
}

void tst_MeshRepair::ADistortedTetrahedronIsStraightened()
{
    Mesh mesh = OneTetrahedron();
    mesh.nodes[4] = {0.5, 0.45, 0.0};
    const MeshQuality quality = RepairMesh(mesh);
    QVERIFY(quality.isUsable);
    QCOMPARE(quality.movedNodes, 1);
    QVERIFY((mesh.nodes[4] == Vector3{0.5, 0.0, 0.0}));
}

void tst_MeshRepair::ASlightlyCurvedTetrahedronStays()
{
    Mesh mesh = OneTetrahedron();
    mesh.nodes[4] = {0.5, -0.05, 0.0};
    const MeshQuality quality = RepairMesh(mesh);
    QCOMPARE(quality.movedNodes, 0);
    QVERIFY(quality.worst > 0.1 && quality.worst < 1.0);
    QCOMPARE(mesh.nodes[4][1], -0.05);
}

void tst_MeshRepair::ATetrahedronInsideOutCannotBeUsed()
{
    Mesh mesh = OneTetrahedron(-4.0);
    const MeshQuality quality = RepairMesh(mesh);
    QVERIFY(!quality.isUsable);
    QVERIFY((quality.worstPlace == Vector3{0.25, 0.25, -1.0}));
}

void tst_MeshRepair::AFoldedFacetCannotBeUsed()
{
    Mesh mesh = OneFacet(4);
    mesh.nodes[2] = {0.1, 0.1, 0.0};
    QVERIFY(!RepairMesh(mesh).isUsable);
}

void tst_MeshRepair::ADistortedFacetIsStraightened_data()
{
    QTest::addColumn<int>("corners");
    NewRow("triangle", 3);
    NewRow("quadrilateral", 4);
}

void tst_MeshRepair::ADistortedFacetIsStraightened()
{
    QFETCH(int, corners);
    Mesh mesh = OneFacet(corners);
    mesh.nodes[std::size_t(corners)] = {0.05, 0.1, 0.0};
    const MeshQuality quality = RepairMesh(mesh);
    QVERIFY(quality.isUsable);
    QCOMPARE(quality.movedNodes, 1);
    QVERIFY((mesh.nodes[std::size_t(corners)] == Vector3{0.5, 0.0, 0.0}));
}

void tst_MeshRepair::EveryMeshOfACurvedPartCanBeUsed()
{
    EnterTemporaryDirectory();
    Mesh mesh = Meshed(BRepPrimAPI_MakeTorus(30.0, 10.0).Shape(), OfSize(20.0));
    const MeshQuality quality = RepairMesh(mesh);
    QVERIFY(quality.isUsable);
    QVERIFY(quality.worst >= 0.1);
}

TARN_TEST_MAIN(tst_MeshRepair)
#include "tst_MeshRepair.moc"
