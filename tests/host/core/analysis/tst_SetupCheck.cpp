#include "AnalysisEntries.h"
#include "AnalysisType.h"
#include "EmptyAnalysisStores.h"
#include "EmptyDesignStores.h"
#include "FeatureBuilder.h"
#include "FeatureList.h"
#include "KVMaterialData.h"
#include "NewFeature.h"
#include "SetupCheck.h"
#include "TestCase.h"

#include <cmath>
#include <functional>
#include <limits>

using Edit = std::function<void(AnalysisDefinition&, SetupContext&)>;
Q_DECLARE_METATYPE(Edit)

class tst_SetupCheck : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init() override;
    void ACompleteSetUpHasNoProblem();
    void EachFaultIsReported_data();
    void EachFaultIsReported();
    void WarningsDoNotKeepASolverFromRunning_data();
    void WarningsDoNotKeepASolverFromRunning();
    void AMaterialIsCheckedOnceHoweverOftenItIsUsed();
    void SeveralProblemsAreAllListed();
    void TargetsThatFindNothingAreReported_data();
    void TargetsThatFindNothingAreReported();

private:
    const EmptyDesignStores m_parameters;
    const EmptyAnalysisStores m_stores;
};

namespace {

void AddMaterial(const QString& name, const QString& poisson = "0.3")
{
    auto* const material = new KVMaterialInfo;
    material->m_nType = MATERIAL_USER;
    material->m_strName = name;
    material->m_strElasticModulus = "210e9";
    material->m_strPoisson = poisson;
    material->m_strDensity = "7850";
    KVMaterialData::GetInstance()->AddMaterialInfo(material);
}

AnalysisDefinition Complete()
{
    AnalysisDefinition analysis;
    analysis.type.kind = AnalysisType::StaticKind;
    analysis.meshSize = "4";
    analysis.properties = {Property("body", "steel")};
    analysis.constraints = {Constraint("foot")};
    analysis.loads = {Load("pull")};
    return analysis;
}

SetupContext StaticPart()
{
    SetupContext context;
    context.longestSide = 100.0;
    return context;
}

std::vector<SetupProblem> Problems(const Edit& edit)
{
    AnalysisDefinition analysis = Complete();
    SetupContext context = StaticPart();
    edit(analysis, context);
    return CheckSetup(analysis, context);
}

QStringList Texts(const std::vector<SetupProblem>& problems)
{
    QStringList texts;
    for (const SetupProblem& problem : problems)
        texts << problem.text;
    return texts;
}

} // namespace

void tst_SetupCheck::init()
{
    TestCase::init();
    KVMaterialData::GetInstance()->ClearInfo();
    AddMaterial("steel");
    AddMaterial("rubber", "0.5");
}

void tst_SetupCheck::ACompleteSetUpHasNoProblem()
{
    QCOMPARE(Texts(CheckSetup(Complete(), StaticPart())), QStringList());
}

// Those of tests with an edit that makes a fault, the entry that has it, and its text.
static void AddFaultColumns()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("text");
}

static void AddFault(const char* name, AnalysisEntry::Kind kind, const QString& text,
                     const Edit& edit)
{
    QTest::newRow(name) << edit << int(kind) << text;
}

using Definition = AnalysisDefinition;

