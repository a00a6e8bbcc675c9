#include "AnalysisRecords.h"
#include "AnalysisType.h"
#include "AttributeCommonMgr.h"
#include "EmptyAttributeNames.h"
#include "TestCase.h"

#include <QSignalSpy>

class tst_AnalysisRecords : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ANewModelIsAVibrationWithoutRecords();
    void RecordsKeepTheirOrder();
    void NamesOfRecordsAreTaken();
    void RemovingARecordFreesItsName();
    void TheNameOfTheRecordItselfCanBeGiven();
    void AnEmptyNameIsANameToo();
    void AnUnknownNameRemovesNoRecord();
    void ClearMakesAModelNewAndFreesItsNames();
    void NamesAreFreeAfterTheModelIsDestroyed();
    void NamesOfOthersStayTaken();
    void EveryChangeIsReported();
};

namespace {

bool IsTaken(std::string name)
{
    return AttributeCommonMgr::GetInstance()->FindName(name);
}

sConstrainData Constraint(const char* name)
{
    sConstrainData constraint;
    constraint.m_strName = name;
    constraint.m_bXD = true;
    return constraint;
}

sLoadForceData Load(const char* name)
{
    sLoadForceData load;
    load.m_strName = name;
    load.m_dFX = 1.0;
    return load;
}

} // namespace

void tst_AnalysisRecords::ANewModelIsAVibrationWithoutRecords()
{
    const AnalysisRecords model;
    QCOMPARE(model.Family(), 1);
    QCOMPARE(model.Kind(), 2);
    QVERIFY(model.Constraints().empty());
    QVERIFY(model.Loads().empty());
    QVERIFY(!model.MeshSize().has_value());
    QVERIFY(!model.SubShape().has_value());
}

void tst_AnalysisRecords::RecordsKeepTheirOrder()
{
    const EmptyAttributeNames names;
    AnalysisRecords model;
    model.AddConstraint(Constraint("b"));
    model.AddConstraint(Constraint("a"));
    QCOMPARE(model.Constraints().size(), std::size_t(2));
    QCOMPARE(model.Constraints()[0].m_strName, std::string("b"));
    QCOMPARE(model.Constraints()[1].m_strName, std::string("a"));
}

void tst_AnalysisRecords::NamesOfRecordsAreTaken()
{
    const EmptyAttributeNames names;
    AnalysisRecords model;
    model.AddConstraint(Constraint("held"));
    model.AddLoad(Load("pulled"));
    QVERIFY(IsTaken("held"));
    QVERIFY(IsTaken("pulled"));
}

void tst_AnalysisRecords::RemovingARecordFreesItsName()
{
    const EmptyAttributeNames names;
    AnalysisRecords model;
    model.AddConstraint(Constraint("held"));
    model.AddLoad(Load("pulled"));
    model.Remove("held");
    QVERIFY(model.Constraints().empty());
    QCOMPARE(model.Loads().size(), std::size_t(1));
    QVERIFY(!IsTaken("held"));
    QVERIFY(IsTaken("pulled"));
    model.Remove("pulled");
    QVERIFY(model.Loads().empty());
    QVERIFY(!IsTaken("pulled"));
}

void tst_AnalysisRecords::TheNameOfTheRecordItselfCanBeGiven()
{
    const EmptyAttributeNames names;
    AnalysisRecords model;
    model.AddLoad(Load("a name that is too long to be stored within the string"));
    model.AddLoad(Load("another name that is too long to be stored within it"));
    model.Remove(model.Loads().front().m_strName);
    QCOMPARE(model.Loads().size(), std::size_t(1));
    QVERIFY(!IsTaken("a name that is too long to be stored within the string"));
    QVERIFY(IsTaken("another name that is too long to be stored within it"));
}

void tst_AnalysisRecords::AnEmptyNameIsANameToo()
{
    const EmptyAttributeNames names;
    AnalysisRecords model;
    model.AddLoad(Load(""));
    QVERIFY(IsTaken(""));
    model.Remove("");
    QVERIFY(model.Loads().empty());
    QVERIFY(!IsTaken(""));
}

void tst_AnalysisRecords::AnUnknownNameRemovesNoRecord()
{
    const EmptyAttributeNames names;
    AnalysisRecords model;
    model.AddLoad(Load("pulled"));
    model.Remove("Pulled");
    QCOMPARE(model.Loads().size(), std::size_t(1));
    QVERIFY(IsTaken("pulled"));
}

void tst_AnalysisRecords::ClearMakesAModelNewAndFreesItsNames()
{
    const EmptyAttributeNames names;
    AnalysisRecords model;
    model.SetSolverType(AnalysisType::ComplexEigenvalueFamily, AnalysisType::ComplexEigenvalueKind);
    model.AddConstraint(Constraint("held"));
    model.AddLoad(Load("pulled"));
    model.SetMeshSize(0.5);
    model.SetSubShape({0.1, 3});
    model.Clear();
    QCOMPARE(model.Family(), 1);
    QCOMPARE(model.Kind(), 2);
    QVERIFY(model.Constraints().empty());
    QVERIFY(model.Loads().empty());
    QVERIFY(!model.MeshSize().has_value());
    QVERIFY(!model.SubShape().has_value());
    QVERIFY(!IsTaken("held"));
    QVERIFY(!IsTaken("pulled"));
}

void tst_AnalysisRecords::NamesAreFreeAfterTheModelIsDestroyed()
{
    const EmptyAttributeNames names;
    {
        AnalysisRecords model;
        model.AddConstraint(Constraint("held"));
        model.AddLoad(Load("pulled"));
    }
    QVERIFY(!IsTaken("held"));
    QVERIFY(!IsTaken("pulled"));
}

void tst_AnalysisRecords::NamesOfOthersStayTaken()
{
    const EmptyAttributeNames names;
    AttributeCommonMgr::GetInstance()->AddName("somebody's");
    {
        AnalysisRecords model;
        model.AddLoad(Load("pulled"));
        model.Clear();
    }
    QVERIFY(IsTaken("somebody's"));
}

void tst_AnalysisRecords::EveryChangeIsReported()
{
    const EmptyAttributeNames names;
    AnalysisRecords model;
    const QSignalSpy changed(&model, &AnalysisRecords::Changed);
    model.SetSolverType(AnalysisType::MechanicsFamily, AnalysisType::StaticKind);
    model.AddConstraint(Constraint("held"));
    model.AddLoad(Load("pulled"));
    model.Remove("held");
    model.SetMeshSize(0.5);
    model.SetSubShape({0.1, 3});
    model.Clear();
    QCOMPARE(changed.size(), 7);
}

TARN_TEST_MAIN(tst_AnalysisRecords)
#include "tst_AnalysisRecords.moc"
