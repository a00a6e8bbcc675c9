#include "DialogPlace.h"
#include "TestCase.h"

#include <QDialog>
#include <QScreen>

class tst_DialogPlace : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheWidgetStaysInSight_data();
    void TheWidgetStaysInSight();
    void ALargeDialogStaysOnTheScreen();
};

void tst_DialogPlace::TheWidgetStaysInSight_data()
{
    QTest::addColumn<QRect>("widget"); // In hundredths of the screen.
    NewRow("right half", QRect(50, 0, 50, 100));
    NewRow("left half", QRect(0, 0, 50, 100));
    NewRow("upper half", QRect(0, 0, 100, 50));
    NewRow("lower half", QRect(0, 55, 100, 45));
}

void tst_DialogPlace::TheWidgetStaysInSight()
{
    QFETCH(QRect, widget);
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget view;
    view.setGeometry(screen.x() + widget.x() * screen.width() / 100,
                     screen.y() + widget.y() * screen.height() / 100,
                     widget.width() * screen.width() / 100,
                     widget.height() * screen.height() / 100);
    view.show();
    QDialog dialog;
    dialog.resize(screen.width() * 4 / 10, screen.height() * 4 / 10);
    PlaceBeside(dialog, view);
    dialog.show();
    const QRect covered(view.mapToGlobal(QPoint(0, 0)), view.size());
    QVERIFY(!covered.intersects(QRect(dialog.pos(), dialog.size())));
}

void tst_DialogPlace::ALargeDialogStaysOnTheScreen()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget view;
    view.setGeometry(screen);
    QDialog dialog;
    dialog.resize(screen.size() * 2);
    PlaceBeside(dialog, view);
    QCOMPARE(dialog.pos(), screen.topLeft());
}

TARN_TEST_MAIN(tst_DialogPlace)
#include "tst_DialogPlace.moc"
