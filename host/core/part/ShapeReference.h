#pragma once

#include <QJsonArray>
#include <QString>

#include <array>
#include <vector>

class JsonSection;

// Faces and edges of a part as a user or a file names them. Resolving them needs the shape; these
// are plain values.

/// A point in mm: three numbers or expressions over the parameters.
using PointTexts = std::array<QString, 3>;

/// Faces of a part: all that bear a name, or the only one through a point.
struct FaceReference
{
    QString name;  ///< "FEATURE.FACE" or "FEATURE/FEATURE.FACE"; empty for a point.
    PointTexts at; ///< Only if there is no name.

    bool IsPoint() const { return name.isEmpty(); }
    /// For people: the name, or "(x, y, z)".
    QString Text() const;

    bool operator==(const FaceReference& other) const
    {
        return name == other.name && at == other.at;
    }
    bool operator!=(const FaceReference& other) const { return !(*this == other); }
};

/// Edges of a part: all that two faces share, or the only one through a point.
struct EdgeReference
{
    std::vector<FaceReference> between; ///< Two faces, or none for a point.
    PointTexts at;                      ///< Only if there are no faces.

    bool IsPoint() const { return between.empty(); }
    /// For people: "NAME | NAME", or "(x, y, z)".
    QString Text() const;

    bool operator==(const EdgeReference& other) const
    {
        return between == other.between && at == other.at;
    }
    bool operator!=(const EdgeReference& other) const { return !(*this == other); }
};

/// Reads a text, or an object with "at". @p place is where it stands, for messages.
/// @throws JsonError
FaceReference ReadFaceReference(const QString& place, const QJsonValue& json);
QJsonValue ToJson(const FaceReference& face);

/// Reads an object with "between" or "at". @throws JsonError
EdgeReference ReadEdgeReference(const QString& place, const QJsonValue& json);
QJsonValue ToJson(const EdgeReference& edge);

/// The lists in the entry @p key of @p section; empty if there is none. @throws JsonError
std::vector<FaceReference> ReadFaceReferences(const QString& place, const JsonSection& section,
                                              QLatin1String key);
std::vector<EdgeReference> ReadEdgeReferences(const QString& place, const JsonSection& section,
                                              QLatin1String key);
QJsonArray ToJson(const std::vector<FaceReference>& faces);
QJsonArray ToJson(const std::vector<EdgeReference>& edges);
