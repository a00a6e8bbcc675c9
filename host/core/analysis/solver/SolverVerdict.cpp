#include "SolverVerdict.h"

#include "ResultError.h"

namespace {

constexpr int LongestText = 300;

/// The first line that contains @p mark, and as many lines after it as a message has.
QString ErrorText(const QByteArray& log, const char* mark, int lines)
{
    const int begin = log.indexOf(mark);
    if (begin < 0)
        return {};
    int end = begin - 1;
    for (int line = 0; line < lines; ++line) {
        const int next = log.indexOf('\n', end + 1);
        end = next < 0 ? log.size() : next;
    }
    return QString::fromLocal8Bit(log.mid(begin, end - begin)).simplified().left(LongestText);
}

QString WithReason(const QString& problem, const QString& reason)
{
    return reason.isEmpty() ? problem : QStringLiteral("%1 %2").arg(problem, reason);
}

} // namespace

QString SolverProblem(const ToolEnd& end, const QByteArray& log)
{
    const QString error = ErrorText(log, "*ERROR", 2);
    if (!end.problem.isEmpty())
        return WithReason(end.problem, error);
    if (!error.isEmpty())
        return ResultError::tr("The solver reports an error: %1").arg(error);
    if (!log.contains("Job finished"))
        return ResultError::tr("The solver ended before its job was finished.");
    return {};
}

QString MesherProblem(const ToolEnd& end, const QByteArray& log)
{
    const QString error = ErrorText(log, "Error   :", 1);
    if (!end.problem.isEmpty())
        return WithReason(ResultError::tr("The part cannot be meshed: %1").arg(end.problem), error);
    if (!error.isEmpty())
        return ResultError::tr("The part cannot be meshed: %1").arg(error);
    return {};
}
