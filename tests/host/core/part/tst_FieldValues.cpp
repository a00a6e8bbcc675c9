#include "BuildError.h"
#include "EmptyDesignStores.h"
#include "FieldValues.h"
#include "NewFeature.h"
#include "TestCase.h"

#include <cmath>
#include <limits>

class tst_FieldValues : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TextsAreEvaluated_data();
    void TextsAreEvaluated();
    void TheStoreIsReadWhenTheValuesAreMade();
    void TheDecimalSignIsTheFullStopUnderEveryLocale();
    void AMissingValueNamesTheField_data();
    void AMissingValueNamesTheField();
    void ReferencesAreEvaluated();
    void APointWithoutAValueIsReported_data();
    void APointWithoutAValueIsReported();
};

static void Store(const char* name, int type, double value)
{
    ParametersDef record;
    record.m_strName = name;
    record.m_nType = type;
    record.m_dValue = value;
    GlobalParaMeterMgr::AddParameter(name, record);
}

// A raw value that differs, a Bool, a Vector, and values that are not numbers.
static void FillStore()
{
    Store("width", 1, 5.0);
    Store("raw", 1, 5.0);
    GlobalParaMeterMgr::m_nameMapParameters["raw"].m_varRawValue = 7.0;
    Store("flag", 0, 1.0);
    Store("宽", 1, 3.0);
    Store("vector", 2, 4.0);
    Store("bad", 1, std::numeric_limits<double>::quiet_NaN());
    Store("endless", 1, std::numeric_limits<double>::infinity());
}

static Feature BoxOf(const QString& text)
{
    Feature box(KindOf("box"));
    box.name = "plate";
    box.fields[1] = text;
    return box;
}

void tst_FieldValues::TextsAreEvaluated_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("number") << "12.5" << 12.5;
    QTest::newRow("blanks") << " 5 " << 5.0;
    QTest::newRow("power of ten") << "1e+03" << 1000.0;
    QTest::newRow("parameter") << "width" << 5.0;
    QTest::newRow("raw value") << "raw" << 7.0;
    QTest::newRow("Bool") << "flag ? 2 : 3" << 2.0;
    QTest::newRow("name beyond ASCII") << "2 * 宽" << 6.0;
    QTest::newRow("formula") << "width / 2 + sqrt(16)" << 6.5;
    QTest::newRow("constant") << "pi" << std::acos(-1.0);
}

void tst_FieldValues::TextsAreEvaluated()
{
    const EmptyDesignStores stores;
    FillStore();
    QFETCH(QString, text);
    FieldValues values;
    const std::vector<double> box = values.Of(BoxOf(text));
    // Its sides and its placement.
    QCOMPARE(box.size(), std::size_t(9));
    QCOMPARE(box[0], 10.0);
    QTEST(box[1], "value");
    QTEST(values.Evaluate(text), "value");
}

void tst_FieldValues::TheStoreIsReadWhenTheValuesAreMade()
{
    const EmptyDesignStores stores;
    FillStore();
    FieldValues before;
    Store("width", 1, 8.0);
    QCOMPARE(before.Evaluate("width"), 5.0);
    QCOMPARE(FieldValues().Evaluate("width"), 8.0);
    // Evaluating an unknown name enters none.
    QVERIFY(std::isnan(before.Evaluate("unknown")));
    QCOMPARE(GlobalParaMeterMgr::m_nameMapParameters.count("unknown"), std::size_t(0));
}

void tst_FieldValues::TheDecimalSignIsTheFullStopUnderEveryLocale()
{
    const EmptyDesignStores stores;
    UseLocale("de_DE.UTF-8");
    QCOMPARE(FieldValues().Evaluate("2.5"), 2.5);
    QVERIFY(std::isnan(FieldValues().Evaluate("2,5")));
}

void tst_FieldValues::AMissingValueNamesTheField_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const char* text, const char* reason) {
        QTest::newRow(name) << QString(text) << QString("plate: Size y %1").arg(reason);
    };
    row("empty", "", R"(("") has no value: Position 1: the expression is empty.)");
    row("a word", "abc", R"(("abc") has no value: Position 1: the name 'abc' is unknown.)");
    row("nan", "nan", R"(("nan") has no value: Position 1: the name 'nan' is unknown.)");
    row("a Vector", "vector",
        R"(("vector") has no value: Position 1: the name 'vector' is unknown.)");
    row("NaN", "bad", R"(("bad") has no value: Position 1: the value of 'bad' is not finite.)");
    row("infinite", "endless",
        R"(("endless") has no value: Position 1: the value of 'endless' is not finite.)");
    row("number below", "-2", "is -2, but has to be from 0.0001 to 1000000 mm.");
    row("formula below", "width - 5",
        R"(("width - 5") is 0, but has to be from 0.0001 to 1000000 mm.)");
    row("number above", "1e7", "is 1e+07, but has to be from 0.0001 to 1000000 mm.");
    row("two lines", "width\n- 9",
        R"(("width - 9") is -4, but has to be from 0.0001 to 1000000 mm.)");
}

void tst_FieldValues::AMissingValueNamesTheField()
{
    const EmptyDesignStores stores;
    FillStore();
    QFETCH(QString, text);
    QString reason = "it has a value";
    try {
        FieldValues().Of(BoxOf(text));
    } catch (const FeatureError& error) {
        reason = error.Reason();
        QCOMPARE(error.FeatureName(), QString("plate"));
        QCOMPARE("plate: " + error.Cause(), reason);
    }
    QTEST(reason, "reason");
}

void tst_FieldValues::ReferencesAreEvaluated()
{
    const EmptyDesignStores stores;
    FillStore();
    FieldValues values;
    const FaceReference named = {"plate.zmax", {}};
    const FaceReference point = {"", {"width / 2", "-1", "宽"}};
    QCOMPARE(values.Of(named).name, named.name);
    QVERIFY(values.Of(point) == (FaceTarget{"", {2.5, -1, 3}}));
    const EdgeTarget between = values.Of(EdgeReference{{named, point}, {}});
    QVERIFY(between == (EdgeTarget{{values.Of(named), values.Of(point)}, {}}));
    QVERIFY(values.Of(EdgeReference{{}, {"1", "2", "width"}}) == (EdgeTarget{{}, {1, 2, 5}}));
}

void tst_FieldValues::APointWithoutAValueIsReported_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reason");
    QTest::newRow("unknown name")
        << "depth"
        << "the coordinate \"depth\" of a point has no value: Position 1: the name "
           "'depth' is unknown.";
    QTest::newRow("too large") << "1e7"
                               << "the coordinate \"1e7\" of a point is 1e+07, but has to be "
                                  "from -1000000 to 1000000 mm.";
}

void tst_FieldValues::APointWithoutAValueIsReported()
{
    const EmptyDesignStores stores;
    FillStore();
    QFETCH(QString, text);
    QString reason;
    try {
        FieldValues().Of(FaceReference{"", {"1", text, "1"}});
    } catch (const BuildError& error) {
        reason = error.Reason();
    }
    QTEST(reason, "reason");
}

TARN_TEST_MAIN(tst_FieldValues)
#include "tst_FieldValues.moc"
