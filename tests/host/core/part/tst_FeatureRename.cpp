#include "FeatureRename.h"
#include "TestCase.h"

class tst_FeatureRename : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void NamesOfFacesFollowTheFeature_data();
    void NamesOfFacesFollowTheFeature();
    void ReferencesFollowTheFeature();
};

void tst_FeatureRename::NamesOfFacesFollowTheFeature_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    const auto row = [](const char* before, const char* after) {
        QTest::newRow(before) << QString(before) << QString(after);
    };
    row("arm.xmax", "part.arm.xmax");
    row("right/arm.xmax", "right/part.arm.xmax");
    row("arm/hole.side", "part.arm/hole.side");
    row("right/arm/arm.side12", "right/part.arm/part.arm.side12");
    // Other features whose names contain this one.
    row("arm.2.xmax", "arm.2.xmax");
    row("left/arm.xmax", "left/arm.xmax");
    row("arm/left/arm.xmax", "part.arm/left/arm.xmax");
    row("left/arm/arm.xmax", "left/arm/part.arm.xmax");
    // No names of faces of the features there are.
    row("army.xmax", "army.xmax");
    row("none/arm.xmax", "none/arm.xmax");
    row("arm", "arm");
    row("", "");
    row("/arm.", "/arm.");
}

void tst_FeatureRename::NamesOfFacesFollowTheFeature()
{
    QFETCH(QString, before);
    const FeatureRename rename({"arm", "arm.2", "left/arm", "right", "hole"}, "arm", "part.arm");
    QTEST(rename.Applied(before), "after");
}

void tst_FeatureRename::ReferencesFollowTheFeature()
{
    const FeatureRename rename({"arm", "hole"}, "arm", "leg");
    const FaceReference arm{"arm.xmax", {}};
    const FaceReference leg{"leg.xmax", {}};
    const FaceReference point{"", {"1", "2", "arm.xmax"}};
    QVERIFY(rename.Applied(arm) == leg);
    QVERIFY(rename.Applied(point) == point);
    QVERIFY(rename.Applied(EdgeReference{{arm, point}, {}}) == (EdgeReference{{leg, point}, {}}));
}

TARN_TEST_MAIN(tst_FeatureRename)
#include "tst_FeatureRename.moc"
