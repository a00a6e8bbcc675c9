#include "BodyFormulas.h"
#include "EmptyDesignStores.h"
#include "PartFaces.h"
#include "ResultCache.h"
#include "StepFile.h"
#include "TestCase.h"
#include "TestFiles.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <QDateTime>
#include <QFile>

class tst_ResultCache : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void AResultIsFoundByItsKey();
    void TheOldestGoesFirst();
    void AResultAboveTheWholeSizeIsNotKept();
    void OnlyWhatChangedIsBuilt_data();
    void OnlyWhatChangedIsBuilt();
    void EqualFeaturesAreBuiltOnce();
    void ARenamedFeatureIsNotBuiltAgain();
    void TheSameNameOfAnotherFaceIsBuiltAgain();
    void ASuppressedImportIsNotRead();
    void AnImportIsBuiltAgainAfterItsFileChanged();
    void AFileThatCannotBeReadNeverHasTheSameHash();
};

namespace {

TracedShape Box(double size)
{
    return {BRepPrimAPI_MakeBox(size, size, size).Shape(), {}};
}

/// Builds with one cache, and tells which steps were built.
struct CachedBuilds
{
    QList<int> Build(const QByteArray& json)
    {
        QList<int> built;
        part = FeatureBuilder(cache).Build(PlanPart(List(json)),
                                           [&built](int step) { built << step; });
        return built;
    }

    EmptyDesignStores stores;
    ResultCache cache;
    BuiltPart part;
};

QByteArray Plate(const QByteArray& thickness, const QByteArray& radius, const QByteArray& more = {})
{
    return R"({"name": "plate", "kind": "box", "fields": {"x": 50, "y": 50, "z": )" + thickness +
           R"(}}, {"name": "pin", "kind": "cylinder", "fields": {"radius": )" + radius +
           R"(, "height": 100}}, {"name": "hole", "kind": "cut", "inputs": ["plate", "pin"])" +
           more + "}";
}

} // namespace

void tst_ResultCache::AResultIsFoundByItsKey()
{
    ResultCache cache;
    QVERIFY(cache.Find("a").shape.IsNull());
    const TracedShape box = Box(1.0);
    cache.Keep("a", box);
    QVERIFY(cache.Find("a").shape.IsSame(box.shape));
    QVERIFY(cache.Find("b").shape.IsNull());
}

void tst_ResultCache::TheOldestGoesFirst()
{
    // Three boxes, as large as the cache takes them for.
    constexpr qint64 BoxSize = 40000;
    ResultCache cache(3 * BoxSize);
    for (const char* const key : {"a", "b", "c"})
        cache.Keep(key, Box(1.0));
    QVERIFY(!cache.Find("a").shape.IsNull());
    cache.Keep("d", Box(1.0));
    QVERIFY(!cache.Find("a").shape.IsNull());
    QVERIFY(cache.Find("b").shape.IsNull());
    QVERIFY(!cache.Find("d").shape.IsNull());
}

void tst_ResultCache::AResultAboveTheWholeSizeIsNotKept()
{
    ResultCache cache(1000);
    cache.Keep("a", Box(1.0));
    QVERIFY(cache.Find("a").shape.IsNull());
}

void tst_ResultCache::OnlyWhatChangedIsBuilt_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QList<int>>("built");
    const auto row = [](const char* name, const QByteArray& list, const QList<int>& built) {
        QTest::newRow(name) << list << built;
    };
    row("nothing", Plate("10", "5"), {});
    row("the last", Plate("10", "6"), {1, 2});
    row("the first", Plate("11", "5"), {0, 2});
    row("a text with the same value", Plate("\"2 * 5\"", "5"), {});
    row("suppressed", Plate("10", "5", R"(, "suppressed": true)"), {});
}

void tst_ResultCache::OnlyWhatChangedIsBuilt()
{
    QFETCH(QByteArray, list);
    CachedBuilds builds;
    QCOMPARE(builds.Build(Plate("10", "5")), QList<int>({0, 1, 2}));
    const BuiltPart before = builds.part;
    QTEST(builds.Build(list), "built");
    // The result is that of a build without a cache.
    QCOMPARE(MassOf(builds.part.shape).volume,
             MassOf(FeatureBuilder::Build(List(list)).shape).volume);
    for (std::size_t place = 0; place < before.keys.size(); ++place)
        QCOMPARE(before.keys[place] == builds.part.keys[place],
                 before.shapes[place].IsSame(builds.part.shapes[place]));
}

