#include "AnalysisRecords.h"
#include "EmptyAnalysisStores.h"
#include "EmptyAttributeNames.h"
#include "FrequencyPref.h"
#include "SetupCheck.h"
#include "TestCase.h"

#include <cmath>
#include <limits>

class tst_SetupCheck : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void ACompleteSetUpHasNoProblem();
    void WithoutPropertiesThereIsAProblem();
    void APropertyIsChecked_data();
    void APropertyIsChecked();
    void AValueOfAMaterialIsChecked_data();
    void AValueOfAMaterialIsChecked();
    void ASystemMaterialIsCheckedByItsOwnTriple();
    void AMaterialIsCheckedOnceHoweverOftenItIsUsed();
    void AMaterialThatNothingUsesIsNotChecked();
    void ABoundaryConditionMustHoldSomething_data();
    void ABoundaryConditionMustHoldSomething();
    void ALoadIsChecked_data();
    void ALoadIsChecked();
    void TheFrequencyRangeIsChecked_data();
    void TheFrequencyRangeIsChecked();
    void TheMeshSizeIsChecked_data();
    void TheMeshSizeIsChecked();
    void BodiesThatOverlapAreAProblem();
    void PerCentSignsInNamesStay();
    void SeveralProblemsAreAllListed();
    void TheCurrentSetUpComesFromModelAndStores();
};

namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

AnalysisSetup Complete()
{
    AnalysisSetup setup;
    CQLTElemPropDef property;
    property.m_strName = "plate";
    property.m_strMaterialName = "steel";
    property.m_dThickness = 0.01;
    property.m_strTypeName = "Shell";
    property.m_nTypeCode = CQLTElemPropDef::ShellType;
    setup.properties["plate"] = property;

    KVMaterialInfo steel;
    steel.m_nType = MATERIAL_USER;
    steel.m_strName = "steel";
    steel.m_strElasticModulus = "2.1e11";
    steel.m_strPoisson = "0.3";
    steel.m_strDensity = "7850";
    setup.materials["steel"] = steel;

    sConstrainData held;
    held.m_strName = "foot";
    held.m_bZR = true;
    setup.constraints = {held};

    sLoadForceData load;
    load.m_strName = "pull";
    load.m_nKind = sLoadForceData::ComponentKind;
    load.m_dFZ = -1.0;
    setup.loads = {load};

    setup.minFrequency = 1.0;
    setup.maxFrequency = 1000.0;
    setup.meshSize = 0.1;
    return setup;
}

QStringList List(const QString& problem)
{
    return problem.isEmpty() ? QStringList() : QStringList(problem);
}

} // namespace

void tst_SetupCheck::ACompleteSetUpHasNoProblem()
{
    QCOMPARE(CheckSetup(Complete()), QStringList());
}

void tst_SetupCheck::WithoutPropertiesThereIsAProblem()
{
    AnalysisSetup setup = Complete();
    setup.properties.clear();
    QCOMPARE(CheckSetup(setup), QStringList("No element property is defined"));
}

void tst_SetupCheck::APropertyIsChecked_data()
{
    QTest::addColumn<QString>("material");
    QTest::addColumn<double>("thickness");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("problem");
    const QString thickness = "Element property \"plate\": the thickness %1 must be greater than 0";

    QTest::newRow("good") << "steel" << 0.5 << 2 << "";
    QTest::newRow("no material") << "" << 0.5 << 2 << "Element property \"plate\" has no material";
    QTest::newRow("unknown material")
        << "Steel" << 0.5 << 2
        << "Element property \"plate\": the library has no material \"Steel\"";
    QTest::newRow("thickness 0") << "steel" << 0.0 << 2 << thickness.arg("0");
    QTest::newRow("thickness below 0") << "steel" << -0.5 << 2 << thickness.arg("-0.5");
    QTest::newRow("infinite thickness") << "steel" << Infinity << 2 << thickness.arg("inf");
    QTest::newRow("no thickness") << "steel" << NotANumber << 2 << thickness.arg("nan");
    QTest::newRow("a solid has none") << "steel" << 0.0 << 1 << "";
}

