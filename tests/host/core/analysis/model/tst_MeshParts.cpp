#include "Bodies.h"
#include "MeshParts.h"
#include "Meshed.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <gp_Pnt.hxx>

class tst_MeshParts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void OneBodyIsOnePart();
    void BodiesThatOnlyTouchAreTwoParts();
    void ShellsThatShareAnEdgeAreOnePart();
    void ShellsApartAreTwoParts();
};

namespace {

TopoDS_Shape Box(double x, double length)
{
    return BRepPrimAPI_MakeBox(gp_Pnt(x, 0, 0), length, 10.0, 10.0).Shape();
}

} // namespace

void tst_MeshParts::init()
{
    TestCase::init();
    EnterTemporaryDirectory();
}

void tst_MeshParts::OneBodyIsOnePart()
{
    const Mesh mesh = Meshed(Box(0, 20), OfSize(10));
    const std::vector<MeshPart> parts = PartsOf(mesh);
    QCOMPARE(parts.size(), std::size_t(1));
    QCOMPARE(parts[0].nodes.size(), mesh.nodes.size());
    QCOMPARE(parts[0].body, 1);
}

void tst_MeshParts::BodiesThatOnlyTouchAreTwoParts()
{
    const Mesh mesh = Meshed(Compound({Box(0, 20), Box(20, 30)}), OfSize(10));
    const std::vector<MeshPart> parts = PartsOf(mesh);
    QCOMPARE(parts.size(), std::size_t(2));
    QCOMPARE(parts[0].nodes.size() + parts[1].nodes.size(), mesh.nodes.size());
    QCOMPARE(parts[0].body + parts[1].body, 3);
}

void tst_MeshParts::ShellsThatShareAnEdgeAreOnePart()
{
    MeshRequest request = OfSize(5);
    request.shellFaces = {1, 3};
    QCOMPARE(PartsOf(Meshed(Box(0, 20), request)).size(), std::size_t(1));
}

void tst_MeshParts::ShellsApartAreTwoParts()
{
    MeshRequest request = OfSize(5);
    request.shellFaces = {1, 2};
    const std::vector<MeshPart> parts = PartsOf(Meshed(Box(0, 20), request));
    QCOMPARE(parts.size(), std::size_t(2));
    QCOMPARE(parts[0].body, 0);
}

TARN_TEST_MAIN(tst_MeshParts)
#include "tst_MeshParts.moc"
