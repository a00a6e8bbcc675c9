#pragma once

#include "SolveJob.h"

#include <QString>

#include <functional>
#include <utility>
#include <vector>

class Project;
class SolveFolder;

/// Solves the analysis of a project without a user, and writes its tables.
class SolveRunner
{
    Q_DECLARE_TR_FUNCTIONS(SolveRunner)

public:
    struct Options
    {
        QString directory; ///< For all files; created if it does not exist.
        bool isStatic = false;
        bool isWithoutRun = false; ///< Whether only the decks are written.
        QString resultsFolder;     ///< See SolveInput.
        /// Values of parameters that replace those of the project.
        std::vector<std::pair<QString, double>> values;
        /// Called when a stage begins.
        std::function<void(SolveStage)> enter = [](SolveStage) {
        };
    };

    /// Calls @p tell with each line of the progress.
    SolveRunner(const Project& project, Options options, std::function<void(const QString&)> tell);

    /// Replaces the stores of parameters and materials by those of the project, and solves.
    /// Writes "modes.csv" or "static.csv". @throws HostError for whatever is wrong before the part
    /// is built
    SolveResultPointer Run();

    static const QLatin1String ModesName; ///< Of the tables.
    static const QLatin1String StaticName;

private:
    void ChooseParameters() const;
    void WriteTables(const SolveFolder& files, SolveResult& result) const;
    void TellResult(const SolveResult& result) const;

    const Project& m_project;
    Options m_options;
    std::function<void(const QString&)> m_tell;
};
