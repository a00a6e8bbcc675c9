#include "SolveChild.h"

#include "EndWithParent.h"
#include "Language.h"
#include "Project.h"
#include "SolveRunner.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextCodec>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

const char* const ChildOption = "--solve-for-window";

enum Argument
{
    ProgramArgument,
    OptionArgument,
    KindArgument,
    ProjectArgument,
    FolderArgument,
    TargetArgument,
    HasResultsArgument,
    LanguageArgument,
    ArgumentCount
};

void Say(const SolveMessage& message)
{
    const QByteArray line = message.ToLine();
    std::fwrite(line.constData(), 1, std::size_t(line.size()), stdout);
    std::fflush(stdout);
}

void Say(SolveMessage::Kind kind, const QString& text)
{
    Say({kind, {}, text});
}

SolveOrder OrderFrom(char** argv)
{
    SolveOrder order;
    order.kind = SolveKind(std::atoi(argv[KindArgument]));
    order.projectFile = QFile::decodeName(argv[ProjectArgument]);
    order.folder = QFile::decodeName(argv[FolderArgument]);
    order.target = QFile::decodeName(argv[TargetArgument]);
    order.hasResults = std::atoi(argv[HasResultsArgument]) != 0;
    order.language = QString::fromLatin1(argv[LanguageArgument]);
    return order;
}

/// Copies decks and tables to the target, which then has those of one analysis alone.
void Deliver(const SolveOrder& order)
{
    const SolveFolder from(order.folder);
    const SolveFolder to(order.target);
    try {
        to.ClearResults();
        for (const QLatin1String name : {SolveRunner::ModesName, SolveRunner::StaticName})
            QFile::remove(to.PathOf(name));
        for (const QString& name :
             {SolveFolder::InJob(".bdf"), SolveFolder::InJob(".inp"),
              QString(SolveRunner::ModesName), QString(SolveRunner::StaticName)}) {
            if (QFile::exists(from.PathOf(name)))
                to.Write(name, from.ContentOf(name));
        }
    } catch (const HostError& error) {
        Say(SolveMessage::Warning, SolveRunner::tr("The decks cannot be written to the folder of "
                                                   "the project: %1")
                                       .arg(error.Reason()));
    }
}

bool Solve(const SolveOrder& order)
{
    const Project project = Project::Load(order.projectFile);
    SolveRunner::Options options;
    options.directory = order.folder;
    options.isStatic = order.kind == SolveKind::Static;
    options.isWithoutRun = order.kind == SolveKind::Mesh;
    if (order.hasResults)
        options.resultsFolder = order.target;
    options.enter = [](SolveStage stage) {
        Say({SolveMessage::Stage, stage, {}});
    };
    SolveRunner runner(project, options,
                       [](const QString& line) { Say(SolveMessage::Line, line); });
    const SolveResultPointer result = runner.Run();
    // Without results, the mesh is still worth a look, and the decks are for other solvers.
    if (!result->model.mesh.nodes.empty()) {
        SolveFolder(order.folder)
            .Write(SolveOrder::ReportName, ToBytes(ReportOf(*result, order.kind)));
        if (!order.hasResults)
            Deliver(order);
    }
    if (result->outcome != SolveResult::Done)
        Say(SolveMessage::Problem, result->problem);
    return result->outcome == SolveResult::Done;
}

} // namespace

const QLatin1String SolveOrder::ReportName("report.bin");

QStringList SolveOrder::Arguments() const
{
    return {QString::fromLatin1(ChildOption),
            QString::number(int(kind)),
            projectFile,
            folder,
            target,
            QString::number(int(hasResults)),
            language};
}

std::optional<SolveMessage> SolveMessage::FromLine(const QByteArray& line)
{
    const QByteArray text = line.trimmed();
    if (text.size() < 2 || text[1] != ' ')
        return std::nullopt;
    const int kind = QByteArray("SLWP").indexOf(text[0]);
    if (kind < 0)
        return std::nullopt;
    SolveMessage message;
    message.kind = Kind(kind);
    if (message.kind == Stage)
        message.stage = SolveStage(qBound(0, text.mid(2).toInt(), int(SolveStage::Reading)));
    else
        message.text = QString::fromUtf8(text.mid(2));
    return message;
}

QByteArray SolveMessage::ToLine() const
{
    const QByteArray rest = kind == Stage ? QByteArray::number(int(stage)) : text.toUtf8();
    return QByteArray(1, "SLWP"[kind]) + ' ' + rest.simplified() + '\n';
}

bool IsSolveChild(int argc, char** argv)
{
    return argc == ArgumentCount && std::strcmp(argv[OptionArgument], ChildOption) == 0;
}

int RunSolveChild(int argc, char** argv)
{
    EndWithParent();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    const SolveOrder order = OrderFrom(argv);
    QCoreApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    const Language language(order.language);
    try {
        return Solve(order) ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const HostError& error) {
        Say(SolveMessage::Problem, error.Reason());
    } catch (const std::bad_alloc&) {
        Say(SolveMessage::Problem,
            SolveJob::tr("The analysis ran out of memory. Choose a greater mesh size."));
    }
    return EXIT_FAILURE;
}
