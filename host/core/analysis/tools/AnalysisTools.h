#pragma once

#include "BuildLimits.h"

#include <QCoreApplication>
#include <QString>

/// A program that an analysis runs as a process of its own.
struct AnalysisTool
{
    QString program; ///< Its usual name, which is looked for in PATH.
    QString package; ///< The Debian package that brings it.
    QString path;    ///< Set by the user; empty to look in PATH.

    /// The executable file. @throws HostError if there is none; it names the package
    QString Executable() const;

    Q_DECLARE_TR_FUNCTIONS(AnalysisTool)
};

/// The programs of an analysis and what they may use. Settings of the user, kept between sessions.
struct AnalysisTools
{
    static constexpr int MaximumSeconds = 30 * 24 * 3600;
    static constexpr int LeastFreedoms = 1000;
    static constexpr int MostFreedoms = 100000000;

    AnalysisTool mesher{QStringLiteral("gmsh"), QStringLiteral("gmsh"), {}};
    AnalysisTool solver{QStringLiteral("ccx"), QStringLiteral("calculix-ccx"), {}};
    int seconds = 4 * 3600;        ///< For each run of a program.
    int maximumFreedoms = 2000000; ///< Degrees of freedom of a model.
    /// Of the address space of a program: three quarters of the computer's memory, or the setting
    /// of BuildLimits where that is more.
    int megabytes = BuildLimits().megabytes;

    /// The user's settings. Values out of range are brought into it.
    static AnalysisTools Stored();
    /// Stores all but the memory.
    void Store() const;
};
