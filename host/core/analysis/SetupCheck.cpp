#include "SetupCheck.h"

#include "AnalysisRecords.h"
#include "FrequencyPref.h"
#include "KVMaterialData.h"
#include "KVPropertyData.h"
#include "MaterialLibrary.h"
#include "NumberTexts.h"

#include <QCoreApplication>

#include <cmath>
#include <set>

namespace {

constexpr double LeastPoisson = -1.0;
constexpr double GreatestPoisson = 0.5;

class Text
{
    Q_DECLARE_TR_FUNCTIONS(SetupCheck)
};

// Empty if the text is not a finite number.
std::optional<double> Number(const QString& text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number))
        return std::nullopt;
    return number;
}

void CheckPositive(const QString& material, const QString& what, const QString& text,
                   QStringList& problems)
{
    const std::optional<double> number = Number(text);
    if (!number.has_value())
        problems
            << Text::tr("Material \"%1\": the %2 \"%3\" is not a number").arg(material, what, text);
    else if (*number <= 0.0)
        problems << Text::tr("Material \"%1\": the %2 %3 must be greater than 0")
                        .arg(material, what, text);
}

void CheckMaterial(const QString& name, const KVMaterialInfo& material, QStringList& problems)
{
    const MaterialTexts values = TextsOf(material);
    CheckPositive(name, Text::tr("elastic modulus"), values.elasticModulus, problems);
    const std::optional<double> poisson = Number(values.poisson);
    if (!poisson.has_value())
        problems << Text::tr("Material \"%1\": Poisson's ratio \"%2\" is not a number")
                        .arg(name, values.poisson);
    else if (*poisson < LeastPoisson || *poisson > GreatestPoisson)
        problems << Text::tr("Material \"%1\": Poisson's ratio %2 is outside -1 to 0.5")
                        .arg(name, values.poisson);
    CheckPositive(name, Text::tr("density"), values.density, problems);
}

void CheckProperties(const AnalysisSetup& setup, QStringList& problems)
{
    if (setup.properties.empty())
        problems << Text::tr("No element property is defined");

    std::set<QString> used;
    for (const auto& [name, property] : setup.properties) {
        const QString& material = property.m_strMaterialName;
        if (material.isEmpty())
            problems << Text::tr("Element property \"%1\" has no material").arg(name);
        else if (setup.materials.count(material) == 0)
            problems << Text::tr("Element property \"%1\": the library has no material \"%2\"")
                            .arg(name, material);
        else
            used.insert(material);

        const double thickness = property.m_dThickness;
        if (property.m_nTypeCode != CQLTElemPropDef::SolidType &&
            !(thickness > 0.0 && std::isfinite(thickness)))
            problems << Text::tr("Element property \"%1\": the thickness %2 must be greater than 0")
                            .arg(name, ExactText(thickness));
    }
    for (const QString& name : used)
        CheckMaterial(name, setup.materials.at(name), problems);
}

void CheckConstraints(const AnalysisSetup& setup, QStringList& problems)
{
    for (const sConstrainData& held : setup.constraints) {
        if (!held.m_bXD && !held.m_bYD && !held.m_bZD && !held.m_bXR && !held.m_bYR && !held.m_bZR)
            problems << Text::tr("Boundary condition \"%1\" fixes no degree of freedom")
                            .arg(AttributeText(held.m_strName));
    }
}

void CheckLoads(const AnalysisSetup& setup, QStringList& problems)
{
    for (const sLoadForceData& load : setup.loads) {
        const QString name = AttributeText(load.m_strName);
        if (!std::isfinite(load.m_dFX) || !std::isfinite(load.m_dFY) || !std::isfinite(load.m_dFZ))
            problems << Text::tr("Load \"%1\": a component is not a number").arg(name);
        else if (load.m_dFX == 0.0 && load.m_dFY == 0.0 && load.m_dFZ == 0.0)
            problems << Text::tr("Load \"%1\" is zero").arg(name);
    }
}

void CheckNumbers(const AnalysisSetup& setup, QStringList& problems)
{
    if (!std::isfinite(setup.minFrequency) || !std::isfinite(setup.maxFrequency))
        problems << Text::tr("Frequency range: %1 to %2 are not numbers")
                        .arg(ExactText(setup.minFrequency), ExactText(setup.maxFrequency));
    else if (setup.minFrequency > setup.maxFrequency)
        problems << Text::tr("Frequency range: the minimum %1 is above the maximum %2")
                        .arg(ExactText(setup.minFrequency), ExactText(setup.maxFrequency));
    if (setup.meshSize.has_value() && !(*setup.meshSize > 0.0 && std::isfinite(*setup.meshSize)))
        problems
            << Text::tr("The mesh size %1 must be greater than 0").arg(ExactText(*setup.meshSize));
}

} // namespace

AnalysisSetup CurrentSetup(const AnalysisRecords& model)
{
    AnalysisSetup setup;
    setup.constraints = model.Constraints();
    setup.loads = model.Loads();
    setup.meshSize = model.MeshSize();
    setup.minFrequency = FrequencyPref::m_MinFreq;
    setup.maxFrequency = FrequencyPref::m_MaxFreq;
    for (const auto& [name, property] : KVPropertyData::GetInstance()->GetProptyDataMap())
        setup.properties[name] = *property;
    const KVMaterialData& store = *KVMaterialData::GetInstance();
    const QStringList names = store.GetMaterialNameList();
    for (const QString& name : names)
        setup.materials[name] = *store.GetMaterialInfo(name);
    return setup;
}

QStringList CheckSetup(const AnalysisSetup& setup)
{
    QStringList problems;
    CheckProperties(setup, problems);
    CheckConstraints(setup, problems);
    CheckLoads(setup, problems);
    CheckNumbers(setup, problems);
    const QString overlaps = setup.overlaps.AnalysisProblem();
    if (!overlaps.isEmpty())
        problems << overlaps;
    return problems;
}
