#include "AnalysisEntries.h"
#include "AnalysisRecords.h"
#include "AnalysisTree.h"
#include "FeatureTree.h"
#include "HostTestMain.h"
#include "NewFeature.h"
#include "OpenWindow.h"
#include "PickingWindow.h"

#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

/// Picking faces and edges in the window with the mouse.
class tst_ShapePicker : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ANewSupportIsPickedAtOnce();
    void ASecondClickTakesTheFaceBack();
    void AnEdgeIsNamedByItsFaces();
    void ASeamIsNotPicked();
    void AFaceThatSharesItsNameIsNamedByAPoint();
    void EscapeAndCancelKeepTheTargets_data();
    void EscapeAndCancelKeepTheTargets();
    void AChangedPartEndsPicking();
    void ALoadActsOnFacesOrOnEdges();
    void TheSelectedEntryIsHighlighted();
    void TheHighlightFollowsAChangedField();
    void NothingStaysSelectedAfterPicking();
    void SymbolsAreShownWhileTheTreeIsVisible();
    void AFilletIsAtTheEdgesThatArePicked();
};

namespace {

const ConstraintDefinition& FirstConstraint(const PickingWindow& open)
{
    return open.Analysis().constraints.at(0);
}

// Arrows of forces are red.
int RedPixels(const QImage& picture)
{
    int pixels = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor colour = picture.pixelColor(x, y);
            pixels += colour.red() > colour.green() + 100 ? 1 : 0;
        }
    }
    return pixels;
}

} // namespace

void tst_ShapePicker::ANewSupportIsPickedAtOnce()
{
    PickingWindow open;
    open.AddSupport();
    QVERIFY(open.view->IsPicking());
    QVERIFY(Find<QWidget>(open.window, "ShapePicker").isVisible());
    QCOMPARE(Find<QLabel>(Find<QWidget>(open.window, "ShapePicker"), "titleLabel").text(),
             QString("Pick faces or edges for defaultBC:"));
    open.ClickInTheMiddle();
    QCOMPARE(Find<QLabel>(open.window, "choiceLabel").text(), QString("cube.xmax"));
    Click(open.window, "doneButton");
    QVERIFY(!open.view->IsPicking());
    QVERIFY(!Find<QWidget>(open.window, "ShapePicker").isVisible());
    QCOMPARE(FirstConstraint(open).faces.size(), std::size_t(1));
    QCOMPARE(FirstConstraint(open).faces[0].name, QString("cube.xmax"));
    QVERIFY(FirstConstraint(open).edges.empty());
}

void tst_ShapePicker::ASecondClickTakesTheFaceBack()
{
    PickingWindow open;
    open.AddSupport();
    open.ClickInTheMiddle();
    open.ClickInTheMiddle();
    QCOMPARE(Find<QLabel>(open.window, "choiceLabel").text(),
             QString("Click in the view; click again to take back."));
    open.ClickInTheMiddle();
    Click(open.window, "clearButton");
    Click(open.window, "doneButton");
    QVERIFY(FirstConstraint(open).faces.empty());
}

void tst_ShapePicker::AnEdgeIsNamedByItsFaces()
{
    PickingWindow open;
    open.AddSupport();
    open.ClickAt(open.UpperEdge());
    Click(open.window, "doneButton");
    QCOMPARE(FirstConstraint(open).edges.size(), std::size_t(1));
    const EdgeReference& edge = FirstConstraint(open).edges[0];
    QCOMPARE(edge.between.size(), std::size_t(2));
    QCOMPARE(QSet<QString>({edge.between[0].name, edge.between[1].name}),
             QSet<QString>({"cube.xmax", "cube.zmax"}));
}

void tst_ShapePicker::ASeamIsNotPicked()
{
    PickingWindow open;
    // Its seam is under the middle of the view.
    open.Add(NewFeature("round", "cylinder", {}, {{"radius", "20"}}));
    open.AddSupport();
    const PostedMessages posted;
    open.ClickInTheMiddle();
    QCOMPARE(posted.At(InfoLevel).filter("seam").size(), 1);
    Click(open.window, "doneButton");
    QVERIFY(FirstConstraint(open).edges.empty());
    QVERIFY(FirstConstraint(open).faces.empty());
}

void tst_ShapePicker::AFaceThatSharesItsNameIsNamedByAPoint()
{
    PickingWindow open;
    open.Add(NewFeature("row", "rectangularArray", {"cube"},
                        {{"xNumber", "2"}, {"yNumber", "1"}, {"xDistance", "30"}}));
    open.Trigger("action_RightView");
    open.view->grab();
    open.AddSupport();
    open.ClickInTheMiddle();
    Click(open.window, "doneButton");
    QCOMPARE(FirstConstraint(open).faces.size(), std::size_t(1));
    QCOMPARE(FirstConstraint(open).faces[0].name, QString());
    QCOMPARE(FirstConstraint(open).faces[0].at[0], QString("40"));
}

void tst_ShapePicker::EscapeAndCancelKeepTheTargets_data()
{
    QTest::addColumn<bool>("isEscape");
    QTest::newRow("Escape") << true;
    QTest::newRow("Cancel") << false;
}

