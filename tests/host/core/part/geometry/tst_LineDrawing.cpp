#include "Bodies.h"
#include "LineDrawing.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <QElapsedTimer>
#include <TopoDS_Shape.hxx>
#include <gp_Trsf.hxx>

#include <cmath>

Q_DECLARE_METATYPE(TopoDS_Shape)

class tst_LineDrawing : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void NoShapeHasNoLines();
    void HiddenEdgesAreLeftOut_data();
    void HiddenEdgesAreLeftOut();
    void TheVerticalAxisPointsUpwards();
    void APartWithTooManyFacesHasNoLines();
};

void tst_LineDrawing::NoShapeHasNoLines()
{
    const LineDrawing lines = DrawLines(TopoDS_Shape());
    QVERIFY(lines.edges.isEmpty() && lines.smooth.isEmpty());
    QVERIFY(!lines.isTooLarge && lines.failure.isEmpty());
}

void tst_LineDrawing::HiddenEdgesAreLeftOut_data()
{
    const TopoDS_Shape box = BRepPrimAPI_MakeBox(10.0, 20.0, 30.0).Shape();
    gp_Trsf behind;
    behind.SetTranslation({-5.0, 30.0, -14.0});
    QTest::addColumn<TopoDS_Shape>("shape");
    QTest::addColumn<int>("edges");
    QTest::newRow("box") << box << 9;
    // Its smaller copy is behind it, seen from the front right corner and from above.
    QTest::newRow("two boxes")
        << Compound({box, BRepPrimAPI_MakeBox(1.0, 1.0, 1.0).Shape().Moved(behind)}) << 9;
}

void tst_LineDrawing::HiddenEdgesAreLeftOut()
{
    QFETCH(TopoDS_Shape, shape);
    QTEST(int(DrawLines(shape).edges.size()), "edges");
}

void tst_LineDrawing::TheVerticalAxisPointsUpwards()
{
    QPointF highest;
    const LineDrawing lines = DrawLines(BRepPrimAPI_MakeCone(10.0, 0.0, 30.0).Shape());
    for (const LineDrawing::Line& line : lines.edges) {
        for (const QPointF& point : line)
            highest = point.y() < highest.y() ? point : highest;
    }
    // The tip, on the vertical axis of the picture.
    QVERIFY(highest.y() < -20.0);
    QVERIFY(std::abs(highest.x()) < 1e-6);
}

void tst_LineDrawing::APartWithTooManyFacesHasNoLines()
{
    const TopoDS_Shape box = BRepPrimAPI_MakeBox(1.0, 1.0, 1.0).Shape();
    std::vector<TopoDS_Shape> boxes;
    for (int i = 0; i < 10000; ++i) {
        gp_Trsf translation;
        translation.SetTranslation(gp_Vec(2.0 * (i % 100), 2.0 * int(i / 100), 0.0));
        boxes.push_back(box.Moved(TopLoc_Location(translation)));
    }
    // Hidden lines of so many take minutes.
    const std::vector<TopoDS_Shape> tori(100, BRepPrimAPI_MakeTorus(2.0, 1.0).Shape());
    QElapsedTimer timer;
    timer.start();
    for (const TopoDS_Shape& shape : {Compound(boxes), Compound(tori)}) {
        const LineDrawing lines = DrawLines(shape);
        QVERIFY(lines.isTooLarge);
        QVERIFY(lines.edges.isEmpty());
    }
    QVERIFY2(timer.elapsed() < 1000, QByteArray::number(timer.elapsed()));
}

TARN_TEST_MAIN(tst_LineDrawing)
#include "tst_LineDrawing.moc"
