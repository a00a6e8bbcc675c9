#include "Bodies.h"
#include "BodyCheck.h"
#include "BodyFormulas.h"
#include "BodyVolumes.h"
#include "BuildError.h"
#include "EmptyDesignStores.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRep_Builder.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Shell.hxx>
#include <TopoDS_Solid.hxx>
#include <gp_Trsf.hxx>

class tst_BodyCheck : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ASoundBodyPasses();
    void OnlySolidsAreAccepted();
    void AnOpenBodyIsRefused();
    void ABodyInsideOutIsRefused();
    void ABodyOfAnInputIsNotCheckedAgain();
    void VolumesHaveATolerance();
    void AResultOutsideTheBoxIsRefused();
    void PartsThatTheKernelGetsWrongFailByName_data();
    void PartsThatTheKernelGetsWrongFailByName();
};

namespace {

template<class Check>
QString Refusal(const Check& check)
{
    try {
        check();
    } catch (const BuildError& error) {
        return error.Reason();
    }
    return {};
}

QString Refusal(const TopoDS_Shape& result, const std::vector<TopoDS_Shape>& inputs = {})
{
    return Refusal([&] {
        BodyVolumes volumes;
        CheckNewBodies(result, inputs, volumes);
    });
}

TopoDS_Shape BoxBody(double size = 10.0)
{
    return BRepPrimAPI_MakeBox(size, size, size).Shape();
}

// A box that lacks some of its faces.
TopoDS_Shape OpenBox()
{
    const BRep_Builder builder;
    TopoDS_Shell shell;
    builder.MakeShell(shell);
    TopExp_Explorer faces(BoxBody(), TopAbs_FACE);
    for (faces.Next(); faces.More(); faces.Next())
        builder.Add(shell, faces.Current());
    TopoDS_Solid solid;
    builder.MakeSolid(solid);
    builder.Add(solid, shell);
    return solid;
}

TopoDS_Shape InsideOut()
{
    const BRep_Builder builder;
    TopoDS_Solid solid;
    builder.MakeSolid(solid);
    builder.Add(solid, TopExp_Explorer(BoxBody(), TopAbs_SHELL).Current().Reversed());
    return solid;
}

TopoDS_Shape MovedBy(const TopoDS_Shape& shape, double x)
{
    gp_Trsf translation;
    translation.SetTranslation(gp_Vec(x, 0.0, 0.0));
    return shape.Moved(TopLoc_Location(translation));
}

} // namespace

void tst_BodyCheck::ASoundBodyPasses()
{
    QCOMPARE(Refusal(BoxBody()), QString());
    QCOMPARE(Refusal(Compound({BoxBody(), MovedBy(BoxBody(3.0), 20.0)})), QString());
}

void tst_BodyCheck::OnlySolidsAreAccepted()
{
    for (const TopAbs_ShapeEnum type : {TopAbs_SHELL, TopAbs_FACE, TopAbs_WIRE, TopAbs_VERTEX}) {
        const TopoDS_Shape piece = TopExp_Explorer(BoxBody(), type).Current();
        QCOMPARE(Refusal(piece), QString("its result is not a solid body."));
        QCOMPARE(Refusal(Compound({BoxBody(), piece})), QString("its result is not a solid body."));
    }
}

void tst_BodyCheck::AnOpenBodyIsRefused()
{
    QCOMPARE(Refusal(OpenBox()),
             QString("its body is not closed; change a size or a position slightly."));
}

void tst_BodyCheck::ABodyInsideOutIsRefused()
{
    QCOMPARE(Refusal(InsideOut()),
             QString("its body has a volume of -1000 mm³, so it is empty or inside out; change a "
                     "size or a position slightly."));
}

void tst_BodyCheck::ABodyOfAnInputIsNotCheckedAgain()
{
    const TopoDS_Shape bad = InsideOut();
    QCOMPARE(Refusal(Compound({BoxBody(), MovedBy(bad, 5.0)}), {BoxBody(), bad}), QString());
    QVERIFY(!Refusal(Compound({bad, InsideOut()}), {bad}).isEmpty());
}

void tst_BodyCheck::VolumesHaveATolerance()
{
    const auto refusal = [](double volume) {
        return Refusal([=] { CheckVolume(volume, 1000.0, 2000.0); });
    };
    for (const double volume : {999.9, 1000.0, 1500.0, 2000.0, 2000.1})
        QCOMPARE(refusal(volume), QString());
    QCOMPARE(refusal(999.0),
             QString("its result has a volume of 999 mm³, but has to have from 1000 to 2000 mm³: "
                     "the geometry kernel failed; change a size or a position slightly."));
    QVERIFY(!refusal(2001.0).isEmpty());
}

void tst_BodyCheck::AResultOutsideTheBoxIsRefused()
{
    const auto refusal = [](double size) {
        return Refusal([=] { CheckWithinBox(BoxBody(size), BoxBody()); });
    };
    QCOMPARE(refusal(9.0), QString());
    QCOMPARE(refusal(10.001), QString());
    QCOMPARE(refusal(10.1),
             QString("its result extends beyond the original body: the geometry kernel failed; "
                     "try a smaller radius or another order of features."));
}

void tst_BodyCheck::PartsThatTheKernelGetsWrongFailByName_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const char* kind, const char* distances,
                        const char* reason) {
        // The two ends of the cylinder are closer to each other than the kernel distinguishes.
        const QString list = R"({"name": "a", "kind": "box", "fields": {"x": 30, "y": 30}},
            {"name": "b", "kind": "cylinder",
             "fields": {"radius": 5, "height": 20, "angle": 359.9999999}},
            {"name": "c", "kind": "move", "inputs": ["b"], "fields": {%1}},
            {"name": "d", "kind": "%2", "inputs": ["a", "c"]})";
        QTest::newRow(name) << list.arg(distances, kind).toUtf8() << QString(reason);
    };
    row("a fuse that loses both bodies", "fuse", "",
        "d: its result has a volume of 0 mm³, but has to have from 9000 to 10570.8 mm³: the "
        "geometry kernel failed; change a size or a position slightly.");
    row("a cut that stays open", "cut", R"("dx": 15, "dy": 15, "dz": -5)",
        "d: its body is not closed; change a size or a position slightly.");
}

void tst_BodyCheck::PartsThatTheKernelGetsWrongFailByName()
{
    const EmptyDesignStores stores;
    QFETCH(QByteArray, list);
    QTEST(Reason(List(list)), "reason");
}

TARN_TEST_MAIN(tst_BodyCheck)
#include "tst_BodyCheck.moc"
