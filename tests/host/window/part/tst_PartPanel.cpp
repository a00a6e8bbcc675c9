#include "Bodies.h"
#include "DrawerOutput.h"
#include "LineDrawing.h"
#include "MessageLevel.h"
#include "PartPanel.h"
#include "ShapeMeasures.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTimer>
#include <TopoDS_Shape.hxx>

class tst_PartPanel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void InitiallyThereIsNoShape();
    void AShapeIsShownWithItsMeasures();
    void BodiesThatOverlapAreAWarning();
    void AFailureKeepsTheLastGoodShape();
    void AFailureWithoutAnEarlierShapeIsReported();
    void TheViewKeepsItsHeightWhenTheStatusGrows();
    void ClearForgetsTheShape();
    void WithoutOpenGlThereIsALineDrawingAndOneWarning();
    void ALongBuildShowsItsProgressAndCanBeCancelled();
    void AShortBuildShowsNothing();
};

namespace {

// 100 x 200 x 50 mm from (0, 0, 0), of 7,850 kg/m3.
void ShowBlock(PartPanel& summary)
{
    const TopoDS_Shape box = BRepPrimAPI_MakeBox(100.0, 200.0, 50.0).Shape();
    summary.ShowShape(box, DrawLines(box), Measure(box), 7850.0);
}

QString Shown(const PartPanel& summary, const char* label)
{
    return Find<QLabel>(summary, label).text();
}

} // namespace

void tst_PartPanel::InitiallyThereIsNoShape()
{
    const PartPanel summary(nullptr);
    QCOMPARE(Shown(summary, "label_Status"), QStringLiteral("The part has no shape yet"));
    for (const char* const label :
         {"label_Volume", "label_Area", "label_Mass", "label_CentreOfMass", "label_Inertia",
          "label_BoundingBox", "label_BoundingBoxPosition"})
        QCOMPARE(Shown(summary, label), QStringLiteral("none"));
}

void tst_PartPanel::AShapeIsShownWithItsMeasures()
{
    PartPanel summary(nullptr);
    ShowBlock(summary);
    QVERIFY(Shown(summary, "label_Status").startsWith("Built at "));
    QCOMPARE(Shown(summary, "label_Volume"), QStringLiteral("1000 cm³"));
    QCOMPARE(Shown(summary, "label_Area"), QStringLiteral("700 cm²"));
    QCOMPARE(Shown(summary, "label_Mass"), QStringLiteral("7.85 kg"));
    QCOMPARE(Shown(summary, "label_CentreOfMass"), QStringLiteral("(50, 100, 25) mm"));
    QCOMPARE(Shown(summary, "label_Inertia"),
             QStringLiteral("Ixx 27802.1, Iyy 8177.08, Izz 32708.3 kg·mm²"));
    QVERIFY(Find<QLabel>(summary, "label_Inertia").toolTip().endsWith("0, 0, 0 kg·mm²"));
    QCOMPARE(Shown(summary, "label_BoundingBox"), QStringLiteral("100 × 200 × 50 mm"));
    QCOMPARE(Shown(summary, "label_BoundingBoxPosition"),
             QStringLiteral("(0, 0, 0), (100, 200, 50) mm"));
}

void tst_PartPanel::BodiesThatOverlapAreAWarning()
{
    PartPanel summary(nullptr);
    const auto& warning = Find<QLabel>(summary, "label_Overlaps");
    const TopoDS_Shape box = BRepPrimAPI_MakeBox(10.0, 10.0, 10.0).Shape();
    ShowBlock(summary);
    QVERIFY(warning.isHidden());
    const TopoDS_Shape shape = Compound({box, box});
    summary.ShowShape(shape, DrawLines(shape), Measure(shape), 7850.0);
    QVERIFY(!warning.isHidden());
    QCOMPARE(warning.text(), QStringLiteral("Bodies overlap, and volume and mass count the common "
                                            "region twice: 1 and 2."));
    ShowBlock(summary);
    QVERIFY(warning.isHidden());
}

void tst_PartPanel::AFailureKeepsTheLastGoodShape()
{
    PartPanel summary(nullptr);
    ShowBlock(summary);
    auto& drawing = Find<QWidget>(summary, "shapePicture");
    drawing.setFixedSize(300, 200);
    const QImage picture = drawing.grab().toImage();
    summary.ShowFailure("the bore is too large");
    QVERIFY(Shown(summary, "label_Status").contains("the bore is too large"));
    QVERIFY(Shown(summary, "label_Status").contains("last valid shape"));
    QCOMPARE(Shown(summary, "label_Volume"), QStringLiteral("1000 cm³"));
    QCOMPARE(drawing.grab().toImage(), picture);
}

