#include "ShapeReference.h"

#include "JsonSection.h"

namespace {

const QLatin1String AtKey("at");
const QLatin1String BetweenKey("between");

QString PointText(const PointTexts& point)
{
    return QStringLiteral("(%1, %2, %3)").arg(point[0], point[1], point[2]);
}

template<class Reference>
QJsonArray ListToJson(const std::vector<Reference>& references)
{
    QJsonArray array;
    for (const Reference& reference : references)
        array.append(ToJson(reference));
    return array;
}

template<class Read>
auto ReadList(const QString& place, const JsonSection& section, QLatin1String key, const Read& read)
{
    std::vector<decltype(read(place, QJsonValue()))> references;
    const QJsonArray array = section.Array(key);
    for (const QJsonValue& value : array) {
        const int number = int(references.size()) + 1;
        references.push_back(
            read(JsonError::tr("%1 entry %2 of \"%3\"").arg(place).arg(number).arg(key), value));
    }
    return references;
}

} // namespace

QString FaceReference::Text() const
{
    return IsPoint() ? PointText(at) : name;
}

QString EdgeReference::Text() const
{
    if (IsPoint())
        return PointText(at);
    QStringList faces;
    for (const FaceReference& face : between)
        faces << face.Text();
    return faces.join(QStringLiteral(" | "));
}

FaceReference ReadFaceReference(const QString& place, const QJsonValue& json)
{
    FaceReference face;
    if (json.isString()) {
        face.name = json.toString();
        if (face.name.trimmed().isEmpty())
            throw JsonError(JsonError::tr("%1 is an empty name of a face").arg(place));
        return face;
    }
    const JsonSection section(place, json, {AtKey});
    face.at = section.Expressions(AtKey);
    return face;
}

QJsonValue ToJson(const FaceReference& face)
{
    if (face.IsPoint())
        return QJsonObject{{AtKey, ExpressionsToJson(face.at)}};
    return face.name;
}

EdgeReference ReadEdgeReference(const QString& place, const QJsonValue& json)
{
    EdgeReference edge;
    const JsonSection section(place, json, {BetweenKey, AtKey});
    if (section.Has(BetweenKey) == section.Has(AtKey))
        section.Fail(JsonError::tr("needs either \"between\" or \"at\""));
    if (section.Has(AtKey)) {
        edge.at = section.Expressions(AtKey);
        return edge;
    }
    const QJsonArray faces = section.Array(BetweenKey);
    if (faces.size() != 2)
        section.FailAt(BetweenKey, JsonError::tr("a list of two faces"));
    for (const QJsonValue& face : faces)
        edge.between.push_back(ReadFaceReference(place, face));
    return edge;
}

QJsonValue ToJson(const EdgeReference& edge)
{
    if (edge.IsPoint())
        return QJsonObject{{AtKey, ExpressionsToJson(edge.at)}};
    return QJsonObject{{BetweenKey, ToJson(edge.between)}};
}

std::vector<FaceReference> ReadFaceReferences(const QString& place, const JsonSection& section,
                                              QLatin1String key)
{
    return ReadList(place, section, key, ReadFaceReference);
}

std::vector<EdgeReference> ReadEdgeReferences(const QString& place, const JsonSection& section,
                                              QLatin1String key)
{
    return ReadList(place, section, key, ReadEdgeReference);
}

QJsonArray ToJson(const std::vector<FaceReference>& faces)
{
    return ListToJson(faces);
}

QJsonArray ToJson(const std::vector<EdgeReference>& edges)
{
    return ListToJson(edges);
}
