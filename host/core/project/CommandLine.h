#pragma once

#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

/// What the program is asked to do.
struct CommandLine
{
    static constexpr int MaximumJobs = 1000;
    static constexpr int MaximumTasks = 1000000;

    enum Action
    {
        OpenWindow,
        RunStudy,
        SubmitStudy,
        MergeStudy,
        ShowStudyStatus,
        Solve,
        WriteScreenshots,
        ShowHelp,
        ShowVersion
    };

    Action action = OpenWindow;
    QString projectFile;         ///< The sample project where none was given.
    QString outputDirectory;     ///< Of a study, also to merge or to report, or an analysis.
    QString screenshotDirectory; ///< Of the screenshots.
    bool isDark = false;         ///< Whether the screenshots have light text on dark.
    QString language;            ///< Of the windows; empty for the user's own.
    int firstRun = 0;            ///< Of a study, from 1; 0 for all runs.
    int lastRun = 0;
    int jobs = 0;         ///< Of a study: how many runs at once; 0 for the number of processors.
    int seconds = 0;      ///< Of a study: the time limit of a run; 0 for the user's setting.
    bool hasSteps = true; ///< Of a study: whether STEP files are written.
    bool hasTable = true; ///< Of a study: whether results.csv is written.
    int tasks = 0;        ///< Of a study that is submitted: how many; 0 for a fitting number.
    QString partition;    ///< Of a study that is submitted, like the next two: as Slurm has it.
    QString time;
    QString memory;
    bool isStatic = false;     ///< Whether a static analysis is solved, instead of vibration.
    bool isWithoutRun = false; ///< Whether only the decks or scripts are written.
    /// Values of parameters that replace those of the project, by name, in the order given.
    std::vector<std::pair<QString, double>> values;

    /// Reads the @p arguments, program name included. Needs no application object.
    /// @throws HostError
    static CommandLine Parse(const QStringList& arguments);

    /// What --help prints. Needs an application object.
    static QString HelpText();
};
