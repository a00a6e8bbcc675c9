// The kinds that repeat a body.

#include "Angles.h"
#include "Bodies.h"
#include "BuildError.h"
#include "BuildInput.h"
#include "CommonFields.h"
#include "EqualBodies.h"
#include "FaceTrace.h"
#include "FeatureKinds.h"
#include "NumberTexts.h"

#include <TopoDS_Shape.hxx>
#include <gp_Trsf.hxx>
#include <gp_Vec.hxx>

#include <cmath>

using namespace FieldRules;

namespace {

constexpr int MaximumInstances = 10000; // Bodies in the result.
constexpr FieldRule InstanceCount = Count(1, MaximumInstances);

FeatureKind Array(const char* word, const char* title)
{
    FeatureKind kind(word, title, FeatureGroup::Array);
    kind.minInputs = 1;
    kind.maxInputs = 1;
    return kind;
}

void CheckCount(int instances, const TopoDS_Shape& shape)
{
    const double bodies = double(instances) * CountBodies(shape);
    if (bodies > MaximumInstances)
        throw BuildError(BuildError::tr("the array would have %1 bodies (maximum %2).")
                             .arg(bodies, 0, 'f', 0)
                             .arg(MaximumInstances));
}

TracedShape Copies(const TopoDS_Shape& shape, const std::vector<TopLoc_Location>& places)
{
    FaceTrace trace;
    std::vector<TopoDS_Shape> instances;
    instances.reserve(places.size());
    for (const TopLoc_Location& place : places) {
        trace.AddInput(0, shape, place);
        instances.push_back(shape.Moved(place));
    }
    return trace.Of(Compound(instances));
}

TracedShape PolarArrayBody(const BuildInput& input)
{
    const TopoDS_Shape& shape = input.FirstBody();
    const gp_Ax1 axis = input.Axis();
    const double angle = input.Value("angle");
    const int number = input.Count("number");
    CheckCount(number, shape);
    if (number == 1)
        return input.Unchanged();
    // A full turn puts the last instance beside the first, not onto it.
    constexpr double Rounding = 1e-9;
    const bool isFullTurn = std::abs(std::abs(angle) - 360.0) < Rounding;
    const double step = angle / (isFullTurn ? number : number - 1);
    if (std::abs(step) < MinimumAngle)
        throw BuildError(
            BuildError::tr("the instances would coincide: the angle between them is %1 degrees.")
                .arg(ShortText(step)));
    std::vector<TopLoc_Location> places = {TopLoc_Location()};
    std::vector<gp_Trsf> turns;
    for (int instance = 1; instance < number; ++instance) {
        gp_Trsf rotation;
        rotation.SetRotation(axis, step * instance * tarn::RadiansPerDegree);
        places.emplace_back(rotation);
        turns.push_back(rotation);
    }
    const int equal = PlaceOfEqualBodies(shape, turns);
    if (equal >= 0)
        throw BuildError(BuildError::tr("the instances would coincide: a turn of %1 degrees puts a "
                                        "body in the place of another.")
                             .arg(ShortText(step * (equal + 1))));
    return Copies(shape, places);
}

FeatureKind PolarArray()
{
    FeatureKind kind = Array("polarArray", QT_TRANSLATE_NOOP("FeatureKinds", "Polar array"));
    kind.fields =
        Joined(AxisFields(),
               {{"angle", QT_TRANSLATE_NOOP("FeatureKinds", "Angle"), "90", Turn},
                {"number", QT_TRANSLATE_NOOP("FeatureKinds", "Number"), "4", InstanceCount}});
    kind.build = PolarArrayBody;
    return kind;
}

void CheckRow(const char* axis, int number, double distance)
{
    if (number == 1)
        return;
    if (std::abs(distance) < MinimumLength)
        throw BuildError(
            BuildError::tr("the instances would coincide: their distance in %1 is %2 mm.")
                .arg(QLatin1String(axis), ShortText(distance)));
    if (std::abs(distance) * (number - 1) > MaximumLength)
        throw BuildError(BuildError::tr("the array would extend more than %1 mm in %2.")
                             .arg(QString::number(MaximumLength, 'f', 0), QLatin1String(axis)));
}

TracedShape RectangularArrayBody(const BuildInput& input)
{
    const TopoDS_Shape& shape = input.FirstBody();
    const int columns = input.Count("xNumber");
    const int rows = input.Count("yNumber");
    const double xDistance = input.Value("xDistance");
    const double yDistance = input.Value("yDistance");
    CheckCount(columns * rows, shape);
    CheckRow("x", columns, xDistance);
    CheckRow("y", rows, yDistance);
    if (columns * rows == 1)
        return input.Unchanged();
    std::vector<TopLoc_Location> places;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            gp_Trsf translation;
            translation.SetTranslation(gp_Vec(xDistance * column, yDistance * row, 0.0));
            places.emplace_back(translation);
        }
    }
    return Copies(shape, places);
}

FeatureKind RectangularArray()
{
    FeatureKind kind =
        Array("rectangularArray", QT_TRANSLATE_NOOP("FeatureKinds", "Rectangular array"));
    kind.fields = {
        {"xNumber", QT_TRANSLATE_NOOP("FeatureKinds", "Number in x"), "5", InstanceCount},
        {"yNumber", QT_TRANSLATE_NOOP("FeatureKinds", "Number in y"), "4", InstanceCount},
        {"xDistance", QT_TRANSLATE_NOOP("FeatureKinds", "Distance in x"), "50", Coordinate},
        {"yDistance", QT_TRANSLATE_NOOP("FeatureKinds", "Distance in y"), "100", Coordinate}};
    kind.build = RectangularArrayBody;
    return kind;
}

} // namespace

std::vector<FeatureKind> FeatureKinds::Arrays()
{
    return {PolarArray(), RectangularArray()};
}
