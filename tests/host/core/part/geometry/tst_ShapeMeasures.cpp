#include "Bodies.h"
#include "ShapeMeasures.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <QElapsedTimer>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Ax2.hxx>
#include <gp_Pnt.hxx>
#include <gp_Trsf.hxx>

#include <cmath>

class tst_ShapeMeasures : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ABoxHasItsMeasures();
    void CopiesAddUp();
    void TenThousandCopiesAreMeasuredAtOnce();
    void NoShapeHasNoMeasures();
    void TheMassIsInKilograms();
};

void tst_ShapeMeasures::ABoxHasItsMeasures()
{
    const ShapeMeasures measures =
        Measure(BRepPrimAPI_MakeBox(gp_Pnt(1, 2, 3), 10.0, 20.0, 30.0).Shape());
    QCOMPARE(measures.volume, 6000.0);
    QCOMPARE(measures.area, 2200.0);
    const std::array<double, 6> expected = {1, 2, 3, 11, 22, 33};
    for (std::size_t i = 0; i < expected.size(); ++i)
        QVERIFY(std::abs(measures.boundingBox[i] - expected[i]) < 1e-9);
}

// The body and its copies around the z axis.
static TopoDS_Shape Ring(const TopoDS_Shape& body, int count)
{
    std::vector<TopoDS_Shape> copies;
    copies.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i) {
        gp_Trsf rotation;
        rotation.SetRotation(gp_Ax1(), 2.0 * std::acos(-1.0) * i / count);
        copies.push_back(body.Moved(TopLoc_Location(rotation)));
    }
    return Compound(copies);
}

void tst_ShapeMeasures::CopiesAddUp()
{
    const TopoDS_Shape box = BRepPrimAPI_MakeBox(gp_Pnt(5, -1, 0), 10.0, 2.0, 3.0).Shape();
    const ShapeMeasures measures = Measure(Compound({Ring(box, 4), Ring(box, 1)}));
    QCOMPARE(measures.volume, 5 * 60.0);
    QCOMPARE(measures.area, 5 * 112.0);
    const std::array<double, 6> expected = {-15, -15, 0, 15, 15, 3};
    for (std::size_t i = 0; i < expected.size(); ++i)
        QVERIFY(std::abs(measures.boundingBox[i] - expected[i]) < 1e-9);
}

void tst_ShapeMeasures::TenThousandCopiesAreMeasuredAtOnce()
{
    // One after the other, their boxes alone take minutes.
    const TopoDS_Shape torus =
        BRepPrimAPI_MakeTorus(gp_Ax2(gp_Pnt(500, 0, 0), gp_Dir(1, 2, 3)), 10.0, 3.0).Shape();
    const ShapeMeasures one = Measure(torus);
    QElapsedTimer timer;
    timer.start();
    const ShapeMeasures all = Measure(Ring(torus, 10000));
    QVERIFY2(timer.elapsed() < 10000, QByteArray::number(timer.elapsed()));
    QVERIFY(std::abs(all.volume - 10000 * one.volume) < 1e-9 * all.volume);
    QVERIFY(std::abs(all.area - 10000 * one.area) < 1e-9 * all.area);
    QVERIFY(std::abs(all.boundingBox[0] + all.boundingBox[3]) < 1e-6);
    QVERIFY(all.boundingBox[3] > one.boundingBox[3] - 1e-9);
    QVERIFY(std::abs(all.boundingBox[5] - one.boundingBox[5]) < 1e-6);
}

void tst_ShapeMeasures::NoShapeHasNoMeasures()
{
    const ShapeMeasures measures = Measure(TopoDS_Shape());
    QCOMPARE(measures.volume, 0.0);
    QCOMPARE(measures.area, 0.0);
    QCOMPARE(measures.boundingBox, (std::array<double, 6>{}));
}

void tst_ShapeMeasures::TheMassIsInKilograms()
{
    ShapeMeasures measures;
    measures.volume = 2e6;
    QCOMPARE(measures.Mass(7850.0), 15.7);
}

TARN_TEST_MAIN(tst_ShapeMeasures)
#include "tst_ShapeMeasures.moc"
