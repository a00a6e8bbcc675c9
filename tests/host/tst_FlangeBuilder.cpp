#include "EmptyDesignStores.h"
#include "FlangeBuilder.h"
#include "GlobalParaMeterMgr.h"
#include "ShapeMeasures.h"
#include "TestCase.h"

#include <TopoDS_Shape.hxx>

#include <cmath>
#include <limits>

class tst_FlangeBuilder : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void TheVolumeIsThatOfTheFormula_data();
    void TheVolumeIsThatOfTheFormula();
    void ThePartStandsWhereItIsToldToStand();
    void TheMeasuresComeFromTheStore();
    void TheFilletMayBeMissingInTheStore();
    void AMissingParameterIsTold();
    void WhatCannotBeIsToldInPlainWords_data();
    void WhatCannotBeIsToldInPlainWords();
    void WhatJustFitsIsBuilt_data();
    void WhatJustFitsIsBuilt();
};

static const double Pi = std::acos(-1.0);

static FlangeDimensions Flange()
{
    FlangeDimensions flange;
    flange.outerDiameter = 200.0;
    flange.boreDiameter = 70.0;
    flange.thickness = 20.0;
    flange.boltCircle = 156.0;
    flange.boltCount = 4.0;
    flange.boltHole = 18.0;
    flange.hubDiameter = 112.0;
    flange.hubHeight = 30.0;
    flange.filletRadius = 5.0;
    return flange;
}

static double Squared(double x)
{
    return x * x;
}

// Plate and hub less bore and holes, and the ring that the fillet fills between hub and plate.
static double Volume(const FlangeDimensions& f)
{
    const double plate =
        Squared(f.outerDiameter) - Squared(f.boreDiameter) - f.boltCount * Squared(f.boltHole);
    const double hub = Squared(f.hubDiameter) - Squared(f.boreDiameter);
    const double r = f.filletRadius;
    const double ring =
        2.0 * Pi *
        ((f.hubDiameter / 2.0 + r) * Squared(r) * (1.0 - Pi / 4.0) - Squared(r) * r / 6.0);
    return Pi / 4.0 * (plate * f.thickness + hub * f.hubHeight) + ring;
}

static QString Reason(const FlangeDimensions& flange)
{
    try {
        FlangeBuilder::Check(flange);
    } catch (const BuildError& error) {
        return error.Reason();
    }
    return "nothing is wrong";
}

static void Store(const char* name, double value)
{
    ParametersDef record;
    record.m_strName = name;
    record.m_nType = 1;
    record.m_dValue = value;
    GlobalParaMeterMgr::AddParameter(name, record);
}

static void StoreFlange()
{
    const FlangeDimensions flange = Flange();
    Store("outer_diameter", flange.outerDiameter);
    Store("bore_diameter", flange.boreDiameter);
    Store("thickness", flange.thickness);
    Store("bolt_circle", flange.boltCircle);
    Store("bolt_count", flange.boltCount);
    Store("bolt_hole", flange.boltHole);
    Store("hub_diameter", flange.hubDiameter);
    Store("hub_height", flange.hubHeight);
    Store("fillet_radius", flange.filletRadius);
}

void tst_FlangeBuilder::TheVolumeIsThatOfTheFormula_data()
{
    QTest::addColumn<double>("count");
    QTest::addColumn<double>("fillet");
    QTest::newRow("one hole") << 1.0 << 0.0;
    QTest::newRow("four holes") << 4.0 << 0.0;
    QTest::newRow("seven holes") << 7.0 << 0.0;
    QTest::newRow("four holes, fillet") << 4.0 << 5.0;
    QTest::newRow("two holes, large fillet") << 2.0 << 12.0;
}

void tst_FlangeBuilder::TheVolumeIsThatOfTheFormula()
{
    QFETCH(double, count);
    QFETCH(double, fillet);
    FlangeDimensions flange = Flange();
    flange.boltCount = count;
    flange.filletRadius = fillet;
    const double expected = Volume(flange);
    const double built = Measure(FlangeBuilder::Build(flange)).volume;
    QVERIFY2(std::abs(built - expected) <= 1e-9 * expected,
             qPrintable(
                 QString("built %1, formula %2").arg(built, 0, 'g', 17).arg(expected, 0, 'g', 17)));
}

void tst_FlangeBuilder::ThePartStandsWhereItIsToldToStand()
{
    const std::array<double, 6> expected = {-100.0, -100.0, 0.0, 100.0, 100.0, 50.0};
    const ShapeMeasures measures = Measure(FlangeBuilder::Build(Flange()));
    for (std::size_t i = 0; i < expected.size(); ++i)
        QVERIFY(std::abs(measures.boundingBox[i] - expected[i]) < 1e-6);
}

void tst_FlangeBuilder::TheMeasuresComeFromTheStore()
{
    const EmptyDesignStores stores;
    StoreFlange();
    // What expressions see counts: the raw value.
    GlobalParaMeterMgr::m_nameMapParameters["thickness"].m_varRawValue = 25.0;
    FlangeDimensions flange = Flange();
    flange.thickness = 25.0;
    const double built = Measure(FlangeBuilder::BuildFromStore()).volume;
    QVERIFY(std::abs(built - Volume(flange)) <= 1e-9 * built);
}

void tst_FlangeBuilder::TheFilletMayBeMissingInTheStore()
{
    const EmptyDesignStores stores;
    StoreFlange();
    GlobalParaMeterMgr::m_nameMapParameters.erase("fillet_radius");
    QCOMPARE(FlangeBuilder::ReadDimensions().filletRadius, 0.0);
}

