#include "MeshSkin.h"
#include "Meshed.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>

#include <cmath>

class tst_MeshSkin : public With<TestCase, TemporaryDirectory>
{
    Q_OBJECT

private Q_SLOTS:
    void ATriangleBecomesFour();
    void AQuadrilateralBecomesSix();
    void FacesDoNotSharePoints();
    void TheSkinOfABoxIsItsSurface();
};

namespace {

double AreaOf(const MeshSkin& skin)
{
    double area = 0.0;
    for (const auto& triangle : skin.triangles) {
        const auto corner = [&](std::size_t i) {
            return skin.points.at(std::size_t(triangle[i]));
        };
        const MeshSkin::Point a = corner(0);
        const MeshSkin::Point b = corner(1);
        const MeshSkin::Point c = corner(2);
        const auto cross = [&](std::size_t i, std::size_t j) {
            return double(b[i] - a[i]) * double(c[j] - a[j]) -
                   double(b[j] - a[j]) * double(c[i] - a[i]);
        };
        area += std::hypot(cross(0, 1), cross(1, 2), cross(2, 0)) / 2.0;
    }
    return area;
}

Mesh Triangle()
{
    Mesh mesh;
    mesh.nodes = {{0, 0, 0}, {2, 0, 0}, {0, 2, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
    mesh.facets = {{{0, 1, 2, 3, 4, 5}, 3, 1}};
    return mesh;
}

} // namespace

void tst_MeshSkin::ATriangleBecomesFour()
{
    const MeshSkin skin = SkinOf(Triangle());
    QCOMPARE(skin.points.size(), std::size_t(6));
    QCOMPARE(skin.triangles.size(), std::size_t(4));
    QCOMPARE(skin.lines.size(), std::size_t(6));
    QCOMPARE(AreaOf(skin), 2.0);
}

void tst_MeshSkin::AQuadrilateralBecomesSix()
{
    Mesh mesh;
    mesh.nodes = {{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0},
                  {1, 0, 0}, {2, 1, 0}, {1, 2, 0}, {0, 1, 0}};
    mesh.facets = {{{0, 1, 2, 3, 4, 5, 6, 7}, 4, 1}};
    const MeshSkin skin = SkinOf(mesh);
    QCOMPARE(skin.triangles.size(), std::size_t(6));
    QCOMPARE(skin.lines.size(), std::size_t(8));
    QCOMPARE(AreaOf(skin), 4.0);
}

void tst_MeshSkin::FacesDoNotSharePoints()
{
    Mesh mesh = Triangle();
    mesh.facets.push_back(mesh.facets.front());
    // Neighbours of one face share points and lines.
    QCOMPARE(SkinOf(mesh).points.size(), std::size_t(6));
    QCOMPARE(SkinOf(mesh).lines.size(), std::size_t(6));
    mesh.facets.back().face = 2;
    const MeshSkin skin = SkinOf(mesh);
    QCOMPARE(skin.points.size(), std::size_t(12));
    QCOMPARE(skin.nodes.at(6), skin.nodes.at(0));
}

void tst_MeshSkin::TheSkinOfABoxIsItsSurface()
{
    const Mesh mesh = Meshed(BRepPrimAPI_MakeBox(30.0, 20.0, 10.0).Shape(), OfSize(10.0));
    const MeshSkin skin = SkinOf(mesh);
    QVERIFY(std::abs(AreaOf(skin) - 2200.0) < 0.01);
    QCOMPARE(skin.triangles.size(), 4 * mesh.facets.size());
    QCOMPARE(skin.nodes.size(), skin.points.size());
    for (std::size_t point = 0; point < skin.points.size(); ++point) {
        for (std::size_t axis = 0; axis < 3; ++axis)
            QCOMPARE(skin.points[point][axis],
                     float(mesh.nodes.at(std::size_t(skin.nodes[point]))[axis]));
    }
}

TARN_TEST_MAIN(tst_MeshSkin)
#include "tst_MeshSkin.moc"
