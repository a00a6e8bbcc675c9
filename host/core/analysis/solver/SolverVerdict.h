#pragma once

#include "ToolProcess.h"

#include <QByteArray>
#include <QString>

/// Why a run of the solver has no result, in one line; empty if it did its work. Its exit status
/// alone proves nothing. @p log is what it printed.
QString SolverProblem(const ToolEnd& end, const QByteArray& log);

/// Why a run of the mesher has no result, in one line; empty if it did its work.
QString MesherProblem(const ToolEnd& end, const QByteArray& log);
