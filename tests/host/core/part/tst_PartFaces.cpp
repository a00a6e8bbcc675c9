#include "FeatureKinds.h"
#include "NamedWalls.h"
#include "TestCase.h"

class tst_PartFaces : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void EveryKindNamesItsFaces_data();
    void EveryKindNamesItsFaces();
    void LaterFeaturesHandNamesOn_data();
    void LaterFeaturesHandNamesOn() { EveryKindNamesItsFaces(); }
    void AFaceKnowsItsNamesAndFeatures();
    void SlashesInNamesOfFeaturesAreUnderstood();
    void SharedFacesOfTheWholePartBearAllNames();
    void TargetsThatMeanNothingAreReported_data();
    void TargetsThatMeanNothingAreReported();
    void EdgesAreFoundBetweenFaces_data();
    void EdgesAreFoundBetweenFaces();
};

void tst_PartFaces::EveryKindNamesItsFaces_data()
{
    AddWallColumns();
    AddWalls("box", Brick,
             {{"a.xmin", Flat, {0, 10, 15}},
              {"a.xmax", Flat, {10, 10, 15}},
              {"a.ymin", Flat, {5, 0, 15}},
              {"a.ymax", Flat, {5, 20, 15}},
              {"a.zmin", Flat, {5, 10, 0}},
              {"a.zmax", Flat, {5, 10, 30}}});
    AddWalls("wedge", Single("wedge", ""),
             {{"a.xmin", Flat, {2.5, 15, 14.5}},
              {"a.xmax", Flat, {17.5, 15, 14.5}},
              {"a.ymin", Flat, {10, 0, 15}},
              {"a.ymax", Flat, {10, 30, 14}},
              {"a.zmin", Flat, {10, 15, 4}},
              {"a.zmax", Flat, {10, 15, 25}}});
    AddWalls("cylinder", Single("cylinder", ""),
             {{"a.side", Cylindrical, {-10, 0, 5}},
              {"a.bottom", Flat, {1, 1, 0}},
              {"a.top", Flat, {1, 1, 10}}});
    AddWalls("half a cylinder", Single("cylinder", R"("angle": 180)"),
             {{"a.side", Cylindrical, {0, 10, 5}},
              {"a.bottom", Flat, {1, 1, 0}},
              {"a.top", Flat, {1, 1, 10}},
              {"a.start", Flat, {5, 0, 5}},
              {"a.end", Flat, {-5, 0, 5}}});
    AddWalls("cone", Single("cone", R"("angle": 90)"),
             {{"a.side", Conical, {7.5 * Half, 7.5 * Half, 5}},
              {"a.bottom", Flat, {1, 1, 0}},
              {"a.top", Flat, {1, 1, 10}},
              {"a.start", Flat, {3, 0, 5}},
              {"a.end", Flat, {0, 3, 5}}});
    AddWalls("cone with a tip", Single("cone", R"("topRadius": 0)"),
             {{"a.side", Conical, {-5, 0, 5}}, {"a.bottom", Flat, {1, 1, 0}}});
    AddWalls("cone without slope", Single("cone", R"("topRadius": 10)"),
             {{"a.side", Cylindrical, {-10, 0, 5}},
              {"a.bottom", Flat, {1, 1, 0}},
              {"a.top", Flat, {1, 1, 10}}});
    AddWalls("sphere", Single("sphere", ""), {{"a.side", Spherical, {-10, 0, 0}}});
    AddWalls("part of a sphere", Single("sphere", R"("angle1": -30, "angle2": 30, "angle3": 90)"),
             {{"a.side", Spherical, {10 * Half, 10 * Half, 0}},
              {"a.bottom", Flat, {1, 1, -5}},
              {"a.top", Flat, {1, 1, 5}},
              {"a.start", Flat, {5, 0, 0}},
              {"a.end", Flat, {0, 5, 0}}});
    AddWalls("torus", Single("torus", ""), {{"a.side", Toroidal, {-13, 0, 0}}});
    AddWalls("part of a torus", Single("torus", R"("angle1": -90, "angle2": 90, "angle3": 90)"),
             {{"a.side", Toroidal, {13 * Half, 13 * Half, 0}},
              {"a.bottom", Flat, {1, 1, -3}},
              {"a.top", Flat, {1, 1, 3}},
              {"a.start", Flat, {5, 0, 0}},
              {"a.end", Flat, {0, 5, 0}}});
    const double middle = 10 * std::cos(Pi / 4) * Half;
    AddWalls("polygon", Single("polygon", R"("edges": 4)"),
             {{"a.bottom", Flat, {1, 1, 0}},
              {"a.top", Flat, {1, 1, 10}},
              {"a.side", Flat, {middle, middle, 5}, 4},
              {"a.side1", Flat, {middle, middle, 5}},
              {"a.side2", Flat, {-middle, middle, 5}},
              {"a.side3", Flat, {-middle, -middle, 5}},
              {"a.side4", Flat, {middle, -middle, 5}}});
    AddWalls("placed", Single("box", R"("moveX": 5, "turnZ": 90)"),
             {{"a.xmax", Flat, {0, 10, 5}}, {"a.ymin", Flat, {5, 5, 5}}});
    AddWalls("extruded profile",
             R"({"name": "a", "kind": "extrude", "fields": {"length": 4},
                 "profile": [{"x": 0, "y": 0}, {"x": 8, "y": 0}, {"x": 0, "y": 0.5, "viaX": 4, "viaY": 6}]})",
             {{"a.bottom", Flat, {4, 1, 0}},
              {"a.top", Flat, {4, 1, 4}},
              {"a.side1", Flat, {4, 0, 2}},
              {"a.side2", Cylindrical, {4, 6, 2}},
              {"a.side3", Flat, {0, 0.2, 2}}});
    AddWalls("revolved profile", Single("revolve", R"("angle": 90)"),
             {{"a.side1", Flat, {3, 3, 0}},
              {"a.side2", Cylindrical, {10 * Half, 10 * Half, 5}},
              {"a.side3", Flat, {3, 3, 10}},
              {"a.start", Flat, {5, 0, 5}},
              {"a.end", Flat, {0, 5, 5}},
              {"a.side4", Flat, {}, 0}});
    AddWalls("revolved profile, full turn", Single("revolve", ""),
             {{"a.side1", Flat, {5, 0, 0}},
              {"a.side2", Cylindrical, {-10, 0, 5}},
              {"a.side3", Flat, {5, 0, 10}},
              {"a.side4", Flat, {}, 0}});
    AddWalls("ring of two steps",
             R"({"name": "a", "kind": "revolve",
                 "profile": [{"x": 2, "y": 0}, {"x": 5, "y": 0}, {"x": 8, "y": 0}, {"x": 8, "y": 3}, {"x": 2, "y": 3}]})",
             {{"a.side1", Flat, {3, 0, 0}},
              {"a.side2", Flat, {7, 0, 0}},
              {"a.side3", Cylindrical, {-8, 0, 1}},
              {"a.side4", Flat, {7, 0, 3}},
              {"a.side5", Cylindrical, {-2, 0, 1}}});
    AddWalls("ring",
             R"({"name": "a", "kind": "revolve",
                 "profile": [{"x": 5, "y": 0, "viaX": 7, "viaY": 2}, {"x": 9, "y": 0, "viaX": 7, "viaY": -2}]})",
             {{"a.side", Toroidal, {7, 0, 2}, 2},
              {"a.side1", Toroidal, {7, 0, -2}},
              {"a.side2", Toroidal, {7, 0, 2}},
              {"a.start", Flat, {}, 0}});
    for (const FeatureKind& kind : FeatureKinds::All()) {
        if (kind.group == FeatureGroup::Body)
            AddWalls("all of " + QByteArray(kind.word.data()), Single(kind.word.data(), ""), {});
    }
}

