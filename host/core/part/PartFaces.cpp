#include "PartFaces.h"

#include "BuildError.h"
#include "BuiltPart.h"
#include "JsonSection.h"
#include "NumberTexts.h"
#include "ShapeAtPoint.h"

#include <TopExp.hxx>
#include <TopTools_IndexedDataMapOfShapeListOfShape.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopTools_MapOfShape.hxx>
#include <gp_Pnt.hxx>

#include <algorithm>
#include <set>

namespace {

TopTools_IndexedMapOfShape FacesOf(const TopoDS_Shape& shape)
{
    TopTools_IndexedMapOfShape faces;
    TopExp::MapShapes(shape, TopAbs_FACE, faces);
    return faces;
}

// @p name, and what follows each of its slashes: from the shortest to the longest.
QStringList Patterns(const QString& name)
{
    constexpr int MostPatterns = 32; // The bits of Matches.
    QStringList patterns;
    for (int slash = name.lastIndexOf(QLatin1Char('/'));
         slash >= 0 && patterns.size() < MostPatterns - 1;
         slash = slash > 0 ? name.lastIndexOf(QLatin1Char('/'), slash - 1) : -1)
        patterns << name.mid(slash + 1);
    patterns << name;
    return patterns;
}

/// Matches the faces of one step.
class StepMatcher
{
public:
    using Matches = unsigned; // One bit for each pattern.

    StepMatcher(const QString& feature, const QStringList& patterns)
    {
        const QString made = feature + QLatin1Char('.');
        const QString passed = feature + QLatin1Char('/');
        for (int place = 0; place < patterns.size(); ++place) {
            const QString& pattern = patterns[place];
            m_words << (pattern.startsWith(made) ? pattern.mid(made.size()) : QString());
            m_rests << (pattern.startsWith(passed) ? patterns.indexOf(pattern.mid(passed.size()))
                                                   : -1);
        }
    }

    // Of a face that the step makes.
    Matches Made(const QString& word) const
    {
        Matches matches = 0;
        for (int place = 0; place < m_words.size(); ++place)
            matches |= Matches(m_words[place] == word) << place;
        return matches;
    }

    // Of a face that has had these matches up to the step.
    Matches Passed(Matches matches) const
    {
        for (int place = 0; place < m_rests.size(); ++place) {
            if (m_rests[place] >= 0 && (matches >> m_rests[place] & 1U) != 0)
                matches |= Matches(1) << place;
        }
        return matches;
    }

private:
    QStringList m_words;
    QVector<int> m_rests;
};

QString PointText(const std::array<double, 3>& point)
{
    return QStringLiteral("(%1, %2, %3)")
        .arg(ShortText(point[0]), ShortText(point[1]), ShortText(point[2]));
}

QString Shown(const FaceTarget& target)
{
    return target.IsPoint() ? PointText(target.at) : Quoted(target.name);
}

// Whether two different faces of the list are one of each side.
bool Separates(const TopTools_ListOfShape& faces, const TopTools_MapOfShape& side,
               const TopTools_MapOfShape& otherSide)
{
    for (const TopoDS_Shape& face : faces) {
        for (const TopoDS_Shape& other : faces) {
            if (!face.IsSame(other) && side.Contains(face) && otherSide.Contains(other))
                return true;
        }
    }
    return false;
}

gp_Pnt Point(const std::array<double, 3>& point)
{
    return gp_Pnt(point[0], point[1], point[2]);
}

} // namespace

const TopoDS_Shape& PartFaces::ShapeOf(int step) const
{
    return step == WholePart ? m_part.shape : m_part.shapes.at(std::size_t(step));
}

// The step that has made the result: a suppressed feature hands on that of its first input.
PartFaces::Place PartFaces::MadeAt(Place place) const
{
    while (m_part.plan[std::size_t(place.first)].suppressed)
        place.first = m_part.plan[std::size_t(place.first)].inputs.front();
    return place;
}

// Results of several features may share a face.
std::vector<PartFaces::Place> PartFaces::PlacesInPart(int face) const
{
    const TopTools_IndexedMapOfShape faces = FacesOf(m_part.shape);
    std::vector<Place> places;
    for (const std::size_t step : m_part.Results()) {
        const int number = FacesOf(m_part.shapes[step]).FindIndex(faces(face));
        if (number > 0)
            places.push_back(MadeAt({int(step), number}));
    }
    return places;
}

// The face itself and all that it comes from, in the order of the steps.
std::vector<PartFaces::Place> PartFaces::HistoryOf(int step, int face) const
{
    std::vector<Place> open =
        step == WholePart ? PlacesInPart(face) : std::vector<Place>{MadeAt({step, face})};
    std::set<Place> known(open.begin(), open.end());
    while (!open.empty()) {
        const Place place = open.back();
        open.pop_back();
        const BuildStep& made = m_part.plan[std::size_t(place.first)];
        m_part.faces[std::size_t(place.first)].VisitOrigins(place.second, [&](const FaceOrigin&
                                                                                  origin) {
            if (origin.input == FaceOrigin::New)
                return;
            const Place before = MadeAt({made.inputs[std::size_t(origin.input)], origin.number});
            if (known.insert(before).second)
                open.push_back(before);
        });
    }
    return {known.begin(), known.end()};
}

