#include "FlangeStudy.h"
#include "HostError.h"
#include "StudyProcess.h"
#include "TestCase.h"

#include <QDir>
#include <QSignalSpy>

class tst_StudyProcess : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AStudyRunsToTheEnd();
    void AFailureIsReported_data();
    void AFailureIsReported();
    void APausedStudyContinuesWithItsProject();
    void AFolderThatCannotBeWrittenIsReported();

protected:
    void SetUp() override { StudyProcess::SetProgram(TARN_HOST_PROGRAM); }
};

namespace {

constexpr int Patience = 60000; // ms

struct Started
{
    Started(const QString& folder, const QByteArray& bores)
    {
        Put("p.json", Flange(bores));
        process.Start(Project::Load("p.json"), {folder, 1, false});
    }

    bool IsIn(StudyProcess::State state) const { return process.CurrentState() == state; }

    StudyProcess process;
    QSignalSpy finished{&process, &StudyProcess::Finished};
};

} // namespace

void tst_StudyProcess::AStudyRunsToTheEnd()
{
    const QString folder = EnterTemporaryDirectory();
    Started study(folder + "/out", "[60]");
    QVERIFY(study.IsIn(StudyProcess::Running));
    QTRY_VERIFY_WITH_TIMEOUT(study.IsIn(StudyProcess::Idle), Patience);
    QCOMPARE(study.finished.count(), 1);
    QCOMPARE(study.finished[0][0].toString(), QString());
    QCOMPARE(ContentOf("out/results.csv").count('\n'), 3);
    QCOMPARE(AllFiles(), QStringList({"out", "p.json"}));
}

void tst_StudyProcess::AFailureIsReported_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QByteArray>("bores");
    QTest::addColumn<QString>("problem");
    NewRow("runs that fail", QString(TARN_HOST_PROGRAM), QByteArray("[60, 500]"),
           QString("some runs failed; the table shows the reasons"));
    NewRow("no program", QString("/nowhere/tarnhost"), QByteArray("[60]"),
           QString("No such file or directory"));
}

void tst_StudyProcess::AFailureIsReported()
{
    QFETCH(QString, program);
    QFETCH(QByteArray, bores);
    QFETCH(QString, problem);
    StudyProcess::SetProgram(program);
    const QString folder = EnterTemporaryDirectory();
    Started study(folder + "/out", bores);
    QTRY_VERIFY_WITH_TIMEOUT(study.IsIn(StudyProcess::Idle), Patience);
    QTRY_COMPARE(study.finished.count(), 1);
    QVERIFY2(study.finished[0][0].toString().contains(problem),
             qPrintable(study.finished[0][0].toString()));
}

void tst_StudyProcess::APausedStudyContinuesWithItsProject()
{
    const QString folder = EnterTemporaryDirectory();
    Started study(folder + "/out", "[60, 62, 64, 66, 68, 70]");
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists("out/journal_0001.csv"), Patience);
    study.process.Pause();
    QVERIFY(study.IsIn(StudyProcess::Ending));
    QTRY_VERIFY_WITH_TIMEOUT(study.IsIn(StudyProcess::Paused), Patience);
    QCOMPARE(study.finished.count(), 0);
    Put("p.json", "{}");
    study.process.Continue();
    QTRY_VERIFY_WITH_TIMEOUT(study.IsIn(StudyProcess::Idle), Patience);
    QCOMPARE(study.finished.count(), 1);
    QCOMPARE(study.finished[0][0].toString(), QString());
    QCOMPARE(ContentOf("out/results.csv").count('\n'), 13);
}

void tst_StudyProcess::AFolderThatCannotBeWrittenIsReported()
{
    EnterTemporaryDirectory();
    Project project;
    project.SetPath("missing/p.json");
    StudyProcess process;
    QVERIFY_EXCEPTION_THROWN(process.Start(project, {"out", 1, false}), HostError);
    QCOMPARE(process.CurrentState(), StudyProcess::Idle);
}

TARN_TEST_MAIN(tst_StudyProcess)
#include "tst_StudyProcess.moc"
