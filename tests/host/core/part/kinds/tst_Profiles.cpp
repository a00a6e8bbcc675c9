#include "KindRows.h"
#include "TestCase.h"

class tst_Profiles : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void BodiesMatchTheirFormulas_data();
    void BodiesMatchTheirFormulas() { CheckBody(); }
    void InvalidValuesAreReported_data();
    void InvalidValuesAreReported() { CheckFailure(); }
    void CornersTakeExpressions();
};

namespace {

QByteArray Profiled(const char* kind, const char* fields, const char* profile)
{
    return QByteArray(R"({"name": "a", "kind": ")") + kind + R"(", "fields": {)" + fields +
           R"(}, "profile": [)" + profile + "]}";
}

const char* const Triangle = R"({"x": 0, "y": 0}, {"x": 6, "y": 0}, {"x": 0, "y": 9})";
const char* const TriangleBackwards = R"({"x": 0, "y": 0}, {"x": 0, "y": 9}, {"x": 6, "y": 0})";
// Beside the axis, from 2 to 5 and from 1 to 5.
const char* const Section =
    R"({"x": 2, "y": 1}, {"x": 5, "y": 1}, {"x": 5, "y": 5}, {"x": 2, "y": 5})";

} // namespace

void tst_Profiles::BodiesMatchTheirFormulas_data()
{
    AddBodyColumns();
    AddBody("square", Single("extrude", ""), Box(10, 10, 10));
    AddBody("triangle", Profiled("extrude", R"("length": 4)", Triangle), Mass{108, {2, 3, 2}});
    AddBody("triangle, the other way", Profiled("extrude", R"("length": 4)", TriangleBackwards),
            Mass{108, {2, 3, 2}});
    AddBody(
        "half a disc",
        Profiled("extrude", "", R"({"x": -5, "y": 0}, {"x": 5, "y": 0, "viaX": 0, "viaY": -5})"),
        Mass{125 * Pi, {0, -20 / (3 * Pi), 5}});
    AddBody("a disc of two arcs",
            Profiled("extrude", "",
                     R"({"x": -5, "y": 0, "viaX": 0, "viaY": 5},
                        {"x": 5, "y": 0, "viaX": 0, "viaY": -5})"),
            Cone(5, 5, 10, 360));
    AddBody("placed",
            Profiled("extrude", R"("length": 4, "turnX": 90, "moveX": 1, "moveY": 2, "moveZ": 3)",
                     Triangle),
            Mass{108, {3, 0, 6}});
    const Mass tube = Less(Moved(Cone(5, 5, 4, 360), 0, 0, 1), Moved(Cone(2, 2, 4, 360), 0, 0, 1));
    AddBody("tube", Profiled("revolve", "", Section), tube);
    AddBody("a quarter of a tube", Profiled("revolve", R"("angle": 90)", Section),
            Less(Moved(Cone(5, 5, 4, 90), 0, 0, 1), Moved(Cone(2, 2, 4, 90), 0, 0, 1)));
    AddBody("at the axis", Single("revolve", ""), Cone(10, 10, 10, 360));
    AddBody("cone", Profiled("revolve", "", Triangle), Cone(6, 0, 9, 360));
    AddBody("cone, the other way", Profiled("revolve", "", TriangleBackwards), Cone(6, 0, 9, 360));
    AddBody("ball",
            Profiled("revolve", "", R"({"x": 0, "y": -5}, {"x": 0, "y": 5, "viaX": 5, "viaY": 0})"),
            Ring(0, 5, -90, 90, 360));
}

void tst_Profiles::InvalidValuesAreReported_data()
{
    AddFailureColumns();
    const auto row = [](const char* name, const char* kind, const char* profile,
                        const char* reason) {
        AddFailure(name, Profiled(kind, "", profile), reason);
    };
    row("one corner", "extrude", R"({"x": 1, "y": 1})",
        "a: its profile has 1 corners, but has to have from 2 to 1000.");
    row("two corners at one place", "extrude",
        R"({"x": 0, "y": 0}, {"x": 1, "y": 0}, {"x": 1, "y": 0}, {"x": 1, "y": 1})",
        "a: corner 3 of its profile is at the same place as the one before.");
    row("closed twice", "extrude",
        R"({"x": 0, "y": 0}, {"x": 1, "y": 0}, {"x": 1, "y": 1}, {"x": 0, "y": 0})",
        "a: corner 1 of its profile is at the same place as the one before.");
    row("no arc", "extrude",
        R"({"x": 0, "y": 0}, {"x": 2, "y": 0, "viaX": 1, "viaY": 0}, {"x": 1, "y": 1})",
        "a: the arc to corner 2 of its profile goes through three points on a line.");
    row("nothing inside", "extrude", R"({"x": 0, "y": 0}, {"x": 2, "y": 0})",
        "a: its profile does not enclose an area.");
    row("crosses itself", "extrude",
        R"({"x": 0, "y": 0}, {"x": 2, "y": 2}, {"x": 2, "y": 0}, {"x": 0, "y": 2})",
        "a: its body is not valid: it may touch or cross itself.");
    row("beyond the axis", "revolve", R"({"x": -1, "y": 0}, {"x": 2, "y": 0}, {"x": 1, "y": 1})",
        "a: its profile extends to x = -1, but has to lie at x = 0 or above: the axis is at "
        "x = 0.");
    row("arc beyond the axis", "revolve",
        R"({"x": 0, "y": 0, "viaX": -2, "viaY": 2}, {"x": 4, "y": 0}, {"x": 0, "y": 4})",
        "a: its profile extends to x = -2, but has to lie at x = 0 or above: the axis is at "
        "x = 0.");
    row("corner without a value", "extrude",
        R"({"x": 0, "y": 0}, {"x": "w", "y": 0}, {"x": 1, "y": 1})",
        "a: the coordinate \"w\" of a point has no value: Position 1: the name 'w' is unknown.");
}

void tst_Profiles::CornersTakeExpressions()
{
    const EmptyDesignStores stores;
    StoreScalar("w", 6.0);
    StoreScalar("h", 9.0);
    const Mass built =
        Built(Profiled("extrude", R"("length": 4)",
                       R"({"x": 0, "y": 0}, {"x": "w", "y": 0}, {"x": 0, "y": "h"})"));
    QVERIFY2(AreClose(built, Mass{108, {2, 3, 2}}), Shown(built));
}

TARN_TEST_MAIN(tst_Profiles)
#include "tst_Profiles.moc"
