#include "Bodies.h"
#include "BodyVolumes.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <QElapsedTimer>
#include <gp_Ax1.hxx>
#include <gp_Trsf.hxx>

class tst_BodyVolumes : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void BodiesAddUp();
    void NoShapeHasNoVolume();
};

void tst_BodyVolumes::BodiesAddUp()
{
    const TopoDS_Shape box = BRepPrimAPI_MakeBox(1.0, 2.0, 3.0).Shape();
    gp_Trsf rotation;
    rotation.SetRotation(gp_Ax1(), 0.3);
    const TopoDS_Shape copy = box.Moved(TopLoc_Location(rotation));
    const TopoDS_Shape other = BRepPrimAPI_MakeBox(2.0, 2.0, 2.0).Shape();
    BodyVolumes volumes;
    QCOMPARE(volumes.Of(box), 6.0);
    QCOMPARE(volumes.Of(Compound({box, Compound({copy, other})})), 20.0);
    QCOMPARE(volumes.Of(other), 8.0);
}

void tst_BodyVolumes::NoShapeHasNoVolume()
{
    QCOMPARE(BodyVolumes().Of(TopoDS_Shape()), 0.0);
    QCOMPARE(BodyVolumes().Of(Compound({})), 0.0);
}

TARN_TEST_MAIN(tst_BodyVolumes)
#include "tst_BodyVolumes.moc"
