#include "BodyOverlaps.h"

#include "Bodies.h"
#include "BodyVolumes.h"
#include "Limits.h"

#include <BRepAlgoAPI_Common.hxx>
#include <BRepBndLib.hxx>
#include <BRepClass3d_SolidClassifier.hxx>
#include <Bnd_Box.hxx>
#include <QStringList>
#include <Standard_Failure.hxx>
#include <TopTools_DataMapOfShapeInteger.hxx>
#include <TopoDS_Shape.hxx>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <numeric>
#include <tuple>

namespace {

constexpr double MinimumDepth = 1e-6; // In mm. Less is touching.
// Of the volume of the smaller body. The kernel's errors are far below it.
constexpr double MinimumShare = 1e-6;
// Of boxes, which take nanoseconds, and of bodies, which take milliseconds to seconds.
constexpr int MaximumBoxComparisons = 20000000;
constexpr int MaximumBodyComparisons = 50;

struct PlacedBody
{
    TopoDS_Shape shape;
    int original = 0; // The same number for all copies.
    Bnd_Box box;
};

std::vector<PlacedBody> PlacedBodies(const TopoDS_Shape& shape)
{
    TopTools_DataMapOfShapeInteger originals;
    std::vector<Bnd_Box> boxes;
    std::vector<PlacedBody> bodies;
    VisitBodies(shape, [&](const TopoDS_Shape& placed) {
        const TopoDS_Shape original = AtOrigin(placed);
        if (!originals.IsBound(original)) {
            originals.Bind(original, int(boxes.size()));
            boxes.emplace_back();
            BRepBndLib::Add(original, boxes.back());
        }
        const int number = originals(original);
        bodies.push_back(
            {placed, number,
             boxes[std::size_t(number)].Transformed(placed.Location().Transformation())});
    });
    return bodies;
}

double Least(const Bnd_Box& box, int axis)
{
    return box.CornerMin().Coord(axis);
}

double Greatest(const Bnd_Box& box, int axis)
{
    return box.CornerMax().Coord(axis);
}

bool Overlap(const Bnd_Box& a, const Bnd_Box& b, int axis)
{
    return Least(a, axis) + MinimumDepth < Greatest(b, axis) &&
           Least(b, axis) + MinimumDepth < Greatest(a, axis);
}

// Finds most overlaps in little time.
bool HasPointInside(const TopoDS_Shape& body, const TopoDS_Shape& other)
{
    BRepClass3d_SolidClassifier classifier(body);
    const std::vector<gp_Pnt> points = PointsOf(other);
    return std::any_of(points.begin(), points.end(), [&](const gp_Pnt& point) {
        classifier.Perform(point, MinimumLength);
        return classifier.State() == TopAbs_IN;
    });
}

// Compares two bodies with the kernel. In an array many pairs lie to each other alike.
class BodyComparison
{
public:
    enum Result
    {
        Apart,
        Overlapping,
        Unknown
    };

    Result Of(const PlacedBody& a, const PlacedBody& b)
    {
        const gp_Trsf place =
            a.shape.Location().Transformation().Inverted() * b.shape.Location().Transformation();
        if (b.original < a.original)
            return Of(b, a);
        Numbers numbers = Rounded(place);
        if (a.original == b.original)
            numbers = std::min(numbers, Rounded(place.Inverted()));
        const Key key(a.original, b.original, numbers);
        const auto known = m_known.find(key);
        if (known != m_known.end())
            return known->second;
        if (int(m_known.size()) == MaximumBodyComparisons)
            return Unknown;
        const Result result = Compared(AtOrigin(a.shape), AtOrigin(b.shape).Moved(place));
        m_known.emplace(key, result);
        return result;
    }

private:
    using Numbers = std::array<long long, 12>;
    using Key = std::tuple<int, int, Numbers>;

    static Numbers Rounded(const gp_Trsf& place)
    {
        Numbers numbers{};
        for (int row = 1; row <= 3; ++row) {
            for (int column = 1; column <= 4; ++column)
                numbers[std::size_t(4 * row + column - 5)] =
                    std::llround(place.Value(row, column) / MinimumDepth);
        }
        return numbers;
    }

