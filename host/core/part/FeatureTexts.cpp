#include "FeatureTexts.h"

#include "JsonSection.h"

namespace {

// At separators that are not between brackets.
QStringList Split(const QString& text, QChar separator)
{
    QStringList parts(QString{});
    int depth = 0;
    for (const QChar letter : text) {
        depth += letter == QLatin1Char('(') ? 1 : letter == QLatin1Char(')') ? -1 : 0;
        if (letter == separator && depth == 0)
            parts << QString();
        else
            parts.last() += letter;
    }
    for (QString& part : parts)
        part = part.trimmed();
    return parts;
}

// Whether @p text is "(x, y, z)".
bool ReadPoint(const QString& text, PointTexts& point)
{
    if (!text.startsWith(QLatin1Char('(')) || !text.endsWith(QLatin1Char(')')))
        return false;
    const QStringList parts = Split(text.mid(1, text.size() - 2), QLatin1Char(','));
    if (parts.size() != int(point.size()) || parts.contains(QString()))
        return false;
    std::copy(parts.begin(), parts.end(), point.begin());
    return true;
}

} // namespace

QString TextOf(const ProfileCorner& corner)
{
    QStringList texts = {corner.x, corner.y};
    if (corner.IsArc())
        texts << corner.viaX << corner.viaY;
    return texts.join(QStringLiteral("; "));
}

ProfileCorner CornerOf(const QString& text)
{
    constexpr int OfLine = 2;
    constexpr int OfArc = 4;
    const QStringList texts = Split(text, QLatin1Char(';'));
    if ((texts.size() != OfLine && texts.size() != OfArc) || texts.contains(QString()))
        throw FeatureTextError(
            FeatureTextError::tr("%1 is not a corner: write \"x; y\", or \"x; y; via x; via y\" "
                                 "for an arc that leads to it")
                .arg(Quoted(text)));
    ProfileCorner corner{texts[0], texts[1], {}, {}};
    if (texts.size() == OfArc) {
        corner.viaX = texts[2];
        corner.viaY = texts[3];
    }
    return corner;
}

FaceReference FaceOf(const QString& text)
{
    FaceReference face;
    const QString trimmed = text.trimmed();
    if (ReadPoint(trimmed, face.at))
        return face;
    if (trimmed.isEmpty() || trimmed.startsWith(QLatin1Char('(')))
        throw FeatureTextError(
            FeatureTextError::tr("%1 is not a face: write its name, such as \"box.zmax\", or a "
                                 "point on it, such as \"(0, 0, 10)\"")
                .arg(Quoted(text)));
    face.name = trimmed;
    return face;
}

QString TextOf(const std::vector<EdgeReference>& edges)
{
    QStringList texts;
    for (const EdgeReference& edge : edges)
        texts << edge.Text();
    return texts.join(QStringLiteral("; "));
}

std::vector<EdgeReference> EdgesOf(const QString& text)
{
    std::vector<EdgeReference> edges;
    if (text.trimmed().isEmpty())
        return edges;
    const QStringList texts = Split(text, QLatin1Char(';'));
    for (const QString& one : texts) {
        EdgeReference edge;
        const QStringList faces = Split(one, QLatin1Char('|'));
        if (faces.size() == 2)
            edge.between = {FaceOf(faces[0]), FaceOf(faces[1])};
        else if (!ReadPoint(one, edge.at))
            throw FeatureTextError(
                FeatureTextError::tr("%1 is not an edge: write its two faces, such as \"box.zmax | "
                                     "box.xmax\", or a point on it, such as \"(0, 0, 10)\"")
                    .arg(Quoted(one)));
        edges.push_back(edge);
    }
    return edges;
}