void tst_SetupCheck::EachFaultIsReported_data()
{
    AddFaultColumns();
    const auto row = AddFault;
    row("no part", AnalysisEntry::Part, "The project has no part. Add a body first.",
        [](Definition&, SetupContext& context) { context.longestSide = 0.0; });
    row("overlap", AnalysisEntry::Part, "", [](Definition&, SetupContext& context) {
        context.overlaps.pairs = {{1, 2}};
    });
    row("another type", AnalysisEntry::SolverType,
        "This kind of analysis cannot be solved here: choose vibration or static",
        [](Definition& analysis, SetupContext&) {
            analysis.type.kind = AnalysisType::BucklingKind;
            analysis.loads.clear();
        });
    row("part that cannot be built", AnalysisEntry::Part,
        "The part cannot be built: box: x has no value",
        [](Definition&, SetupContext& context) { context.failure = "box: x has no value"; });
    row("no material at all", AnalysisEntry::Part,
        "The part has no material: choose one, or define an element property",
        [](Definition& analysis, SetupContext&) { analysis.properties.clear(); });
    row("unknown material of the part", AnalysisEntry::Part,
        "The material \"x\" is neither in the system's library nor in UserMaterial.xml beside the "
        "project.",
        [](Definition& analysis, SetupContext& context) {
            analysis.properties.clear();
            context.partMaterial = "x";
        });
    row("property without material", AnalysisEntry::Property,
        "Element property \"body\" has no material",
        [](Definition& analysis, SetupContext&) { analysis.properties[0].material.clear(); });
    row("Poisson's ratio", AnalysisEntry::Property,
        "Material \"rubber\": Poisson's ratio 0.5 is not between -1 and 0.5.",
        [](Definition& analysis, SetupContext&) { analysis.properties[0].material = "rubber"; });
    row("thickness 0", AnalysisEntry::Property,
        "Element property \"body\": the thickness is 0 mm, but has to be greater than 0",
        [](Definition& analysis, SetupContext&) {
            analysis.properties[0].thickness = "0";
            analysis.properties[0].faces = {{"box.zmax", {}}};
        });
    row("thickness without value", AnalysisEntry::Property, "",
        [](Definition& analysis, SetupContext&) {
            analysis.properties[0].thickness = "nowhere / 2";
            analysis.properties[0].faces = {{"box.zmax", {}}};
        });
    row("unused beside shells", AnalysisEntry::Property,
        "Element property \"other\" is not used: it has no faces, but other properties do",
        [](Definition& analysis, SetupContext&) {
            analysis.properties[0].thickness = "1";
            analysis.properties[0].faces = {{"box.zmax", {}}};
            analysis.properties.push_back(Property("other", "steel"));
        });
    row("second one for the whole part", AnalysisEntry::Property,
        "Element property \"other\" is not used: another property already applies to the whole "
        "part",
        [](Definition& analysis, SetupContext&) {
            analysis.properties.push_back(Property("other", "steel"));
        });
    row("no support", AnalysisEntry::Constraint, "A static analysis needs a boundary condition",
        [](Definition& analysis, SetupContext&) { analysis.constraints.clear(); });
    row("support that holds nothing", AnalysisEntry::Constraint,
        "Boundary condition \"foot\" fixes no degree of freedom",
        [](Definition& analysis, SetupContext&) { analysis.constraints[0].held = {}; });
    row("support nowhere", AnalysisEntry::Constraint,
        "Boundary condition \"foot\" acts nowhere: pick its faces or edges",
        [](Definition& analysis, SetupContext&) { analysis.constraints[0].faces.clear(); });
    row("no load", AnalysisEntry::Load, "A static analysis needs a load",
        [](Definition& analysis, SetupContext&) { analysis.loads.clear(); });
    row("load 0", AnalysisEntry::Load, "Load \"pull\" is zero",
        [](Definition& analysis, SetupContext&) { analysis.loads[0].force[0] = "0"; });
    row("load nowhere", AnalysisEntry::Load, "Load \"pull\" acts nowhere: pick its faces or edges",
        [](Definition& analysis, SetupContext&) { analysis.loads[0].faces.clear(); });
    row("frequencies in the wrong order", AnalysisEntry::Frequencies,
        "Frequency range: the minimum 5 Hz is not below the maximum 5 Hz",
        [](Definition& analysis, SetupContext&) {
            analysis.frequencies = {5.0, 5.0, 1};
        });
    row("negative frequency", AnalysisEntry::Frequencies,
        "Frequency range: the minimum -1 Hz is below 0",
        [](Definition& analysis, SetupContext&) { analysis.frequencies.min = -1.0; });
    row("frequency nan", AnalysisEntry::Frequencies,
        "Frequency range: nan to 1e+06 are not numbers", [](Definition& analysis, SetupContext&) {
            analysis.frequencies.min = std::numeric_limits<double>::quiet_NaN();
        });
    row("no modes", AnalysisEntry::Frequencies,
        "Frequency range: the number of modes is 0, but has to be 1 to 10000",
        [](Definition& analysis, SetupContext&) { analysis.frequencies.number = 0; });
    row("mesh size 0", AnalysisEntry::MeshSize,
        "The mesh size is 0 mm, but has to be greater than 0",
        [](Definition& analysis, SetupContext&) { analysis.meshSize = "0"; });
    row("local mesh nowhere", AnalysisEntry::LocalMesh,
        "Local mesh 1 applies nowhere: pick its faces or edges",
        [](Definition& analysis, SetupContext&) {
            analysis.localMeshes = {{"2", "", {}, {}}};
        });
}

void tst_SetupCheck::EachFaultIsReported()
{
    QFETCH(Edit, edit);
    QFETCH(int, kind);
    QFETCH(QString, text);
    const std::vector<SetupProblem> problems = Problems(edit);
    QCOMPARE(Texts(problems).size(), 1);
    QCOMPARE(int(problems[0].entry.kind), kind);
    QVERIFY(!problems[0].isWarning);
    if (text.isEmpty())
        QVERIFY(!problems[0].text.isEmpty());
    else
        QCOMPARE(problems[0].text, text);
}

