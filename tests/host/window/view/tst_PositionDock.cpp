#include "DrawerOutput.h"
#include "HostApplication.h"
#include "HostTestMain.h"
#include "KernelText.h"
#include "MessageLevel.h"
#include "PartView.h"
#include "PosInputDlg.h"
#include "PositionDock.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <QLineEdit>
#include <QMainWindow>
#include <QMouseEvent>
#include <QSignalSpy>

#include <optional>

class tst_PositionDock : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheDockHoldsTheLibrarysStrip();
    void TheFieldsFollowThePointUnderTheCursor();
    void TheFieldsAreEmptyBesideThePart();
    void CoordinatesAreShort_data();
    void CoordinatesAreShort();
    void AFieldWithTheFocusIsLeftAlone();
    void EnterReportsAndMarksThePoint();
    void NumbersHaveAFullStopUnderEveryLocale();
    void BadTextIsReportedAndStays_data();
    void BadTextIsReportedAndStays();
    void WithoutAViewPointsCanBeTyped();
};

namespace {

const char* const FieldNames[] = {"lineEdit", "lineEdit_2", "lineEdit_3"};

class ShownDock
{
public:
    ShownDock()
        : view(new PartView)
        , dock(new PositionDock(view, &window))
    {
        window.setCentralWidget(view);
        window.addDockWidget(Qt::BottomDockWidgetArea, dock);
        window.resize(500, 400);
        window.show();
        view->ShowShape(BRepPrimAPI_MakeBox(100.0, 60.0, 40.0).Shape());
        view->SetStandardView(PartView::FrontView);
        QObject::connect(dock, &PositionDock::PointEntered, dock,
                         [this](const gp_Pnt& point) { entered << KernelText(point); });
    }

    void MoveTo(const QPoint& to) const
    {
        QMouseEvent move(QEvent::MouseMove, to, view->mapToGlobal(to), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(view, &move);
    }
    QStringList Texts() const
    {
        QStringList texts;
        for (const char* const name : FieldNames)
            texts << Find<QLineEdit>(*dock, name).text();
        return texts;
    }
    void TypeAll(const QStringList& texts) const
    {
        for (int i = 0; i < 3; ++i)
            Type(*dock, FieldNames[i], texts[i]);
    }
    void PressEnter(const char* field) const
    {
        auto& edit = Find<QLineEdit>(*dock, field);
        edit.setFocus();
        QTest::keyClick(&edit, Qt::Key_Return);
    }

    QMainWindow window;
    PartView* view;
    PositionDock* dock;
    QStringList entered;
};

} // namespace

void tst_PositionDock::TheDockHoldsTheLibrarysStrip()
{
    const ShownDock shown;
    const auto* const strip = shown.dock->findChild<PosInputDlg*>();
    QVERIFY(strip != nullptr);
    QVERIFY(strip->isVisible() && !strip->isWindow());
    QVERIFY(strip != PosInputDlg::GetInstance());
    delete PosInputDlg::GetInstance();
    QCOMPARE(strip->objectName(), QStringLiteral("PosInputDlg"));
    QCOMPARE(strip->windowTitle(), QStringLiteral("PosInputDlg"));
    QCOMPARE(shown.Texts(), QStringList({"", "", ""}));
}

void tst_PositionDock::TheFieldsFollowThePointUnderTheCursor()
{
    const ShownDock shown;
    std::optional<gp_Pnt> last;
    connect(shown.view, &PartView::PointMoved, shown.dock, [&](const gp_Pnt& p) { last = p; });
    for (const QPoint& step : {QPoint(0, 0), QPoint(40, -10), QPoint(-70, 20)}) {
        shown.MoveTo(shown.view->rect().center() + step);
        QVERIFY(last.has_value());
        const QStringList texts = shown.Texts();
        for (int i = 0; i < 3; ++i) {
            bool isNumber = false;
            QVERIFY(std::abs(texts[i].toDouble(&isNumber) - last->Coord(i + 1)) < 1e-3);
            QVERIFY(isNumber);
        }
        QCOMPARE(texts[1], QStringLiteral("0"));
    }
}

void tst_PositionDock::TheFieldsAreEmptyBesideThePart()
{
    const ShownDock shown;
    shown.MoveTo(shown.view->rect().center());
    QVERIFY(!shown.Texts().contains(QString()));
    shown.MoveTo({5, shown.view->height() - 5});
    QCOMPARE(shown.Texts(), QStringList({"", "", ""}));
}

void tst_PositionDock::CoordinatesAreShort_data()
{
    QTest::addColumn<double>("coordinate");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << 12.0 << "12";
    QTest::newRow("thousandths") << 12.3456 << "12.346";
    QTest::newRow("noise") << -1e-13 << "0";
    QTest::newRow("six digits") << 1234.5678 << "1234.57";
    QTest::newRow("negative") << -0.5 << "-0.5";
    QTest::newRow("large") << -1e6 << "-1e+06";
}

void tst_PositionDock::CoordinatesAreShort()
{
    QFETCH(double, coordinate);
    QFETCH(QString, text);
    const ShownDock shown;
    Q_EMIT shown.view->PointMoved(gp_Pnt(coordinate, 1.0, 2.0));
    QCOMPARE(shown.Texts(), QStringList({text, "1", "2"}));
}

void tst_PositionDock::AFieldWithTheFocusIsLeftAlone()
{
    const ShownDock shown;
    shown.TypeAll({"1", "2", "3"});
    Find<QLineEdit>(*shown.dock, "lineEdit_2").setFocus();
    shown.MoveTo(shown.view->rect().center());
    QCOMPARE(shown.Texts(), QStringList({"1", "2", "3"}));
    shown.MoveTo({5, shown.view->height() - 5});
    QCOMPARE(shown.Texts(), QStringList({"1", "2", "3"}));
    // A click into the view gives it the focus, and the fields follow again.
    QTest::mouseClick(shown.view, Qt::LeftButton, {}, shown.view->rect().center());
    shown.MoveTo(shown.view->rect().center() + QPoint(1, 0));
    QCOMPARE(shown.Texts().at(1), QStringLiteral("0"));
}

void tst_PositionDock::EnterReportsAndMarksThePoint()
{
    for (const char* const field : FieldNames) {
        const ShownDock shown;
        QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
        const QImage before = shown.view->grab().toImage();
        shown.TypeAll({" 20 ", "-1e1", "12.5"});
        shown.PressEnter(field);
        QCOMPARE(shown.entered, QStringList(KernelText(gp_Pnt(20.0, -10.0, 12.5))));
        QCOMPARE(posted.size(), 0);
        QVERIFY(shown.view->grab().toImage() != before);
        shown.view->HidePoint();
        QCOMPARE(shown.view->grab().toImage(), before);
    }
}

void tst_PositionDock::NumbersHaveAFullStopUnderEveryLocale()
{
    const ShownDock shown;
    UseLocale("de_DE.UTF-8");
    shown.TypeAll({"0.5", "1.25", "2"});
    shown.PressEnter("lineEdit");
    QCOMPARE(shown.entered, QStringList(KernelText(gp_Pnt(0.5, 1.25, 2.0))));
}

void tst_PositionDock::BadTextIsReportedAndStays_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("bad");
    QTest::newRow("empty") << QStringList({"", "2", "3"}) << 0;
    QTest::newRow("a word") << QStringList({"1", "two", "3"}) << 1;
    QTest::newRow("comma") << QStringList({"1", "2", "3,5"}) << 2;
    QTest::newRow("infinite") << QStringList({"inf", "2", "3"}) << 0;
    QTest::newRow("not a number") << QStringList({"1", "nan", "3"}) << 1;
    QTest::newRow("too large") << QStringList({"1", "2", "1.1e6"}) << 2;
    QTest::newRow("overflow") << QStringList({"1", "-1e400", "3"}) << 1;
    QTest::newRow("the first of two") << QStringList({"1", "b", "%s"}) << 1;
}

