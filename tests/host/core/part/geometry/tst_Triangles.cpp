#include "TestCase.h"
#include "Triangles.h"

#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRep_Tool.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>

class tst_Triangles : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void FacesGetTrianglesAndLoseThem();
    void NoShapeHasNoTriangles();
};

static int TriangleCount(const TopoDS_Shape& shape)
{
    int count = 0;
    for (TopExp_Explorer faces(shape, TopAbs_FACE); faces.More(); faces.Next()) {
        TopLoc_Location location;
        const Handle(Poly_Triangulation) triangles =
            BRep_Tool::Triangulation(TopoDS::Face(faces.Current()), location);
        count += triangles.IsNull() ? 0 : triangles->NbTriangles();
    }
    return count;
}

void tst_Triangles::FacesGetTrianglesAndLoseThem()
{
    const TopoDS_Shape small = BRepPrimAPI_MakeSphere(1.0).Shape();
    const TopoDS_Shape large = BRepPrimAPI_MakeSphere(1000.0).Shape();
    for (const TopoDS_Shape& shape : {small, large})
        AddTriangles(shape);
    QVERIFY(TriangleCount(small) > 100);
    // As fine as the view shows it, whatever the size.
    QCOMPARE(TriangleCount(small), TriangleCount(large));
    RemoveTriangles(small);
    QCOMPARE(TriangleCount(small), 0);
}

void tst_Triangles::NoShapeHasNoTriangles()
{
    AddTriangles(TopoDS_Shape());
    RemoveTriangles(TopoDS_Shape());
}

TARN_TEST_MAIN(tst_Triangles)
#include "tst_Triangles.moc"