void tst_SetupCheck::APropertyIsChecked()
{
    QFETCH(QString, material);
    QFETCH(double, thickness);
    QFETCH(int, type);
    QFETCH(QString, problem);
    AnalysisSetup setup = Complete();
    CQLTElemPropDef& property = setup.properties.at("plate");
    property.m_strMaterialName = material;
    property.m_dThickness = thickness;
    property.m_nTypeCode = type;
    QCOMPARE(CheckSetup(setup), List(problem));
}

void tst_SetupCheck::AValueOfAMaterialIsChecked_data()
{
    QTest::addColumn<QString>("modulus");
    QTest::addColumn<QString>("poisson");
    QTest::addColumn<QString>("density");
    QTest::addColumn<QString>("problem");
    const QString modulus = "Material \"steel\": the elastic modulus %1";
    const QString poisson = "Material \"steel\": Poisson's ratio %1";
    const QString density = "Material \"steel\": the density %1";
    const QString noNumber = "\"%1\" is not a number";

    QTest::newRow("modulus 0") << "0"
                               << "0.3"
                               << "1" << modulus.arg("0 must be greater than 0");
    QTest::newRow("modulus below 0") << "-1"
                                     << "0.3"
                                     << "1" << modulus.arg("-1 must be greater than 0");
    QTest::newRow("modulus empty") << ""
                                   << "0.3"
                                   << "1" << modulus.arg(noNumber.arg(""));
    QTest::newRow("modulus a word") << "stiff"
                                    << "0.3"
                                    << "1" << modulus.arg(noNumber.arg("stiff"));
    QTest::newRow("modulus nan") << "nan"
                                 << "0.3"
                                 << "1" << modulus.arg(noNumber.arg("nan"));
    QTest::newRow("modulus inf") << "inf"
                                 << "0.3"
                                 << "1" << modulus.arg(noNumber.arg("inf"));
    QTest::newRow("modulus with comma") << "2,1"
                                        << "0.3"
                                        << "1" << modulus.arg(noNumber.arg("2,1"));
    QTest::newRow("least Poisson") << "1"
                                   << "-1"
                                   << "1"
                                   << "";
    QTest::newRow("greatest Poisson") << "1"
                                      << "0.5"
                                      << "1"
                                      << "";
    QTest::newRow("Poisson 0") << "1"
                               << "0"
                               << "1"
                               << "";
    QTest::newRow("Poisson below") << "1"
                                   << "-1.01"
                                   << "1" << poisson.arg("-1.01 is outside -1 to 0.5");
    QTest::newRow("Poisson above") << "1"
                                   << "0.51"
                                   << "1" << poisson.arg("0.51 is outside -1 to 0.5");
    QTest::newRow("Poisson of a new material") << "58000000"
                                               << "1"
                                               << "1" << poisson.arg("1 is outside -1 to 0.5");
    QTest::newRow("Poisson a word") << "1"
                                    << "soft"
                                    << "1" << poisson.arg(noNumber.arg("soft"));
    QTest::newRow("density 0") << "1"
                               << "0.3"
                               << "0" << density.arg("0 must be greater than 0");
    QTest::newRow("density below 0") << "1"
                                     << "0.3"
                                     << "-7850" << density.arg("-7850 must be greater than 0");
    QTest::newRow("density empty") << "1"
                                   << "0.3"
                                   << "" << density.arg(noNumber.arg(""));
    QTest::newRow("density with unit") << "1"
                                       << "0.3"
                                       << "7850 kg" << density.arg(noNumber.arg("7850 kg"));
}

void tst_SetupCheck::AValueOfAMaterialIsChecked()
{
    QFETCH(QString, modulus);
    QFETCH(QString, poisson);
    QFETCH(QString, density);
    QFETCH(QString, problem);
    AnalysisSetup setup = Complete();
    KVMaterialInfo& steel = setup.materials.at("steel");
    steel.m_strElasticModulus = modulus;
    steel.m_strPoisson = poisson;
    steel.m_strDensity = density;
    QCOMPARE(CheckSetup(setup), List(problem));
}

void tst_SetupCheck::ASystemMaterialIsCheckedByItsOwnTriple()
{
    AnalysisSetup setup = Complete();
    KVMaterialInfo& steel = setup.materials.at("steel");
    steel.m_nType = MATERIAL_SYSTEM;
    steel.m_strLibElasticModulus = "2e11";
    steel.m_strLibPoisson = "0.6";
    steel.m_strLibDensity = "7850";
    QCOMPARE(CheckSetup(setup),
             QStringList("Material \"steel\": Poisson's ratio 0.6 is outside -1 to 0.5"));
}

