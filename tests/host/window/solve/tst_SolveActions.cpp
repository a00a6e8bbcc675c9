#include "AnalysisRecords.h"
#include "FileChoice.h"
#include "HostTestMain.h"
#include "OpenWindow.h"
#include "PathWithoutSolver.h"
#include "Solving.h"

#include <QDockWidget>
#include <QPlainTextEdit>

class tst_SolveActions : public With<TestCase, TemporaryDirectory, EmptyAnalysisStores>
{
    Q_OBJECT

private Q_SLOTS:
    void TheFlangeVibrates();
    void TheFlangeIsLoaded();
    void TheFlangeIsMeshed();
    void ChangesMakeResultsOld();
    void AMissingProgramIsReported();
    void ASecondStartWaitsForTheFirst();
    void CancelDropsTheNextAnalysisToo();
    void ClosingTheWindowEndsThePrograms();
    void AnotherProjectForgetsTheResults();
    void ResultsOfAnotherSolverAreOffered();
    void WithoutResultsThereIsNothingToRead();
};

namespace {

/// The flange with a coarse mesh, saved in the working directory.
struct FlangeFile
{
    FlangeFile()
    {
        Put("flange.json", SampleProject().replace("\"meshSize\": 10", "\"meshSize\": 40"));
    }

    QString path = QDir::current().absoluteFilePath("flange.json");
};

struct Flange : FlangeFile, OpenWindow
{
    Flange() { OpenProject(path); }

    void Solve(const char* action)
    {
        Trigger(action);
        WaitForEnd();
    }
    void WaitForEnd() const
    {
        const auto& dock = Find<QDockWidget>(window, "solveDock");
        QTRY_VERIFY_WITH_TIMEOUT(!Find<QWidget>(dock, "cancelButton").isEnabled(), 60000);
    }
    QTableWidget& Table() const { return Find<QTableWidget>(Results(), "table"); }
    QDockWidget& Results() const { return Find<QDockWidget>(window, "resultsDock"); }
    bool IsOld() const { return !Find<QLabel>(Results(), "oldLabel").isHidden(); }
};

} // namespace

void tst_SolveActions::TheFlangeVibrates()
{
    Flange flange;
    const PostedMessages posted;
    flange.Solve("action_SolveVibration");
    QCOMPARE(posted.At(ErrorLevel), QStringList());
    QVERIFY(flange.Results().isVisible());
    QCOMPARE(flange.Table().rowCount(), 5);
    // The table has the numbers of the file.
    const QList<QByteArray> lines = ContentOf("modes.csv").trimmed().split('\n');
    QCOMPARE(lines.size(), 6);
    for (int row = 0; row < 5; ++row) {
        const double frequency = lines[row + 1].split(',').value(1).toDouble();
        QVERIFY(frequency > 4000.0);
        QCOMPARE(flange.Table().item(row, 1)->text(), QString::number(frequency, 'g', 6));
    }
    QVERIFY(QFile::exists("Model_Active.bdf"));
    QVERIFY(posted.At(InfoLevel).last().startsWith("Modes found: 5, the lowest at "));
}

void tst_SolveActions::TheFlangeIsLoaded()
{
    Flange flange;
    flange.Solve("action_SolveStatic");
    QCOMPARE(flange.Table().rowCount(), 5);
    QCOMPARE(flange.Table().item(4, 1)->text(), QString("10000 N"));
    QVERIFY(QFile::exists("static.csv"));
}

void tst_SolveActions::TheFlangeIsMeshed()
{
    Flange flange;
    flange.Solve("action_Mesh");
    QVERIFY(flange.Table().item(0, 1)->text().toInt() > 1000);
    QVERIFY(QFile::exists("Model_Active.inp"));
    QVERIFY(!QFile::exists("modes.csv"));
}

void tst_SolveActions::ChangesMakeResultsOld()
{
    Flange flange;
    flange.Solve("action_Mesh");
    QVERIFY(!flange.IsOld());
    flange.SelectFeature("holes");
    flange.Trigger("action_Suppress");
    QVERIFY(flange.IsOld());
    flange.Trigger("action_Undo");
    QVERIFY(!flange.IsOld());
    AnalysisDefinition analysis = flange.window.Analysis().Definition();
    analysis.meshSize = "35";
    flange.window.Analysis().SetDefinition(analysis);
    QTRY_VERIFY(flange.IsOld());
    flange.Solve("action_Mesh");
    QVERIFY(!flange.IsOld());
}

