#include "CommandLine.h"
#include "ExitCode.h"
#include "HostApplication.h"
#include "Language.h"
#include "MainWindow.h"
#include "Project.h"
#include "Screenshots.h"
#include "SlurmSubmission.h"
#include "SolveChild.h"
#include "SolveFolder.h"
#include "SolveRunner.h"
#include "StudyFolder.h"
#include "StudyRunner.h"
#include "WorkerProcess.h"

#include <QLocale>
#include <QTextCodec>
#include <QThread>
#include <Standard_Failure.hxx>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>

namespace {

void Print(FILE* stream, const QString& text)
{
    const QByteArray bytes = text.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stream);
    std::fflush(stream); // A study's progress is to be seen at once, also through a pipe.
}

void Refuse(const QString& reason)
{
    Print(stderr, QStringLiteral("tarnhost: %1\n").arg(reason));
}

void Tell(const QString& line)
{
    Print(stdout, line + QLatin1Char('\n'));
}

StudyRunner::Options StudyOptions(const CommandLine& line)
{
    StudyRunner::Options options;
    options.directory = line.outputDirectory;
    options.firstRun = line.firstRun;
    options.lastRun = line.lastRun;
    options.jobs = line.jobs;
    options.seconds = line.seconds;
    options.hasSteps = line.hasSteps;
    options.hasTable = line.hasTable;
    return options;
}

int SubmitStudy(const CommandLine& line)
{
    const Project project = Project::Load(line.projectFile);
    SlurmSubmission::Options options;
    options.study = StudyOptions(line);
    options.tasks = line.tasks;
    options.partition = line.partition;
    options.time = line.time;
    options.memory = line.memory;
    options.isWithoutRun = line.isWithoutRun;
    const QString problem = SlurmSubmission(project, options, Tell).Run();
    if (problem.isEmpty())
        return DoneCode;
    Refuse(problem);
    return FailedCode;
}

int RunStudy(const CommandLine& line)
{
    const Project project = Project::Load(line.projectFile);
    StudyRunner::Options options = StudyOptions(line);
    if (options.jobs == 0)
        options.jobs = QThread::idealThreadCount();
    const StudyRunner::Summary summary = StudyRunner(project, options, Tell).Run();
    constexpr int SignalCode = 128; // As shells report a signal.
    if (summary.signal != 0)
        return SignalCode + summary.signal;
    if (summary.failed == 0)
        return DoneCode;
    Refuse(QStringLiteral("%1 of %2 runs failed; results.csv holds the reasons")
               .arg(summary.failed)
               .arg(summary.ok + summary.failed + summary.skipped));
    return FailedCode;
}

int ReportStudy(const CommandLine& line)
{
    const std::unique_ptr<StudyFolder> folder = StudyFolder::Open(line.outputDirectory);
    if (line.action == CommandLine::MergeStudy)
        folder->Merge();
    else
        folder->Records().Refresh();
    const StudyFolder::Counts counts = folder->Count();
    Tell(QStringLiteral("%1 done, %2 failed, %3 running, %4 open")
             .arg(counts.done)
             .arg(counts.failed)
             .arg(counts.running)
             .arg(counts.open));
    return DoneCode;
}

int SolveProject(const CommandLine& line)
{
    const Project project = Project::Load(line.projectFile);
    SolveRunner::Options options;
    options.directory = line.outputDirectory;
    options.isStatic = line.isStatic;
    options.isWithoutRun = line.isWithoutRun;
    options.values = line.values;
    SolveRunner runner(project, options, Tell);
    const SolveResultPointer result = runner.Run();
    if (result->outcome == SolveResult::Done)
        return DoneCode;
    Refuse(result->problem);
    return result->outcome == SolveResult::FolderFailed ? BadFolderCode : FailedCode;
}

QString WindowLanguage(const CommandLine& line)
{
    return line.language.isEmpty() ? Language::BestOf(QLocale::system().uiLanguages())
                                   : line.language;
}

int OpenWindow(const CommandLine& line)
{
    // What is wrong with the file goes to the console, which knows no other language.
    const Project project = Project::Load(line.projectFile);
    const Language language(WindowLanguage(line));
    MainWindow window;
    window.show();
    const bool isSample = line.projectFile == Project::SamplePath();
    if (!isSample || !window.OfferAbandonedProject())
        window.OpenProject(project);
    return HostApplication::exec();
}

int WritePictures(const CommandLine& line)
{
    const Project project = Project::Load(line.projectFile);
    const Language language(WindowLanguage(line));
    if (line.isDark)
        HostApplication::setPalette(DarkPalette());
    WriteScreenshots(project, line.screenshotDirectory);
    return DoneCode;
}

// A window needs a display; everything else does without.
void ChoosePlatform(const CommandLine& line)
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        return;
    if (line.action != CommandLine::OpenWindow)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    else if (qEnvironmentVariableIsEmpty("DISPLAY") &&
             qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        throw HostError(QStringLiteral("the window needs a display; --study, --solve and "
                                       "--screenshots work without one, see --help"));
}

// What the toolkit says about a missing desktop is no news to the user.
void DropDesktopWarnings(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    Q_UNUSED(context)
    const bool isNoise = text.contains(QLatin1String("XDG_RUNTIME_DIR")) ||
                         text.contains(QLatin1String("propagateSizeHints"));
    if (!isNoise)
        Print(stderr, text + QLatin1Char('\n'));
    if (type == QtFatalMsg)
        std::abort();
}

int Act(const CommandLine& line)
{
    switch (line.action) {
    case CommandLine::ShowHelp:
        Print(stdout, CommandLine::HelpText());
        return DoneCode;
    case CommandLine::ShowVersion:
        Print(stdout, QCoreApplication::applicationName() + QLatin1Char(' ') +
                          QCoreApplication::applicationVersion() + QLatin1Char('\n'));
        return DoneCode;
    case CommandLine::RunStudy:
        return RunStudy(line);
    case CommandLine::SubmitStudy:
        return SubmitStudy(line);
    case CommandLine::Solve:
        return SolveProject(line);
    case CommandLine::MergeStudy:
    case CommandLine::ShowStudyStatus:
        return ReportStudy(line);
    case CommandLine::WriteScreenshots:
        return WritePictures(line);
    default:
        return OpenWindow(line);
    }
}

QStringList Arguments(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

} // namespace

int main(int argc, char** argv)
{
    if (IsWorker(argc, argv))
        return RunWorker(argc, argv);
    if (IsSolveChild(argc, argv))
        return RunSolveChild(argc, argv);
    // Even before the application object says so: file names in the arguments are UTF-8.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    try {
        const CommandLine line = CommandLine::Parse(Arguments(argc, argv));
        ChoosePlatform(line);
        qInstallMessageHandler(DropDesktopWarnings);
        HostApplication application(argc, argv);
        return Act(line);
    } catch (const FolderError& error) {
        Refuse(error.Reason());
        return BadFolderCode;
    } catch (const Standard_Failure& failure) {
        Refuse(QString::fromUtf8(failure.GetMessageString()));
    } catch (const std::exception& error) {
        Refuse(QString::fromUtf8(error.what()));
    }
    return BadInputCode;
}