    Result Compared(const TopoDS_Shape& a, const TopoDS_Shape& b)
    {
        if (a.IsSame(b))
            return Overlapping;
        try {
            if (HasPointInside(a, b) || HasPointInside(b, a))
                return Overlapping;
            const double smaller = std::min(m_volumes.Of(a), m_volumes.Of(b));
            BRepAlgoAPI_Common common(a, b);
            const double shared = BodyVolumes().Of(common.Shape());
            if (common.HasErrors() || std::abs(shared) > smaller * (1.0 + MinimumShare))
                return Unknown;
            return std::abs(shared) > MinimumShare * smaller ? Overlapping : Apart;
        } catch (const Standard_Failure&) {
            return Unknown;
        }
    }

    BodyVolumes m_volumes;
    std::map<Key, Result> m_known;
};

// The axis along which the bodies extend furthest, so that few are side by side on it.
int LongestAxis(const std::vector<PlacedBody>& bodies)
{
    Bnd_Box box;
    for (const PlacedBody& body : bodies)
        box.Add(body.box);
    int longest = 1;
    for (const int axis : {2, 3}) {
        if (Greatest(box, axis) - Least(box, axis) > Greatest(box, longest) - Least(box, longest))
            longest = axis;
    }
    return longest;
}

BodyOverlaps Found(const std::vector<PlacedBody>& bodies)
{
    BodyOverlaps found;
    if (bodies.size() < 2)
        return found;
    const int axis = LongestAxis(bodies);
    std::vector<std::size_t> order(bodies.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return Least(bodies[a].box, axis) < Least(bodies[b].box, axis);
    });
    BodyComparison comparison;
    int boxComparisons = 0;
    for (std::size_t i = 0; i < order.size(); ++i) {
        const PlacedBody& body = bodies[order[i]];
        for (std::size_t j = i + 1; j < order.size(); ++j) {
            const PlacedBody& other = bodies[order[j]];
            if (!Overlap(body.box, other.box, axis))
                break;
            if (++boxComparisons > MaximumBoxComparisons ||
                int(found.pairs.size()) == BodyOverlaps::MaximumPairs) {
                found.isComplete = false;
                return found;
            }
            if (!Overlap(body.box, other.box, 1 + axis % 3) ||
                !Overlap(body.box, other.box, 1 + (axis + 1) % 3))
                continue;
            const BodyComparison::Result result = comparison.Of(body, other);
            found.isComplete &= result != BodyComparison::Unknown;
            if (result == BodyComparison::Overlapping)
                found.pairs.push_back(std::minmax(int(order[i]) + 1, int(order[j]) + 1));
        }
    }
    return found;
}

} // namespace

QString BodyOverlaps::Warning() const
{
    if (pairs.empty())
        return isComplete ? QString()
                          : tr("The bodies were not all compared for overlaps; volume and mass may "
                               "count a region twice.");
    QStringList shown;
    for (const auto& [first, second] : pairs)
        shown << tr("%1 and %2").arg(first).arg(second);
    return isComplete ? tr("Bodies overlap, and volume and mass count the common region twice: %1.")
                            .arg(shown.join(tr("; ")))
                      : tr("Bodies overlap, and volume and mass count the common region twice: %1; "
                           "there may be more.")
                            .arg(shown.join(tr("; ")));
}

QString BodyOverlaps::AnalysisProblem() const
{
    if (!pairs.empty())
        return tr("The bodies %1 and %2 of the part overlap; fuse them before the analysis.")
            .arg(pairs.front().first)
            .arg(pairs.front().second);
    return isComplete ? QString()
                      : tr("The bodies of the part could not all be compared for overlaps; fuse "
                           "them before the analysis.");
}

BodyOverlaps FindOverlaps(const TopoDS_Shape& shape)
{
    BodyOverlaps found = Found(PlacedBodies(shape));
    std::sort(found.pairs.begin(), found.pairs.end());
    return found;
}
