#include "Project.h"

#include "FeatureBuilder.h"
#include "GlobalParaMeterMgr.h"
#include "JsonSection.h"
#include "NumberTexts.h"
#include "OneParameterDlg.h"
#include "ProjectKeys.h"
#include "StoredDesign.h"
#include "WholeFile.h"
#include "sParaArrayData.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>

#include <array>
#include <utility>

using namespace ProjectKeys;

// The macro wants to stand outside every namespace.
static void InitializeSamples()
{
    Q_INIT_RESOURCE(samples);
}

namespace {

// In the order of SpacingWords, the radio button that stands for each.
const std::array<QLatin1String, 4> SpacingButtons = {
    QLatin1String("radioButton_Linear"), QLatin1String("radioButton_Log"),
    QLatin1String("radioButton_Ln"), QLatin1String("radioButton_Gauss")};

// Value texts are exact, so that what an editor reads back is the number that stood in the file.
void ReadValue(const JsonSection& section, ParametersDef& record)
{
    if (!section.Has(ValueKey)) {
        if (record.m_strExpression.empty())
            section.Fail(JsonError::tr("has neither \"value\" nor \"expression\""));
        return;
    }
    switch (record.m_nType) {
    case ParametersDef::BoolType:
        record.m_dValue = section.Flag(ValueKey, false) ? 1.0 : 0.0;
        record.m_strValue = ExactText(record.m_dValue);
        break;
    case ParametersDef::ScalarType:
        record.m_dValue = section.Number(ValueKey);
        record.m_strValue = ExactText(record.m_dValue);
        break;
    case ParametersDef::VectorType: {
        const std::vector<double> components = section.Numbers(ValueKey);
        if (components.size() != 3)
            section.FailAt(ValueKey, JsonError::tr("a list of three numbers"));
        record.m_dX = components[0];
        record.m_dY = components[1];
        record.m_dZ = components[2];
        record.m_strValue =
            QStringLiteral("%1,%2,%3")
                .arg(ExactText(record.m_dX), ExactText(record.m_dY), ExactText(record.m_dZ));
        break;
    }
    default:
        record.m_strValue = section.Text(ValueKey);
        break;
    }
}

ParametersDef ReadParameter(const QJsonValue& value, int number)
{
    const std::initializer_list<QLatin1String> keys = {NameKey,       TypeKey, ValueKey,
                                                       ExpressionKey, UsesKey, DescriptionKey};
    const QString place = JsonError::tr("parameter %1").arg(number);
    const QString name = JsonSection(place, value, keys).NeededText(NameKey);
    const JsonSection section(JsonError::tr("%1, %2,").arg(place, Quoted(name)), value, keys);

    // Such a name could not be told in a list of names.
    if (name.contains(QLatin1Char(',')))
        section.Fail(JsonError::tr("has a comma in its name"));

    ParametersDef record;
    record.m_strName = name;
    const QString type = section.Text(TypeKey, TypeWords[ParametersDef::ScalarType]);
    record.m_nType = -1;
    for (std::size_t code = 0; code < TypeWords.size(); ++code) {
        if (type == TypeWords[code])
            record.m_nType = int(code);
    }
    if (record.m_nType < 0)
        section.Fail(JsonError::tr("has the unknown type %1").arg(Quoted(type)));
    record.m_strExpression = section.Text(ExpressionKey).toLocal8Bit().toStdString();
    record.m_strExpressPara = section.Texts(UsesKey).join(QLatin1Char(','));
    record.m_strDescription = section.Text(DescriptionKey);
    ReadValue(section, record);
    return record;
}

void CheckRange(const JsonSection& section, const Project::Samples& samples)
{
    constexpr double MostSamples = 1000000.0;
    const double length = samples.max - samples.min;
    if (!(length > 0.0))
        section.Fail(JsonError::tr("has a \"max\" that is not above \"min\""));
    if (!(samples.delta > 0.0))
        section.Fail(JsonError::tr("has a \"delta\" that is not above 0"));
    if (samples.delta > length)
        section.Fail(JsonError::tr("has a \"delta\" that is greater than the range"));
    if (!(length / samples.delta < MostSamples))
        section.Fail(JsonError::tr("has more than a million samples"));
}

Project::Samples ReadSamples(const QJsonValue& value, int number)
{
    const std::initializer_list<QLatin1String> keys = {ParameterKey, MinKey,    MaxKey,   DeltaKey,
                                                       SpacingKey,   ValuesKey, TickedKey};
    const QString place = JsonError::tr("sample list %1").arg(number);
    const QString name = JsonSection(place, value, keys).NeededText(ParameterKey);
    const JsonSection section(JsonError::tr("%1, %2,").arg(place, Quoted(name)), value, keys);

    Project::Samples samples;
    samples.name = name;
    samples.ticked = section.Flag(TickedKey, true);
    if (section.Has(ValuesKey)) {
        for (const QLatin1String key : {MinKey, MaxKey, DeltaKey, SpacingKey}) {
            if (section.Has(key))
                section.Fail(JsonError::tr("has both \"values\" and \"%1\"").arg(key));
        }
        samples.values = section.Numbers(ValuesKey);
        if (samples.values.empty())
            section.Fail(JsonError::tr("has no values"));
        return samples;
    }
    samples.min = section.Number(MinKey);
    samples.max = section.Number(MaxKey);
    samples.delta = section.Number(DeltaKey);
    CheckRange(section, samples);

    const QString word = section.Text(SpacingKey, SpacingWords[0]);
    samples.spacing = -1;
    for (std::size_t code = 0; code < SpacingWords.size(); ++code) {
        if (word == SpacingWords[code])
            samples.spacing = int(code);
    }
    if (samples.spacing < 0)
        section.Fail(JsonError::tr("has the unknown spacing %1").arg(Quoted(word)));
    return samples;
}

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

// As a user does it: type the range, choose the spacing, press OK.
void SampleByDialog(const Project::Samples& samples)
{
    OneParameterDlg dialog(nullptr, samples.name);
    dialog.findChild<QLineEdit*>(QStringLiteral("lineEdit_Min"))->setText(ExactText(samples.min));
    dialog.findChild<QLineEdit*>(QStringLiteral("lineEdit_Max"))->setText(ExactText(samples.max));
    auto* const delta = dialog.findChild<QLineEdit*>(QStringLiteral("lineEdit_Deta"));
    delta->setText(ExactText(samples.delta));
    dialog.findChild<QRadioButton*>(SpacingButtons[std::size_t(samples.spacing)])->setChecked(true);
    // One finished edit after all fields are filled: a range half typed would be refused.
    Q_EMIT delta->editingFinished();
    dialog.findChild<QPushButton*>(QStringLiteral("pushButton_OK"))->click();
}

} // namespace

