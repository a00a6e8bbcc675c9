#include "Bodies.h"
#include "BodyContacts.h"
#include "TestCase.h"

#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>

using Pairs = std::vector<std::pair<int, int>>;

class tst_BodyContacts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void BodiesThatTouchAreFound_data();
    void BodiesThatTouchAreFound();
    void OneBodyHasNoContacts();
    void TheSearchEndsAfterTwentyPairs();
};

namespace {

TopoDS_Shape Box(double x, double y = 0.0, double z = 0.0)
{
    return BRepPrimAPI_MakeBox(gp_Pnt(x, y, z), 10.0, 10.0, 10.0).Shape();
}

} // namespace

Q_DECLARE_METATYPE(TopoDS_Shape)

void tst_BodyContacts::BodiesThatTouchAreFound_data()
{
    QTest::addColumn<TopoDS_Shape>("other");
    QTest::addColumn<bool>("touches");
    NewRow("face on face", Box(10), true);
    NewRow("a part of a face", Box(10, 5, 5), true);
    NewRow("edge on edge", Box(10, 10), true);
    NewRow("corner on corner", Box(10, 10, 10), true);
    NewRow("overlapping", Box(5), true);
    NewRow("a gap", Box(10.001), false);
    NewRow("far away", Box(100), false);
    NewRow("a pin on a face",
           BRepPrimAPI_MakeCylinder(gp_Ax2(gp_Pnt(5, 5, 10), gp_Dir(0, 0, 1)), 2.0, 5.0).Shape(),
           true);
    NewRow("a ball near a corner", BRepPrimAPI_MakeSphere(gp_Pnt(13, 13, 13), 5.0).Shape(), false);
}

void tst_BodyContacts::BodiesThatTouchAreFound()
{
    QFETCH(TopoDS_Shape, other);
    QFETCH(bool, touches);
    const Pairs contacts = FindContacts(Compound({Box(0), Box(-50), other}));
    QVERIFY(contacts == (touches ? Pairs{{1, 3}} : Pairs{}));
}

void tst_BodyContacts::OneBodyHasNoContacts()
{
    QVERIFY(FindContacts(Box(0)).empty());
}

void tst_BodyContacts::TheSearchEndsAfterTwentyPairs()
{
    std::vector<TopoDS_Shape> boxes;
    for (int i = 0; i < 30; ++i)
        boxes.push_back(Box(10.0 * i));
    QCOMPARE(FindContacts(Compound(boxes)).size(), std::size_t(20));
}

TARN_TEST_MAIN(tst_BodyContacts)
#include "tst_BodyContacts.moc"