QStringList PartFaces::NamesOf(int step, int face) const
{
    QStringList names;
    for (const auto& [made, number] : HistoryOf(step, face)) {
        const FaceOrigins& faces = m_part.faces[std::size_t(made)];
        const QString& feature = m_part.plan[std::size_t(made)].name;
        faces.VisitOrigins(number, [&](const FaceOrigin& origin) {
            if (origin.input != FaceOrigin::New)
                return;
            const QString name = feature + QLatin1Char('.') + faces.Word(origin);
            if (!names.contains(name))
                names << name;
        });
    }
    return names;
}

QStringList PartFaces::FeaturesOf(int step, int face) const
{
    QStringList features;
    for (const Place& place : HistoryOf(step, face)) {
        const QString& feature = m_part.plan[std::size_t(place.first)].name;
        if (!features.contains(feature))
            features << feature;
    }
    return features;
}

std::vector<bool> PartFaces::NeededFor(int step) const
{
    const std::size_t count =
        step == WholePart ? m_part.plan.size() : std::size_t(MadeAt({step, 0}).first) + 1;
    std::vector<bool> isNeeded(count, step == WholePart);
    isNeeded.back() = true;
    for (std::size_t place = count; place-- > 0;) {
        if (!isNeeded[place])
            continue;
        for (const int input : m_part.plan[place].inputs)
            isNeeded[std::size_t(input)] = true;
    }
    return isNeeded;
}

// For the faces of each step that @p step needs.
std::vector<std::vector<PartFaces::Matches>> PartFaces::MatchesOf(int step,
                                                                  const QStringList& patterns) const
{
    const std::vector<bool> isNeeded = NeededFor(step);
    std::vector<std::vector<Matches>> matches(isNeeded.size());
    for (std::size_t place = 0; place < matches.size(); ++place) {
        const BuildStep& made = m_part.plan[place];
        if (!isNeeded[place] || made.suppressed)
            continue;
        const FaceOrigins& faces = m_part.faces[place];
        const StepMatcher matcher(made.name, patterns);
        for (int face = 1; face <= faces.Count(); ++face) {
            Matches found = 0;
            faces.VisitOrigins(face, [&](const FaceOrigin& origin) {
                if (origin.input == FaceOrigin::New) {
                    found |= matcher.Made(faces.Word(origin));
                    return;
                }
                const auto [before, number] =
                    MadeAt({made.inputs[std::size_t(origin.input)], origin.number});
                found |= matches[std::size_t(before)][std::size_t(number) - 1];
            });
            matches[place].push_back(matcher.Passed(found));
        }
    }
    return matches;
}

std::vector<int> PartFaces::Named(int step, const QString& name) const
{
    if (ShapeOf(step).IsNull())
        return {};
    const QStringList patterns = Patterns(name);
    const std::vector<std::vector<Matches>> matches = MatchesOf(step, patterns);
    const TopTools_IndexedMapOfShape all = FacesOf(ShapeOf(step));
    const std::vector<std::size_t> results =
        step == WholePart ? m_part.Results() : std::vector<std::size_t>{std::size_t(step)};
    std::set<int> found;
    for (const std::size_t result : results) {
        const TopTools_IndexedMapOfShape faces = FacesOf(m_part.shapes[result]);
        const std::vector<Matches>& ofResult = matches[std::size_t(MadeAt({int(result), 0}).first)];
        for (int face = 1; face <= faces.Extent(); ++face) {
            if ((ofResult[std::size_t(face) - 1] >> (patterns.size() - 1) & 1U) != 0)
                found.insert(all.FindIndex(faces(face)));
        }
    }
    return {found.begin(), found.end()};
}

std::vector<int> PartFaces::Faces(int step, const FaceTarget& target) const
{
    if (target.IsPoint())
        return {FaceAt(ShapeOf(step), Point(target.at))};
    std::vector<int> faces = Named(step, target.name);
    if (faces.empty())
        throw BuildError(BuildError::tr("the part has no face %1.").arg(Quoted(target.name)));
    return faces;
}

std::vector<int> PartFaces::Edges(int step, const EdgeTarget& target) const
{
    const TopoDS_Shape& shape = ShapeOf(step);
    if (target.IsPoint())
        return {EdgeAt(shape, Point(target.at))};
    const TopTools_IndexedMapOfShape faces = FacesOf(shape);
    std::array<TopTools_MapOfShape, 2> sides;
    for (std::size_t side = 0; side < sides.size(); ++side) {
        for (const int face : Faces(step, target.between.at(side)))
            sides[side].Add(faces(face));
    }
    TopTools_IndexedMapOfShape edges;
    TopExp::MapShapes(shape, TopAbs_EDGE, edges);
    TopTools_IndexedDataMapOfShapeListOfShape facesBeside;
    TopExp::MapShapesAndUniqueAncestors(shape, TopAbs_EDGE, TopAbs_FACE, facesBeside);
    std::vector<int> found;
    for (int edge = 1; edge <= edges.Extent(); ++edge) {
        if (Separates(facesBeside.FindFromKey(edges(edge)), sides[0], sides[1]))
            found.push_back(edge);
    }
    if (found.empty())
        throw BuildError(BuildError::tr("the faces %1 and %2 have no edge in common.")
                             .arg(Shown(target.between[0]), Shown(target.between[1])));
    return found;
}
