#include "Bodies.h"
#include "ShapePicture.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <QElapsedTimer>
#include <TopoDS_Shape.hxx>
#include <gp_Trsf.hxx>

class tst_ShapePicture : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void WithoutAShapeThePictureIsEmpty();
    void AShapeIsDrawn();
    void AShapeOfAnySizeFillsThePicture();
    void ANullShapeTakesThePictureAway();
    void AnotherShapeReplacesTheFirst();
    void ATextReplacesTheDrawingOfALargePart();
};

namespace {

TopoDS_Shape Box(double size)
{
    return BRepPrimAPI_MakeBox(size, size, size).Shape();
}

QImage Drawn(ShapePicture& picture)
{
    picture.resize(200, 160);
    return picture.grab().toImage();
}

// The part of the picture that is not background.
QRect Inked(const QImage& image)
{
    QRect inked;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != image.pixel(0, 0))
                inked |= QRect(x, y, 1, 1);
        }
    }
    return inked;
}

} // namespace

void tst_ShapePicture::WithoutAShapeThePictureIsEmpty()
{
    ShapePicture picture(nullptr);
    QVERIFY(Inked(Drawn(picture)).isEmpty());
}

void tst_ShapePicture::AShapeIsDrawn()
{
    ShapePicture picture(nullptr);
    picture.SetShape(Box(1.0));
    QVERIFY(!Inked(Drawn(picture)).isEmpty());
}

void tst_ShapePicture::AShapeOfAnySizeFillsThePicture()
{
    ShapePicture picture(nullptr);
    for (const double size : {0.01, 1.0, 1e5}) {
        picture.SetShape(Box(size));
        const QRect inked = Inked(Drawn(picture));
        QVERIFY2(inked.height() >= 130 && inked.height() <= 150, qPrintable(QString::number(size)));
        QVERIFY(QRect(0, 0, 200, 160).contains(inked));
    }
}

void tst_ShapePicture::ANullShapeTakesThePictureAway()
{
    ShapePicture picture(nullptr);
    picture.SetShape(Box(1.0));
    picture.SetShape(TopoDS_Shape());
    QVERIFY(Inked(Drawn(picture)).isEmpty());
}

void tst_ShapePicture::AnotherShapeReplacesTheFirst()
{
    ShapePicture picture(nullptr);
    picture.SetShape(Box(1.0));
    const QImage box = Drawn(picture);
    picture.SetShape(BRepPrimAPI_MakeCylinder(1.0, 1.0).Shape());
    QVERIFY(Drawn(picture) != box);
}

void tst_ShapePicture::ATextReplacesTheDrawingOfALargePart()
{
    constexpr int Count = 10000;
    const TopoDS_Shape box = Box(1.0);
    std::vector<TopoDS_Shape> boxes;
    boxes.reserve(Count);
    for (int i = 0; i < Count; ++i) {
        gp_Trsf translation;
        translation.SetTranslation(gp_Vec(2.0 * (i % 100), 2.0 * int(i / 100), 0.0));
        boxes.push_back(box.Moved(TopLoc_Location(translation)));
    }
    ShapePicture picture(nullptr);
    QElapsedTimer timer;
    timer.start();
    picture.SetShape(Compound(boxes));
    const QImage text = Drawn(picture);
    // Hidden lines of so many boxes take minutes.
    QVERIFY2(timer.elapsed() < 1000, QByteArray::number(timer.elapsed()));
    QVERIFY(!Inked(text).isEmpty());
    const std::vector<TopoDS_Shape> many(100, BRepPrimAPI_MakeTorus(2.0, 1.0).Shape());
    picture.SetShape(Compound(many));
    QCOMPARE(Drawn(picture), text);
    picture.SetShape(box);
    QVERIFY(Drawn(picture) != text);
}

TARN_TEST_MAIN(tst_ShapePicture)
#include "tst_ShapePicture.moc"
