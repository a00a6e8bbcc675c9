#include "FeatureJson.h"

#include "FeatureKinds.h"
#include "JsonSection.h"

#include <QJsonArray>

#include <algorithm>

namespace {

const QLatin1String NameKey("name");
const QLatin1String KindKey("kind");
const QLatin1String SuppressedKey("suppressed");
const QLatin1String InputsKey("inputs");
const QLatin1String FieldsKey("fields");
const QLatin1String FileKey("file");
const QLatin1String EdgesKey("edges");
const QLatin1String FaceKey("face");
const QLatin1String ProfileKey("profile");
const QLatin1String XKey("x");
const QLatin1String YKey("y");
const QLatin1String ViaXKey("viaX");
const QLatin1String ViaYKey("viaY");

QStringList ReadFields(const JsonSection& section, const QString& place, const FeatureKind& kind,
                       bool hasReferences)
{
    std::vector<QLatin1String> keys;
    keys.reserve(kind.fields.size());
    for (const FieldDefinition& field : kind.fields)
        keys.push_back(field.key);
    const JsonSection values(JsonError::tr("%1 in its \"fields\"").arg(place),
                             section.Has(FieldsKey) ? section.Value(FieldsKey) : QJsonObject(),
                             keys);
    QStringList texts;
    for (const FieldDefinition& field : kind.fields) {
        if (hasReferences && kind.IsPosition(field) && values.Has(field.key))
            values.Fail(JsonError::tr("has \"%1\", but the feature names its place already")
                            .arg(field.key));
        texts << values.Expression(field.key, field.defaultText);
    }
    return texts;
}

Profile ReadProfile(const QString& place, const JsonSection& section)
{
    Profile profile;
    const QJsonArray corners = section.Array(ProfileKey);
    for (const QJsonValue& value : corners) {
        const JsonSection corner(JsonError::tr("%1 corner %2 of \"%3\"")
                                     .arg(place)
                                     .arg(profile.size() + 1)
                                     .arg(ProfileKey),
                                 value, {XKey, YKey, ViaXKey, ViaYKey});
        if (!corner.Has(XKey) || !corner.Has(YKey))
            corner.Fail(JsonError::tr("needs \"x\" and \"y\""));
        if (corner.Has(ViaXKey) != corner.Has(ViaYKey))
            corner.Fail(JsonError::tr("needs both \"viaX\" and \"viaY\", or none of them"));
        if (corner.Has(ViaXKey) && corner.Expression(ViaXKey).isEmpty())
            corner.FailAt(ViaXKey, JsonError::tr("a number or an expression"));
        profile.push_back({corner.Expression(XKey), corner.Expression(YKey),
                           corner.Expression(ViaXKey), corner.Expression(ViaYKey)});
    }
    return profile;
}

QJsonArray ProfileToJson(const Profile& profile)
{
    QJsonArray corners;
    for (const ProfileCorner& corner : profile) {
        QJsonObject json{{XKey, ExpressionToJson(corner.x)}, {YKey, ExpressionToJson(corner.y)}};
        if (corner.IsArc()) {
            json.insert(ViaXKey, ExpressionToJson(corner.viaX));
            json.insert(ViaYKey, ExpressionToJson(corner.viaY));
        }
        corners.append(json);
    }
    return corners;
}

QJsonObject FieldsToJson(const Feature& feature)
{
    const FeatureKind& kind = *feature.kind;
    QJsonObject fields;
    const int count = std::min(int(kind.fields.size()), feature.fields.size());
    for (int place = 0; place < count; ++place) {
        const FieldDefinition& field = kind.fields[std::size_t(place)];
        const QString& text = feature.fields[place];
        const bool isLeftOut = (field.isOptional && text == field.defaultText) ||
                               (feature.HasReferences() && kind.IsPosition(field));
        if (!isLeftOut)
            fields.insert(field.key, ExpressionToJson(text));
    }
    return fields;
}

} // namespace

Feature ReadFeature(const QJsonValue& json, int number)
{
    const std::vector<QLatin1String> keys = {NameKey, KindKey,  SuppressedKey, InputsKey, FieldsKey,
                                             FileKey, EdgesKey, FaceKey,       ProfileKey};
    const QString nameless = JsonError::tr("feature %1").arg(number);
    const QString name = JsonSection(nameless, json, keys).NeededText(NameKey);
    const QString place = JsonError::tr("%1, %2,").arg(nameless, Quoted(name));
    const JsonSection section(place, json, keys);

    const QString word = section.NeededText(KindKey);
    const FeatureKind* const kind = FeatureKinds::Find(word);
    if (kind == nullptr)
        section.Fail(JsonError::tr("has the unknown kind %1").arg(Quoted(word)));
    Feature feature(*kind);
    feature.name = name;
    feature.suppressed = section.Flag(SuppressedKey, false);
    feature.inputs = section.Texts(InputsKey);
    feature.file = section.Text(FileKey);
    feature.edges = ReadEdgeReferences(place, section, EdgesKey);
    if (section.Has(EdgesKey) && feature.edges.empty())
        section.FailAt(EdgesKey, JsonError::tr("a list of at least one edge"));
    if (section.Has(FaceKey))
        feature.face = ReadFaceReference(JsonError::tr("%1 its \"%2\"").arg(place, FaceKey),
                                         section.Value(FaceKey));
    if (section.Has(ProfileKey))
        feature.profile = ReadProfile(place, section);
    feature.fields = ReadFields(section, place, *kind, feature.HasReferences());
    return feature;
}

QJsonObject ToJson(const Feature& feature)
{
    QJsonObject json;
    json.insert(NameKey, feature.name);
    json.insert(KindKey, feature.kind->word);
    if (feature.suppressed)
        json.insert(SuppressedKey, true);
    if (!feature.inputs.isEmpty())
        json.insert(InputsKey, QJsonArray::fromStringList(feature.inputs));
    const QJsonObject fields = FieldsToJson(feature);
    if (!fields.isEmpty())
        json.insert(FieldsKey, fields);
    if (!feature.file.isEmpty())
        json.insert(FileKey, feature.file);
    if (!feature.edges.empty())
        json.insert(EdgesKey, ToJson(feature.edges));
    if (feature.face)
        json.insert(FaceKey, ToJson(*feature.face));
    if (!feature.profile.empty())
        json.insert(ProfileKey, ProfileToJson(feature.profile));
    return json;
}
