#include "ElementShapes.h"
#include "Meshed.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>

#include <set>

class tst_MeshScript : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void SolidsAreFilledWithTetrahedra();
    void OnlyShellFacesGetElements();
    void ALocalSizeRefinesAFace();
    void ALocalSizeRefinesAnEdge();
    void ANumberOfElementsHoldsAlongAnEdge();
    void TheSameScriptGivesTheSameMesh();
    void SizesAreWrittenWithAPoint();
};

namespace {

double VolumeOf(const Mesh& mesh)
{
    double volume = 0.0;
    for (const Mesh::Tetrahedron& element : mesh.tetrahedra) {
        std::array<Vector3, 4> corner;
        for (std::size_t i = 0; i < corner.size(); ++i)
            corner[i] = mesh.nodes[std::size_t(element.nodes[i])];
        volume +=
            Dot(corner[3] - corner[0], Cross(corner[1] - corner[0], corner[2] - corner[0])) / 6.0;
    }
    return volume;
}

template<class Element, class Number>
int CountOn(const std::vector<Element>& elements, int Element::*target, Number number)
{
    return int(std::count_if(elements.begin(), elements.end(),
                             [&](const Element& element) { return element.*target == number; }));
}

TopoDS_Shape Box()
{
    return BRepPrimAPI_MakeBox(40.0, 30.0, 20.0).Shape();
}

} // namespace

void tst_MeshScript::init()
{
    TestCase::init();
    EnterTemporaryDirectory();
}

void tst_MeshScript::SolidsAreFilledWithTetrahedra()
{
    const Mesh mesh = Meshed(Box(), OfSize(10.0));
    QVERIFY(std::abs(VolumeOf(mesh) - 24000.0) < 1e-6);
    for (int face = 1; face <= 6; ++face)
        QVERIFY(CountOn(mesh.facets, &Mesh::Facet::face, face) > 0);
    for (int edge = 1; edge <= 12; ++edge)
        QVERIFY(CountOn(mesh.lines, &Mesh::Line::edge, edge) > 0);
}

void tst_MeshScript::OnlyShellFacesGetElements()
{
    MeshRequest request = OfSize(10.0);
    request.shellFaces = {2, 5};
    const Mesh mesh = Meshed(Box(), request);
    QVERIFY(!mesh.IsSolid());
    std::set<int> faces;
    for (const Mesh::Facet& facet : mesh.facets)
        faces.insert(facet.face);
    QVERIFY((faces == std::set<int>{2, 5}));
    // A plane rectangle is divided into quadrilaterals.
    QCOMPARE(CountOn(mesh.facets, &Mesh::Facet::corners, 4), int(mesh.facets.size()));
}

void tst_MeshScript::ALocalSizeRefinesAFace()
{
    MeshRequest request = OfSize(10.0);
    const int coarse = CountOn(Meshed(Box(), request).facets, &Mesh::Facet::face, 3);
    LocalMesh local;
    local.size = 2.5;
    local.faces = {3};
    request.local = {local};
    const Mesh mesh = Meshed(Box(), request);
    QVERIFY(CountOn(mesh.facets, &Mesh::Facet::face, 3) > 8 * coarse);
    QVERIFY(CountOn(mesh.facets, &Mesh::Facet::face, 4) < 4 * coarse);
}

void tst_MeshScript::ALocalSizeRefinesAnEdge()
{
    MeshRequest request = OfSize(10.0);
    const int coarse = CountOn(Meshed(Box(), request).lines, &Mesh::Line::edge, 1);
    LocalMesh first;
    first.size = 1.0;
    first.edges = {1};
    LocalMesh second;
    second.size = 5.0;
    second.faces = {1, 2};
    request.local = {first, second};
    QVERIFY(CountOn(Meshed(Box(), request).lines, &Mesh::Line::edge, 1) > 8 * coarse);
}

void tst_MeshScript::ANumberOfElementsHoldsAlongAnEdge()
{
    MeshRequest request = OfSize(10.0);
    LocalMesh local;
    local.number = 13;
    local.edges = {4, 7};
    request.local = {local};
    const Mesh mesh = Meshed(Box(), request);
    QCOMPARE(CountOn(mesh.lines, &Mesh::Line::edge, 4), 13);
    QCOMPARE(CountOn(mesh.lines, &Mesh::Line::edge, 7), 13);
}

void tst_MeshScript::TheSameScriptGivesTheSameMesh()
{
    const TopoDS_Shape shape = BRepPrimAPI_MakeCylinder(20.0, 15.0).Shape();
    Meshed(shape, OfSize(6.0));
    const QByteArray first = ContentOf("part.msh");
    Meshed(shape, OfSize(6.0));
    QVERIFY(ContentOf("part.msh") == first);
}

void tst_MeshScript::SizesAreWrittenWithAPoint()
{
    UseLocale("de_DE.UTF-8");
    QVERIFY(MeshScript(OfSize(0.1)).contains("Mesh.MeshSizeMax = 0.1;\n"));
}

TARN_TEST_MAIN(tst_MeshScript)
#include "tst_MeshScript.moc"
