#include "StudyFingerprint.h"

#include "AnalysisJson.h"
#include "FeatureKind.h"
#include "HostError.h"
#include "Project.h"
#include "StudyColumns.h"
#include "WholeFile.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <Standard_Version.hxx>

#include <array>

namespace {

constexpr int Format = 1;
const QLatin1String FormatKey("format");
const QLatin1String ParametersKey("parameters");
const QLatin1String ColumnsKey("columns");
const QLatin1String InputsKey("inputs");
const QLatin1String UnitsKey("units");

/// An entry of the file, and what is said if it differs.
struct Entry
{
    QLatin1String key;
    const char* difference;
};

const std::array<Entry, 12> Entries = {{
    {FormatKey, QT_TRANSLATE_NOOP("StudyFingerprint", "its format differs")},
    {ParametersKey, QT_TRANSLATE_NOOP("StudyFingerprint", "its parameters differ")},
    {InputsKey,
     QT_TRANSLATE_NOOP("StudyFingerprint", "its ticked parameters have other expressions")},
    {QLatin1String("expressions"), QT_TRANSLATE_NOOP("StudyFingerprint", "its expressions differ")},
    {QLatin1String("features"), QT_TRANSLATE_NOOP("StudyFingerprint", "its part differs")},
    {QLatin1String("conditions"), QT_TRANSLATE_NOOP("StudyFingerprint", "its conditions differ")},
    {QLatin1String("files"),
     QT_TRANSLATE_NOOP("StudyFingerprint", "its imported files or UserMaterial.xml differ")},
    {QLatin1String("material"), QT_TRANSLATE_NOOP("StudyFingerprint", "its material differs")},
    {QLatin1String("density"), QT_TRANSLATE_NOOP("StudyFingerprint", "its density differs")},
    {QLatin1String("analysis"), QT_TRANSLATE_NOOP("StudyFingerprint", "its analysis differs")},
    {QLatin1String("study"),
     QT_TRANSLATE_NOOP("StudyFingerprint", "its analyses or responses differ")},
    {QLatin1String("kernel"),
     QT_TRANSLATE_NOOP("StudyFingerprint", "the version of its geometry kernel differs")},
}};

QString Hash(const QByteArray& bytes)
{
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

QString Hash(const QJsonValue& json)
{
    const QJsonDocument document(QJsonArray{json});
    return Hash(document.toJson(QJsonDocument::Compact));
}

// A file that cannot be read fails the runs later, and has no hash.
QJsonObject ImportedFiles(const Project& project)
{
    QJsonObject files;
    for (const Feature& feature : project.Features().Features()) {
        if (!feature.kind->readsFile)
            continue;
        QByteArray content;
        tarn::WholeFile file(QDir(project.Folder()).absoluteFilePath(feature.file));
        files.insert(feature.file, file.Read(content) ? Hash(content) : QString());
    }
    // Without an analysis, materials only give the density.
    if (project.Study().hasVibration || project.Study().hasStatic) {
        const QString name = QStringLiteral("UserMaterial.xml");
        QByteArray content;
        tarn::WholeFile file(QDir(project.Folder()).filePath(name));
        files.insert(name, file.Read(content) ? Hash(content) : QString());
    }
    return files;
}

// Only what is recorded: the design may change and so add runs.
QJsonObject RecordedPart(StudyDefinition study)
{
    StudyDefinition recorded;
    recorded.hasVibration = study.hasVibration;
    recorded.hasStatic = study.hasStatic;
    recorded.responses = std::move(study.responses);
    return ToJson(recorded);
}

// Studies have analyses of their own.
QJsonObject AnalysisPart(AnalysisDefinition analysis)
{
    analysis.type = {};
    return ToJson(analysis);
}

QStringList Texts(const QJsonValue& json)
{
    QStringList texts;
    const QJsonArray array = json.toArray();
    for (const QJsonValue& value : array)
        texts << value.toString();
    return texts;
}

} // namespace

QJsonObject StudyFingerprint(const Project& project, const QStringList& inputs, double density)
{
    QJsonArray parameters;
    QJsonObject expressions;
    QJsonObject units;
    for (const ParametersDef& record : project.Parameters()) {
        parameters.append(record.m_strName);
        units.insert(record.m_strName, project.Units().value(record.m_strName));
        if (!inputs.contains(record.m_strName))
            expressions.insert(record.m_strName,
                               QString::fromLocal8Bit(record.m_strExpression.c_str()));
    }
    return {{FormatKey, Format},
            {ParametersKey, parameters},
            {InputsKey, QJsonArray::fromStringList(inputs)},
            {UnitsKey, units},
            {QLatin1String("expressions"), expressions},
            {QLatin1String("features"), Hash(project.Features().ToJson())},
            {QLatin1String("conditions"), Hash(ConditionsToJson(project.Conditions()))},
            {QLatin1String("files"), ImportedFiles(project)},
            {QLatin1String("material"), project.Material()},
            {QLatin1String("density"), density},
            {QLatin1String("analysis"), Hash(AnalysisPart(project.Analysis()))},
            {QLatin1String("study"), RecordedPart(project.Study())},
            {ColumnsKey, QJsonArray::fromStringList(StudyColumns(project).Names())},
            {QLatin1String("kernel"), QStringLiteral(OCC_VERSION_COMPLETE)}};
}

QString FingerprintDifference(const QJsonObject& stored, const QJsonObject& study)
{
    for (const Entry& entry : Entries) {
        if (stored.value(entry.key) != study.value(entry.key))
            return QCoreApplication::translate("StudyFingerprint", entry.difference);
    }
    return {};
}

StudyNames::StudyNames(const QJsonObject& stored)
    : parameters(Texts(stored.value(ParametersKey)))
    , inputs(Texts(stored.value(InputsKey)))
    , columns(Texts(stored.value(ColumnsKey)))
{
    const QJsonObject known = stored.value(UnitsKey).toObject();
    for (const QString& name : qAsConst(parameters)) {
        const QString unit = known.value(name).toString();
        if (!unit.isEmpty())
            units.insert(name, unit);
    }
    if (stored.value(FormatKey).toInt() != Format)
        throw HostError(QCoreApplication::translate("StudyFingerprint",
                                                    "is not of format %1, which this program reads")
                            .arg(Format));
}
