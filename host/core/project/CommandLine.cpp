#include "CommandLine.h"

#include "BuildLimits.h"
#include "Language.h"
#include "Project.h"

#include <QCommandLineParser>
#include <QLocale>
#include <QRegularExpression>

#include <cmath>

namespace {

const QString EmptyName = QStringLiteral("the name of a file or folder is empty");

QString LanguageNames()
{
    return Language::Known().join(QStringLiteral(" or "));
}

/// The options, and what is said of them.
struct Options
{
    QCommandLineOption study{
        QStringLiteral("study"),
        QStringLiteral("Run the study of the project <file> without a window."),
        QStringLiteral("file")};
    QCommandLineOption out{QStringLiteral("out"),
                           QStringLiteral("Write the results to the folder <dir>."),
                           QStringLiteral("dir")};
    QCommandLineOption runs{QStringLiteral("runs"),
                            QStringLiteral("Do only these runs of the study: 3-7, or 5."),
                            QStringLiteral("runs")};
    QCommandLineOption jobs{
        QStringLiteral("jobs"),
        QStringLiteral("Do <number> runs of the study at once; without, one on each processor."),
        QStringLiteral("number")};
    QCommandLineOption timeout{
        QStringLiteral("timeout"),
        QStringLiteral("Give up a run of the study that takes longer than <seconds>."),
        QStringLiteral("seconds")};
    QCommandLineOption step{
        QStringLiteral("step"),
        QStringLiteral("Write a STEP file for each run of the study: all or none."),
        QStringLiteral("which")};
    QCommandLineOption noTable{QStringLiteral("no-table"),
                               QStringLiteral("Leave results.csv of the study to --merge.")};
    QCommandLineOption submit{
        QStringLiteral("submit"),
        QStringLiteral("Submit the study to the workload manager <name>, which is slurm, as a job "
                       "array."),
        QStringLiteral("name")};
    QCommandLineOption tasks{
        QStringLiteral("tasks"),
        QStringLiteral("Divide the study that is submitted into <number> tasks; without, into as "
                       "many as have work for 30 seconds."),
        QStringLiteral("number")};
    QCommandLineOption partition{QStringLiteral("partition"),
                                 QStringLiteral("Submit the study to the partition <name>."),
                                 QStringLiteral("name")};
    QCommandLineOption time{
        QStringLiteral("time"),
        QStringLiteral("Limit the time of each task, such as 30 minutes or 2:00:00."),
        QStringLiteral("limit")};
    QCommandLineOption memory{QStringLiteral("memory"),
                              QStringLiteral("Limit the memory of each task, such as 4G."),
                              QStringLiteral("size")};
    QCommandLineOption merge{QStringLiteral("merge"),
                             QStringLiteral("Write results.csv of the study in the folder <dir>."),
                             QStringLiteral("dir")};
    QCommandLineOption status{
        QStringLiteral("status"),
        QStringLiteral("Print how many runs of the study in the folder <dir> are done."),
        QStringLiteral("dir")};
    QCommandLineOption solve{
        QStringLiteral("solve"),
        QStringLiteral("Analyse the part of the project <file> without a window: its natural "
                       "frequencies, or with --static its displacements and stresses."),
        QStringLiteral("file")};
    QCommandLineOption isStatic{QStringLiteral("static"),
                                QStringLiteral("Solve a static analysis.")};
    QCommandLineOption set{
        QStringLiteral("set"),
        QStringLiteral("Give a parameter another value for this analysis: --set length=12.5. Can "
                       "be repeated."),
        QStringLiteral("name=value")};
    QCommandLineOption noRun{
        QStringLiteral("no-run"),
        QStringLiteral("Write the solvers' decks, or the scripts of a study that "
                       "would be submitted, but start nothing.")};
    QCommandLineOption screenshots{
        QStringLiteral("screenshots"),
        QStringLiteral("Write a picture of every window to the folder <dir>."),
        QStringLiteral("dir")};
    QCommandLineOption palette{QStringLiteral("palette"),
                               QStringLiteral("Colours of the pictures: light or dark."),
                               QStringLiteral("name")};
    QCommandLineOption lang{QStringLiteral("lang"),
                            QStringLiteral("Language of the windows: %1; without, the user's own.")
                                .arg(LanguageNames()),
                            QStringLiteral("name")};
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")},
                            QStringLiteral("Show this help.")};
    QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")},
                               QStringLiteral("Show the version.")};

    void AddTo(QCommandLineParser& parser) const
    {
        parser.setApplicationDescription(
            QStringLiteral("Reference host of the dialogs: a bolted flange and its study."));
        parser.addOptions({study,       out,     runs,  jobs,      timeout, step,
                           noTable,     submit,  tasks, partition, time,    memory,
                           merge,       status,  solve, isStatic,  set,     noRun,
                           screenshots, palette, lang,  help,      version});
        parser.addPositionalArgument(QStringLiteral("project"),
                                     QStringLiteral("The project file; without, a sample project."),
                                     QStringLiteral("[project]"));
    }
};

