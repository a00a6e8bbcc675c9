#include "HostTestMain.h"
#include "MenuUser.h"
#include "ProjectActions.h"
#include "TestFiles.h"
#include "window/project/OpenSession.h"

#include <QDir>
#include <QMenu>
#include <QProcess>
#include <QRandomGenerator>
#include <QTimer>

#include <cstdio>

// A program that saves and autosaves all the time is killed: each file is always a whole one.

namespace {

const QLatin1String SaverOption("--save-forever");
constexpr int Parameters = 300; // So many that writing takes a while.

Project Saved(int count)
{
    ParameterEntries entries(Parameters);
    for (std::size_t index = 0; index < entries.size(); ++index) {
        entries[index].record.m_strName = QString("p%1").arg(index);
        entries[index].record.m_nType = ParametersDef::ScalarType;
        entries[index].SetNumber(count);
    }
    Project project;
    project.SetTitle("Killed");
    project.SetParameters(entries);
    return project;
}

/// Whether all its values are of one state of the program.
bool IsWhole(const Project& project)
{
    const std::vector<ParametersDef>& records = project.Parameters();
    return records.size() == Parameters &&
           std::all_of(records.begin(), records.end(), [&](const ParametersDef& record) {
               return record.m_dValue == records.front().m_dValue;
           });
}

/// Changes, autosaves and saves the project of the file until it is killed.
int SaveForever(int argc, char** argv)
{
    PrepareTestProgram();
    const QApplication application(argc, argv);
    OpenSession open;
    QWidget window;
    QMenu menu;
    auto* const actions = new ProjectActions(open.session, &window);
    actions->FillMenu(menu);
    actions->Open(Project::Load(argv[2]));
    for (int count = 1;; ++count) {
        ParameterEntries entries = open.design.Design();
        for (ParameterEntry& entry : entries)
            entry.SetNumber(count);
        open.design.Edit(entries, "Count");
        QMetaObject::invokeMethod(actions->findChild<QTimer*>("autosaveTimer"), "timeout");
        if (count == 1)
            std::puts("started");
        std::fflush(stdout);
        FindAction(window, "action_SaveProject").trigger();
    }
}

} // namespace

class tst_KilledSaves : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void EachFileIsWhole();
};

void tst_KilledSaves::EachFileIsWhole()
{
    // TARN_TEST_KILLS=200 takes some minutes.
    const int kills = qMax(8, qEnvironmentVariableIntValue("TARN_TEST_KILLS"));
    constexpr int Patience = 60000; // ms
    const QString directory = EnterTemporaryDirectory();
    const QString path = directory + "/mine.json";
    Saved(0).Save(path);
    QRandomGenerator random(1);
    int interrupted = 0;
    for (int kill = 0; kill < kills; ++kill) {
        QProcess saver;
        saver.start(QCoreApplication::applicationFilePath(), {SaverOption, path});
        QVERIFY(saver.waitForReadyRead(Patience));
        QTest::qWait(random.bounded(100));
        QCOMPARE(saver.state(), QProcess::Running);
        saver.kill();
        QVERIFY(saver.waitForFinished(Patience));
        QVERIFY(IsWhole(Project::Load(path)));
        const QString rest = Autosave::FileFor(path);
        if (QFile::exists(rest)) {
            ++interrupted;
            QVERIFY(IsWhole(Project::Load(rest)));
            QVERIFY(QFile::remove(rest));
        }
    }
    qInfo("%d kills, %d of them left an autosave", kills, interrupted);
}

int main(int argc, char** argv)
{
    if (argc > 2 && argv[1] == SaverOption)
        return SaveForever(argc, argv);
    if (IsWorker(argc, argv))
        return RunWorker(argc, argv);
    return RunTest<tst_KilledSaves>(argc, argv);
}

#include "tst_KilledSaves.moc"