void tst_PartFaces::EveryKindNamesItsFaces()
{
    CheckWalls();
}

void tst_PartFaces::LaterFeaturesHandNamesOn_data()
{
    AddWallColumns();
    const QByteArray pin = R"(, {"name": "pin", "kind": "cylinder",
                                 "fields": {"radius": 2, "height": 40}})";
    const QByteArray placed = pin + R"(, {"name": "p", "kind": "move", "inputs": ["pin"],
                                          "fields": {"dx": 5, "dy": 10, "dz": 1}})";
    AddWalls("move", OnBrick("move", R"("dx": 100)"),
             {{"a.xmax", Flat, {110, 10, 15}}, {"b/a.zmin", Flat, {105, 10, 0}}});
    AddWalls("rotate", OnBrick("rotate", R"("angle": 90)"),
             {{"a.xmax", Flat, {-10, 10, 15}}, {"b/a.ymax", Flat, {-20, 5, 15}}});
    AddWalls("mirror at a point", OnBrick("mirrorPoint", ""), {{"a.xmax", Flat, {-10, -10, -15}}});
    AddWalls("mirror at an axis", OnBrick("mirrorAxis", ""), {{"a.xmax", Flat, {-10, -10, 15}}});
    AddWalls("mirror at a face", OnBrick("mirrorFace", R"("x": 10, "y": 5, "z": 5)"),
             {{"a.xmin", Flat, {20, 10, 15}}, {"b/a.ymax", Flat, {15, 20, 15}}});
    AddWalls("polar array", OnBrick("polarArray", R"("x": -50)"),
             {{"a.xmax", Flat, {10, 10, 15}, 4}, {"b/a.xmin", Flat, {0, 10, 15}, 4}});
    AddWalls("rectangular array", OnBrick("rectangularArray", ""),
             {{"a.xmax", Flat, {210, 310, 15}, 20}});
    AddWalls("cut", Brick + placed + R"(, {"name": "c", "kind": "cut", "inputs": ["a", "p"]})",
             {{"pin.side", Cylindrical, {3, 10, 15}},
              {"pin.bottom", Flat, {5, 10, 1}},
              {"p/pin.side", Cylindrical, {3, 10, 15}},
              {"c/p/pin.side", Cylindrical, {3, 10, 15}},
              {"a.zmax", Flat, {1, 1, 30}},
              {"a.xmin", Flat, {0, 10, 15}}});
    AddWalls("a face cut in two",
             Brick + R"(, {"name": "slot", "kind": "box", "fields": {"x": 10, "y": 4, "z": 40}},
                        {"name": "s", "kind": "move", "inputs": ["slot"], "fields": {"dy": 8, "dz": 20}},
                        {"name": "c", "kind": "cut", "inputs": ["a", "s"]})",
             {{"a.zmax", Flat, {5, 1, 30}, 2}, {"slot.zmin", Flat, {5, 10, 20}}});
    AddWalls("fuse", Brick + placed + R"(, {"name": "f", "kind": "fuse", "inputs": ["a", "p"]})",
             {{"pin.side", Cylindrical, {3, 10, 35}},
              {"pin.top", Flat, {5, 10, 41}},
              {"a.zmax", Flat, {1, 1, 30}}});
    AddWalls("faces at the same place",
             Brick + R"(, {"name": "b", "kind": "box", "fields": {"x": 4, "y": 4, "z": 4}},
                        {"name": "f", "kind": "fuse", "inputs": ["a", "b"]})",
             {{"a.zmin", Flat, {9, 9, 0}}, {"b.zmin", Flat, {9, 9, 0}}});
    AddWalls("fillet", OnBrick("fillet", R"("radius": 2, "z": 15)"),
             {{"b.round", Cylindrical, {2 - 2 * Half, 2 - 2 * Half, 15}},
              {"a.xmin", Flat, {0, 10, 15}},
              {"a.ymin", Flat, {5, 0, 15}},
              {"a.zmax", Flat, {5, 5, 30}}});
    AddWalls("fillet of edges by names",
             Brick + R"(, {"name": "b", "kind": "fillet", "inputs": ["a"], "fields": {"radius": 1},
                           "edges": [{"between": ["a.zmax", "a.xmin"]}, {"between": ["a.zmax", "a.xmax"]},
                                     {"between": ["a.zmax", "a.ymin"]}, {"between": ["a.zmax", "a.ymax"]}]})",
             {{"a.zmax", Flat, {5, 10, 30}}, {"a.xmin", Flat, {0, 10, 15}}});
    AddWalls("chamfer", OnBrick("chamfer", R"("distance": 2, "z": 15)"),
             {{"b.bevel", Flat, {1, 1, 15}},
              {"a.xmin", Flat, {0, 10, 15}},
              {"a.ymin", Flat, {5, 0, 15}}});
    AddWalls("common",
             Brick + placed + R"(, {"name": "c", "kind": "common", "inputs": ["a", "p"]})",
             {{"pin.side", Cylindrical, {3, 10, 15}},
              {"pin.bottom", Flat, {5, 10, 1}},
              {"a.zmax", Flat, {5, 10, 30}}});
    AddWalls("mirror at a face by its name",
             Brick + R"(, {"name": "b", "kind": "mirrorFace", "inputs": ["a"], "face": "a.xmax"})",
             {{"b/a.xmin", Flat, {20, 10, 15}}});
    AddWalls("faces that become one",
             A10 + R"(, {"name": "b", "kind": "box", "fields": {"moveX": 10}},
                        {"name": "f", "kind": "fuse", "inputs": ["a", "b"]})",
             {{"a.zmax", Flat, {15, 5, 10}},
              {"b.zmax", Flat, {5, 5, 10}},
              {"b.xmax", Flat, {20, 5, 5}},
              {"a.xmax", Flat, {}, 0}});
    AddWalls("fillet of nothing", OnBrick("fillet", R"("radius": 0, "z": 15)"),
             {{"b/a.xmin", Flat, {0, 10, 15}}});
    AddWalls("two instances are told apart by a feature",
             Brick + R"(, {"name": "right", "kind": "move", "inputs": ["a"], "fields": {"dx": 50}},
                        {"name": "f", "kind": "fuse", "inputs": ["a", "right"]})",
             {{"a.zmax", Flat, {5, 5, 30}, 2}, {"right/a.zmax", Flat, {55, 5, 30}}});
    AddWalls("suppressed features hand on their first input",
             Brick + R"(, {"name": "b", "kind": "move", "inputs": ["a"], "suppressed": true,
                           "fields": {"dx": 50}},
                        {"name": "c", "kind": "move", "inputs": ["b"], "fields": {"dx": 1}})",
             {{"c/a.xmin", Flat, {1, 10, 15}}, {"a.xmin", Flat, {1, 10, 15}}});
}

