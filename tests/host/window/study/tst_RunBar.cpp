#include "DesignModel.h"
#include "EmptyDesignStores.h"
#include "RunBar.h"
#include "TestCase.h"

#include <QSignalSpy>
#include <QVBoxLayout>

class tst_RunBar : public With<TestCase, EmptyDesignStores>
{
    Q_OBJECT

private Q_SLOTS:
    void TheBarIsThereDuringARun();
};

void tst_RunBar::TheBarIsThereDuringARun()
{
    QWidget window;
    DesignModel model;
    model.Replace({NewParameter("a")});
    auto* const bar = new RunBar(model, &window);
    (new QVBoxLayout(&window))->addWidget(bar);
    window.show();
    QVERIFY(!bar->isVisible());
    model.ExpectRuns();
    model.TakeRun({"a"});
    QVERIFY(bar->isVisible());
    const QSignalSpy wanted(bar, &RunBar::BackWanted);
    Click(*bar, "pushButton_BackToDesign");
    QCOMPARE(wanted.count(), 1);
    model.BackToDesign();
    QVERIFY(!bar->isVisible());
}

TARN_TEST_MAIN(tst_RunBar)
#include "tst_RunBar.moc"
