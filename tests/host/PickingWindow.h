#pragma once

#include "AnalysisRecords.h"
#include "DrawerOutput.h"
#include "EmptyAnalysisStores.h"
#include "EmptyAttributeNames.h"
#include "EmptyDesignStores.h"
#include "MainWindow.h"
#include "MenuUser.h"
#include "ModalDriver.h"
#include "NewFeature.h"
#include "PartModel.h"
#include "PartView.h"
#include "ShownView.h"

#include <QDockWidget>
#include <QMouseEvent>
#include <QSignalSpy>

/// A window with a cube of 10 mm, seen from its right: the face x = 10 lies under the middle.
class PickingWindow
{
public:
    PickingWindow()
    {
        QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
        window.resize(1200, 900);
        window.show();
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            FailTest("The window does not become active");
        view = &Find<PartView>(window, "modelView");
        Add(NewFeature("cube", "box"));
        Trigger("action_RightView");
        view->grab();
    }

    void Add(const Feature& feature)
    {
        window.Part().Add(feature);
        window.Part().WaitUntilIdle();
        // The layout follows the messages below the view.
        QCoreApplication::sendPostedEvents();
    }
    /// Also waits for the part that the action changes.
    void Trigger(const char* name)
    {
        ::Trigger(window, name);
        window.Part().WaitUntilIdle();
    }

    void AddSupport() { AddEntry("action_BoundaryCondition"); }
    void AddEntry(const char* action)
    {
        user.Then([](QDialog& dialog) { Click(dialog, "okButton"); });
        Trigger(action);
        QVERIFY(user.IsDone());
        // The bar above the view takes some of its height.
        QCoreApplication::sendPostedEvents();
        Trigger("action_FitView");
        view->grab();
    }

    void ShowAnalysis()
    {
        auto& dock = Find<QDockWidget>(window, "modelTreeDock");
        dock.show();
        dock.raise();
        QTRY_VERIFY(Find<QWidget>(dock, "modelTree").isVisible());
        QCoreApplication::sendPostedEvents();
    }

    const AnalysisDefinition& Analysis() const
    {
        return const_cast<MainWindow&>(window).Analysis().Definition();
    }

    void MoveTo(const QPoint& to) const
    {
        QMouseEvent move(QEvent::MouseMove, to, view->mapToGlobal(to), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(view, &move);
    }
    void ClickAt(const QPoint& place)
    {
        MoveTo(place);
        QTest::mouseClick(view, Qt::LeftButton, {}, place);
        window.Part().WaitUntilIdle();
    }
    void ClickInTheMiddle() { ClickAt(view->rect().center()); }
    /// On the edge between the face in the middle and the upper one, while nothing is highlighted.
    QPoint UpperEdge() const
    {
        const QImage picture = view->grab().toImage();
        // From the top to the line between background and face, which may be half on two pixels.
        constexpr int Dark = 140;
        QPoint place(view->width() / 2 + 15, 1);
        while (place.y() < view->height() / 2 && At(picture, place).lightness() > Dark)
            place.ry() += 1;
        return place;
    }

    EmptyDesignStores stores;
    EmptyAnalysisStores analysisStores;
    EmptyAttributeNames names;
    MainWindow window;
    PartView* view;
    ModalDriver user;
};