void tst_SetupCheck::AMaterialIsCheckedOnceHoweverOftenItIsUsed()
{
    AnalysisSetup setup = Complete();
    setup.properties["rib"] = setup.properties.at("plate");
    setup.materials.at("steel").m_strDensity = "0";
    QCOMPARE(CheckSetup(setup),
             QStringList("Material \"steel\": the density 0 must be greater than 0"));
}

void tst_SetupCheck::AMaterialThatNothingUsesIsNotChecked()
{
    AnalysisSetup setup = Complete();
    setup.materials["draft"] = KVMaterialInfo();
    QCOMPARE(CheckSetup(setup), QStringList());
}

void tst_SetupCheck::ABoundaryConditionMustHoldSomething_data()
{
    QTest::addColumn<int>("held");
    QTest::addColumn<QString>("problem");
    QTest::newRow("nothing") << -1 << "Boundary condition \"foot\" fixes no degree of freedom";
    for (int freedom = 0; freedom < 6; ++freedom)
        QTest::addRow("degree of freedom %d", freedom) << freedom << "";
}

void tst_SetupCheck::ABoundaryConditionMustHoldSomething()
{
    QFETCH(int, held);
    QFETCH(QString, problem);
    AnalysisSetup setup = Complete();
    sConstrainData& foot = setup.constraints.front();
    bool* const freedoms[] = {&foot.m_bXD, &foot.m_bYD, &foot.m_bZD,
                              &foot.m_bXR, &foot.m_bYR, &foot.m_bZR};
    for (int i = 0; i < 6; ++i)
        *freedoms[i] = i == held;
    QCOMPARE(CheckSetup(setup), List(problem));
}

void tst_SetupCheck::ALoadIsChecked_data()
{
    QTest::addColumn<double>("fx");
    QTest::addColumn<double>("fy");
    QTest::addColumn<double>("fz");
    QTest::addColumn<QString>("problem");
    QTest::newRow("X only") << 1.0 << 0.0 << 0.0 << "";
    QTest::newRow("Y only") << 0.0 << -1e-9 << 0.0 << "";
    QTest::newRow("Z only") << 0.0 << 0.0 << 5.0 << "";
    QTest::newRow("zero") << 0.0 << -0.0 << 0.0 << "Load \"pull\" is zero";
    QTest::newRow("infinite") << Infinity << 0.0 << 0.0
                              << "Load \"pull\": a component is not a number";
    QTest::newRow("no number") << 1.0 << NotANumber << 0.0
                               << "Load \"pull\": a component is not a number";
}

void tst_SetupCheck::ALoadIsChecked()
{
    QFETCH(double, fx);
    QFETCH(double, fy);
    QFETCH(double, fz);
    QFETCH(QString, problem);
    AnalysisSetup setup = Complete();
    setup.loads.front().m_dFX = fx;
    setup.loads.front().m_dFY = fy;
    setup.loads.front().m_dFZ = fz;
    QCOMPARE(CheckSetup(setup), List(problem));
}

void tst_SetupCheck::TheFrequencyRangeIsChecked_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<QString>("problem");
    QTest::newRow("rising") << 1.0 << 2.0 << "";
    QTest::newRow("one frequency") << 2.0 << 2.0 << "";
    QTest::newRow("falling") << 5e6 << 1e6
                             << "Frequency range: the minimum 5e+06 is above the maximum 1e+06";
    QTest::newRow("falling a little")
        << 1000000.5 << 1000000.25
        << "Frequency range: the minimum 1000000.5 is above the maximum 1000000.25";
    QTest::newRow("infinite") << 1.0 << Infinity << "Frequency range: 1 to inf are not numbers";
    QTest::newRow("no number") << NotANumber << 1.0 << "Frequency range: nan to 1 are not numbers";
}

void tst_SetupCheck::TheFrequencyRangeIsChecked()
{
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(QString, problem);
    AnalysisSetup setup = Complete();
    setup.minFrequency = min;
    setup.maxFrequency = max;
    QCOMPARE(CheckSetup(setup), List(problem));
}

