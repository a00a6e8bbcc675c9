#include "FeatureTree.h"
#include "HostApplication.h"
#include "HostTestMain.h"
#include "PickingWindow.h"
#include "ShapeMeasures.h"

#include <QLineEdit>
#include <QRadioButton>

#include <cmath>

/// The mirror's face, picked in the window with the mouse.
class tst_FacePicking : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AClickNamesTheFaceOfTheMirror();
    void AnEditedMirrorShowsItsInputToPickFrom();
    void AFaceOfAnotherBodyIsNotInTheWay();
    void EscapeBringsThePartBack();
    void AChangedFeatureEndsPicking_data();
    void AChangedFeatureEndsPicking();
    void ThePositionFollowsTheCursor();
};

namespace {

/// A picking window that asks for the face of a mirror.
class OpenWindow : public PickingWindow
{
public:
    // With "Pick One Face" and OK; the window then waits for the click.
    void AskForFace(const char* action)
    {
        user.Then([](QDialog& dialog) {
            Click(dialog, "radioButton_3");
            Click(dialog, "pushButton_OK");
        });
        Trigger(action);
        QVERIFY(user.IsDone());
        QVERIFY(view->IsPicking());
    }

    const Feature& Last() { return window.Part().Features().Features().back(); }

    // Along x, where the part begins and ends.
    QList<int> Extent()
    {
        const auto box = Measure(window.Part().Shape()).boundingBox;
        return {qRound(box[0]), qRound(box[3])};
    }
};

} // namespace

void tst_FacePicking::AClickNamesTheFaceOfTheMirror()
{
    OpenWindow open;
    open.AskForFace("action_Add_mirror");
    open.ClickInTheMiddle();
    QCOMPARE(open.Last().kind, &KindOf("mirrorFace"));
    QCOMPARE(open.Last().inputs, QStringList("cube"));
    // By its name, so that the mirror follows the part.
    QVERIFY(open.Last().face.has_value());
    QCOMPARE(open.Last().face->name, QString("cube.xmax"));
    QVERIFY2(!open.window.Part().HasFailed(), qPrintable(open.window.Part().Failure()));
    QCOMPARE(open.Extent(), QList<int>({10, 20}));
    QVERIFY(!open.view->IsPicking());
    // Another click is an ordinary one.
    open.ClickInTheMiddle();
    QCOMPARE(open.window.Part().Features().Size(), 2);
}

void tst_FacePicking::AnEditedMirrorShowsItsInputToPickFrom()
{
    OpenWindow open;
    open.Add(NewFeature("twin", "mirrorFace", {"cube"}, {{"x", "10"}, {"y", "5"}, {"z", "5"}}));
    QCOMPARE(open.Extent(), QList<int>({10, 20}));
    open.window.Features().Select("twin");
    open.Trigger("action_LeftView");
    open.AskForFace("action_EditFeature");
    // The image's own left face lies at x = 10.
    open.ClickInTheMiddle();
    QCOMPARE(open.Last().face->name, QString("cube.xmin"));
    QVERIFY2(!open.window.Part().HasFailed(), qPrintable(open.window.Part().Failure()));
    QCOMPARE(open.Extent(), QList<int>({-10, 0}));
}

void tst_FacePicking::AFaceOfAnotherBodyIsNotInTheWay()
{
    OpenWindow open;
    open.Add(NewFeature("screen", "box"));
    open.Add(NewFeature("before", "move", {"screen"}, {{"dx", "30"}}));
    open.window.Features().Select("cube");
    open.AskForFace("action_Add_mirror");
    open.ClickInTheMiddle();
    QCOMPARE(open.Last().face->name, QString("cube.xmax"));
    QVERIFY2(!open.window.Part().HasFailed(), qPrintable(open.window.Part().Failure()));
}

void tst_FacePicking::EscapeBringsThePartBack()
{
    OpenWindow open;
    open.Add(NewFeature("high", "box"));
    open.Add(NewFeature("moved", "move", {"high"}, {{"dz", "12"}}));
    open.window.Features().Select("cube");
    open.Trigger("action_RightView");
    const QImage before = open.view->grab().toImage();
    open.AskForFace("action_Add_mirror");
    QVERIFY(open.view->grab().toImage() != before);
    QTest::keyClick(open.view, Qt::Key_Escape);
    QVERIFY(!open.view->IsPicking());
    QCOMPARE(open.view->grab().toImage(), before);
    open.ClickInTheMiddle();
    QCOMPARE(open.window.Part().Features().Size(), 3);
}

void tst_FacePicking::AChangedFeatureEndsPicking_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::newRow("undone") << QByteArray("action_Undo");
    QTest::newRow("deleted") << QByteArray("action_DeleteFeature");
    QTest::newRow("suppressed") << QByteArray("action_Suppress");
}

void tst_FacePicking::AChangedFeatureEndsPicking()
{
    QFETCH(QByteArray, action);
    OpenWindow open;
    open.window.Features().Select("cube");
    open.AskForFace("action_Add_mirror");
    open.Trigger(action);
    QVERIFY(!open.view->IsPicking());
    const int size = open.window.Part().Features().Size();
    open.ClickInTheMiddle();
    QCOMPARE(open.window.Part().Features().Size(), size);
}

void tst_FacePicking::ThePositionFollowsTheCursor()
{
    OpenWindow open;
    const auto& dock = Find<QWidget>(open.window, "positionDock");
    const auto shown = [&dock](const char* field) {
        return Find<QLineEdit>(dock, field).text();
    };
    open.MoveTo(open.view->rect().center());
    QCOMPARE(shown("lineEdit"), QString("10"));
    QVERIFY(std::abs(shown("lineEdit_2").toDouble() - 5.0) < 0.1);
    QVERIFY(std::abs(shown("lineEdit_3").toDouble() - 5.0) < 0.1);
    // To the right on the screen is +y, seen from the right.
    open.MoveTo(open.view->rect().center() + QPoint(40, -20));
    QVERIFY(shown("lineEdit_2").toDouble() > 5.1);
    QVERIFY(shown("lineEdit_3").toDouble() > 5.1);
    open.MoveTo(QPoint(3, 3));
    QCOMPARE(shown("lineEdit"), QString());
}

TARN_HOST_TEST_MAIN(tst_FacePicking, HostApplication)
#include "tst_FacePicking.moc"