[[noreturn]] void Refuse(const QString& reason)
{
    throw HostError(reason);
}

void ReadRuns(const QString& text, CommandLine& line)
{
    static const QRegularExpression pattern(QStringLiteral("^([0-9]+)(?:-([0-9]+))?$"));
    const QRegularExpressionMatch match = pattern.match(text);
    line.firstRun = match.captured(1).toInt();
    line.lastRun = match.captured(2).isNull() ? line.firstRun : match.captured(2).toInt();
    if (line.firstRun < 1 || line.lastRun < line.firstRun)
        Refuse(QStringLiteral("--runs %1: runs are given as 3-7 or 5, counted from 1")
                   .arg(text.simplified()));
}

int ReadNumber(const QCommandLineParser& parser, const QCommandLineOption& option, int most)
{
    const QString text = parser.value(option);
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || number < 1 || number > most)
        Refuse(QStringLiteral("--%1 %2: has to be a whole number from 1 to %3")
                   .arg(option.names().constFirst(), text.simplified())
                   .arg(most));
    return number;
}

bool ReadStep(const QString& text)
{
    const bool hasSteps = text == QLatin1String("all");
    if (!hasSteps && text != QLatin1String("none"))
        Refuse(QStringLiteral("--step %1: STEP files are written for all or none")
                   .arg(text.simplified()));
    return hasSteps;
}

// What goes to the workload manager as it is. It stands in a line of a script.
QString ReadSlurmText(const QCommandLineParser& parser, const QCommandLineOption& option)
{
    static const QRegularExpression pattern(QStringLiteral("^[-A-Za-z0-9_.,:+]+$"));
    QString text = parser.value(option);
    if (!pattern.match(text).hasMatch())
        Refuse(QStringLiteral("--%1 %2: Slurm has no such value")
                   .arg(option.names().constFirst(), text.simplified()));
    return text;
}

// The last "=" separates: a name may contain one, a number cannot.
void ReadValue(const QString& text, CommandLine& line)
{
    const int sign = text.lastIndexOf(QLatin1Char('='));
    bool isNumber = false;
    const double value = QLocale::c().toDouble(text.mid(sign + 1), &isNumber);
    if (sign < 0 || !isNumber || !std::isfinite(value))
        Refuse(QStringLiteral("--set %1: a value is given as NAME=NUMBER").arg(text.simplified()));
    line.values.emplace_back(text.left(sign), value);
}

bool ReadPalette(const QString& text)
{
    const bool isDark = text == QLatin1String("dark");
    if (!isDark && text != QLatin1String("light"))
        Refuse(
            QStringLiteral("--palette %1: the colours are light or dark").arg(text.simplified()));
    return isDark;
}

QString ReadLanguage(const QString& text)
{
    if (!Language::Known().contains(text))
        Refuse(QStringLiteral("--lang %1: the languages are %2")
                   .arg(text.simplified(), LanguageNames()));
    return text;
}

// Which options go together.
void CheckCombination(const QCommandLineParser& parser, const Options& options)
{
    const bool study = parser.isSet(options.study);
    const bool solve = parser.isSet(options.solve);
    const bool screenshots = parser.isSet(options.screenshots);
    if (study && screenshots)
        Refuse(QStringLiteral("--study and --screenshots do not go together"));
    if (solve && (study || screenshots))
        Refuse(QStringLiteral("--solve goes with neither --study nor --screenshots"));
    if (solve && !parser.isSet(options.out))
        Refuse(QStringLiteral("--solve FILE needs --out DIR"));
    if (!solve && study != parser.isSet(options.out))
        Refuse(QStringLiteral("--study FILE and --out DIR need each other"));
    for (const QCommandLineOption& option : {options.runs, options.jobs, options.timeout,
                                             options.step, options.noTable, options.submit}) {
        if (parser.isSet(option) && !study)
            Refuse(QStringLiteral("--%1 needs --study FILE").arg(option.names().constFirst()));
    }
    const bool submit = parser.isSet(options.submit);
    for (const QCommandLineOption& option :
         {options.tasks, options.partition, options.time, options.memory}) {
        if (parser.isSet(option) && !submit)
            Refuse(QStringLiteral("--%1 needs --submit slurm").arg(option.names().constFirst()));
    }
    // These have the folder alone.
    for (const QCommandLineOption& option : {options.merge, options.status}) {
        if (parser.isSet(option) &&
            (parser.optionNames().size() > 1 || !parser.positionalArguments().isEmpty()))
            Refuse(
                QStringLiteral("--%1 DIR goes with nothing else").arg(option.names().constFirst()));
    }
    for (const QCommandLineOption& option : {options.isStatic, options.set}) {
        if (parser.isSet(option) && !solve)
            Refuse(QStringLiteral("--%1 needs --solve FILE").arg(option.names().constFirst()));
    }
    if (parser.isSet(options.noRun) && !solve && !submit)
        Refuse(QStringLiteral("--no-run needs --solve FILE or --submit slurm"));
    if (parser.isSet(options.palette) && !screenshots)
        Refuse(QStringLiteral("--palette needs --screenshots DIR"));
}

