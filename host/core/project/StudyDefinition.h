#pragma once

#include <QJsonObject>
#include <QString>

#include <optional>
#include <vector>

/// A number that a study records of each run.
struct StudyResponse
{
    QString name;       ///< Of its column.
    QString expression; ///< Over the parameters and the number columns of the results.

    bool operator==(const StudyResponse& other) const
    {
        return name == other.name && expression == other.expression;
    }
};

/// The entry "study" of a project: which runs there are, and what is recorded of them. The samples
/// of the ticked parameters are beside it in the project.
struct StudyDefinition
{
    static constexpr int MaximumRuns = 1000000;

    enum Design
    {
        FullFactorial,
        LatinHypercube,
        Sobol,
        BoxBehnken,
        CentralComposite,
        OneAtATime,
        List
    };

    Design design = FullFactorial;
    int runs = 0;                ///< Of a Latin hypercube or a Sobol sequence.
    std::optional<quint32> seed; ///< Of a Latin hypercube or a Sobol sequence.
    QString file;                ///< Of a list: a CSV file, relative to the project's folder.
    bool hasVibration = false;   ///< Whether each run is analysed for modes.
    bool hasStatic = false;      ///< Whether each run is analysed under its loads.
    std::vector<StudyResponse> responses;

    bool operator==(const StudyDefinition& other) const
    {
        return design == other.design && runs == other.runs && seed == other.seed &&
               file == other.file && hasVibration == other.hasVibration &&
               hasStatic == other.hasStatic && responses == other.responses;
    }
    bool operator!=(const StudyDefinition& other) const { return !(*this == other); }
};

/// @throws JsonError
StudyDefinition ReadStudy(const QJsonValue& json);
/// Leaves out what has its default.
QJsonObject ToJson(const StudyDefinition& study);
