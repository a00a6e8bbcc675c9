#include "BodyFormulas.h"
#include "EmptyDesignStores.h"
#include "FeatureKind.h"
#include "PartPlan.h"
#include "TestCase.h"

#include <QDir>

class tst_PartPlan : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void FieldsBecomeNumbersAndInputsPlaces();
    void ASuppressedFeatureNeedsNoValues();
    void FilesAreRelativeToTheFolder();
    void AFieldWithoutAValueFailsByName();
};

void tst_PartPlan::FieldsBecomeNumbersAndInputsPlaces()
{
    const EmptyDesignStores stores;
    StoreScalar("size", 4.0);
    const PartPlan plan =
        PlanPart(List(R"({"name": "a", "kind": "box", "fields": {"x": "2 * size"}},
                         {"name": "b", "kind": "sphere"},
                         {"name": "c", "kind": "cut", "inputs": ["b", "a"]})"));
    QCOMPARE(plan.size(), std::size_t(3));
    QCOMPARE(plan[0].name, QString("a"));
    QCOMPARE(plan[0].values[plan[0].kind->IndexOf("x")], 8.0);
    QCOMPARE(plan[2].inputs, std::vector<int>({1, 0}));
    QVERIFY(plan[2].values.empty());
}

void tst_PartPlan::ASuppressedFeatureNeedsNoValues()
{
    const EmptyDesignStores stores;
    const PartPlan plan = PlanPart(
        List(R"({"name": "a", "kind": "box", "suppressed": true, "fields": {"x": "nuts"}})"));
    QVERIFY(plan[0].suppressed);
    QVERIFY(plan[0].values.empty());
}

void tst_PartPlan::FilesAreRelativeToTheFolder()
{
    const EmptyDesignStores stores;
    const FeatureList list = List(R"({"name": "a", "kind": "import", "file": "x/a.step"},
                                     {"name": "b", "kind": "import", "file": "/y/b.step"})");
    const PartPlan plan = PlanPart(list, "/parts");
    QCOMPARE(plan[0].file, QString("/parts/x/a.step"));
    QCOMPARE(plan[1].file, QString("/y/b.step"));
    // A worker may have another working directory.
    QVERIFY(QDir::isAbsolutePath(PlanPart(list, "parts")[0].file));
}

void tst_PartPlan::AFieldWithoutAValueFailsByName()
{
    const EmptyDesignStores stores;
    try {
        PlanPart(List(R"({"name": "a", "kind": "box", "fields": {"x": "nuts"}})"));
        QFAIL("It was planned.");
    } catch (const FeatureError& error) {
        QCOMPARE(error.FeatureName(), QString("a"));
        QVERIFY2(error.Cause().contains("nuts"), qPrintable(error.Cause()));
    }
}

TARN_TEST_MAIN(tst_PartPlan)
#include "tst_PartPlan.moc"