void tst_ShapePicker::EscapeAndCancelKeepTheTargets()
{
    QFETCH(bool, isEscape);
    PickingWindow open;
    open.AddSupport();
    open.ClickInTheMiddle();
    if (isEscape)
        QTest::keyClick(open.view, Qt::Key_Escape);
    else
        Click(Find<QWidget>(open.window, "ShapePicker"), "cancelButton");
    QVERIFY(!open.view->IsPicking());
    QVERIFY(!Find<QWidget>(open.window, "ShapePicker").isVisible());
    QVERIFY(FirstConstraint(open).faces.empty());
}

void tst_ShapePicker::AChangedPartEndsPicking()
{
    PickingWindow open;
    open.AddSupport();
    open.Add(NewFeature("other", "box"));
    QVERIFY(!open.view->IsPicking());
    QVERIFY(!Find<QWidget>(open.window, "ShapePicker").isVisible());
}

void tst_ShapePicker::ALoadActsOnFacesOrOnEdges()
{
    PickingWindow open;
    open.AddEntry("action_LoadForce");
    const QPoint edge = open.UpperEdge();
    open.ClickInTheMiddle();
    open.ClickAt(edge);
    const QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    Click(open.window, "doneButton");
    QCOMPARE(posted.size(), 1);
    QCOMPARE(posted[0][1].toString(),
             QString("A load acts either on faces or on edges: pick one kind only"));
    QVERIFY(open.Analysis().loads.at(0).faces.empty());
}

void tst_ShapePicker::TheSelectedEntryIsHighlighted()
{
    PickingWindow open;
    open.ShowAnalysis();
    AnalysisDefinition analysis;
    analysis.constraints = {Constraint("foot", "cube.xmax")};
    open.window.Analysis().SetDefinition(analysis);
    const QImage before = open.view->grab().toImage();
    auto& tree = Find<AnalysisTree>(open.window, "modelTreeDock");
    tree.Select({AnalysisEntry::Constraint, 0});
    const QImage after = open.view->grab().toImage();
    // Beside the symbol in the middle of the face.
    const QPoint place = open.view->rect().center() + QPoint(40, 40);
    QVERIFY(IsOrange(At(after, place)));
    QVERIFY(!IsOrange(At(before, place)));
}

void tst_ShapePicker::TheHighlightFollowsAChangedField()
{
    PickingWindow open;
    Find<FeatureTree>(open.window, "featureDock").Select("cube");
    auto& fields = Find<QTableWidget>(open.window, "fieldTable");
    const int zRow = 4;
    QCOMPARE(fields.item(zRow, 1)->text(), QString("10"));
    fields.item(zRow, 1)->setText("100");
    open.window.Part().WaitUntilIdle();
    open.Trigger("action_FitView");
    const QImage picture = open.view->grab().toImage();
    // The upper half of the body, which the former one did not reach.
    const QPoint upper(open.view->width() / 2, open.view->height() / 4);
    QVERIFY(IsOrange(At(picture, upper)));
}

void tst_ShapePicker::NothingStaysSelectedAfterPicking()
{
    PickingWindow open;
    open.AddSupport();
    open.ClickInTheMiddle();
    QVERIFY(IsOrange(At(open.view->grab().toImage(), open.view->rect().center())));
    Click(open.window, "clearButton");
    Click(open.window, "doneButton");
    QCoreApplication::sendPostedEvents();
    const QPoint place = open.view->rect().center();
    QVERIFY(!IsOrange(At(open.view->grab().toImage(), place)));
}

void tst_ShapePicker::SymbolsAreShownWhileTheTreeIsVisible()
{
    PickingWindow open;
    AnalysisDefinition analysis;
    analysis.loads = {Load("pull", "0", "0", "-5")};
    analysis.loads[0].faces = {{"cube.xmax", {}}};
    const QImage without = open.view->grab().toImage();
    open.window.Analysis().SetDefinition(analysis);
    QCOMPARE(open.view->grab().toImage(), without);
    open.ShowAnalysis();
    const QImage with = open.view->grab().toImage();
    QVERIFY(with != without);
    QCOMPARE(RedPixels(without), 0);
    QVERIFY(RedPixels(with) > 50);
}

void tst_ShapePicker::AFilletIsAtTheEdgesThatArePicked()
{
    PickingWindow open;
    open.Trigger("action_Add_fillet");
    QVERIFY(open.view->IsPicking());
    QCoreApplication::sendPostedEvents();
    open.Trigger("action_FitView");
    open.ClickAt(open.UpperEdge());
    Click(open.window, "doneButton");
    open.window.Part().WaitUntilIdle();
    const Feature& fillet = open.window.Part().Features().Features().back();
    QCOMPARE(fillet.kind, &KindOf("fillet"));
    QCOMPARE(fillet.edges.size(), std::size_t(1));
    QCOMPARE(fillet.edges[0].between.size(), std::size_t(2));
    QVERIFY2(!open.window.Part().HasFailed(), qPrintable(open.window.Part().Failure()));
}

TARN_HOST_TEST_MAIN(tst_ShapePicker)
#include "tst_ShapePicker.moc"
