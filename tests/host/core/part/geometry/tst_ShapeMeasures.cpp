#include "Bodies.h"
#include "ShapeMeasures.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
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
    void InertiaFollowsTheFormulas_data();
    void InertiaFollowsTheFormulas();
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

using Moments = std::array<double, 6>;
Q_DECLARE_METATYPE(Moments)
Q_DECLARE_METATYPE(TopoDS_Shape)
Q_DECLARE_METATYPE(gp_Pnt)

void tst_ShapeMeasures::InertiaFollowsTheFormulas_data()
{
    constexpr double Density = 7850.0;
    const double pi = std::acos(-1.0);
    QTest::addColumn<TopoDS_Shape>("shape");
    QTest::addColumn<gp_Pnt>("centre");
    QTest::addColumn<Moments>("inertia"); // kg mm2

    const TopoDS_Shape box = BRepPrimAPI_MakeBox(gp_Pnt(1, 2, 3), 10.0, 20.0, 30.0).Shape();
    const double mass = 6000.0 * Density / 1e9;
    const Moments ofBox = {mass * 1300 / 12, mass * 1000 / 12, mass * 500 / 12, 0, 0, 0};
    QTest::newRow("box") << box << gp_Pnt(6, 12, 18) << ofBox;

    const double disc = pi * 25 * 8 * Density / 1e9;
    QTest::newRow("cylinder")
        << BRepPrimAPI_MakeCylinder(5.0, 8.0).Shape() << gp_Pnt(0, 0, 4)
        << Moments{disc * (75 + 64) / 12, disc * (75 + 64) / 12, disc * 25 / 2, 0, 0, 0};

    gp_Trsf quarter;
    quarter.SetRotation(gp_Ax1(), pi / 2);
    QTest::newRow("turned by 90 degrees") << box.Moved(quarter) << gp_Pnt(-12, 6, 18)
                                          << Moments{ofBox[1], ofBox[0], ofBox[2], 0, 0, 0};

    gp_Trsf eighth;
    eighth.SetRotation(gp_Ax1(), pi / 4);
    const double mean = (ofBox[0] + ofBox[1]) / 2;
    QTest::newRow("turned by 45 degrees")
        << box.Moved(eighth) << gp_Pnt(-6 * std::sqrt(0.5), 18 * std::sqrt(0.5), 18)
        << Moments{mean, mean, ofBox[2], (ofBox[1] - ofBox[0]) / 2, 0, 0};

    // Both together are a box of twice the length, or two boxes that are apart.
    gp_Trsf beside;
    beside.SetTranslation({10, 0, 0});
    QTest::newRow("two boxes side by side")
        << Compound({box, box.Moved(beside)}) << gp_Pnt(11, 12, 18)
        << Moments{2 * mass * 1300 / 12, 2 * mass * 1300 / 12, 2 * mass * 800 / 12, 0, 0, 0};
    gp_Trsf diagonal;
    diagonal.SetTranslation({40, 60, 80});
    QTest::newRow("two boxes apart") << Compound({box, box.Moved(diagonal)}) << gp_Pnt(26, 42, 58)
                                     << Moments{2 * (ofBox[0] + mass * 2500),
                                                2 * (ofBox[1] + mass * 2000),
                                                2 * (ofBox[2] + mass * 1300),
                                                2 * mass * 600,
                                                2 * mass * 800,
                                                2 * mass * 1200};
}

void tst_ShapeMeasures::InertiaFollowsTheFormulas()
{
    QFETCH(TopoDS_Shape, shape);
    QFETCH(gp_Pnt, centre);
    QFETCH(Moments, inertia);
    const ShapeMeasures measures = Measure(shape);
    const auto& [x, y, z] = measures.centre;
    QVERIFY(gp_Pnt(x, y, z).Distance(centre) < 1e-9);
    const Moments found = measures.Inertia(7850.0);
    for (std::size_t i = 0; i < found.size(); ++i)
        QVERIFY2(std::abs(found[i] - inertia[i]) < 1e-9 * inertia[0],
                 qPrintable(QString("%1: %2").arg(i).arg(found[i])));
}

TARN_TEST_MAIN(tst_ShapeMeasures)
#include "tst_ShapeMeasures.moc"
