#include "RigidMotions.h"
#include "TestCase.h"

class tst_RigidMotions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void SupportsLeaveMotions_data();
    void SupportsLeaveMotions();
    void RotationsOfSolidsHoldNothing();
    void SupportsOfOtherPartsDoNotCount();
    void ASmallSupportHoldsALargePart();
};

namespace {

using Held = std::vector<std::pair<std::size_t, unsigned>>;

constexpr unsigned X = 1;
constexpr unsigned Y = 2;
constexpr unsigned Z = 4;
constexpr unsigned TurnX = 8;
constexpr unsigned TurnY = 16;
constexpr unsigned TurnZ = 32;

// Nodes 0 to 3 are a tetrahedron with the sides 10, 20, 30, far from the origin; node 4 is at
// (1, 1, 0) from node 0.
FiniteElementModel Model(bool isSolid, const Held& held)
{
    FiniteElementModel model;
    const Vector3 origin = {1000, 2000, 3000};
    for (const Vector3& node : {Vector3{0, 0, 0}, Vector3{10, 0, 0}, Vector3{0, 20, 0},
                                Vector3{0, 0, 30}, Vector3{1, 1, 0}})
        model.mesh.nodes.push_back({origin[0] + node[0], origin[1] + node[1], origin[2] + node[2]});
    if (isSolid)
        model.mesh.tetrahedra.resize(1);
    model.held.resize(model.mesh.nodes.size());
    for (const auto& [node, freedoms] : held)
        model.held[node] = std::uint8_t(model.held[node] | freedoms);
    return model;
}

} // namespace

Q_DECLARE_METATYPE(Held)

void tst_RigidMotions::SupportsLeaveMotions_data()
{
    QTest::addColumn<bool>("isSolid");
    QTest::addColumn<Held>("held");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("words");
    const Held three = {{0, X | Y | Z}, {1, X | Y | Z}, {2, X | Y | Z}};
    NewRow("nothing held", true, Held{}, 6,
           QString("free to move along x, y and z and to turn about x, y and z"));
    NewRow("all held", true, three, 0, QString());
    NewRow("six freedoms", true, Held{{0, X | Y | Z}, {1, Y | Z}, {2, Z}}, 0, QString());
    NewRow("one direction", true, Held{{0, X | Z}, {1, Z}, {2, X | Z}}, 1,
           QString("free to move along y"));
    NewRow("a hinge", true, Held{{0, X | Y | Z}, {3, X | Y | Z}}, 1,
           QString("free to turn about z"));
    NewRow("a hinge that slides", true, Held{{0, X | Y}, {3, X | Y}}, 2,
           QString("free to move along z and to turn about z"));
    NewRow("a ball", true, Held{{2, X | Y | Z}}, 3, QString("free to turn about x, y and z"));
    NewRow("a hinge across", true, Held{{0, X | Y | Z}, {4, X | Y | Z}}, 1,
           QString("free to turn about (1, 1, 0)"));
    NewRow("on a table", true, Held{{0, Z}, {1, Z}, {2, Z}}, 3,
           QString("free to move along x and y and to turn about z"));
    NewRow("one node of a shell", false, Held{{0, X | Y | Z | TurnX | TurnY | TurnZ}}, 0,
           QString());
    NewRow("a shell's hinge", false, Held{{0, X | Y | Z | TurnY | TurnZ}}, 1,
           QString("free to turn about x"));
    NewRow("only turns of a shell", false, Held{{0, TurnX | TurnY | TurnZ}}, 3,
           QString("free to move along x, y and z"));
}

void tst_RigidMotions::SupportsLeaveMotions()
{
    QFETCH(bool, isSolid);
    QFETCH(Held, held);
    const RigidMotions motions(Model(isSolid, held), {0, 1, 2, 3, 4});
    QTEST(motions.Words(), "words");
    QTEST(motions.Count(), "count");
}

void tst_RigidMotions::RotationsOfSolidsHoldNothing()
{
    const FiniteElementModel model = Model(true, {{0, X | Y | Z | TurnX | TurnY | TurnZ}});
    QCOMPARE(RigidMotions(model, {0, 1, 2, 3}).Count(), 3);
}

void tst_RigidMotions::SupportsOfOtherPartsDoNotCount()
{
    const FiniteElementModel model = Model(false, {{3, 63}});
    QCOMPARE(RigidMotions(model, {0, 1, 2}).Count(), 6);
}

void tst_RigidMotions::ASmallSupportHoldsALargePart()
{
    FiniteElementModel model = Model(true, {{0, 7}, {1, 7}, {2, 7}});
    for (std::size_t node = 0; node < 3; ++node) {
        for (std::size_t axis = 0; axis < 3; ++axis)
            model.mesh.nodes[node][axis] *= 1e-4;
    }
    model.mesh.nodes[3] = {0, 0, 1e6};
    QCOMPARE(RigidMotions(model, {0, 1, 2, 3}).Count(), 0);
}

TARN_TEST_MAIN(tst_RigidMotions)
#include "tst_RigidMotions.moc"
