#include "CommandLine.h"
#include "HostTestMain.h"
#include "Project.h"

class tst_CommandLine : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void WithoutArgumentsTheSampleProjectIsOpened();
    void AProjectCanBeNamed();
    void AStudyHasAProjectAFolderAndRuns();
    void AStudyHasWorkersALimitAndStepFiles();
    void AStudyIsSubmittedWithLimits();
    void AStudyIsMergedOrReportedByItsFolder();
    void RunsAreARangeOrANumber_data();
    void RunsAreARangeOrANumber();
    void AnAnalysisHasAProjectAFolderAndValues();
    void ScreenshotsTakeTheSampleProjectOrAnother();
    void ScreenshotsMayBeDark();
    void TheLanguageOfTheWindowsCanBeChosen();
    void HelpAndVersionWinOverAllElse();
    void TheHelpNamesEveryOption();
    void BadArgumentsAreToldInOneLine_data();
    void BadArgumentsAreToldInOneLine();
};

static CommandLine Parse(const QStringList& arguments)
{
    return CommandLine::Parse(QStringList("tarnhost") + arguments);
}

void tst_CommandLine::WithoutArgumentsTheSampleProjectIsOpened()
{
    const CommandLine line = Parse({});
    QCOMPARE(line.action, CommandLine::OpenWindow);
    QCOMPARE(line.projectFile, Project::SamplePath());
}

void tst_CommandLine::AProjectCanBeNamed()
{
    const CommandLine line = Parse({"my part.json"});
    QCOMPARE(line.action, CommandLine::OpenWindow);
    QCOMPARE(line.projectFile, QString("my part.json"));
}

void tst_CommandLine::AStudyHasAProjectAFolderAndRuns()
{
    const CommandLine line = Parse({"--study", "a.json", "--out", "o", "--runs", "3-7"});
    QCOMPARE(line.action, CommandLine::RunStudy);
    QCOMPARE(line.projectFile, QString("a.json"));
    QCOMPARE(line.outputDirectory, QString("o"));
    QCOMPARE(line.firstRun, 3);
    QCOMPARE(line.lastRun, 7);
}

void tst_CommandLine::AStudyHasWorkersALimitAndStepFiles()
{
    CommandLine line = Parse({"--study", "a.json", "--out", "o"});
    QCOMPARE(line.jobs, 0);
    QCOMPARE(line.seconds, 0);
    QVERIFY(line.hasSteps);
    line =
        Parse({"--study", "a", "--out", "o", "--jobs", "8", "--timeout", "60", "--step", "none"});
    QCOMPARE(line.jobs, 8);
    QCOMPARE(line.seconds, 60);
    QVERIFY(!line.hasSteps);
    QVERIFY(Parse({"--study", "a", "--out", "o", "--step", "all"}).hasSteps);
}

void tst_CommandLine::AStudyIsSubmittedWithLimits()
{
    CommandLine line = Parse({"--study", "a", "--out", "o", "--submit", "slurm"});
    QCOMPARE(line.action, CommandLine::SubmitStudy);
    QCOMPARE(line.projectFile, QString("a"));
    QCOMPARE(line.outputDirectory, QString("o"));
    QCOMPARE(line.tasks, 0);
    QVERIFY(!line.isWithoutRun);
    QVERIFY(line.hasTable);
    line =
        Parse({"--study", "a", "--out", "o", "--submit", "slurm", "--tasks", "7", "--partition",
               "long,short", "--time", "1-12:00:00", "--memory", "4G", "--no-run", "--no-table"});
    QCOMPARE(line.tasks, 7);
    QCOMPARE(line.partition, QString("long,short"));
    QCOMPARE(line.time, QString("1-12:00:00"));
    QCOMPARE(line.memory, QString("4G"));
    QVERIFY(line.isWithoutRun);
    QVERIFY(!line.hasTable);
}

void tst_CommandLine::AStudyIsMergedOrReportedByItsFolder()
{
    CommandLine line = Parse({"--merge", "o"});
    QCOMPARE(line.action, CommandLine::MergeStudy);
    QCOMPARE(line.outputDirectory, QString("o"));
    line = Parse({"--status", "o"});
    QCOMPARE(line.action, CommandLine::ShowStudyStatus);
    QCOMPARE(line.outputDirectory, QString("o"));
}

void tst_CommandLine::RunsAreARangeOrANumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("last");
    QTest::newRow("a range") << "3-7" << 3 << 7;
    QTest::newRow("a number") << "5" << 5 << 5;
    QTest::newRow("a range of one") << "5-5" << 5 << 5;
}