void tst_FlangeBuilder::AMissingParameterIsTold()
{
    const EmptyDesignStores stores;
    StoreFlange();
    GlobalParaMeterMgr::m_nameMapParameters.erase("bolt_hole");
    try {
        FlangeBuilder::BuildFromStore();
        QFAIL("The part was built.");
    } catch (const BuildError& error) {
        QCOMPARE(error.what(), "There is no parameter \"bolt_hole\".");
    }
    QCOMPARE(GlobalParaMeterMgr::m_nameMapParameters.count("bolt_hole"), std::size_t(0));
}

using Member = double FlangeDimensions::*;
Q_DECLARE_METATYPE(Member)

void tst_FlangeBuilder::WhatCannotBeIsToldInPlainWords_data()
{
    QTest::addColumn<Member>("member");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, Member member, double value, const char* reason) {
        QTest::newRow(name) << member << value << QString(reason);
    };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    using F = FlangeDimensions;
    row("NaN", &F::thickness, nan, "The thickness has no finite value.");
    row("infinite", &F::outerDiameter, infinity, "The outer diameter has no finite value.");
    row("NaN fillet", &F::filletRadius, nan, "The fillet radius has no finite value.");
    row("thickness 0", &F::thickness, 0.0, "The thickness (0) has to be above 0.");
    row("negative hub height", &F::hubHeight, -1.0, "The hub height (-1) has to be above 0.");
    row("negative fillet", &F::filletRadius, -5.0, "The fillet radius (-5) has to be above 0.");
    row("bore 0", &F::boreDiameter, 0.0, "The bore (0) has to be above 0.");
    row("bolt circle 0", &F::boltCircle, 0.0, "The bolt circle (0) has to be above 0.");
    row("bolt hole 0", &F::boltHole, 0.0, "The bolt hole (0) has to be above 0.");
    row("hub diameter 0", &F::hubDiameter, 0.0, "The hub diameter (0) has to be above 0.");
    row("too small", &F::thickness, 1e-300,
        "The thickness (1e-300 mm) has to be from 0.01 to 100000 mm.");
    row("too great", &F::outerDiameter, 1e300,
        "The outer diameter (1e+300 mm) has to be from 0.01 to 100000 mm.");
    row("no holes", &F::boltCount, 0.0,
        "The number of bolt holes (0) has to be a whole number from 1 to 360.");
    row("two and a half holes", &F::boltCount, 2.5,
        "The number of bolt holes (2.5) has to be a whole number from 1 to 360.");
    row("a million holes", &F::boltCount, 1e6,
        "The number of bolt holes (1e+06) has to be a whole number from 1 to 360.");
    row("NaN holes", &F::boltCount, nan,
        "The number of bolt holes (nan) has to be a whole number from 1 to 360.");
    row("bore larger than the flange", &F::boreDiameter, 250.0,
        "The bore (250) is not smaller than the flange (200).");
    row("bore as large as the hub", &F::boreDiameter, 112.0,
        "The bore (112) is not smaller than the hub (112).");
    row("hub as large as the flange", &F::hubDiameter, 200.0,
        "The hub (200) is not smaller than the flange (200).");
    row("fillet higher than the hub", &F::hubHeight, 5.0,
        "The fillet radius (5) is not smaller than the hub's height (5).");
    row("fillet wider than the plate", &F::hubDiameter, 190.0,
        "The fillet around the hub reaches outside the flange.");
    row("holes outside", &F::boltCircle, 182.0,
        "The bolt holes (18 on a circle of 182) reach outside the flange (200).");
    row("holes in the fillet", &F::boltCircle, 140.0,
        "The bolt holes (18 on a circle of 140) reach into the hub (112) or its fillet.");
    row("holes overlap", &F::boltCount, 28.0,
        "The bolt holes overlap: 28 of 18 on a circle of 156.");
}

void tst_FlangeBuilder::WhatCannotBeIsToldInPlainWords()
{
    QFETCH(Member, member);
    QFETCH(double, value);
    FlangeDimensions flange = Flange();
    flange.*member = value;
    QTEST(Reason(flange), "reason");
    QVERIFY_EXCEPTION_THROWN(FlangeBuilder::Build(flange), BuildError);
}

void tst_FlangeBuilder::WhatJustFitsIsBuilt_data()
{
    QTest::addColumn<Member>("member");
    QTest::addColumn<double>("value");
    QTest::newRow("bore in the hub") << Member(&FlangeDimensions::boreDiameter) << 111.9;
    QTest::newRow("holes at the rim") << Member(&FlangeDimensions::boltCircle) << 181.9;
    QTest::newRow("holes at the fillet") << Member(&FlangeDimensions::boltCircle) << 140.1;
    QTest::newRow("holes side by side") << Member(&FlangeDimensions::boltCount) << 27.0;
    QTest::newRow("fillet up the hub") << Member(&FlangeDimensions::hubHeight) << 5.1;
    QTest::newRow("thin plate") << Member(&FlangeDimensions::thickness) << 0.1;
}

void tst_FlangeBuilder::WhatJustFitsIsBuilt()
{
    QFETCH(Member, member);
    QFETCH(double, value);
    FlangeDimensions flange = Flange();
    flange.*member = value;
    const double built = Measure(FlangeBuilder::Build(flange)).volume;
    QVERIFY(std::abs(built - Volume(flange)) <= 1e-9 * built);
}

TARN_TEST_MAIN(tst_FlangeBuilder)
#include "tst_FlangeBuilder.moc"
