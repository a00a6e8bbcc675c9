#include "HostApplication.h"
#include "HostTestMain.h"
#include "MenuUser.h"
#include "PartView.h"
#include "ViewActions.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QSlider>
#include <QToolBar>
#include <QToolButton>

class tst_ViewActions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheToolBarOffersTheMenuWithoutSections();
    void EveryActionChangesTheView_data();
    void EveryActionChangesTheView();
    void TheDisplayModeIsChecked();
    void TheToolBarWorks();
    void ASectionIsMovedWithTheSlider();
    void WithoutAViewAllIsDisabled();
};

namespace {

struct ShownView
{
    ShownView()
    {
        window.setCentralWidget(&view);
        QMenu& menu = *window.menuBar()->addMenu("View");
        actions.FillMenu(menu);
        actions.FillToolBar(*window.addToolBar("View"));
        window.resize(600, 400);
        window.show();
        view.ShowShape(BRepPrimAPI_MakeBox(100.0, 60.0, 40.0).Shape());
    }
    ~ShownView() { window.takeCentralWidget(); }
    Q_DISABLE_COPY(ShownView)

    QImage Picture() { return view.grab().toImage(); }

    PartView view;
    QMainWindow window;
    ViewActions actions{&view, nullptr};
};

} // namespace

void tst_ViewActions::TheToolBarOffersTheMenuWithoutSections()
{
    ViewActions actions(nullptr, nullptr);
    QMenu menu;
    QToolBar toolBar;
    actions.FillMenu(menu);
    actions.FillToolBar(toolBar);
    QCOMPARE(toolBar.actions().mid(0, 12), menu.actions().mid(0, 12));
    QStringList texts;
    QSet<QKeySequence> shortcuts;
    int withShortcut = 0;
    const QList<QAction*> offered = menu.actions();
    for (const QAction* const action : offered) {
        texts << QString(action->text()).remove('&');
        shortcuts << action->shortcut();
        withShortcut += action->shortcut().isEmpty() ? 0 : 1;
    }
    QCOMPARE(texts,
             QStringList({"Fit", "", "Front", "Back", "Left", "Right", "Top", "Bottom", "Isometric",
                          "", "Shaded with edges", "Wireframe", "", "No section",
                          "Section across x", "Section across y", "Section across z"}));
    QCOMPARE(withShortcut, 8);
    QCOMPARE(shortcuts.size(), 9);
}

void tst_ViewActions::EveryActionChangesTheView_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char* const name :
         {"action_FrontView", "action_BackView", "action_LeftView", "action_RightView",
          "action_TopView", "action_BottomView", "action_IsometricView"})
        QTest::newRow(name) << QByteArray(name);
}

void tst_ViewActions::EveryActionChangesTheView()
{
    QFETCH(QByteArray, name);
    ShownView shown;
    shown.view.SetStandardView(name == "action_TopView" ? PartView::LeftView : PartView::TopView);
    const QImage before = shown.Picture();
    Trigger(shown.actions, name);
    const QImage turned = shown.Picture();
    QVERIFY(turned != before);

    // Away and back: Fit restores the size, the view its side.
    QWheelEvent wheel(QPointF(300, 150), QPointF(300, 150), {}, {0, 600}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&shown.view, &wheel);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&shown.view, &leave);
    const QImage zoomed = shown.Picture();
    QVERIFY(zoomed != turned);
    Trigger(shown.actions, "action_FitView");
    QVERIFY(shown.Picture() != zoomed);
    Trigger(shown.actions, name);
    QCOMPARE(shown.Picture(), turned);
}

void tst_ViewActions::TheDisplayModeIsChecked()
{
    ShownView shown;
    QAction& shaded = FindAction(shown.actions, "action_ShadedWithEdges");
    QAction& wires = FindAction(shown.actions, "action_Wireframe");
    QVERIFY(shaded.isChecked());
    QVERIFY(!wires.isChecked());
    const QImage before = shown.Picture();
    wires.trigger();
    QVERIFY(wires.isChecked());
    QVERIFY(!shaded.isChecked());
    QCOMPARE(shown.view.CurrentDisplayMode(), PartView::Wireframe);
    QVERIFY(shown.Picture() != before);
    shaded.trigger();
    QCOMPARE(shown.view.CurrentDisplayMode(), PartView::ShadedWithEdges);
    QCOMPARE(shown.Picture(), before);
}

void tst_ViewActions::TheToolBarWorks()
{
    ShownView shown;
    const QImage before = shown.Picture();
    auto* const toolBar = shown.window.findChild<QToolBar*>();
    QWidget* const top = toolBar->widgetForAction(&FindAction(shown.actions, "action_TopView"));
    QTest::mouseClick(top, Qt::LeftButton);
    QVERIFY(shown.Picture() != before);
}

void tst_ViewActions::ASectionIsMovedWithTheSlider()
{
    ShownView shown;
    shown.window.resize(1100, 400);
    auto& slider = Find<QSlider>(shown.window, "sectionSlider");
    QVERIFY(!slider.isVisible());
    Trigger(shown.actions, "action_SectionX");
    QTRY_VERIFY(slider.isVisible());
    const QImage middle = shown.Picture();
    QTest::keyClick(&slider, Qt::Key_End);
    const QImage end = shown.Picture();
    QVERIFY(end != middle);
    // The place stays for another direction.
    Trigger(shown.actions, "action_SectionY");
    QCOMPARE(slider.value(), 100);
    Trigger(shown.actions, "action_SectionX");
    QCOMPARE(shown.Picture(), end);
    Trigger(shown.actions, "action_NoSection");
    QTRY_VERIFY(!slider.isVisible());
}

void tst_ViewActions::WithoutAViewAllIsDisabled()
{
    const ViewActions actions(nullptr, nullptr);
    QMenu menu;
    actions.FillMenu(menu);
    const QList<QAction*> offered = menu.actions();
    QCOMPARE(offered.size(), 17);
    for (const QAction* const action : offered)
        QVERIFY(!action->isEnabled());
}

TARN_HOST_TEST_MAIN(tst_ViewActions, HostApplication)
#include "tst_ViewActions.moc"