void tst_CommandLine::RunsAreARangeOrANumber()
{
    QFETCH(QString, text);
    const CommandLine line = Parse({"--study", "a.json", "--out", "o", "--runs", text});
    QTEST(line.firstRun, "first");
    QTEST(line.lastRun, "last");
}

void tst_CommandLine::AnAnalysisHasAProjectAFolderAndValues()
{
    CommandLine line = Parse({"--solve", "a.json", "--out", "o"});
    QCOMPARE(line.action, CommandLine::Solve);
    QCOMPARE(line.projectFile, QString("a.json"));
    QCOMPARE(line.outputDirectory, QString("o"));
    QVERIFY(!line.isStatic && !line.isWithoutRun && line.values.empty());

    line = Parse({"--solve", "a.json", "--out", "o", "--static", "--no-run", "--set", "长=-1.5e2",
                  "--set", "a=b=3"});
    QVERIFY(line.isStatic && line.isWithoutRun);
    QCOMPARE(line.values.size(), std::size_t(2));
    QCOMPARE(line.values[0].first, QString("长"));
    QCOMPARE(line.values[0].second, -150.0);
    QCOMPARE(line.values[1].first, QString("a=b"));
    QCOMPARE(line.values[1].second, 3.0);
}

void tst_CommandLine::ScreenshotsTakeTheSampleProjectOrAnother()
{
    CommandLine line = Parse({"--screenshots", "s"});
    QCOMPARE(line.action, CommandLine::WriteScreenshots);
    QCOMPARE(line.screenshotDirectory, QString("s"));
    QCOMPARE(line.projectFile, Project::SamplePath());
    line = Parse({"--screenshots", "s", "a.json"});
    QCOMPARE(line.projectFile, QString("a.json"));
}

void tst_CommandLine::ScreenshotsMayBeDark()
{
    QVERIFY(Parse({"--screenshots", "s", "--palette", "dark"}).isDark);
    QVERIFY(!Parse({"--screenshots", "s", "--palette", "light"}).isDark);
    QVERIFY(!Parse({"--screenshots", "s"}).isDark);
}

void tst_CommandLine::TheLanguageOfTheWindowsCanBeChosen()
{
    QCOMPARE(Parse({"--lang", "zh_CN"}).language, QString("zh_CN"));
    QCOMPARE(Parse({"--screenshots", "s", "--lang", "en"}).language, QString("en"));
    QCOMPARE(Parse({}).language, QString());
}

void tst_CommandLine::HelpAndVersionWinOverAllElse()
{
    QCOMPARE(Parse({"--study", "a.json", "--help"}).action, CommandLine::ShowHelp);
    QCOMPARE(Parse({"-h"}).action, CommandLine::ShowHelp);
    QCOMPARE(Parse({"--version"}).action, CommandLine::ShowVersion);
}

void tst_CommandLine::TheHelpNamesEveryOption()
{
    const QString help = CommandLine::HelpText();
    for (const char* option :
         {"--study <file>", "--out <dir>", "--runs <runs>", "--jobs <number>",
          "--timeout <seconds>", "--step <which>", "--merge <dir>", "--status <dir>",
          "--solve <file>", "--static", "--set <name=value>", "--no-run", "--screenshots <dir>",
          "--palette <name>", "--lang <name>", "--help", "--version", "[project]"})
        QVERIFY2(help.contains(option), option);
}

