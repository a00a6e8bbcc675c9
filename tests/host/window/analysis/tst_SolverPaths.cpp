#include "AnalysisTools.h"
#include "FileChoice.h"
#include "Script.h"
#include "SolverPaths.h"
#include "TestCase.h"

class tst_SolverPaths : public With<TestCase, TemporaryDirectory>
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() override;
    void OkStoresThePaths();
    void CancelStoresNothing();
    void AProgramIsPicked();
    void AWrongPathIsRefused();
    void TheOwnProgramsDoNotCoverTheButtons();
};

namespace {

QString Text(const QDialog& dialog, const char* edit)
{
    return Find<QLineEdit>(dialog, edit).text();
}

} // namespace

void tst_SolverPaths::cleanup()
{
    AnalysisTools().Store();
    TestCase::cleanup();
}

void tst_SolverPaths::OkStoresThePaths()
{
    const QString tool = PutScript("tool", "exit 0\n");
    ModalDriver user;
    user.Then([&](QDialog& dialog) {
        Type(dialog, "lineEdit_Nastran", "/opt/nastran");
        Type(dialog, "lineEdit_9", "/opt/other");
        Type(dialog, "solverEdit", tool);
        Click(dialog, "pushButton");
    });
    EditSolverPaths(nullptr);
    QCOMPARE(AnalysisTools::Stored().solver.Executable(), tool);
    user.Then([&](QDialog& dialog) {
        QCOMPARE(Text(dialog, "lineEdit_Nastran"), QString("/opt/nastran"));
        QCOMPARE(Text(dialog, "lineEdit_9"), QString("/opt/other"));
        QCOMPARE(Text(dialog, "lineEdit_Ansys"), QString());
        QCOMPARE(Text(dialog, "solverEdit"), tool);
        Type(dialog, "solverEdit", "");
        Click(dialog, "pushButton");
    });
    EditSolverPaths(nullptr);
    QVERIFY(user.IsDone());
    QCOMPARE(AnalysisTools::Stored().solver.path, QString());
}

void tst_SolverPaths::CancelStoresNothing()
{
    ModalDriver user;
    user.Then([&](QDialog& dialog) {
        Type(dialog, "mesherEdit", PutScript("tool", "exit 0\n"));
        Click(dialog, "pushButton_2");
    });
    EditSolverPaths(nullptr);
    QVERIFY(user.IsDone());
    QCOMPARE(AnalysisTools::Stored().mesher.path, QString());
}

void tst_SolverPaths::AProgramIsPicked()
{
    const QString tool = PutScript("tool", "exit 0\n");
    ModalDriver user;
    user.Then([&](QDialog& dialog) {
        ChooseFile(user, tool);
        Click(dialog, "mesherButton");
        QCOMPARE(Text(dialog, "mesherEdit"), tool);
        Click(dialog, "pushButton");
    });
    EditSolverPaths(nullptr);
    QVERIFY(user.IsDone());
    QCOMPARE(AnalysisTools::Stored().mesher.path, tool);
}

void tst_SolverPaths::AWrongPathIsRefused()
{
    ModalDriver user;
    user.Then([&](QDialog& dialog) {
        Type(dialog, "solverEdit", "/no/such/ccx");
        Click(dialog, "pushButton");
        QVERIFY(dialog.isVisible());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EditSolverPaths(nullptr);
    QVERIFY(user.IsDone());
    QCOMPARE(user.Boxes().size(), 1);
    QVERIFY(user.Boxes().first().text.startsWith("/no/such/ccx is not a program"));
    QCOMPARE(AnalysisTools::Stored().solver.path, QString());
}

void tst_SolverPaths::TheOwnProgramsDoNotCoverTheButtons()
{
    ModalDriver user;
    user.Then([&](QDialog& dialog) {
        const QRect own = Find<QWidget>(dialog, "HostPrograms").geometry();
        for (const char* const name : {"pushButton", "pushButton_2"}) {
            const QRect button = Find<QWidget>(dialog, name).geometry();
            QVERIFY(!own.intersects(button));
            QVERIFY(dialog.rect().contains(button));
        }
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EditSolverPaths(nullptr);
    QVERIFY(user.IsDone());
}

TARN_TEST_MAIN(tst_SolverPaths)
#include "tst_SolverPaths.moc"