void tst_PartPanel::AFailureWithoutAnEarlierShapeIsReported()
{
    PartPanel summary(nullptr);
    summary.ShowFailure("the bore is too large");
    QVERIFY(Shown(summary, "label_Status").contains("the bore is too large"));
    QVERIFY(Shown(summary, "label_Status").contains("no earlier shape"));
}

void tst_PartPanel::TheViewKeepsItsHeightWhenTheStatusGrows()
{
    PartPanel summary(nullptr);
    summary.resize(500, 500);
    summary.show();
    ShowBlock(summary);
    DeliverEvents();
    const auto& area = Find<QScrollArea>(summary, "measureArea");
    const int height = area.height();
    summary.ShowFailure(QString("a long reason ").repeated(80));
    QTRY_VERIFY(area.widget()->height() > height);
    QCOMPARE(area.height(), height);
    // On a low screen it is the measures that are scrolled.
    summary.resize(500, 250);
    QTRY_VERIFY(area.height() < height);
    QCOMPARE(summary.height(), 250);
}

void tst_PartPanel::ClearForgetsTheShape()
{
    PartPanel summary(nullptr);
    ShowBlock(summary);
    summary.Clear();
    QCOMPARE(Shown(summary, "label_Volume"), QStringLiteral("none"));
    summary.ShowFailure("the bore is too large");
    QVERIFY(Shown(summary, "label_Status").contains("no earlier shape"));
}

void tst_PartPanel::WithoutOpenGlThereIsALineDrawingAndOneWarning()
{
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    PartPanel summary(nullptr);
    QVERIFY(summary.View() == nullptr);
    auto& drawing = Find<QWidget>(summary, "shapePicture");
    drawing.setFixedSize(300, 200);
    const QImage empty = drawing.grab().toImage();
    // Whoever shows the messages may be made after this.
    QCOMPARE(posted.size(), 0);
    ShowBlock(summary);
    QVERIFY(drawing.grab().toImage() != empty);
    QCOMPARE(posted.size(), 1);
    QCOMPARE(posted[0][0].toInt(), int(WarningLevel));
    QCOMPARE(
        posted[0][1].toString(),
        QStringLiteral("The part is shown as a line drawing: the system does not provide OpenGL"));
    ShowBlock(summary);
    summary.Clear();
    ShowBlock(summary);
    QCOMPARE(posted.size(), 1);
}

void tst_PartPanel::ALongBuildShowsItsProgressAndCanBeCancelled()
{
    PartPanel summary(nullptr);
    summary.show();
    summary.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&summary));
    QSignalSpy cancel(&summary, &PartPanel::CancelWanted);
    auto& button = Find<QPushButton>(summary, "pushButton_CancelBuild");
    QVERIFY(!button.isVisible());
    QTest::keyClick(&summary, Qt::Key_Escape);
    QCOMPARE(cancel.count(), 0);

    summary.ShowProgress("Building \"holes\", 7 of 11");
    QTRY_VERIFY(button.isVisible());
    QCOMPARE(Shown(summary, "label_Progress"), QString("Building \"holes\", 7 of 11"));
    summary.ShowProgress("Measuring the part");
    QCOMPARE(Shown(summary, "label_Progress"), QString("Measuring the part"));
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(cancel.count(), 1);
    QTest::keyClick(&summary, Qt::Key_Escape);
    QCOMPARE(cancel.count(), 2);
    summary.EndProgress();
    QVERIFY(!button.isVisible());
}

void tst_PartPanel::AShortBuildShowsNothing()
{
    PartPanel summary(nullptr);
    summary.show();
    const auto& button = Find<QPushButton>(summary, "pushButton_CancelBuild");
    summary.ShowProgress("Building \"plate\", 1 of 2");
    QVERIFY(!button.isVisible());
    summary.EndProgress();
    // Longer than a build has to last to be shown.
    QTimer later;
    later.setSingleShot(true);
    later.start(300);
    QTRY_VERIFY(!later.isActive());
    QVERIFY(!button.isVisible());
}

TARN_TEST_MAIN(tst_PartPanel)
#include "tst_PartPanel.moc"
