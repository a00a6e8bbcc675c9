#pragma once

#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

/// What the program is asked to do.
struct CommandLine
{
    enum Action
    {
        OpenWindow,
        RunStudy,
        Solve,
        WriteScreenshots,
        ShowHelp,
        ShowVersion
    };

    Action action = OpenWindow;
    QString projectFile;         ///< The sample project where none was given.
    QString outputDirectory;     ///< Of a study or an analysis.
    QString screenshotDirectory; ///< Of the screenshots.
    bool isDark = false;         ///< Whether the screenshots have light text on dark.
    QString language;            ///< Of the windows; empty for the user's own.
    int firstRun = 0;            ///< Of a study, from 1; 0 for all runs.
    int lastRun = 0;
    bool isStatic = false;     ///< Whether a static analysis is solved, instead of vibration.
    bool isWithoutRun = false; ///< Whether only the decks are written.
    /// Values of parameters that replace those of the project, by name, in the order given.
    std::vector<std::pair<QString, double>> values;

    /// Reads the @p arguments, program name included. Needs no application object.
    /// @throws HostError
    static CommandLine Parse(const QStringList& arguments);

    /// What --help prints. Needs an application object.
    static QString HelpText();
};