void tst_PositionDock::BadTextIsReportedAndStays()
{
    QFETCH(QStringList, texts);
    QFETCH(int, bad);
    const ShownDock shown;
    shown.TypeAll(texts);
    const QImage before = shown.view->grab().toImage();
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    shown.PressEnter("lineEdit_3");
    QCOMPARE(shown.entered, QStringList());
    QCOMPARE(shown.Texts(), texts);
    QCOMPARE(shown.view->grab().toImage(), before);
    QCOMPARE(posted.size(), 1);
    QCOMPARE(posted[0][0].toInt(), int(ErrorLevel));
    QCOMPARE(posted[0][1].toString(),
             QStringLiteral("Position: %1 is \"%2\", not a number from -1e+06 to 1e+06")
                 .arg(QString("xyz"[bad]), texts[bad]));
    // The cursor is where the text is to be mended.
    QVERIFY(Find<QLineEdit>(*shown.dock, FieldNames[bad]).hasFocus());
}

void tst_PositionDock::WithoutAViewPointsCanBeTyped()
{
    PositionDock dock(nullptr, nullptr);
    dock.show();
    QStringList entered;
    connect(&dock, &PositionDock::PointEntered, &dock,
            [&](const gp_Pnt& point) { entered << KernelText(point); });
    for (const char* const name : FieldNames)
        Find<QLineEdit>(dock, name).setText("7");
    QTest::keyClick(&Find<QLineEdit>(dock, "lineEdit"), Qt::Key_Return);
    QCOMPARE(entered, QStringList(KernelText(gp_Pnt(7.0, 7.0, 7.0))));
}

TARN_HOST_TEST_MAIN(tst_PositionDock, HostApplication)
#include "tst_PositionDock.moc"
