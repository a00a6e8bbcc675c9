#include "NamedWalls.h"
#include "NewFeature.h"
#include "TestCase.h"

#include <BRepTools.hxx>
#include <gp_Ax1.hxx>
#include <gp_Trsf.hxx>

#include <functional>
#include <random>

// Random lists, built with two sets of sizes and positions: each name finds the same wall in both,
// told by its position and the kind of its surface.

class tst_PartFacesRandom : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void EachNameFindsTheSameWallAgain();
};

namespace {

/// A wall of a primitive, in the coordinates of the primitive.
struct LocalWall
{
    GeomAbs_SurfaceType surface;
    std::function<double(const gp_Pnt&)> distance;
};

/// A list of features, and where the walls of its primitives are in the part.
class WallList
{
public:
    /// The same @p seed makes the same features; @p share, from 0 to 1, changes their numbers.
    WallList(unsigned seed, double share)
        : m_random(seed)
        , m_share(share)
    {
        const int primitives = 2 + int(m_random() % 3);
        for (int i = 0; i < primitives; ++i)
            AddTransformed(AddPrimitive(i));
        while (m_loose.size() > 1)
            Combine();
        if (m_random() % 3 == 0)
            AddTransformed(m_loose.takeFirst());
    }

    const FeatureList& List() const { return m_list; }
    QStringList Names() const { return m_walls.keys(); }
    GeomAbs_SurfaceType SurfaceOf(const QString& name) const { return m_walls[name].surface; }

    /// How far the middle of @p face is from the nearest image of the wall called @p name.
    double DistanceOf(const QString& name, const TopoDS_Face& face) const
    {
        const BRepAdaptor_Surface surface(face);
        double uMin = 0.0;
        double uMax = 0.0;
        double vMin = 0.0;
        double vMax = 0.0;
        BRepTools::UVBounds(face, uMin, uMax, vMin, vMax);
        const gp_Pnt middle = surface.Value((uMin + uMax) / 2.0, (vMin + vMax) / 2.0);
        const gp_Pnt corner = surface.Value(uMin, vMin);
        double least = 1e9;
        for (const gp_Trsf& place : m_places[m_loose.first()][name.section('.', 0, 0)]) {
            const auto& distance = m_walls[name].distance;
            least = std::min(least, std::max(distance(middle.Transformed(place.Inverted())),
                                             distance(corner.Transformed(place.Inverted()))));
        }
        return least;
    }

private:
    using Places = QMap<QString, std::vector<gp_Trsf>>; // Of each primitive in a body.

    double Number(double least, double greatest)
    {
        const double base = double(m_random()) / 4294967296.0;
        const double other = double(m_random()) / 4294967296.0;
        return least + (greatest - least) * (0.85 * base + 0.15 * other * m_share);
    }

    Feature New(const char* kind, const QStringList& inputs)
    {
        const QString name = QString("f%1").arg(m_list.Size());
        for (const QString& input : inputs)
            m_loose.removeOne(input);
        return NewFeature(name, kind, inputs);
    }

    QString Add(const Feature& feature, const Places& places)
    {
        m_list.Append(feature);
        m_places[feature.name] = places;
        m_loose.append(feature.name);
        return feature.name;
    }

    double Set(Feature& feature, const char* key, double value)
    {
        feature.fields[FieldIndex(feature, key)] = QString::number(value, 'g', 17);
        return value;
    }

    static LocalWall Across(int axis, double place)
    {
        return {GeomAbs_Plane, [=](const gp_Pnt& point) {
                    return std::abs(point.Coord(axis) - place);
                }};
    }

    QString AddPrimitive(int number)
    {
        const bool isBox = m_random() % 2 == 0;
        Feature feature = New(isBox ? "box" : "cylinder", {});
        const QString stem = feature.name + '.';
        if (isBox) {
            int axis = 1;
            for (const char* const key : {"x", "y", "z"}) {
                m_walls[stem + key + "min"] = Across(axis, 0.0);
                m_walls[stem + key + "max"] = Across(axis, Set(feature, key, Number(10, 30)));
                ++axis;
            }
        } else {
            const double radius = Set(feature, "radius", Number(3, 12));
            m_walls[stem + "side"] = {GeomAbs_Cylinder, [=](const gp_Pnt& point) {
                                          return std::abs(std::hypot(point.X(), point.Y()) -
                                                          radius);
                                      }};
            m_walls[stem + "bottom"] = Across(3, 0.0);
            m_walls[stem + "top"] = Across(3, Set(feature, "height", Number(10, 40)));
        }
        gp_Trsf turn;
        const double angle = Set(feature, "turnZ", Number(-40, 40));
        turn.SetRotation(gp_Ax1(gp_Pnt(), gp_Dir(0, 0, 1)), Radians(angle));
        gp_Trsf move;
        const double x = Set(feature, "moveX", 11.0 * number + Number(-5, 5));
        const double y = Set(feature, "moveY", Number(-9, 9));
        const double z = Set(feature, "moveZ", Number(-9, 9));
        move.SetTranslation(gp_Vec(x, y, z));
        return Add(feature, {{feature.name, {move * turn}}});
    }

