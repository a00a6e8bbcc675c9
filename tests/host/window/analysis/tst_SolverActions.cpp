#include "ModalDriver.h"
#include "SolverActions.h"
#include "TestCase.h"

#include <QAction>
#include <QMenu>

class tst_SolverActions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void EachActionRunsItsDialog_data();
    void EachActionRunsItsDialog();
};

void tst_SolverActions::EachActionRunsItsDialog_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("dialog");
    QTest::newRow("solver") << "action_RunSolver"
                            << "SolverSetting";
    QTest::newRow("results") << "action_ShowResults"
                             << "ResultSetting";
    QTest::newRow("paths") << "action_SolverPaths"
                           << "ExternalSolverOption";
}

void tst_SolverActions::EachActionRunsItsDialog()
{
    QFETCH(QString, action);
    QFETCH(QString, dialog);
    QWidget window;
    QMenu menu;
    SolverActions actions(&window);
    actions.FillMenu(menu);
    ModalDriver user;
    user.Then([&](QDialog& shown) {
        QCOMPARE(shown.objectName(), dialog);
        QCOMPARE(shown.parentWidget(), &window);
        QTest::keyClick(&shown, Qt::Key_Escape);
    });
    window.findChild<QAction*>(action)->trigger();
    QVERIFY(user.IsDone());
    QVERIFY(window.findChildren<QDialog*>().isEmpty());
}

TARN_TEST_MAIN(tst_SolverActions)
#include "tst_SolverActions.moc"