void ReadSubmission(const QCommandLineParser& parser, const Options& options, CommandLine& line)
{
    const QString name = parser.value(options.submit);
    if (name != QLatin1String("slurm"))
        Refuse(
            QStringLiteral("--submit %1: studies are submitted to slurm").arg(name.simplified()));
    line.action = CommandLine::SubmitStudy;
    if (parser.isSet(options.tasks))
        line.tasks = ReadNumber(parser, options.tasks, CommandLine::MaximumTasks);
    if (parser.isSet(options.partition))
        line.partition = ReadSlurmText(parser, options.partition);
    if (parser.isSet(options.time))
        line.time = ReadSlurmText(parser, options.time);
    if (parser.isSet(options.memory))
        line.memory = ReadSlurmText(parser, options.memory);
}

void ReadStudyOptions(const QCommandLineParser& parser, const Options& options, CommandLine& line)
{
    if (parser.isSet(options.runs))
        ReadRuns(parser.value(options.runs), line);
    if (parser.isSet(options.jobs))
        line.jobs = ReadNumber(parser, options.jobs, CommandLine::MaximumJobs);
    if (parser.isSet(options.timeout))
        line.seconds = ReadNumber(parser, options.timeout, BuildLimits::MaximumSeconds);
    if (parser.isSet(options.step))
        line.hasSteps = ReadStep(parser.value(options.step));
    line.hasTable = !parser.isSet(options.noTable);
    if (parser.isSet(options.submit))
        ReadSubmission(parser, options, line);
    for (const QCommandLineOption& option : {options.merge, options.status}) {
        if (!parser.isSet(option))
            continue;
        const bool isMerge = parser.isSet(options.merge);
        line.action = isMerge ? CommandLine::MergeStudy : CommandLine::ShowStudyStatus;
        line.outputDirectory = parser.value(option);
        if (line.outputDirectory.isEmpty())
            Refuse(EmptyName);
    }
}

} // namespace

CommandLine CommandLine::Parse(const QStringList& arguments)
{
    const Options options;
    QCommandLineParser parser;
    options.AddTo(parser);
    if (!parser.parse(arguments))
        Refuse(parser.errorText().simplified());

    CommandLine line;
    if (parser.isSet(options.help)) {
        line.action = ShowHelp;
        return line;
    }
    if (parser.isSet(options.version)) {
        line.action = ShowVersion;
        return line;
    }

    CheckCombination(parser, options);
    const bool study = parser.isSet(options.study);
    const bool solve = parser.isSet(options.solve);
    const bool screenshots = parser.isSet(options.screenshots);
    QStringList projects = parser.positionalArguments();
    if (study)
        projects.prepend(parser.value(options.study));
    if (solve)
        projects.prepend(parser.value(options.solve));
    if (projects.size() > 1)
        Refuse(QStringLiteral("there is more than one project: %1 and %2")
                   .arg(projects[0].simplified(), projects[1].simplified()));
    line.projectFile = projects.isEmpty() ? Project::SamplePath() : projects.first();
    line.outputDirectory = parser.value(options.out);
    line.screenshotDirectory = parser.value(options.screenshots);
    if (study)
        line.action = RunStudy;
    else if (solve)
        line.action = Solve;
    else if (screenshots)
        line.action = WriteScreenshots;
    if (line.projectFile.isEmpty() || ((study || solve) && line.outputDirectory.isEmpty()) ||
        (screenshots && line.screenshotDirectory.isEmpty()))
        Refuse(EmptyName);
    ReadStudyOptions(parser, options, line);
    line.isStatic = parser.isSet(options.isStatic);
    line.isWithoutRun = parser.isSet(options.noRun);
    const QStringList values = parser.values(options.set);
    for (const QString& value : values)
        ReadValue(value, line);
    if (parser.isSet(options.palette))
        line.isDark = ReadPalette(parser.value(options.palette));
    if (parser.isSet(options.lang))
        line.language = ReadLanguage(parser.value(options.lang));
    return line;
}

QString CommandLine::HelpText()
{
    QCommandLineParser parser;
    Options().AddTo(parser);
    return parser.helpText();
}