void tst_PartFaces::AFaceKnowsItsNamesAndFeatures()
{
    const EmptyDesignStores stores;
    const BuiltPart part =
        FeatureBuilder::Build(List(Single("polygon", R"("edges": 4)") +
                                   R"(, {"name": "b", "kind": "move", "inputs": ["a"]},
                  {"name": "c", "kind": "mirrorPoint", "inputs": ["b"]})"));
    const PartFaces faces(part);
    const int face = faces.Named(PartFaces::WholePart, "a.side3").at(0);
    QCOMPARE(faces.NamesOf(PartFaces::WholePart, face), QStringList({"a.side", "a.side3"}));
    QCOMPARE(faces.NamesOf(2, face), QStringList({"a.side", "a.side3"}));
    QCOMPARE(faces.FeaturesOf(2, face), QStringList({"a", "b", "c"}));
    QCOMPARE(faces.FeaturesOf(0, faces.Named(0, "a.side3").at(0)), QStringList({"a"}));
}

void tst_PartFaces::SlashesInNamesOfFeaturesAreUnderstood()
{
    const EmptyDesignStores stores;
    const BuiltPart part = FeatureBuilder::Build(List(R"({"name": "left/arm.1", "kind": "box"},
                {"name": "a/b", "kind": "move", "inputs": ["left/arm.1"]},
                {"name": "b", "kind": "move", "inputs": ["a/b"]})"));
    const PartFaces faces(part);
    for (const char* const name :
         {"left/arm.1.xmin", "a/b/left/arm.1.xmin", "b/left/arm.1.xmin", "b/a/b/left/arm.1.xmin"})
        QCOMPARE(faces.Named(PartFaces::WholePart, name).size(), std::size_t(1));
    for (const char* const name :
         {"", "xmin", "arm.1.xmin", "a/left/arm.1.xmin", "a/b/b/left/arm.1.xmin", "/", "b/",
          "left/arm.1.", "left/arm.1.side", "////////////////////////////////////////////////"})
        QVERIFY2(faces.Named(PartFaces::WholePart, name).empty(), name);
}

void tst_PartFaces::SharedFacesOfTheWholePartBearAllNames()
{
    const EmptyDesignStores stores;
    // Equal features have the same result.
    const BuiltPart part = FeatureBuilder::Build(List(A10 + R"(, {"name": "b", "kind": "box"})"));
    const PartFaces faces(part);
    QCOMPARE(Count(part.shape, TopAbs_FACE), 6);
    const std::vector<int> found = faces.Named(PartFaces::WholePart, "b.xmax");
    QCOMPARE(found, faces.Named(PartFaces::WholePart, "a.xmax"));
    QCOMPARE(faces.NamesOf(PartFaces::WholePart, found.at(0)), QStringList({"a.xmax", "b.xmax"}));
    QVERIFY(faces.Named(0, "b.xmax").empty());
}

void tst_PartFaces::TargetsThatMeanNothingAreReported_data()
{
    QTest::addColumn<FaceTarget>("first");
    QTest::addColumn<FaceTarget>("second"); // Null for a face alone.
    QTest::addColumn<QString>("reason");
    const auto point = [](double x, double y, double z) {
        return FaceTarget{QString(), {x, y, z}};
    };
    QTest::newRow("name") << FaceTarget{"b.xmin", {}} << FaceTarget{"-", {}}
                          << "the part has no face \"b.xmin\".";
    QTest::newRow("point") << point(5, 5, 5) << FaceTarget{"-", {}}
                           << "no face lies at the point (5, 5, 5).";
    QTest::newRow("point on an edge")
        << point(0, 0, 5) << FaceTarget{"-", {}}
        << "several faces meet at the point (0, 0, 5); choose a point that lies on one face only.";
    QTest::newRow("name beside an edge") << FaceTarget{"a.xmin", {}} << FaceTarget{"a.side", {}}
                                         << "the part has no face \"a.side\".";
    QTest::newRow("faces apart") << FaceTarget{"a.xmin", {}} << FaceTarget{"a.xmax", {}}
                                 << "the faces \"a.xmin\" and \"a.xmax\" have no edge in common.";
    QTest::newRow("a face and itself")
        << FaceTarget{"a.xmin", {}} << point(0, 5, 5)
        << "the faces \"a.xmin\" and (0, 5, 5) have no edge in common.";
}

void tst_PartFaces::TargetsThatMeanNothingAreReported()
{
    const EmptyDesignStores stores;
    QFETCH(FaceTarget, first);
    QFETCH(FaceTarget, second);
    const BuiltPart part = FeatureBuilder::Build(List(A10));
    const PartFaces faces(part);
    QString reason;
    try {
        if (second.name == "-")
            faces.Faces(PartFaces::WholePart, first);
        else
            faces.Edges(PartFaces::WholePart, {{first, second}, {}});
    } catch (const BuildError& error) {
        reason = error.Reason();
    }
    QTEST(reason, "reason");
}

void tst_PartFaces::EdgesAreFoundBetweenFaces_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<EdgeTarget>("target");
    QTest::addColumn<int>("count");
    const auto row = [](const char* name, const QByteArray& list, const FaceTarget& first,
                        const FaceTarget& second, int count) {
        QTest::newRow(name) << list << EdgeTarget{{first, second}, {}} << count;
    };
    const QByteArray cylinder = Single("cylinder", "");
    row("by names", Brick, {"a.xmin", {}}, {"a.zmax", {}}, 1);
    row("by a name and a point", Brick, {"a.xmin", {}}, {"", {5, 10, 30}}, 1);
    row("of a circle, without the seam", cylinder, {"a.side", {}}, {"a.top", {}}, 1);
    row("all sides", Single("polygon", ""), {"a.side", {}}, {"a.side", {}}, 6);
    row("of a pattern", OnBrick("rectangularArray", ""), {"a.xmin", {}}, {"a.zmax", {}}, 20);
    QTest::newRow("by a point") << Brick << EdgeTarget{{}, {0, 0, 15}} << 1;
}

void tst_PartFaces::EdgesAreFoundBetweenFaces()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, list);
    QFETCH(EdgeTarget, target);
    const BuiltPart part = FeatureBuilder::Build(List(list));
    const std::vector<int> edges = PartFaces(part).Edges(PartFaces::WholePart, target);
    QTEST(int(edges.size()), "count");
    QVERIFY(std::is_sorted(edges.begin(), edges.end()));
}

TARN_TEST_MAIN(tst_PartFaces)
#include "tst_PartFaces.moc"
