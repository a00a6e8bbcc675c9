#include "DrawerOutput.h"
#include "ModalDriver.h"
#include "SolverActions.h"
#include "TestCase.h"
#include "UserSettings.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>

class tst_SolverActions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void EachActionRunsItsDialog_data();
    void EachActionRunsItsDialog();
    void ALastPathWithBlanksIsWarnedAbout_data();
    void ALastPathWithBlanksIsWarnedAbout();
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

void tst_SolverActions::ALastPathWithBlanksIsWarnedAbout_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("warnings");
    QTest::newRow("blanks") << "/x/my tools/nastran" << 1;
    QTest::newRow("no blanks") << "/x/tools/nastran" << 0;
}

void tst_SolverActions::ALastPathWithBlanksIsWarnedAbout()
{
    QFETCH(QString, path);
    UserSettings().clear();
    QWidget window;
    QMenu menu;
    SolverActions actions(&window);
    actions.FillMenu(menu);
    QSignalSpy posted(DrawerOutput::GetInstance(), &DrawerOutput::MessageWidgetMessage);
    ModalDriver user;
    const auto enter = [](QDialog& shown, const QString& text) {
        shown.findChild<QLineEdit*>("lineEdit_Path")->setText(text); // As "Browse" does.
        QTest::keyClick(&shown, Qt::Key_Escape);
    };
    user.Then([&](QDialog& shown) { enter(shown, path); });
    window.findChild<QAction*>("action_RunSolver")->trigger();
    QCOMPARE(posted.count(), 0);

    int warnings = 0;
    user.Then([&](QDialog& shown) {
        warnings = posted.count();
        enter(shown, {});
    });
    window.findChild<QAction*>("action_RunSolver")->trigger();
    QVERIFY(user.IsDone());
    QTEST(warnings, "warnings");
    if (warnings > 0)
        QVERIFY(posted[0][1].toString().contains(path));
}

TARN_TEST_MAIN(tst_SolverActions)
#include "tst_SolverActions.moc"
