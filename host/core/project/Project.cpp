#include "Project.h"

#include "AnalysisJson.h"
#include "BuildError.h"
#include "BuiltInFiles.h"
#include "GlobalParaMeterMgr.h"
#include "JsonSection.h"
#include "ParameterJson.h"
#include "ProjectKeys.h"
#include "SampleListJson.h"
#include "WholeFile.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>

using namespace ProjectKeys;

namespace {

QJsonValue ParseJson(const QByteArray& bytes)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError)
        throw JsonError(JsonError::tr("is not valid JSON: %1 at byte %2")
                            .arg(error.errorString())
                            .arg(error.offset));
    return document.isObject() ? QJsonValue(document.object()) : QJsonValue();
}

} // namespace

QString Project::SamplePath()
{
    return BuiltInPath(QStringLiteral("samples/flange.json"));
}

Project Project::Load(const QString& path)
{
    Project project;
    project.m_path = path;
    try {
        tarn::WholeFile file(path, MaximumFileSize);
        QByteArray bytes;
        if (!file.Read(bytes))
            throw JsonError(file.Error());
        project.Read(ParseJson(bytes));
    } catch (const JsonError& error) {
        throw ProjectError(QStringLiteral("%1: %2").arg(path.simplified(), error.Reason()));
    }
    return project;
}

void Project::Read(const QJsonValue& json)
{
    // The version first: a newer file may have entries that are unknown here.
    const double version = json.toObject().value(VersionKey).toDouble(Version);
    if (version > Version)
        throw JsonError(
            JsonError::tr("the project is of version %1; this program reads versions up to %2")
                .arg(version)
                .arg(Version));
    const JsonSection root(JsonError::tr("the project"), json,
                           {VersionKey, TitleKey, DensityKey, MaterialKey, ParametersKey,
                            SamplesKey, FeaturesKey, ConditionsKey, AnalysisKey, StudyKey});
    if (root.Number(VersionKey) != 1 && root.Number(VersionKey) != Version)
        root.FailAt(VersionKey, JsonError::tr("1 or %1").arg(Version));

    m_title = root.Text(TitleKey, QFileInfo(m_path).completeBaseName());
    if (root.Has(DensityKey))
        m_density = root.Number(DensityKey);
    if (!(m_density > 0.0))
        root.FailAt(DensityKey, JsonError::tr("above 0"));

    QSet<QString> names;
    const QJsonArray parameters = root.Array(ParametersKey);
    for (const QJsonValue& value : parameters) {
        const ParameterEntry entry = ReadParameter(value, int(m_parameters.size()) + 1);
        const QString& name = entry.Name();
        if (names.contains(name))
            root.Fail(JsonError::tr("has two parameters %1").arg(Quoted(name)));
        names.insert(name);
        m_parameters.push_back(entry.record);
        if (!entry.unit.isEmpty())
            m_units.insert(name, entry.unit);
    }

    QSet<QString> sampled;
    const QJsonArray samples = root.Array(SamplesKey);
    for (const QJsonValue& value : samples) {
        m_samples.push_back(ReadSampleList(value, int(m_samples.size()) + 1));
        const QString& name = m_samples.back().parameter;
        if (!names.contains(name))
            root.Fail(
                JsonError::tr("has samples for %1, which is not a parameter").arg(Quoted(name)));
        if (sampled.contains(name))
            root.Fail(JsonError::tr("has two sample lists for %1").arg(Quoted(name)));
        sampled.insert(name);
    }

    m_features = FeatureList::FromJson(root.Array(FeaturesKey));
    m_conditions = ReadConditions(root.Array(ConditionsKey));
    m_material = root.Text(MaterialKey);
    if (root.Has(AnalysisKey))
        m_analysis = ReadAnalysis(root.Value(AnalysisKey));
    if (root.Has(StudyKey))
        m_study = ReadStudy(root.Value(StudyKey));
}

QJsonObject Project::ToJson() const
{
    QJsonArray parameters;
    for (const ParametersDef& record : m_parameters)
        parameters.append(::ToJson(ParameterEntry{record, m_units.value(record.m_strName)}));
    QJsonObject json{{VersionKey, Version},
                     {TitleKey, m_title},
                     {DensityKey, m_density},
                     {ParametersKey, parameters},
                     {SamplesKey, ::ToJson(m_samples)}};
    if (!m_features.IsEmpty())
        json.insert(FeaturesKey, m_features.ToJson());
    if (!m_conditions.empty())
        json.insert(ConditionsKey, ConditionsToJson(m_conditions));
    if (!m_material.isEmpty())
        json.insert(MaterialKey, m_material);
    if (m_analysis != AnalysisDefinition())
        json.insert(AnalysisKey, ::ToJson(m_analysis));
    if (m_study != StudyDefinition())
        json.insert(StudyKey, ::ToJson(m_study));
    return json;
}

void Project::SetParameters(const ParameterEntries& entries)
{
    m_parameters.clear();
    m_units.clear();
    for (const ParameterEntry& entry : entries) {
        m_parameters.push_back(entry.record);
        if (!entry.unit.isEmpty())
            m_units.insert(entry.Name(), entry.unit);
    }
}

void Project::TakeParameterStore()
{
    m_parameters.clear();
    for (const auto& [name, record] : GlobalParaMeterMgr::m_nameMapParameters) {
        m_parameters.push_back(record);
        m_parameters.back().m_strName = name;
    }
}

QString Project::Folder() const
{
    return QFileInfo(m_path).absolutePath();
}

FeatureList Project::FeaturesSeenFrom(const QString& path) const
{
    const QDir before(Folder());
    const QDir after(QFileInfo(path).absolutePath());
    FeatureList features = m_features;
    for (int index = 0; index < features.Size(); ++index) {
        Feature feature = features.At(index);
        if (before == after || feature.file.isEmpty() || QFileInfo(feature.file).isAbsolute())
            continue;
        feature.file = after.relativeFilePath(before.filePath(feature.file));
        features.Replace(index, feature);
    }
    return features;
}

void Project::Save(const QString& path)
{
    const auto fail = [&](const QString& reason) {
        throw ProjectError(QStringLiteral("%1: %2").arg(path.simplified(), reason));
    };
    Project written = *this;
    written.m_path = path;
    written.m_features = FeaturesSeenFrom(path);
    const QByteArray bytes = QJsonDocument(written.ToJson()).toJson();
    Project read;
    try {
        read.Read(ParseJson(bytes));
    } catch (const JsonError& error) {
        fail(JsonError::tr("the project cannot be saved: %1").arg(error.Reason()));
    }

    tarn::WholeFile file(path, MaximumFileSize);
    if (!file.Write(bytes))
        fail(file.Error());
    read.m_path = path;
    *this = read;
}

PartPlan Project::Plan() const
{
    CheckConditions(m_conditions);
    PartPlan plan = PlanPart(m_features, Folder());
    const bool buildsSomething = std::any_of(
        plan.begin(), plan.end(), [](const BuildStep& step) { return !step.suppressed; });
    if (!buildsSomething)
        throw BuildError(BuildError::tr("The project has no part. Add a body first."));
    return plan;
}

void Project::FillParameterStore() const
{
    GlobalParaMeterMgr::m_nameMapParameters.clear();
    for (const ParametersDef& record : m_parameters)
        GlobalParaMeterMgr::AddParameter(record.m_strName, record);
}
