#include "FeatureKinds.h"

#include "FeatureBuilder.h"
#include "NumberTexts.h"

#include <algorithm>
#include <cmath>

namespace {

using Unit = FieldRule::Unit;

// The kernel's precision, 1e-7 mm, is far below the least length and far above the rounding of the
// greatest one.
constexpr double LeastLength = 1e-4;
constexpr double Greatest = 1e6;

constexpr FieldRule Length = {LeastLength, Greatest};
constexpr FieldRule LengthOrZero = {LeastLength, Greatest, Unit::Millimetres, false, false, true};
constexpr FieldRule Coordinate = {-Greatest, Greatest};
constexpr FieldRule Component = {-Greatest, Greatest, Unit::Number};
constexpr FieldRule Turn = {-360.0, 360.0, Unit::Degrees};
constexpr FieldRule Sweep = {0.0, 360.0, Unit::Degrees, true};

constexpr FieldRule Angle(double least, double greatest, bool exclusiveMinimum,
                          bool exclusiveMaximum)
{
    return {least, greatest, Unit::Degrees, exclusiveMinimum, exclusiveMaximum};
}

constexpr FieldRule Count(int least, int greatest)
{
    return {double(least), double(greatest), Unit::Count};
}

FieldKind Field(const char* key, const char* label, const char* defaultText, const FieldRule& rule)
{
    return {QLatin1String(key), label, QLatin1String(defaultText), rule};
}

std::vector<FieldKind> Joined(std::vector<FieldKind> fields, const std::vector<FieldKind>& more)
{
    fields.insert(fields.end(), more.begin(), more.end());
    return fields;
}

std::vector<FieldKind> Point(const char* x, const char* y, const char* z)
{
    return {Field("x", x, "0", Coordinate), Field("y", y, "0", Coordinate),
            Field("z", z, "0", Coordinate)};
}

std::vector<FieldKind> Direction()
{
    return {Field("dx", QT_TRANSLATE_NOOP("FeatureKinds", "Direction x"), "0", Component),
            Field("dy", QT_TRANSLATE_NOOP("FeatureKinds", "Direction y"), "0", Component),
            Field("dz", QT_TRANSLATE_NOOP("FeatureKinds", "Direction z"), "1", Component)};
}

std::vector<FieldKind> Axis()
{
    return Joined(Point(QT_TRANSLATE_NOOP("FeatureKinds", "Point on axis x"),
                        QT_TRANSLATE_NOOP("FeatureKinds", "Point on axis y"),
                        QT_TRANSLATE_NOOP("FeatureKinds", "Point on axis z")),
                  Direction());
}

std::vector<FeatureKinds::Entry> MakeTable()
{
    const auto entry = [](FeatureKind kind, const char* word, const char* title, int leastInputs,
                          int mostInputs, const std::vector<FieldKind>& fields) {
        return FeatureKinds::Entry{kind,        QLatin1String(word), title,
                                   leastInputs, mostInputs,          fields};
    };
    const char* const radius = QT_TRANSLATE_NOOP("FeatureKinds", "Radius");
    const char* const height = QT_TRANSLATE_NOOP("FeatureKinds", "Height");
    const char* const angle = QT_TRANSLATE_NOOP("FeatureKinds", "Angle");
    const char* const angle1 = QT_TRANSLATE_NOOP("FeatureKinds", "Angle 1");
    const char* const angle2 = QT_TRANSLATE_NOOP("FeatureKinds", "Angle 2");
    const char* const angle3 = QT_TRANSLATE_NOOP("FeatureKinds", "Angle 3");
    const int instances = FeatureBuilder::MaximumInstances;

    // Defaults are those of the input dialogs where a dialog has the field.
    return {
        entry(FeatureKind::Box, "box", QT_TRANSLATE_NOOP("FeatureKinds", "Box"), 0, 0,
              {Field("x", QT_TRANSLATE_NOOP("FeatureKinds", "Size x"), "10", Length),
               Field("y", QT_TRANSLATE_NOOP("FeatureKinds", "Size y"), "10", Length),
               Field("z", QT_TRANSLATE_NOOP("FeatureKinds", "Size z"), "10", Length)}),
        entry(FeatureKind::Cylinder, "cylinder", QT_TRANSLATE_NOOP("FeatureKinds", "Cylinder"), 0,
              0,
              {Field("radius", radius, "10", Length), Field("height", height, "10", Length),
               Field("angle", angle, "360", Sweep)}),
        entry(FeatureKind::Sphere, "sphere", QT_TRANSLATE_NOOP("FeatureKinds", "Sphere"), 0, 0,
              {Field("radius", radius, "10", Length),
               Field("angle1", angle1, "-90", Angle(-90.0, 90.0, false, true)),
               Field("angle2", angle2, "90", Angle(-90.0, 90.0, true, false)),
               Field("angle3", angle3, "360", Sweep)}),
        entry(FeatureKind::Torus, "torus", QT_TRANSLATE_NOOP("FeatureKinds", "Torus"), 0, 0,
              {Field("radius", radius, "10", Length),
               Field("sweepRadius", QT_TRANSLATE_NOOP("FeatureKinds", "Sweep radius"), "3", Length),
               Field("angle1", angle1, "-180", Angle(-180.0, 0.0, false, true)),
               Field("angle2", angle2, "180", Angle(0.0, 180.0, true, false)),
               Field("angle3", angle3, "360", Sweep)}),
        entry(
            FeatureKind::Cone, "cone", QT_TRANSLATE_NOOP("FeatureKinds", "Truncated cone"), 0, 0,
            {Field("baseRadius", QT_TRANSLATE_NOOP("FeatureKinds", "Base radius"), "10", Length),
             Field("topRadius", QT_TRANSLATE_NOOP("FeatureKinds", "Top radius"), "5", LengthOrZero),
             Field("height", height, "10", Length), Field("angle", angle, "360", Sweep)}),
        entry(FeatureKind::Wedge, "wedge", QT_TRANSLATE_NOOP("FeatureKinds", "Wedge"), 0, 0,
              {Field("x", QT_TRANSLATE_NOOP("FeatureKinds", "Base x"), "20", Length),
               Field("z", QT_TRANSLATE_NOOP("FeatureKinds", "Base z"), "30", Length),
               Field("height", height, "30", Length),
               Field("xmin", QT_TRANSLATE_NOOP("FeatureKinds", "X min"), "5", Coordinate),
               Field("xmax", QT_TRANSLATE_NOOP("FeatureKinds", "X max"), "15", Coordinate),
               Field("zmin", QT_TRANSLATE_NOOP("FeatureKinds", "Z min"), "8", Coordinate),
               Field("zmax", QT_TRANSLATE_NOOP("FeatureKinds", "Z max"), "20", Coordinate)}),
        entry(FeatureKind::Polygon, "polygon",
              QT_TRANSLATE_NOOP("FeatureKinds", "Extruded polygon"), 0, 0,
              Joined({Field("edges", QT_TRANSLATE_NOOP("FeatureKinds", "Number of edges"), "6",
                            Count(3, 1000)),
                      Field("radius", radius, "10", Length),
                      Field("length", QT_TRANSLATE_NOOP("FeatureKinds", "Extrude length"), "10",
                            Length)},
                     Direction())),
        entry(FeatureKind::Move, "move", QT_TRANSLATE_NOOP("FeatureKinds", "Move"), 1, 1,
              {Field("dx", QT_TRANSLATE_NOOP("FeatureKinds", "Distance x"), "0", Coordinate),
               Field("dy", QT_TRANSLATE_NOOP("FeatureKinds", "Distance y"), "0", Coordinate),
               Field("dz", QT_TRANSLATE_NOOP("FeatureKinds", "Distance z"), "0", Coordinate)}),
        entry(FeatureKind::Rotate, "rotate", QT_TRANSLATE_NOOP("FeatureKinds", "Rotate"), 1, 1,
              Joined(Axis(), {Field("angle", angle, "90", Turn)})),
        entry(FeatureKind::MirrorPoint, "mirrorPoint",
              QT_TRANSLATE_NOOP("FeatureKinds", "Mirror at a point"), 1, 1,
              Point(QT_TRANSLATE_NOOP("FeatureKinds", "Point x"),
                    QT_TRANSLATE_NOOP("FeatureKinds", "Point y"),
                    QT_TRANSLATE_NOOP("FeatureKinds", "Point z"))),
        entry(FeatureKind::MirrorAxis, "mirrorAxis",
              QT_TRANSLATE_NOOP("FeatureKinds", "Mirror at an axis"), 1, 1, Axis()),
        entry(FeatureKind::MirrorFace, "mirrorFace",
              QT_TRANSLATE_NOOP("FeatureKinds", "Mirror at a face"), 1, 1,
              Point(QT_TRANSLATE_NOOP("FeatureKinds", "Point on face x"),
                    QT_TRANSLATE_NOOP("FeatureKinds", "Point on face y"),
                    QT_TRANSLATE_NOOP("FeatureKinds", "Point on face z"))),
        entry(FeatureKind::PolarArray, "polarArray",
              QT_TRANSLATE_NOOP("FeatureKinds", "Polar array"), 1, 1,
              Joined(Axis(), {Field("angle", angle, "90", Turn),
                              Field("number", QT_TRANSLATE_NOOP("FeatureKinds", "Number"), "4",
                                    Count(1, instances))})),
        entry(FeatureKind::RectangularArray, "rectangularArray",
              QT_TRANSLATE_NOOP("FeatureKinds", "Rectangular array"), 1, 1,
              {Field("xNumber", QT_TRANSLATE_NOOP("FeatureKinds", "Number in x"), "5",
                     Count(1, instances)),
               Field("yNumber", QT_TRANSLATE_NOOP("FeatureKinds", "Number in y"), "4",
                     Count(1, instances)),
               Field("xDistance", QT_TRANSLATE_NOOP("FeatureKinds", "Distance in x"), "50",
                     Coordinate),
               Field("yDistance", QT_TRANSLATE_NOOP("FeatureKinds", "Distance in y"), "100",
                     Coordinate)}),
        entry(FeatureKind::Fuse, "fuse", QT_TRANSLATE_NOOP("FeatureKinds", "Fuse"), 2,
              FeatureKinds::AnyNumber, {}),
        entry(FeatureKind::Cut, "cut", QT_TRANSLATE_NOOP("FeatureKinds", "Cut"), 2,
              FeatureKinds::AnyNumber, {}),
        entry(FeatureKind::Fillet, "fillet", QT_TRANSLATE_NOOP("FeatureKinds", "Fillet"), 1, 1,
              Joined({Field("radius", radius, "1", LengthOrZero)},
                     Point(QT_TRANSLATE_NOOP("FeatureKinds", "Point on edge x"),
                           QT_TRANSLATE_NOOP("FeatureKinds", "Point on edge y"),
                           QT_TRANSLATE_NOOP("FeatureKinds", "Point on edge z")))),
        entry(FeatureKind::StepImport, "import", QT_TRANSLATE_NOOP("FeatureKinds", "STEP import"),
              0, 0, {}),
    };
}

} // namespace

