#include "CommandLine.h"

#include "Language.h"
#include "Project.h"

#include <QCommandLineParser>
#include <QRegularExpression>

namespace {

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
                           QStringLiteral("Write the study's results to the folder <dir>."),
                           QStringLiteral("dir")};
    QCommandLineOption runs{QStringLiteral("runs"),
                            QStringLiteral("Do only these runs of the study: 3-7, or 5."),
                            QStringLiteral("runs")};
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
        parser.addOptions({study, out, runs, screenshots, palette, lang, help, version});
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

    const bool study = parser.isSet(options.study);
    const bool screenshots = parser.isSet(options.screenshots);
    if (study && screenshots)
        Refuse(QStringLiteral("--study and --screenshots do not go together"));
    if (study != parser.isSet(options.out))
        Refuse(QStringLiteral("--study FILE and --out DIR need each other"));
    if (parser.isSet(options.runs) && !study)
        Refuse(QStringLiteral("--runs needs --study FILE"));
    if (parser.isSet(options.palette) && !screenshots)
        Refuse(QStringLiteral("--palette needs --screenshots DIR"));

    QStringList projects = parser.positionalArguments();
    if (study)
        projects.prepend(parser.value(options.study));
    if (projects.size() > 1)
        Refuse(QStringLiteral("there is more than one project: %1 and %2")
                   .arg(projects[0].simplified(), projects[1].simplified()));
    line.projectFile = projects.isEmpty() ? Project::SamplePath() : projects.first();
    line.outputDirectory = parser.value(options.out);
    line.screenshotDirectory = parser.value(options.screenshots);
    if (study)
        line.action = RunStudy;
    else if (screenshots)
        line.action = WriteScreenshots;
    if (line.projectFile.isEmpty() || (study && line.outputDirectory.isEmpty()) ||
        (screenshots && line.screenshotDirectory.isEmpty()))
        Refuse(QStringLiteral("the name of a file or folder is empty"));
    if (parser.isSet(options.runs))
        ReadRuns(parser.value(options.runs), line);
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