    void AddTransformed(const QString& input)
    {
        const char* const kinds[] = {"move", "mirrorPoint", "polarArray", "mirrorFace"};
        const auto choice = m_random() % 6;
        m_loose.removeOne(input);
        if (choice > 3 || (choice == 3 && !m_places[input].contains(input)))
            return m_loose.append(input);
        Feature feature = New(kinds[choice], {input});
        std::vector<gp_Trsf> steps(1);
        if (choice == 0) {
            const double distance = Set(feature, "dx", Number(-6, 6));
            steps[0].SetTranslation(gp_Vec(distance, 0, 0));
        } else if (choice == 1) {
            const double place = Set(feature, "x", Number(-20, 20));
            steps[0].SetMirror(gp_Pnt(place, 0, 0));
        } else if (choice == 2) {
            Set(feature, "angle", 360);
            const int number = 2 + int(m_random() % 2);
            Set(feature, "number", number);
            const double place = Set(feature, "y", 45 + Number(0, 5));
            for (int step = 1; step < number; ++step) {
                steps.emplace_back();
                steps.back().SetRotation(gp_Ax1(gp_Pnt(0, place, 0), gp_Dir(0, 0, 1)),
                                         2.0 * Pi * step / number);
            }
        } else {
            feature.face =
                FaceReference{input + (m_walls.contains(input + ".top") ? ".top" : ".zmax"), {}};
            const gp_Trsf own = m_places[input][input][0];
            const double height = m_walls[feature.face->name].distance(gp_Pnt());
            const gp_Pnt top = gp_Pnt(0, 0, height).Transformed(own);
            steps[0].SetMirror(gp_Ax2(top, gp_Dir(0, 0, 1)));
        }
        Places places;
        const Places before = m_places[input];
        for (auto place = before.begin(); place != before.end(); ++place) {
            for (const gp_Trsf& step : steps) {
                for (const gp_Trsf& own : place.value())
                    places[place.key()].push_back(step * own);
            }
        }
        Add(feature, places);
    }

    void Combine()
    {
        const char* const kinds[] = {"fuse", "fuse", "cut", "common"};
        const QStringList inputs = m_loose.mid(0, 2);
        Feature feature = New(kinds[m_random() % 4], inputs);
        feature.suppressed = m_random() % 8 == 0;
        Places places = m_places[inputs[0]];
        if (!feature.suppressed)
            places.insert(m_places[inputs[1]]);
        Add(feature, places);
    }

    std::mt19937 m_random;
    double m_share;
    FeatureList m_list;
    QStringList m_loose;
    QMap<QString, LocalWall> m_walls;
    QMap<QString, Places> m_places;
};

} // namespace

void tst_PartFacesRandom::EachNameFindsTheSameWallAgain()
{
    const EmptyDesignStores stores;
    int lists = 0;
    int found = 0;
    int gone = 0;
    for (unsigned seed = 0; lists < 200; ++seed) {
        QVERIFY(seed < 400);
        QMap<QString, int> counts;
        try {
            for (const double share : {0.0, 1.0}) {
                const WallList walls(seed, share);
                const BuiltPart part = FeatureBuilder::Build(walls.List());
                const PartFaces faces(part);
                for (const QString& name : walls.Names()) {
                    const std::vector<int> numbers = faces.Named(PartFaces::WholePart, name);
                    for (const int number : numbers) {
                        const TopoDS_Face face = FaceOf(part.shape, number);
                        const QByteArray where =
                            QString("seed %1, %2, %3").arg(seed).arg(share).arg(name).toUtf8();
                        QVERIFY2(SurfaceOf(face) == walls.SurfaceOf(name), where);
                        QVERIFY2(walls.DistanceOf(name, face) < 1e-6, where);
                    }
                    found += share > 0.0 && counts[name] > 0 && !numbers.empty() ? 1 : 0;
                    gone += share > 0.0 && counts[name] > 0 && numbers.empty() ? 1 : 0;
                    counts[name] += int(numbers.size());
                }
                // No face is without a name.
                for (int face = 1; face <= Count(part.shape, TopAbs_FACE); ++face)
                    QVERIFY2(!faces.NamesOf(PartFaces::WholePart, face).isEmpty(),
                             QByteArray::number(seed));
            }
            ++lists;
        } catch (const FeatureError&) {
            // Some leave nothing, or bring the kernel to a wrong body.
            continue;
        }
    }
    // A wall is gone where other sizes leave nothing of it.
    QVERIFY2(found > 1000 && gone < found / 20,
             QByteArray::number(found) + " found, " + QByteArray::number(gone) + " gone");
}

TARN_TEST_MAIN(tst_PartFacesRandom)
#include "tst_PartFacesRandom.moc"
