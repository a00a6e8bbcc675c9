#include "FlangeStudy.h"
#include "TestCase.h"

#include <QProcess>

// The program as a user starts it: main.cpp.

class tst_Program : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AStudyIsRun();
    void TheExitCodeReportsFailedRuns();
    void TheExitCodeReportsAFolderThatCannotBeMade();
    void BadInputIsRefusedInOneLine_data();
    void BadInputIsRefusedInOneLine();
    void HelpAndVersionArePrinted();
    void NoLocaleIsNeeded();
    void AProjectIsSolved();
    void TheExitCodeOfSolvingSaysWhatWentWrong_data();
    void TheExitCodeOfSolvingSaysWhatWentWrong();
};

/// The outcome of the program, started without a display.
struct Process
{
    int code = -1;
    QString out;
    QString error;
};

static Process RunProgram(const QStringList& arguments,
                          const QMap<QString, QString>& variables = {})
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name :
         {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR", "QT_LOGGING_RULES"})
        environment.remove(name);
    for (auto it = variables.begin(); it != variables.end(); ++it)
        environment.insert(it.key(), it.value());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(TARN_HOST_PROGRAM, arguments);
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

// A block on its bottom.
static const QByteArray Block = R"({
    "version": 2, "material": "Steel S355",
    "parameters": [{"name": "l", "type": "Scalar", "value": 50}],
    "features": [{"name": "block", "kind": "box", "fields": {"x": "l", "y": 40, "z": 30}}],
    "analysis": {
        "meshSize": 20, "frequencies": {"number": 2},
        "constraints": [{"name": "foot", "held": ["X_D", "Y_D", "Z_D"],
                         "faces": ["block.zmin"]}]}})";

void tst_Program::AStudyIsRun()
{
    EnterTemporaryDirectory();
    Put("p.json", Flange());
    Process process = RunProgram({"--study", "p.json", "--out", "out", "--runs", "1-2"});
    QCOMPARE(process.error, QString());
    QCOMPARE(process.code, 0);
    const QStringList lines = process.out.split('\n');
    QCOMPARE(lines.size(), 4);
    QVERIFY(lines[0].startsWith("run 1 of 4: ok, volume "));
    QVERIFY(lines[1].startsWith("run 2 of 4: ok, volume "));
    QCOMPARE(lines[2], QString("2 ok, 0 failed, 0 done before; see out/results.csv"));

    process = RunProgram({"--study", "p.json", "--out", "out", "--runs", "2"});
    QCOMPARE(process.error, QString());
    QCOMPARE(process.out, QString("run 2 of 4: done before\n"
                                  "0 ok, 0 failed, 1 done before; see out/results.csv\n"));
    QCOMPARE(process.code, 0);
}

void tst_Program::TheExitCodeReportsFailedRuns()
{
    EnterTemporaryDirectory();
    Put("p.json", Flange("[150]"));
    const Process process = RunProgram({"--study", "p.json", "--out", "out", "--runs", "1"});
    QCOMPARE(process.error,
             QString("tarnhost: 1 of 1 runs failed; results.csv holds the reasons\n"));
    QCOMPARE(process.code, 1);
    QCOMPARE(process.out,
             QString("run 1 of 2: failed: The bore (150) is not smaller than the hub (110).\n"
                     "0 ok, 1 failed, 0 done before; see out/results.csv\n"));
}

void tst_Program::TheExitCodeReportsAFolderThatCannotBeMade()
{
    EnterTemporaryDirectory();
    Put("p.json", Flange());
    const Process process = RunProgram({"--study", "p.json", "--out", "p.json"});
    QCOMPARE(process.error, QString("tarnhost: p.json: cannot create the folder\n"));
    QCOMPARE(process.code, 3);
}

