#include "MaterialLibrary.h"

#include "AnalysisFiles.h"
#include "KVMaterialData.h"
#include "WholeFile.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QXmlStreamReader>

#include <cmath>

namespace {

const KVMaterialInfo& Find(const QString& name)
{
    const KVMaterialInfo* const material = KVMaterialData::GetInstance()->GetMaterialInfo(name);
    if (material == nullptr)
        throw MaterialError(MaterialError::tr("The material \"%1\" is neither in the system's "
                                              "library nor in UserMaterial.xml beside the project.")
                                .arg(name.simplified()));
    return *material;
}

double Number(const QString& material, const QString& what, const QString& text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number))
        throw MaterialError(MaterialError::tr("Material \"%1\": the %2 \"%3\" is not a number.")
                                .arg(material, what, text.simplified()));
    return number;
}

double PositiveNumber(const QString& material, const QString& what, const QString& text)
{
    const double number = Number(material, what, text);
    if (!(number > 0.0))
        throw MaterialError(MaterialError::tr("Material \"%1\": the %2 %3 must be greater than 0.")
                                .arg(material, what, text.simplified()));
    return number;
}

// By name. The records of the store do not hold them.
QHash<QString, QString> SystemSources()
{
    QHash<QString, QString> sources;
    QByteArray content;
    tarn::WholeFile(InstalledSystemMaterials()).Read(content);
    QXmlStreamReader xml(content);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = xml.attributes();
        sources.insert(attributes.value(QLatin1String("name")).toString(),
                       attributes.value(QLatin1String("source")).toString());
    }
    return sources;
}

} // namespace

MaterialTexts TextsOf(const KVMaterialInfo& material)
{
    if (material.m_nType == MATERIAL_SYSTEM)
        return {material.m_strLibElasticModulus, material.m_strLibPoisson,
                material.m_strLibDensity};
    return {material.m_strElasticModulus, material.m_strPoisson, material.m_strDensity};
}

void ReadMaterials(const QString& folder)
{
    KVMaterialData& store = *KVMaterialData::GetInstance();
    store.ClearInfo();
    const auto read = [&store](const QString& path, MATERIAL_TYPE type) {
        store.ReadXML(QFile::encodeName(path).toStdString(), type);
    };
    read(QDir(folder).filePath(QStringLiteral("UserMaterial.xml")), MATERIAL_USER);
    read(InstalledSystemMaterials(), MATERIAL_SYSTEM);
}

Material MaterialOf(const QString& name)
{
    const MaterialTexts texts = TextsOf(Find(name));
    const QString shown = name.simplified();
    Material material;
    material.name = name;
    material.elasticModulus =
        PositiveNumber(shown, MaterialError::tr("elastic modulus"), texts.elasticModulus);
    material.poisson = Number(shown, MaterialError::tr("Poisson's ratio"), texts.poisson);
    if (!(material.poisson > -1.0 && material.poisson < 0.5))
        throw MaterialError(
            MaterialError::tr("Material \"%1\": Poisson's ratio %2 is not between -1 and 0.5.")
                .arg(shown, texts.poisson.simplified()));
    material.density = PositiveNumber(shown, MaterialError::tr("density"), texts.density);
    return material;
}

double DensityOf(const QString& name)
{
    return PositiveNumber(name.simplified(), MaterialError::tr("density"),
                          TextsOf(Find(name)).density);
}

QString SourceOf(const QString& name)
{
    static const QHash<QString, QString> sources = SystemSources();
    const KVMaterialInfo* const material = KVMaterialData::GetInstance()->GetMaterialInfo(name);
    if (material == nullptr)
        return {};
    if (material->m_nType == MATERIAL_USER)
        return MaterialError::tr("a material of yours, in UserMaterial.xml");
    return sources.value(name);
}
