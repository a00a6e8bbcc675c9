#include "ShapeMeasures.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <TopoDS_Compound.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Pnt.hxx>

#include <cmath>

class tst_ShapeMeasures : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ABoxHasItsMeasures();
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
    QCOMPARE(Mass(measures, 7850.0), 15.7);
}

TARN_TEST_MAIN(tst_ShapeMeasures)
#include "tst_ShapeMeasures.moc"
