#pragma once

#include "SolveJob.h"
#include "SolveReport.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

/// What a child process is to solve. The child is this program again, so the window's results are
/// those of the command line.
struct SolveOrder
{
    static const QLatin1String ReportName; ///< Of the file with the SolveReport, in the folder.

    SolveKind kind = SolveKind::Vibration;
    QString projectFile;
    QString folder; ///< For all files of the analysis.
    /// Decks and tables go here as well, once they are complete.
    QString target;
    /// Whether the target has the results already.
    bool hasResults = false;
    QString language; ///< Of the lines.

    /// Of the child.
    QStringList Arguments() const;
};

/// A line that the child prints.
struct SolveMessage
{
    enum Kind
    {
        Stage, ///< A SolveStage begins.
        Line,  ///< About what was done or is being done.
        Warning,
        Problem ///< Why there are no results.
    };

    Kind kind = Line;
    SolveStage stage = SolveStage::Building;
    QString text;

    /// Nothing if the line has another meaning.
    static std::optional<SolveMessage> FromLine(const QByteArray& line);
    QByteArray ToLine() const;
};

/// Whether the arguments are those of a SolveOrder.
bool IsSolveChild(int argc, char** argv);
/// Solves. Creates an application object. Returns the exit status: 0 if all was done.
int RunSolveChild(int argc, char** argv);
