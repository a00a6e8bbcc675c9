#include "DensityImage.h"
#include "TestCase.h"

#include <limits>

class tst_DensityImage : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void PointsAreSquares();
    void LinesAreWhole_data();
    void LinesAreWhole();
    void MoreOfThemAreStronger();
    void WhatIsOutsideIsLeftOut();
};

static int Filled(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y).alpha() > 0 ? 1 : 0;
    }
    return count;
}

void tst_DensityImage::PointsAreSquares()
{
    DensityImage image(QSize(20, 10));
    image.AddPoint({5, 5}, 3);
    const QImage picture = image.Image(Qt::red);
    QCOMPARE(Filled(picture), 9);
    QVERIFY(picture.pixelColor(4, 4).alpha() > 0);
    QVERIFY(picture.pixelColor(6, 6).alpha() > 0);
}

void tst_DensityImage::LinesAreWhole_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<int>("pixels");
    NewRow("level", QPointF(0, 5), QPointF(19.5, 5), 20);
    NewRow("from right to left", QPointF(19.5, 5), QPointF(0, 5), 20);
    NewRow("upright", QPointF(5, 0), QPointF(5, 9), 10);
    NewRow("a diagonal", QPointF(0, 0), QPointF(9.5, 9.5), 10);
    NewRow("steep", QPointF(4, 0), QPointF(6, 10), 10);
    NewRow("through the picture", QPointF(-1e9, 5), QPointF(1e9, 5), 20);
}

void tst_DensityImage::LinesAreWhole()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(int, pixels);
    DensityImage image(QSize(20, 10));
    image.AddLine(from, to);
    QCOMPARE(Filled(image.Image(Qt::red)), pixels);
}

void tst_DensityImage::MoreOfThemAreStronger()
{
    int before = 0;
    for (const int times : {1, 3, 10, 200}) {
        DensityImage image(QSize(3, 3));
        for (int i = 0; i < times; ++i)
            image.AddPoint({1, 1}, 1);
        const int alpha = image.Image(Qt::blue).pixelColor(1, 1).alpha();
        QVERIFY(alpha > before);
        before = alpha;
    }
}

void tst_DensityImage::WhatIsOutsideIsLeftOut()
{
    constexpr double None = std::numeric_limits<double>::quiet_NaN();
    constexpr double Far = std::numeric_limits<double>::infinity();
    DensityImage image(QSize(10, 10));
    image.AddPoint({-5, 3}, 2);
    image.AddPoint({3, 50}, 2);
    image.AddLine({0, None}, {9, 5});
    image.AddLine({0, 0}, {9, Far});
    image.AddLine({-20, 0}, {-10, 5});
    image.AddLine({0, -1e300}, {0, -1e299});
    QCOMPARE(Filled(image.Image(Qt::red)), 0);
    QCOMPARE(DensityImage(QSize()).Image(Qt::red).size(), QSize(1, 1));
}

TARN_TEST_MAIN(tst_DensityImage)
#include "tst_DensityImage.moc"
