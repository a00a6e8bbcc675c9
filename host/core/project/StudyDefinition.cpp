#include "StudyDefinition.h"

#include "JsonSection.h"
#include "ProjectKeys.h"

#include <QSet>

#include <cmath>
#include <limits>

using namespace ProjectKeys;

namespace {

const QLatin1String DesignKey("design");
const QLatin1String RunsKey("runs");
const QLatin1String SeedKey("seed");
const QLatin1String FileKey("file");
const QLatin1String AnalysesKey("analyses");
const QLatin1String ResponsesKey("responses");
const QLatin1String VibrationWord("vibration");
const QLatin1String StaticWord("static");

/// In the order of StudyDefinition::Design.
const std::array<QLatin1String, 7> DesignWords = {
    QLatin1String("fullFactorial"), QLatin1String("latinHypercube"),   QLatin1String("sobol"),
    QLatin1String("boxBehnken"),    QLatin1String("centralComposite"), QLatin1String("oneAtATime"),
    QLatin1String("list")};

// A whole number from @p least to @p greatest.
double WholeNumber(const JsonSection& section, QLatin1String key, double least, double greatest)
{
    const double number = section.Number(key);
    if (!(number >= least && number <= greatest) || number != std::floor(number))
        section.FailAt(key, JsonError::tr("a whole number from %1 to %2")
                                .arg(least, 0, 'f', 0)
                                .arg(greatest, 0, 'f', 0));
    return number;
}

void ReadDesign(const JsonSection& section, StudyDefinition& study)
{
    const QString word = section.Text(DesignKey, DesignWords[StudyDefinition::FullFactorial]);
    const int code = CodeOf(word, DesignWords);
    if (code < 0)
        section.Fail(JsonError::tr("has the unknown design %1").arg(Quoted(word)));
    study.design = StudyDefinition::Design(code);
    if (section.Has(RunsKey))
        study.runs = int(WholeNumber(section, RunsKey, 1, StudyDefinition::MaximumRuns));
    if (section.Has(SeedKey))
        study.seed = quint32(WholeNumber(section, SeedKey, 0, std::numeric_limits<quint32>::max()));
    study.file = section.Text(FileKey);

    const bool isSampled =
        study.design == StudyDefinition::LatinHypercube || study.design == StudyDefinition::Sobol;
    if (isSampled && study.runs == 0)
        section.Fail(JsonError::tr("needs \"runs\", the number of runs of its design"));
    if (study.design == StudyDefinition::List && study.file.isEmpty())
        section.Fail(JsonError::tr("needs \"file\", the CSV file with its list of runs"));
}

void ReadAnalyses(const JsonSection& section, StudyDefinition& study)
{
    const QStringList words = section.Texts(AnalysesKey);
    for (const QString& word : words) {
        if (word == VibrationWord)
            study.hasVibration = true;
        else if (word == StaticWord)
            study.hasStatic = true;
        else
            section.Fail(JsonError::tr("has the unknown analysis %1").arg(Quoted(word)));
    }
}

void ReadResponses(const JsonSection& section, StudyDefinition& study)
{
    QSet<QString> names;
    const QJsonArray responses = section.Array(ResponsesKey);
    for (const QJsonValue& value : responses) {
        const JsonSection response(JsonError::tr("response %1").arg(study.responses.size() + 1),
                                   value, {NameKey, ExpressionKey});
        study.responses.push_back(
            {response.NeededText(NameKey), response.NeededText(ExpressionKey)});
        const QString& name = study.responses.back().name;
        if (names.contains(name))
            section.Fail(JsonError::tr("has two responses %1").arg(Quoted(name)));
        names.insert(name);
    }
}

} // namespace

StudyDefinition ReadStudy(const QJsonValue& json)
{
    const JsonSection section(JsonError::tr("the study"), json,
                              {DesignKey, RunsKey, SeedKey, FileKey, AnalysesKey, ResponsesKey});
    StudyDefinition study;
    ReadDesign(section, study);
    ReadAnalyses(section, study);
    ReadResponses(section, study);
    return study;
}

QJsonObject ToJson(const StudyDefinition& study)
{
    QJsonObject json;
    if (study.design != StudyDefinition::FullFactorial)
        json.insert(DesignKey, DesignWords[study.design]);
    if (study.runs > 0)
        json.insert(RunsKey, study.runs);
    if (study.seed)
        json.insert(SeedKey, double(*study.seed));
    if (!study.file.isEmpty())
        json.insert(FileKey, study.file);
    QJsonArray analyses;
    if (study.hasVibration)
        analyses.append(VibrationWord);
    if (study.hasStatic)
        analyses.append(StaticWord);
    if (!analyses.isEmpty())
        json.insert(AnalysesKey, analyses);
    QJsonArray responses;
    for (const StudyResponse& response : study.responses)
        responses.append(
            QJsonObject{{NameKey, response.name}, {ExpressionKey, response.expression}});
    if (!responses.isEmpty())
        json.insert(ResponsesKey, responses);
    return json;
}