void tst_SetupCheck::TheMeshSizeIsChecked_data()
{
    QTest::addColumn<bool>("isSet");
    QTest::addColumn<double>("size");
    QTest::addColumn<QString>("problem");
    QTest::newRow("not set") << false << 0.0 << "";
    QTest::newRow("good") << true << 0.25 << "";
    QTest::newRow("0") << true << 0.0 << "The mesh size 0 must be greater than 0";
    QTest::newRow("below 0") << true << -0.25 << "The mesh size -0.25 must be greater than 0";
    QTest::newRow("infinite") << true << Infinity << "The mesh size inf must be greater than 0";
}

void tst_SetupCheck::TheMeshSizeIsChecked()
{
    QFETCH(bool, isSet);
    QFETCH(double, size);
    QFETCH(QString, problem);
    AnalysisSetup setup = Complete();
    setup.meshSize = isSet ? std::optional<double>(size) : std::nullopt;
    QCOMPARE(CheckSetup(setup), List(problem));
}

void tst_SetupCheck::BodiesThatOverlapAreAProblem()
{
    AnalysisSetup setup = Complete();
    setup.overlaps.pairs = {{1, 3}};
    QCOMPARE(CheckSetup(setup),
             QStringList("The bodies 1 and 3 of the part overlap; fuse them before the analysis."));
}

void tst_SetupCheck::PerCentSignsInNamesStay()
{
    AnalysisSetup setup = Complete();
    CQLTElemPropDef property = setup.properties.at("plate");
    property.m_dThickness = 0.0;
    setup.properties = {{"%2%s", property}};
    QCOMPARE(CheckSetup(setup),
             QStringList("Element property \"%2%s\": the thickness 0 must be greater than 0"));
}

void tst_SetupCheck::SeveralProblemsAreAllListed()
{
    AnalysisSetup setup = Complete();
    setup.properties.at("plate").m_dThickness = 0.0;
    setup.materials.at("steel").m_strDensity = "0";
    setup.materials.at("steel").m_strElasticModulus = "0";
    setup.constraints.push_back({});
    setup.loads.push_back({});
    setup.maxFrequency = 0.5;
    QCOMPARE(CheckSetup(setup),
             QStringList({"Element property \"plate\": the thickness 0 must be greater than 0",
                          "Material \"steel\": the elastic modulus 0 must be greater than 0",
                          "Material \"steel\": the density 0 must be greater than 0",
                          "Boundary condition \"\" fixes no degree of freedom", "Load \"\" is zero",
                          "Frequency range: the minimum 1 is above the maximum 0.5"}));
}

void tst_SetupCheck::TheCurrentSetUpComesFromModelAndStores()
{
    const EmptyAnalysisStores stores;
    const EmptyAttributeNames names;
    const AnalysisSetup complete = Complete();
    AnalysisRecords model;
    model.AddConstraint(complete.constraints.front());
    model.AddLoad(complete.loads.front());
    model.SetMeshSize(0.5);
    KVPropertyData::GetInstance()->AddPropInfo(
        new CQLTElemPropDef(complete.properties.at("plate")));
    KVMaterialData::GetInstance()->AddMaterialInfo(
        new KVMaterialInfo(complete.materials.at("steel")));

    const AnalysisSetup setup = CurrentSetup(model);
    QCOMPARE(setup.constraints.size(), std::size_t(1));
    QCOMPARE(setup.constraints.front().m_strName, std::string("foot"));
    QCOMPARE(setup.loads.size(), std::size_t(1));
    QCOMPARE(setup.loads.front().m_dFZ, -1.0);
    QCOMPARE(setup.properties.size(), std::size_t(1));
    QCOMPARE(setup.properties.at("plate").m_strMaterialName, QString("steel"));
    QCOMPARE(setup.materials.size(), std::size_t(1));
    QCOMPARE(setup.materials.at("steel").m_strDensity, QString("7850"));
    QCOMPARE(setup.minFrequency, FrequencyPref::m_MinFreq);
    QCOMPARE(setup.maxFrequency, FrequencyPref::m_MaxFreq);
    QCOMPARE(setup.meshSize, std::optional<double>(0.5));
    QCOMPARE(CheckSetup(setup), QStringList());
}

TARN_TEST_MAIN(tst_SetupCheck)
#include "tst_SetupCheck.moc"