void tst_ResultCache::EqualFeaturesAreBuiltOnce()
{
    CachedBuilds builds;
    QCOMPARE(builds.Build(A10 + R"(, {"name": "b", "kind": "box"})"), QList<int>({0}));
    QCOMPARE(MassOf(builds.part.shape).volume, 2000.0);
}

void tst_ResultCache::ARenamedFeatureIsNotBuiltAgain()
{
    CachedBuilds builds;
    const QByteArray list = R"({"name": "NAME", "kind": "box"},
        {"name": "b", "kind": "fillet", "inputs": ["NAME"],
         "edges": [{"between": ["NAME.xmin", "NAME.ymin"]}]})";
    QCOMPARE(builds.Build(QByteArray(list).replace("NAME", "a")), QList<int>({0, 1}));
    QCOMPARE(builds.Build(QByteArray(list).replace("NAME", "plate")), QList<int>());
    QCOMPARE(PartFaces(builds.part).Named(PartFaces::WholePart, "plate.zmax").size(),
             std::size_t(1));
}

void tst_ResultCache::TheSameNameOfAnotherFaceIsBuiltAgain()
{
    CachedBuilds builds;
    // Both boxes are equal, so that only their names tell them apart.
    const auto list = [](const QByteArray& first, const QByteArray& second) {
        return R"({"name": ")" + first + R"(", "kind": "box"}, {"name": ")" + second +
               R"(", "kind": "box"}, {"name": "moved", "kind": "move", "inputs": [")" + second +
               R"("], "fields": {"dx": 5, "dy": 5, "dz": 5}},
                 {"name": "both", "kind": "fuse", "inputs": [")" +
               first + R"(", "moved"]}, {"name": "rounded", "kind": "fillet", "inputs": ["both"],
                 "edges": [{"between": ["a.xmin", "a.ymin"]}]})";
    };
    QCOMPARE(builds.Build(list("a", "b")), QList<int>({0, 2, 3, 4}));
    const Mass before = MassOf(builds.part.shape);
    QCOMPARE(builds.Build(list("b", "a")), QList<int>({4}));
    QVERIFY(MassOf(builds.part.shape).centre != before.centre);
}

void tst_ResultCache::ASuppressedImportIsNotRead()
{
    CachedBuilds builds;
    const QByteArray import =
        R"(, {"name": "b", "kind": "import", "file": "/nowhere/b.step", "suppressed": true})";
    QCOMPARE(builds.Build(A10 + import), QList<int>({0}));
}

void tst_ResultCache::AnImportIsBuiltAgainAfterItsFileChanged()
{
    EnterTemporaryDirectory();
    CachedBuilds builds;
    const QByteArray list = R"({"name": "a", "kind": "import", "file": "a.step"})";
    const auto write = [](double size, int age) {
        WriteStepFile(Box(size).shape, "a.step");
        QFile file("a.step");
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addSecs(-age),
                                 QFileDevice::FileModificationTime));
    };
    write(10.0, 100);
    QCOMPARE(builds.Build(list), QList<int>({0}));
    QCOMPARE(builds.Build(list), QList<int>());
    write(20.0, 50);
    QCOMPARE(builds.Build(list), QList<int>({0}));
    QCOMPARE(qRound(MassOf(builds.part.shape).volume), 8000);
    // Within the resolution of the time, and of the same length.
    const QDateTime now = QDateTime::currentDateTime();
    for (const double size : {30.0, 40.0}) {
        write(size, 0);
        QFile file("a.step");
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(now, QFileDevice::FileModificationTime));
        file.close();
        QCOMPARE(builds.Build(list), QList<int>({0}));
        QCOMPARE(qRound(MassOf(builds.part.shape).volume), qRound(size * size * size));
    }
}

void tst_ResultCache::AFileThatCannotBeReadNeverHasTheSameHash()
{
    ResultCache cache;
    QVERIFY(cache.ContentHash("/nowhere/a.step") != cache.ContentHash("/nowhere/a.step"));
}

TARN_TEST_MAIN(tst_ResultCache)
#include "tst_ResultCache.moc"