void tst_SolveActions::AMissingProgramIsReported()
{
    const PathWithoutSolver path;
    Flange flange;
    const PostedMessages posted;
    flange.Solve("action_SolveVibration");
    QCOMPARE(posted.At(ErrorLevel),
             QStringList("The program ccx is missing: install the Debian package calculix-ccx, or "
                         "set the path of the program."));
}

void tst_SolveActions::ASecondStartWaitsForTheFirst()
{
    Flange flange;
    const auto& next = Find<QLabel>(flange.window, "nextLabel");
    const PostedMessages posted;
    flange.Trigger("action_Mesh");
    QVERIFY(!next.isVisible());
    flange.Trigger("action_SolveStatic");
    flange.Trigger("action_SolveVibration");
    QVERIFY(next.isVisible());
    QCOMPARE(next.text(), QString("Then: Vibration"));
    QTRY_VERIFY_WITH_TIMEOUT(posted.At(InfoLevel).last().startsWith("Modes found: 5"), 60000);
    QVERIFY(!next.isVisible());
    const QStringList told = posted.At(InfoLevel);
    QVERIFY(told.contains("Vibration begins when the running analysis has ended"));
    QCOMPARE(told.filter("The part was meshed: ").size(), 1);
    // Only the newest waits.
    QVERIFY(!QFile::exists("static.csv"));
}

void tst_SolveActions::CancelDropsTheNextAnalysisToo()
{
    const EndlessSolver endless;
    Flange flange;
    const PostedMessages posted;
    flange.Trigger("action_SolveVibration");
    QTRY_VERIFY_WITH_TIMEOUT(endless.HasStarted(), 60000);
    flange.Trigger("action_Mesh");
    Click(Find<QDockWidget>(flange.window, "solveDock"), "cancelButton");
    QTRY_VERIFY(!endless.IsRunning());
    flange.WaitForEnd();
    QCOMPARE(posted.At(WarningLevel), QStringList("The analysis was cancelled."));
    QVERIFY(!Find<QLabel>(flange.window, "nextLabel").isVisible());
    QCOMPARE(flange.Table().rowCount(), 0);
}

void tst_SolveActions::ClosingTheWindowEndsThePrograms()
{
    const EndlessSolver endless;
    Flange flange;
    flange.Trigger("action_SolveVibration");
    QTRY_VERIFY_WITH_TIMEOUT(endless.HasStarted(), 60000);
    flange.window.close();
    QTRY_VERIFY(!endless.IsRunning());
}

void tst_SolveActions::AnotherProjectForgetsTheResults()
{
    Flange flange;
    flange.Solve("action_Mesh");
    QVERIFY(flange.Table().rowCount() > 0);
    flange.OpenProject(Project::SamplePath());
    QCOMPARE(flange.Table().rowCount(), 0);
}

void tst_SolveActions::ResultsOfAnotherSolverAreOffered()
{
    Flange flange;
    flange.Solve("action_Mesh");
    const auto& offer = Find<QWidget>(flange.window, "offerButton");
    QVERIFY(!offer.isVisible());
    // As the dialog runs it, which is closed when the solver has ended.
    flange.user.Then([&flange](QDialog& dialog) {
        ChooseFile(flange.user, TARN_CCX_PROGRAM);
        Click(dialog, "pushButton_Browse");
        flange.user.Answer(QMessageBox::Ok);
        Click(dialog, "pushButton_Run");
        dialog.reject();
    });
    flange.Trigger("action_RunSolver");
    QVERIFY(flange.user.IsDone());
    QTRY_VERIFY(offer.isVisible());
    Click(flange.window, "offerButton");
    flange.WaitForEnd();
    QCOMPARE(flange.Table().rowCount(), 5);
    QVERIFY(flange.Table().item(0, 1)->text().toDouble() > 4000.0);
    QVERIFY(!offer.isVisible());
    QVERIFY(QFile::exists("Model_Active.frd"));
}

void tst_SolveActions::WithoutResultsThereIsNothingToRead()
{
    Flange flange;
    const PostedMessages posted;
    flange.Trigger("action_ReadResults");
    QCOMPARE(posted.At(ErrorLevel),
             QStringList("No solver has left results in the folder of the project."));
}

TARN_HOST_TEST_MAIN(tst_SolveActions)
#include "tst_SolveActions.moc"
