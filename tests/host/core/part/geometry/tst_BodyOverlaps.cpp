#include "Bodies.h"
#include "BodyOverlaps.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <QElapsedTimer>
#include <gp_Ax2.hxx>
#include <gp_Trsf.hxx>

#include <cmath>

class tst_BodyOverlaps : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void BodiesThatOverlapAreFound_data();
    void BodiesThatOverlapAreFound();
    void LargeArraysTakeLittleTime_data();
    void LargeArraysTakeLittleTime();
    void ManyDifferentBodiesAreNotAllCompared();
    void AnalysesAreRefused();
};

using Pairs = std::vector<std::pair<int, int>>;

Q_DECLARE_METATYPE(TopoDS_Shape)
Q_DECLARE_METATYPE(Pairs)

namespace {

TopoDS_Shape BoxAt(double x, double size = 10.0)
{
    return BRepPrimAPI_MakeBox(gp_Pnt(x, 0.0, 0.0), size, size, size).Shape();
}

TopoDS_Shape MovedBy(const TopoDS_Shape& shape, double x, double y)
{
    gp_Trsf translation;
    translation.SetTranslation(gp_Vec(x, y, 0.0));
    return shape.Moved(TopLoc_Location(translation));
}

TopoDS_Shape Grid(int columns, int rows, double distance)
{
    const TopoDS_Shape box = BoxAt(0.0);
    std::vector<TopoDS_Shape> boxes;
    boxes.reserve(std::size_t(columns * rows));
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            boxes.push_back(MovedBy(box, column * distance, row * distance));
    }
    return Compound(boxes);
}

// Slices of a ring that touch each other; their boxes overlap.
TopoDS_Shape Slices(int count)
{
    const double angle = 2.0 * std::acos(-1.0) / count;
    const TopoDS_Shape slice = BRepPrimAPI_MakeCylinder(100.0, 5.0, angle).Shape();
    std::vector<TopoDS_Shape> slices;
    slices.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i) {
        gp_Trsf rotation;
        rotation.SetRotation(gp_Ax1(), angle * i);
        slices.push_back(slice.Moved(TopLoc_Location(rotation)));
    }
    return Compound(slices);
}

} // namespace

void tst_BodyOverlaps::BodiesThatOverlapAreFound_data()
{
    QTest::addColumn<TopoDS_Shape>("shape");
    QTest::addColumn<Pairs>("pairs");
    QTest::addColumn<QString>("warning");
    const auto row = [](const char* name, const TopoDS_Shape& shape, const Pairs& pairs) {
        QStringList shown;
        for (const auto& [first, second] : pairs)
            shown << QString("%1 and %2").arg(first).arg(second);
        QTest::newRow(name)
            << shape << pairs
            << (pairs.empty()
                    ? QString()
                    : "Bodies overlap, and volume and mass count the common region twice: " +
                          shown.join("; ") + ".");
    };
    row("no shape", {}, {});
    row("one body", BoxAt(0), {});
    row("apart", Compound({BoxAt(0), BoxAt(11)}), {});
    row("touching", Compound({BoxAt(0), BoxAt(10)}), {});
    row("overlapping", Compound({BoxAt(0), BoxAt(5)}), {{1, 2}});
    row("copies", Grid(2, 1, 5.0), {{1, 2}});
    row("at the same place", Compound({BoxAt(0), BoxAt(0)}), {{1, 2}});
    row("the same body twice", Grid(2, 1, 0.0), {{1, 2}});
    row("one within the other", Compound({BoxAt(0), MovedBy(BoxAt(2, 1), 0.0, 3.0)}), {{1, 2}});
    row("a row, the last first", Compound({BoxAt(14), BoxAt(7), BoxAt(0)}), {{1, 2}, {2, 3}});
    row("nested compounds", Compound({BoxAt(0), Compound({BoxAt(30), BoxAt(5)})}), {{1, 3}});
    row("only the boxes around them",
        Compound({BRepPrimAPI_MakeSphere(10.0).Shape(),
                  BRepPrimAPI_MakeSphere(gp_Pnt(13, 13, 13), 10.0).Shape()}),
        {});
    row("slices", Slices(6), {});
}

void tst_BodyOverlaps::BodiesThatOverlapAreFound()
{
    QFETCH(TopoDS_Shape, shape);
    const BodyOverlaps found = FindOverlaps(shape);
    QTEST(found.pairs, "pairs");
    QVERIFY(found.isComplete);
    QTEST(found.Warning(), "warning");
}

void tst_BodyOverlaps::LargeArraysTakeLittleTime_data()
{
    QTest::addColumn<TopoDS_Shape>("shape");
    QTest::addColumn<bool>("overlap");
    QTest::newRow("apart") << Grid(100, 100, 20.0) << false;
    QTest::newRow("touching") << Grid(100, 100, 10.0) << false;
    QTest::newRow("overlapping") << Grid(100, 100, 5.0) << true;
    QTest::newRow("in one column") << Grid(1, 10000, 10.0) << false;
    QTest::newRow("ring") << Slices(100) << false;
}

void tst_BodyOverlaps::LargeArraysTakeLittleTime()
{
    QFETCH(TopoDS_Shape, shape);
    QFETCH(bool, overlap);
    QElapsedTimer timer;
    timer.start();
    const BodyOverlaps found = FindOverlaps(shape);
    QVERIFY2(timer.elapsed() < 10000, QByteArray::number(timer.elapsed()));
    QCOMPARE(int(found.pairs.size()), overlap ? BodyOverlaps::MaximumPairs : 0);
    QCOMPARE(found.isComplete, !overlap);
    QCOMPARE(found.Warning().endsWith("; there may be more."), overlap);
}

void tst_BodyOverlaps::ManyDifferentBodiesAreNotAllCompared()
{
    std::vector<TopoDS_Shape> spheres;
    for (int i = 0; i < 30; ++i) {
        spheres.push_back(BRepPrimAPI_MakeSphere(gp_Pnt(i % 2, 0, 2.1 * i), 1.0).Shape());
        spheres.push_back(BRepPrimAPI_MakeSphere(gp_Pnt(i, i, 1000.0 + i), 1.0 + i).Shape());
    }
    QVERIFY(!FindOverlaps(Compound(spheres)).isComplete);
}

void tst_BodyOverlaps::AnalysesAreRefused()
{
    QCOMPARE(FindOverlaps(Grid(2, 1, 10.0)).AnalysisProblem(), QString());
    QCOMPARE(FindOverlaps(Grid(2, 1, 5.0)).AnalysisProblem(),
             QString("The bodies 1 and 2 of the part overlap; fuse them before the analysis."));
    BodyOverlaps unknown;
    unknown.isComplete = false;
    QCOMPARE(unknown.AnalysisProblem(),
             QString("The bodies of the part could not all be compared for overlaps; fuse them "
                     "before the analysis."));
}

TARN_TEST_MAIN(tst_BodyOverlaps)
#include "tst_BodyOverlaps.moc"