void tst_Program::BadInputIsRefusedInOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QStringList& arguments, const char* reason) {
        QTest::newRow(name) << arguments << QString("tarnhost: %1\n").arg(reason);
    };
    row("unknown option", {"--bogus"}, "Unknown option 'bogus'.");
    row("bad runs", {"--study", "p.json", "--out", "out", "--runs", "x"},
        "--runs x: runs are given as 3-7 or 5, counted from 1");
    row("runs out of range", {"--study", "p.json", "--out", "out", "--runs", "9"},
        "p.json: the study has the runs 1 to 4, so 9-9 cannot be run");
    row("no such file", {"--study", "none.json", "--out", "out"},
        "none.json: cannot be opened: No such file or directory");
    row("a folder", {"--study", ".", "--out", "out"}, ".: is a folder, not a file");
    row("broken file", {"--study", "broken.json", "--out", "out"},
        "broken.json: is not valid JSON: unterminated object at byte 1");
    row("Gauss", {"--study", "gauss.json", "--out", "out"},
        "gauss.json: the sample list of \"thickness\" has Gauss spacing, which is not implemented");
    row("broken file for Chinese windows",
        {"--screenshots", "pictures", "--lang", "zh_CN", "broken.json"},
        "broken.json: is not valid JSON: unterminated object at byte 1");
    row("pictures into a file", {"--screenshots", "broken.json"},
        "broken.json: cannot create the folder");
    row("no display", {"p.json"},
        "the window needs a display; --study, --solve and --screenshots work without one, see "
        "--help");
}

void tst_Program::BadInputIsRefusedInOneLine()
{
    QFETCH(QStringList, arguments);
    EnterTemporaryDirectory();
    Put("p.json", Flange());
    Put("broken.json", "{");
    Put("gauss.json", Flange().replace("\"delta\": 4", "\"delta\": 4, \"spacing\": \"Gauss\""));
    const Process process = RunProgram(arguments);
    QTEST(process.error, "reason");
    QCOMPARE(process.code, 2);
    QCOMPARE(process.out, QString());
}

void tst_Program::HelpAndVersionArePrinted()
{
    Process process = RunProgram({"--help"});
    QCOMPARE(process.error, QString());
    QCOMPARE(process.code, 0);
    QVERIFY(process.out.contains("--study <file>"));
    process = RunProgram({"--version"});
    QCOMPARE(process.code, 0);
    QVERIFY(process.out.startsWith("tarnhost 0."));
}

void tst_Program::NoLocaleIsNeeded()
{
    EnterTemporaryDirectory();
    Put("p.json", Flange());
    const Process process = RunProgram({"--study", "p.json", "--out", "out", "--runs", "1"},
                                       {{"LC_ALL", "de_DE.UTF-8"}, {"LANG", "de_DE.UTF-8"}});
    QCOMPARE(process.error, QString());
    QCOMPARE(process.code, 0);
    QVERIFY(ContentOf("out/results.csv").contains("\n1,200,60,16,2,18,155,110,24,0,"));
    const QByteArray step = ContentOf("out/run_0001.step");
    QVERIFY(step.contains("CARTESIAN_POINT"));
    QVERIFY(!step.contains(",0000"));
}

void tst_Program::AProjectIsSolved()
{
    EnterTemporaryDirectory();
    Put("p.json", Block);
    const Process process = RunProgram({"--solve", "p.json", "--out", "out", "--set", "l=80"});
    QCOMPARE(process.error, QString());
    QCOMPARE(process.code, 0);
    QVERIFY(process.out.startsWith("building the part\nmeshing with a size of 20 mm\n"));
    QVERIFY(process.out.contains("\nmode 2: "));
    QCOMPARE(ContentOf("out/modes.csv").count('\n'), 3);
}

void tst_Program::TheExitCodeOfSolvingSaysWhatWentWrong_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("reason");
    QTest::newRow("cannot be solved")
        << QStringList{"--out", "out", "--static"} << 1
        << "The set-up has no load, so nothing moves. Add a load first.";
    QTest::newRow("unknown parameter") << QStringList{"--out", "out", "--set", "k=1"} << 2
                                       << "--set k: the project has no parameter of that name";
    QTest::newRow("folder is a file")
        << QStringList{"--out", "p.json"} << 3 << "p.json: cannot create the folder";
}

void tst_Program::TheExitCodeOfSolvingSaysWhatWentWrong()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, reason);
    EnterTemporaryDirectory();
    Put("p.json", Block);
    const Process process = RunProgram(QStringList{"--solve", "p.json"} + arguments);
    QTEST(process.code, "code");
    QCOMPARE(process.error, QString("tarnhost: %1\n").arg(reason));
}

TARN_TEST_MAIN(tst_Program)
#include "tst_Program.moc"
