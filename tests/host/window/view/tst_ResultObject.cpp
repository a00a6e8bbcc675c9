#include "ResultObject.h"
#include "ShownView.h"

class tst_ResultObject : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AResultStandsInForThePart();
    void AHighlightDoesNotCoverAResult();
    void ValuesAreColours();
    void TheLegendIsShown();
    void LinesAreDrawnOnDemand();
    void PointsMoveByTheScale();
    void PickingShowsThePartAgain();
    void AResultSurvivesAnotherWindow();
};

namespace {

/// A square of 200 mm that is seen from above, with its lower left half and its upper right one.
ViewResult Square(const std::vector<float>& values = {})
{
    MeshSkin skin;
    skin.points = {{-50, -70, 0}, {150, -70, 0}, {150, 130, 0}, {-50, 130, 0}};
    skin.nodes = {0, 1, 2, 3};
    skin.triangles = {{0, 1, 2}, {0, 2, 3}};
    skin.lines = {{0, 1}, {1, 2}, {2, 3}, {3, 0}, {0, 2}};
    ViewResult result;
    result.skin = std::make_shared<MeshSkin>(skin);
    result.values = values;
    result.hasLines = false;
    return result;
}

struct SeenFromAbove : ShownView
{
    SeenFromAbove()
    {
        view->SetStandardView(PartView::TopView);
        before = Picture();
    }

    Handle(ResultObject) Show(const ViewResult& result) const
    {
        Handle(ResultObject) object = new ResultObject(result, view->devicePixelRatioF());
        view->ShowResult(object);
        view->FitAll();
        return object;
    }
    /// Beside the diagonal.
    QColor Colour() const { return At(Picture(), Middle() + QPoint(20, 40)); }

    QImage before;
};

} // namespace

void tst_ResultObject::AResultStandsInForThePart()
{
    SeenFromAbove shown;
    shown.Show(Square());
    const QColor mesh = shown.Colour();
    QVERIFY2(mesh.blue() > mesh.red() && !IsOrange(mesh), qPrintable(mesh.name()));
    shown.MoveTo(shown.Middle());
    QVERIFY(!shown.point);
    int hidden = 0;
    connect(shown.view, &PartView::ResultHidden, this, [&hidden] { ++hidden; });
    shown.view->HideResult();
    shown.view->HideResult();
    QCOMPARE(hidden, 1);
    shown.view->FitAll();
    QCOMPARE(shown.Picture(), shown.before);
    shown.MoveTo(shown.Middle());
    QVERIFY(shown.point.has_value());
}

void tst_ResultObject::AHighlightDoesNotCoverAResult()
{
    SeenFromAbove shown;
    shown.view->HighlightShape(Block());
    QVERIFY(IsOrange(shown.Colour()));
    shown.Show(Square());
    QVERIFY(!IsOrange(shown.Colour()));
    // What is selected meanwhile is seen later.
    shown.view->HighlightShape(Block());
    QVERIFY(!IsOrange(shown.Colour()));
    shown.view->HideResult();
    QVERIFY(IsOrange(shown.Colour()));
}

void tst_ResultObject::ValuesAreColours()
{
    const SeenFromAbove shown;
    ViewResult result = Square({2, 2, 2, 2});
    result.greatest = 2.0;
    shown.Show(result);
    QColor colour = shown.Colour();
    QVERIFY2(colour.red() > 120 && colour.blue() < 60 && colour.green() < 60,
             qPrintable(colour.name()));
    result.values = {0, 0, 0, 0};
    shown.Show(result);
    colour = shown.Colour();
    QVERIFY2(colour.blue() > 120 && colour.red() < 60, qPrintable(colour.name()));
    // Half way is green.
    result.values = {1, 1, 1, 1};
    shown.Show(result);
    colour = shown.Colour();
    QVERIFY2(colour.green() > 120 && colour.red() < 100 && colour.blue() < 100,
             qPrintable(colour.name()));
}

void tst_ResultObject::TheLegendIsShown()
{
    const SeenFromAbove shown;
    const auto colours = [&shown] {
        int red = 0;
        int blue = 0;
        const QImage picture = shown.Picture();
        // At the left side.
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < 40; ++x) {
                const QColor colour = picture.pixelColor(x, y);
                red += colour.red() > 200 && colour.blue() < 60 && colour.green() < 60 ? 1 : 0;
                blue += colour.blue() > 200 && colour.red() < 60 && colour.green() < 60 ? 1 : 0;
            }
        }
        return std::make_pair(red, blue);
    };
    shown.Show(Square());
    QCOMPARE(colours(), std::make_pair(0, 0));
    shown.Show(Square({0.5, 0.5, 0.5, 0.5}));
    const auto [red, blue] = colours();
    QVERIFY(red > 20 && blue > 20);
    shown.view->HideResult();
    QCOMPARE(colours(), std::make_pair(0, 0));
}

void tst_ResultObject::LinesAreDrawnOnDemand()
{
    const SeenFromAbove shown;
    ViewResult result = Square();
    shown.Show(result);
    const QImage without = shown.Picture();
    result.hasLines = true;
    shown.Show(result);
    const QImage with = shown.Picture();
    int darker = 0;
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x)
            darker += with.pixelColor(x, y).lightness() + 30 < without.pixelColor(x, y).lightness();
    }
    QVERIFY2(darker > 200, qPrintable(QString::number(darker)));
}

void tst_ResultObject::PointsMoveByTheScale()
{
    const SeenFromAbove shown;
    ViewResult result = Square();
    result.moves.assign(4, {-1, 0, 0});
    result.marked = 2;
    const Handle(ResultObject) object = shown.Show(result);
    const QImage still = shown.Picture();
    object->SetScale(30.0);
    shown.view->UpdateResult();
    const QImage moved = shown.Picture();
    QVERIFY(moved != still);
    object->SetScale(0.0);
    shown.view->UpdateResult();
    QCOMPARE(shown.Picture(), still);
}

void tst_ResultObject::PickingShowsThePartAgain()
{
    SeenFromAbove shown;
    shown.Show(Square());
    int hidden = 0;
    connect(shown.view, &PartView::ResultHidden, this, [&hidden] { ++hidden; });
    shown.view->PickFace();
    QCOMPARE(hidden, 1);
    shown.MoveTo(shown.Middle());
    QTest::mouseClick(shown.view, Qt::LeftButton, {}, shown.Middle());
    QCOMPARE(shown.picked, 1);
}

void tst_ResultObject::AResultSurvivesAnotherWindow()
{
    SeenFromAbove shown;
    shown.Show(Square({2, 2, 2, 2}));
    const QColor colour = shown.Colour();
    QMainWindow other;
    other.resize(shown.window.size());
    other.setCentralWidget(shown.view);
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    QCOMPARE(shown.Colour(), colour);
    shown.view->HideResult();
    QVERIFY(shown.Colour() != colour);
    shown.window.setCentralWidget(shown.view);
}

TARN_TEST_MAIN(tst_ResultObject)
#include "tst_ResultObject.moc"
