#include "AnalysisParameters.h"
#include "TestCase.h"

class tst_AnalysisParameters : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ExpressionsFollowANewName();
    void UsersAreRemovedAndNamed();
};

static AnalysisDefinition Sample()
{
    AnalysisDefinition definition;
    definition.meshSize = "a/2";
    definition.properties = {{"web", "steel", "a", {}}, {"rib", "steel", "3", {}}};
    LoadDefinition load;
    load.name = "pull";
    load.force = {"0", "-10*a", "aa"};
    definition.loads = {load};
    ConstraintDefinition clamp;
    clamp.name = "clamp";
    clamp.faces = {{QString(), {"a", "0", "0"}}};
    definition.constraints = {clamp};
    definition.localMeshes = {{"a", "", {}, {}}, {"", "12", {}, {}}};
    return definition;
}

void tst_AnalysisParameters::ExpressionsFollowANewName()
{
    const AnalysisDefinition renamed = WithRenamedParameter(Sample(), "a", "b");
    QCOMPARE(renamed.meshSize, QString("b/2"));
    QCOMPARE(renamed.properties[0].thickness, QString("b"));
    QCOMPARE(renamed.loads[0].force[1], QString("-10*b"));
    QCOMPARE(renamed.loads[0].force[2], QString("aa"));
    QCOMPARE(renamed.localMeshes[0].size, QString("b"));
    QCOMPARE(renamed.constraints[0].faces[0].at[0], QString("b"));
}

void tst_AnalysisParameters::UsersAreRemovedAndNamed()
{
    QStringList users;
    const AnalysisDefinition left = WithoutParameters(Sample(), {"a"}, users);
    QCOMPARE(users, QStringList({"mesh size", "element property \"web\"", "support \"clamp\"",
                                 "load \"pull\"", "local mesh size"}));
    QVERIFY(left.meshSize.isEmpty());
    QCOMPARE(left.properties.size(), std::size_t(1));
    QVERIFY(left.constraints.empty());
    QVERIFY(left.loads.empty());
    QCOMPARE(left.localMeshes.size(), std::size_t(1));
    users.clear();
    QVERIFY(WithoutParameters(Sample(), {"c"}, users) == Sample());
    QVERIFY(users.isEmpty());
}

TARN_TEST_MAIN(tst_AnalysisParameters)
#include "tst_AnalysisParameters.moc"
