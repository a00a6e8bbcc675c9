#include "Bodies.h"
#include "PickedMeasures.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <gp_Ax2.hxx>

class tst_PickedMeasures : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void OneThingIsMeasured_data();
    void OneThingIsMeasured();
    void TwoThingsAreMeasured_data();
    void TwoThingsAreMeasured();
    void NothingElseIsMeasured();
};

namespace {

TopoDS_Shape Part(const TopoDS_Shape& shape, TopAbs_ShapeEnum type, int number)
{
    TopTools_IndexedMapOfShape parts;
    TopExp::MapShapes(shape, type, parts);
    return parts.FindKey(number);
}

// Faces: x least, x greatest, y least, y greatest, z least, z greatest.
TopoDS_Shape Box()
{
    return BRepPrimAPI_MakeBox(10.0, 20.0, 30.0).Shape();
}

// Faces: side, top, bottom.
TopoDS_Shape Cylinder()
{
    return BRepPrimAPI_MakeCylinder(gp_Ax2(gp_Pnt(50, 0, 0), gp::DZ()), 5.0, 30.0).Shape();
}

TopoDS_Shape BoxFace(int number)
{
    return Part(Box(), TopAbs_FACE, number);
}

} // namespace

Q_DECLARE_METATYPE(TopoDS_Shape)

void tst_PickedMeasures::OneThingIsMeasured_data()
{
    QTest::addColumn<TopoDS_Shape>("shape");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("flat face") << BoxFace(1) << QStringList("Area: 600 mm²");
    QTest::newRow("cylinder") << Part(Cylinder(), TopAbs_FACE, 1)
                              << QStringList(
                                     {"Radius: 5 mm, diameter: 10 mm", "Area: 942.478 mm²"});
    QTest::newRow("sphere") << Part(BRepPrimAPI_MakeSphere(2.0).Shape(), TopAbs_FACE, 1)
                            << QStringList({"Radius: 2 mm, diameter: 4 mm", "Area: 50.2655 mm²"});
    QTest::newRow("straight edge")
        << Part(BoxFace(5), TopAbs_EDGE, 1) << QStringList("Length: 20 mm");
    QTest::newRow("circle") << Part(Part(Cylinder(), TopAbs_FACE, 2), TopAbs_EDGE, 1)
                            << QStringList({"Radius: 5 mm, diameter: 10 mm", "Length: 31.4159 mm"});
}

void tst_PickedMeasures::OneThingIsMeasured()
{
    QFETCH(TopoDS_Shape, shape);
    QFETCH(QStringList, lines);
    QCOMPARE(MeasurePicked(Compound({shape})), lines);
}

void tst_PickedMeasures::TwoThingsAreMeasured_data()
{
    QTest::addColumn<TopoDS_Shape>("a");
    QTest::addColumn<TopoDS_Shape>("b");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("parallel faces")
        << BoxFace(1) << BoxFace(2) << QStringList({"Distance: 10 mm", "Angle: 0°"});
    QTest::newRow("perpendicular faces")
        << BoxFace(1) << BoxFace(3) << QStringList({"Distance: 0 mm", "Angle: 90°"});
    QTest::newRow("face and edge in it") << BoxFace(5) << Part(BoxFace(6), TopAbs_EDGE, 1)
                                         << QStringList({"Distance: 30 mm", "Angle: 0°"});
    QTest::newRow("face and cylinder")
        << BoxFace(2) << Part(Cylinder(), TopAbs_FACE, 1) << QStringList("Distance: 35 mm");
}

void tst_PickedMeasures::TwoThingsAreMeasured()
{
    QFETCH(TopoDS_Shape, a);
    QFETCH(TopoDS_Shape, b);
    QFETCH(QStringList, lines);
    QCOMPARE(MeasurePicked(Compound({a, b})), lines);
    QCOMPARE(MeasurePicked(Compound({b, a})), lines);
}

void tst_PickedMeasures::NothingElseIsMeasured()
{
    QVERIFY(MeasurePicked({}).isEmpty());
    QVERIFY(MeasurePicked(Compound({BoxFace(1), BoxFace(2), BoxFace(3)})).isEmpty());
}

TARN_TEST_MAIN(tst_PickedMeasures)
#include "tst_PickedMeasures.moc"
