#include "DrawerOutput.h"
#include "ShapePicture.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <QSignalSpy>
#include <TopoDS_Shape.hxx>

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
    void AFailureOfTheKernelIsAWarning();
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
    picture.SetLines(DrawLines(Box(1.0)));
    QVERIFY(!Inked(Drawn(picture)).isEmpty());
}

void tst_ShapePicture::AShapeOfAnySizeFillsThePicture()
{
    ShapePicture picture(nullptr);
    for (const double size : {0.01, 1.0, 1e5}) {
        picture.SetLines(DrawLines(Box(size)));
        const QRect inked = Inked(Drawn(picture));
        QVERIFY2(inked.height() >= 130 && inked.height() <= 150, qPrintable(QString::number(size)));
        QVERIFY(QRect(0, 0, 200, 160).contains(inked));
    }
}

void tst_ShapePicture::ANullShapeTakesThePictureAway()
{
    ShapePicture picture(nullptr);
    picture.SetLines(DrawLines(Box(1.0)));
    picture.SetLines({});
    QVERIFY(Inked(Drawn(picture)).isEmpty());
}

void tst_ShapePicture::AnotherShapeReplacesTheFirst()
{
    ShapePicture picture(nullptr);
    picture.SetLines(DrawLines(Box(1.0)));
    const QImage box = Drawn(picture);
    picture.SetLines(DrawLines(BRepPrimAPI_MakeCylinder(1.0, 1.0).Shape()));
    QVERIFY(Drawn(picture) != box);
}

void tst_ShapePicture::ATextReplacesTheDrawingOfALargePart()
{
    ShapePicture picture(nullptr);
    LineDrawing tooLarge;
    tooLarge.isTooLarge = true;
    picture.SetLines(tooLarge);
    const QImage text = Drawn(picture);
    QVERIFY(!Inked(text).isEmpty());
    picture.SetLines(DrawLines(Box(1.0)));
    QVERIFY(Drawn(picture) != text);
}

void tst_ShapePicture::AFailureOfTheKernelIsAWarning()
{
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    ShapePicture picture(nullptr);
    LineDrawing failed;
    failed.failure = "no curve";
    picture.SetLines(failed);
    QCOMPARE(posted.size(), 1);
    QCOMPARE(posted[0][1].toString(), QStringLiteral("The shape cannot be drawn: no curve"));
    QVERIFY(Inked(Drawn(picture)).isEmpty());
}

TARN_TEST_MAIN(tst_ShapePicture)
#include "tst_ShapePicture.moc"