QString Project::SamplePath()
{
    InitializeSamples();
    return QStringLiteral(":/samples/flange.json");
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
        throw JsonError(JsonError::tr("the project is of version %1; this program reads version %2")
                            .arg(version)
                            .arg(Version));
    const JsonSection root(
        JsonError::tr("the project"), json,
        {VersionKey, TitleKey, DensityKey, ParametersKey, SamplesKey, FeaturesKey, ConditionsKey});
    if (root.Number(VersionKey) != Version)
        root.FailAt(VersionKey, QString::number(Version));

    m_title = root.Text(TitleKey, QFileInfo(m_path).completeBaseName());
    if (root.Has(DensityKey))
        m_density = root.Number(DensityKey);
    if (!(m_density > 0.0))
        root.FailAt(DensityKey, JsonError::tr("above 0"));

    QSet<QString> names;
    const QJsonArray parameters = root.Array(ParametersKey);
    for (const QJsonValue& value : parameters) {
        m_parameters.push_back(ReadParameter(value, int(m_parameters.size()) + 1));
        const QString& name = m_parameters.back().m_strName;
        if (names.contains(name))
            root.Fail(JsonError::tr("has two parameters %1").arg(Quoted(name)));
        names.insert(name);
    }

    QSet<QString> sampled;
    const QJsonArray samples = root.Array(SamplesKey);
    for (const QJsonValue& value : samples) {
        m_samples.push_back(ReadSamples(value, int(m_samples.size()) + 1));
        const QString& name = m_samples.back().name;
        if (!names.contains(name))
            root.Fail(JsonError::tr("has samples for %1, which is no parameter").arg(Quoted(name)));
        if (sampled.contains(name))
            root.Fail(JsonError::tr("has two sample lists for %1").arg(Quoted(name)));
        sampled.insert(name);
    }

    m_features = FeatureList::FromJson(root.Array(FeaturesKey));
    m_conditions = ReadConditions(root.Array(ConditionsKey));
}

QJsonObject Project::ToJson() const
{
    QJsonObject json{{VersionKey, Version},
                     {TitleKey, m_title},
                     {DensityKey, m_density},
                     {ParametersKey, StoredParameters()},
                     {SamplesKey, StoredSamples()}};
    if (!m_features.IsEmpty())
        json.insert(FeaturesKey, m_features.ToJson());
    if (!m_conditions.empty())
        json.insert(ConditionsKey, ConditionsToJson(m_conditions));
    return json;
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

BuiltPart Project::Build() const
{
    CheckConditions(m_conditions);
    BuiltPart part = FeatureBuilder::Build(m_features, Folder());
    if (part.shape.IsNull())
        throw BuildError(BuildError::tr("The project has no features, so there is no part."));
    return part;
}

void Project::FillStores() const
{
    GlobalParaMeterMgr::m_nameMapParameters.clear();
    for (const ParametersDef& record : m_parameters)
        GlobalParaMeterMgr::AddParameter(record.m_strName, record);

    g_mapParaArrays.clear();
    for (const Samples& samples : m_samples) {
        if (samples.values.empty())
            SampleByDialog(samples);
        sParaArrayData& record = g_mapParaArrays[samples.name];
        record.strName = samples.name;
        record.bChecked = samples.ticked ? 1 : 0;
        if (!samples.values.empty())
            record.vecValues = samples.values;
    }
}