void tst_SetupCheck::WarningsDoNotKeepASolverFromRunning_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* name, const QString& text, const Edit& edit) {
        QTest::newRow(name) << edit << text;
    };
    row("no mesh size", "No mesh size is set: a tenth of the part's longest side is used",
        [](AnalysisDefinition& analysis, SetupContext&) { analysis.meshSize.clear(); });
    row("huge mesh size", "The mesh size 101 mm is larger than the part, 100 mm",
        [](AnalysisDefinition& analysis, SetupContext&) { analysis.meshSize = "101"; });
    row("load in a vibration", "Load \"pull\" has no effect on natural frequencies",
        [](AnalysisDefinition& analysis, SetupContext&) {
            analysis.type.kind = AnalysisType::VibrationKind;
        });
}

void tst_SetupCheck::WarningsDoNotKeepASolverFromRunning()
{
    QFETCH(Edit, edit);
    QFETCH(QString, text);
    const std::vector<SetupProblem> problems = Problems(edit);
    QCOMPARE(Texts(problems), QStringList(text));
    QVERIFY(problems[0].isWarning);
}

void tst_SetupCheck::AMaterialIsCheckedOnceHoweverOftenItIsUsed()
{
    AnalysisDefinition analysis = Complete();
    analysis.properties = {Property("a", "rubber", "1"), Property("b", "rubber", "1")};
    for (PropertyDefinition& property : analysis.properties)
        property.faces = {{"box.zmax", {}}};
    QCOMPARE(CheckSetup(analysis, StaticPart()).size(), std::size_t(1));
}

void tst_SetupCheck::SeveralProblemsAreAllListed()
{
    AnalysisDefinition analysis = Complete();
    analysis.constraints[0].name = "100 %1";
    analysis.constraints[0].faces.clear();
    analysis.loads[0].faces.clear();
    QCOMPARE(Texts(CheckSetup(analysis, StaticPart())),
             QStringList({"Boundary condition \"100 %1\" acts nowhere: pick its faces or edges",
                          "Load \"pull\" acts nowhere: pick its faces or edges"}));
}

void tst_SetupCheck::TargetsThatFindNothingAreReported_data()
{
    AddFaultColumns();
    const auto row = AddFault;
    row("support", AnalysisEntry::Constraint,
        "Boundary condition \"foot\": the part has no face \"bore.side\".",
        [](Definition& analysis, SetupContext&) {
            analysis.constraints[0].faces.push_back({"bore.side", {}});
        });
    row("load at a point", AnalysisEntry::Load, "", [](Definition& analysis, SetupContext&) {
        analysis.loads[0].faces = {{"", {"500", "0", "0"}}};
    });
    row("point without value", AnalysisEntry::Load, "", [](Definition& analysis, SetupContext&) {
        analysis.loads[0].faces = {{"", {"nowhere", "0", "0"}}};
    });
    row("property", AnalysisEntry::Property,
        "Element property \"body\": the part has no face \"lid.zmax\".",
        [](Definition& analysis, SetupContext&) {
            analysis.properties[0].thickness = "1";
            analysis.properties[0].faces = {{"lid.zmax", {}}};
        });
    row("edges", AnalysisEntry::LocalMesh,
        "Local mesh 1: the faces \"box.zmin\" and \"box.zmax\" have no edge in common.",
        [](Definition& analysis, SetupContext&) {
            LocalMeshDefinition local;
            local.number = "4";
            local.edges = {{{{"box.zmin", {}}, {"box.zmax", {}}}, {}}};
            analysis.localMeshes = {local};
        });
}

void tst_SetupCheck::TargetsThatFindNothingAreReported()
{
    QFETCH(Edit, edit);
    QFETCH(int, kind);
    QFETCH(QString, text);
    FeatureList list;
    list.Append(NewFeature("box", "box"));
    const BuiltPart part = FeatureBuilder::Build(list);
    AnalysisDefinition analysis = Complete();
    SetupContext context = StaticPart();
    context.part = &part;
    QCOMPARE(Texts(CheckSetup(analysis, context)), QStringList());
    edit(analysis, context);
    const std::vector<SetupProblem> problems = CheckSetup(analysis, context);
    QCOMPARE(problems.size(), std::size_t(1));
    QCOMPARE(int(problems[0].entry.kind), kind);
    QVERIFY(!problems[0].isWarning && !problems[0].text.isEmpty());
    if (!text.isEmpty())
        QCOMPARE(problems[0].text, text);
}

TARN_TEST_MAIN(tst_SetupCheck)
#include "tst_SetupCheck.moc"