void tst_CommandLine::BadArgumentsAreToldInOneLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QStringList& arguments, const char* reason) {
        QTest::newRow(name) << arguments << reason;
    };
    row("unknown option", {"--bogus"}, "Unknown option 'bogus'.");
    row("study without value", {"--study"}, "Missing value after '--study'.");
    row("study without folder", {"--study", "a"}, "--study FILE and --out DIR need each other");
    row("folder without study", {"--out", "o"}, "--study FILE and --out DIR need each other");
    row("runs without study", {"--runs", "3"}, "--runs needs --study FILE");
    row("study and screenshots", {"--study", "a", "--out", "o", "--screenshots", "s"},
        "--study and --screenshots do not go together");
    row("palette without screenshots", {"--palette", "dark"}, "--palette needs --screenshots DIR");
    row("analysis without folder", {"--solve", "a"}, "--solve FILE needs --out DIR");
    row("analysis and study", {"--solve", "a", "--out", "o", "--study", "a"},
        "--solve goes with neither --study nor --screenshots");
    row("analysis and screenshots", {"--solve", "a", "--out", "o", "--screenshots", "s"},
        "--solve goes with neither --study nor --screenshots");
    row("static without analysis", {"--static"}, "--static needs --solve FILE");
    row("value without analysis", {"--set", "a=1"}, "--set needs --solve FILE");
    row("no run without analysis", {"--study", "a", "--out", "o", "--no-run"},
        "--no-run needs --solve FILE or --submit slurm");
    row("submission without study", {"--submit", "slurm"}, "--submit needs --study FILE");
    row("tasks without submission", {"--study", "a", "--out", "o", "--tasks", "3"},
        "--tasks needs --submit slurm");
    row("unknown manager", {"--study", "a", "--out", "o", "--submit", "pbs"},
        "--submit pbs: studies are submitted to slurm");
    row("no tasks", {"--study", "a", "--out", "o", "--submit", "slurm", "--tasks", "0"},
        "--tasks 0: has to be a whole number from 1 to 1000000");
    row("partition of two words",
        {"--study", "a", "--out", "o", "--submit", "slurm", "--partition", "a b"},
        "--partition a b: Slurm has no such value");
    row("no table without study", {"--no-table"}, "--no-table needs --study FILE");
    row("empty analysis", {"--solve", "", "--out", "o"}, "the name of a file or folder is empty");
    for (const char* value : {"a", "a=", "a=x", "a=1,5", "a=inf", "a=nan", "a=1e999", ""})
        row(qPrintable(QString("value \"%1\"").arg(value)),
            {"--solve", "a", "--out", "o", "--set", value},
            qPrintable(QString("--set %1: a value is given as NAME=NUMBER").arg(value)));
    row("unknown palette", {"--screenshots", "s", "--palette", "Dark"},
        "--palette Dark: the colours are light or dark");
    for (const char* language : {"", "fr", "zh", "zh_cn", "en_US"})
        row(qPrintable(QString("language \"%1\"").arg(language)), {"--lang", language},
            qPrintable(QString("--lang %1: the languages are en or zh_CN").arg(language)));
    row("two projects", {"a", "b"}, "there is more than one project: a and b");
    row("two projects, one in a study", {"--study", "a", "--out", "o", "b"},
        "there is more than one project: a and b");
    for (const char* option : {"jobs", "timeout", "step"})
        row(qPrintable(QString("%1 without study").arg(option)), {QString("--") + option, "1"},
            qPrintable(QString("--%1 needs --study FILE").arg(option)));
    for (const char* jobs : {"", "0", "-1", "1.5", "x", "1001"})
        row(qPrintable(QString("jobs \"%1\"").arg(jobs)),
            {"--study", "a", "--out", "o", QString("--jobs=") + jobs},
            qPrintable(QString("--jobs %1: has to be a whole number from 1 to 1000").arg(jobs)));
    row("timeout", {"--study", "a", "--out", "o", "--timeout", "0"},
        "--timeout 0: has to be a whole number from 1 to 604800");
    row("step", {"--study", "a", "--out", "o", "--step", "some"},
        "--step some: STEP files are written for all or none");
    row("merge and study", {"--merge", "o", "--study", "a"},
        "--study FILE and --out DIR need each other");
    row("merge and folder", {"--merge", "o", "--status", "o"},
        "--merge DIR goes with nothing else");
    row("status and project", {"--status", "o", "a"}, "--status DIR goes with nothing else");
    row("status of nothing", {"--status", ""}, "the name of a file or folder is empty");
    row("empty project", {""}, "the name of a file or folder is empty");
    row("empty study", {"--study", "", "--out", "o"}, "the name of a file or folder is empty");
    row("empty folder", {"--study", "a", "--out", ""}, "the name of a file or folder is empty");
    for (const char* runs : {"", "0", "7-3", "x", "3-", "-3", "3-7-9", "1.5", "3 - 7", "+3",
                             "99999999999", "1-99999999999"})
        row(qPrintable(QString("runs \"%1\"").arg(runs)),
            {"--study", "a", "--out", "o", QString("--runs=") + runs},
            qPrintable(QString("--runs %1: runs are given as 3-7 or 5, counted from 1").arg(runs)));
}

void tst_CommandLine::BadArgumentsAreToldInOneLine()
{
    QFETCH(QStringList, arguments);
    try {
        Parse(arguments);
        QFAIL("The arguments were taken.");
    } catch (const HostError& error) {
        QTEST(error.Reason(), "reason");
    }
}

TARN_HOST_TEST_MAIN(tst_CommandLine)
#include "tst_CommandLine.moc"