bool FieldRule::Allows(double value) const
{
    if (!std::isfinite(value))
        return false;
    if (value == 0.0 && isZeroAllowed)
        return true;
    if (unit == Count && value != std::floor(value))
        return false;
    return (exclusiveMinimum ? value > least : value >= least) &&
           (exclusiveMaximum ? value < greatest : value <= greatest);
}

QString FieldRule::Text() const
{
    const auto plain = [](double limit) {
        return limit == std::floor(limit) ? QString::number(limit, 'f', 0) : ExactText(limit);
    };
    const QString low = plain(least);
    const QString high = plain(greatest);
    QString text;
    if (exclusiveMinimum)
        text = FeatureKinds::tr("above %1 and at most %2").arg(low, high);
    else if (exclusiveMaximum)
        text = FeatureKinds::tr("at least %1 and below %2").arg(low, high);
    else
        text = FeatureKinds::tr("from %1 to %2").arg(low, high);
    if (isZeroAllowed)
        text = FeatureKinds::tr("0 or %1").arg(text);
    switch (unit) {
    case Millimetres:
        return FeatureKinds::tr("%1 mm").arg(text);
    case Degrees:
        return FeatureKinds::tr("%1 degrees").arg(text);
    case Count:
        return FeatureKinds::tr("a whole number %1").arg(text);
    case Number:
        break;
    }
    return text;
}

const std::vector<FeatureKinds::Entry>& FeatureKinds::All()
{
    static const std::vector<Entry> table = MakeTable();
    return table;
}

const FeatureKinds::Entry& FeatureKinds::Of(FeatureKind kind)
{
    return All()[std::size_t(kind)];
}

std::optional<FeatureKind> FeatureKinds::FromWord(const QString& word)
{
    const auto found = std::find_if(All().begin(), All().end(),
                                    [&](const Entry& entry) { return word == entry.word; });
    if (found == All().end())
        return std::nullopt;
    return found->kind;
}

QString FeatureKinds::Title(FeatureKind kind)
{
    return tr(Of(kind).title);
}

QString FeatureKinds::Label(const FieldKind& field)
{
    return tr(field.label);
}

Feature FeatureKinds::MakeFeature(FeatureKind kind)
{
    Feature feature;
    feature.kind = kind;
    for (const FieldKind& field : Of(kind).fields)
        feature.fields << field.defaultText;
    return feature;
}
