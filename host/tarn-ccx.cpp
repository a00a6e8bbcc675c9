// tarn-ccx: a solver for dialogs that run Nastran. They give it the name of a ".bdf" file; it
// solves the ".inp" file beside it with CalculiX.

#include "DeckRun.h"
#include "ExitCode.h"
#include "TarnGUICommonVersion.h"

#include <QCoreApplication>
#include <QTextCodec>

#include <clocale>
#include <cstdio>
#include <new>

namespace {

const char* const Help =
    "Usage: tarn-ccx FILE.bdf\n"
    "Solves FILE.inp beside FILE.bdf with CalculiX. Writes FILE.frd, FILE.dat and solver.log.\n"
    "Exit status: 0 solved, 1 not solved, 2 wrong arguments, 3 the folder cannot be written.\n";

int Refuse(ExitCode code, const QString& reason)
{
    std::fprintf(stderr, "tarn-ccx: %s\n", reason.toLocal8Bit().constData());
    return code;
}

} // namespace

int main(int argc, char** argv)
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QCoreApplication application(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments == QStringList(QStringLiteral("--help"))) {
        std::fputs(Help, stdout);
        return DoneCode;
    }
    if (arguments == QStringList(QStringLiteral("--version"))) {
        std::puts("tarn-ccx " TarnGUICommon_VERSION);
        return DoneCode;
    }
    if (arguments.size() != 1 || arguments.first().startsWith(QLatin1Char('-')))
        return Refuse(BadInputCode, QStringLiteral("give the name of one file; see --help"));
    try {
        DeckRun(arguments.first(), AnalysisTools::Stored()).Run();
        return DoneCode;
    } catch (const FolderError& error) {
        return Refuse(BadFolderCode, error.Reason());
    } catch (const HostError& error) {
        return Refuse(FailedCode, error.Reason());
    } catch (const std::bad_alloc&) {
        return Refuse(FailedCode, QStringLiteral("the program ran out of memory"));
    }
}
