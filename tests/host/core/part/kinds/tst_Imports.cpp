#include "KindRows.h"
#include "StepFile.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <QDir>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

class tst_Imports : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ImportedBodiesAreUsedLikeOthers();
};

void tst_Imports::ImportedBodiesAreUsedLikeOthers()
{
#ifdef __SANITIZE_ADDRESS__
    // What the kernel's STEP reader and writer keep until the process ends. The suppressions would
    // need the slow unwinder, which takes too long for the other rows.
    const __lsan::ScopedDisabler kernelKeeps;
#endif
    const EmptyDesignStores stores;
    EnterTemporaryDirectory();
    QVERIFY(QDir().mkdir("parts"));
    WriteStepFile(BRepPrimAPI_MakeBox(10.0, 20.0, 30.0).Shape(), "parts/brick.step");
    const FeatureList list = List(R"({"name": "a", "kind": "import", "file": "brick.step"},
                {"name": "b", "kind": "box", "fields": {"x": 5, "y": 20, "z": 30}},
                {"name": "c", "kind": "cut", "inputs": ["a", "b"]})");
    const Mass built = MassOf(FeatureBuilder::Build(list, "parts").shape);
    QVERIFY2(AreClose(built, Moved(Box(5, 20, 30), 5, 0, 0)), Shown(built));

    FeatureList absolute = list;
    Feature import = list.At(0);
    import.file = QDir("parts").absoluteFilePath("brick.step");
    absolute.Replace(0, import);
    QVERIFY(AreClose(MassOf(FeatureBuilder::Build(absolute, "elsewhere").shape), built));

    try {
        FeatureBuilder::Build(list, "elsewhere");
        QFAIL("It was built.");
    } catch (const FeatureError& error) {
        QCOMPARE(error.Reason(), QString("a: brick.step: cannot be opened: No such file or "
                                         "directory"));
        QCOMPARE(error.FeatureName(), QString("a"));
    }
}

TARN_TEST_MAIN(tst_Imports)
#include "tst_Imports.moc"
