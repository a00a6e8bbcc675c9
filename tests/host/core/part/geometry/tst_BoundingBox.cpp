#include "Bodies.h"
#include "BoundingBox.h"
#include "TestCase.h"

#include <BRepAlgoAPI_Cut.hxx>
#include <BRepAlgoAPI_Fuse.hxx>
#include <BRepBndLib.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <TopExp_Explorer.hxx>
#include <gp_Trsf.hxx>

#include <cmath>

class tst_BoundingBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ItIsTheBoxOfTheKernel_data();
    void ItIsTheBoxOfTheKernel();
    void CopiesAreIncluded();
    void NoShapeHasAVoidBox();
};

namespace {

// In mm. What the search of the kernel finds for a turned torus differs by this much.
constexpr double Tolerance = 1e-9;

TopoDS_Shape Placed(const TopoDS_Shape& shape, double x, double angle = 0.0)
{
    gp_Trsf translation;
    translation.SetTranslation(gp_Vec(x, 1.0, -2.0));
    gp_Trsf rotation;
    rotation.SetRotation(gp_Ax1(gp_Pnt(1.0, 2.0, 3.0), gp_Dir(1.0, 2.0, -1.0)), angle);
    return shape.Moved(TopLoc_Location(translation * rotation));
}

bool AreEqual(const Bnd_Box& a, const Bnd_Box& b)
{
    return a.CornerMin().Distance(b.CornerMin()) < Tolerance &&
           a.CornerMax().Distance(b.CornerMax()) < Tolerance;
}

Bnd_Box BoxOfTheKernel(const TopoDS_Shape& shape)
{
    Bnd_Box box;
    BRepBndLib::AddOptimal(shape, box, false, false);
    return box;
}

TopoDS_Shape RoundedPlate()
{
    const TopoDS_Shape plate = BRepPrimAPI_MakeCylinder(20.0, 5.0).Shape();
    const TopoDS_Shape rim = BRepPrimAPI_MakeTorus(20.0, 2.5).Shape();
    const TopoDS_Shape dome = BRepPrimAPI_MakeSphere(8.0).Shape();
    return BRepAlgoAPI_Fuse(BRepAlgoAPI_Cut(plate, rim).Shape(), dome).Shape();
}

} // namespace

Q_DECLARE_METATYPE(TopoDS_Shape)

void tst_BoundingBox::ItIsTheBoxOfTheKernel_data()
{
    QTest::addColumn<TopoDS_Shape>("shape");
    const auto rows = [](const char* name, const TopoDS_Shape& shape) {
        QTest::addRow("%s", name) << shape;
        QTest::addRow("%s, moved", name) << Placed(shape, 7.0);
        QTest::addRow("%s, turned", name) << Placed(shape, 7.0, 0.4);
    };
    rows("box", BRepPrimAPI_MakeBox(1.0, 2.0, 3.0).Shape());
    rows("cylinder", BRepPrimAPI_MakeCylinder(2.0, 3.0, 1.0).Shape());
    rows("cone", BRepPrimAPI_MakeCone(2.0, 1.0, 3.0).Shape());
    rows("sphere", BRepPrimAPI_MakeSphere(3.0).Shape());
    rows("slice of a sphere", BRepPrimAPI_MakeSphere(3.0, -0.3, 0.8, 1.0).Shape());
    rows("torus", BRepPrimAPI_MakeTorus(10.0, 3.0).Shape());
    rows("part of a torus", BRepPrimAPI_MakeTorus(10.0, 3.0, -0.5, 1.5, 2.0).Shape());
    rows("rounded plate", RoundedPlate());
    rows("edge", TopExp_Explorer(BRepPrimAPI_MakeTorus(10.0, 3.0).Shape(), TopAbs_EDGE).Current());
    rows("vertex",
         TopExp_Explorer(BRepPrimAPI_MakeTorus(10.0, 3.0).Shape(), TopAbs_VERTEX).Current());
}

void tst_BoundingBox::ItIsTheBoxOfTheKernel()
{
    QFETCH(TopoDS_Shape, shape);
    QVERIFY(AreEqual(TightBox(shape), BoxOfTheKernel(shape)));
}

void tst_BoundingBox::CopiesAreIncluded()
{
    const TopoDS_Shape torus = BRepPrimAPI_MakeTorus(10.0, 3.0).Shape();
    const std::vector<TopoDS_Shape> copies = {Placed(torus, -20.0), Placed(torus, 0.0, 0.3),
                                              Placed(torus, 7.0, 0.6), Placed(torus, 14.0, 0.9)};
    const TopoDS_Shape shape = Placed(Compound({Compound(copies), RoundedPlate()}), 3.0, 1.0);
    QVERIFY(AreEqual(TightBox(shape), BoxOfTheKernel(shape)));
}

void tst_BoundingBox::NoShapeHasAVoidBox()
{
    QVERIFY(TightBox(TopoDS_Shape()).IsVoid());
    QVERIFY(TightBox(Compound({})).IsVoid());
}

TARN_TEST_MAIN(tst_BoundingBox)
#include "tst_BoundingBox.moc"
