#include "AnalysisFiles.h"

#include "BuiltInFiles.h"
#include "KVMaterialData.h"
#include "KVPropertyData.h"
#include "WholeFile.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

const char* const SystemFile = "./SysMaterial.xml";
const char* const UserFile = "./UserMaterial.xml";
const char* const PropertyFile = "./ElementProperty.xml";

} // namespace

QString InstalledSystemMaterials()
{
    QString installed = QCoreApplication::applicationDirPath() + QLatin1Char('/') +
                        QStringLiteral(TARN_DATA_FROM_PROGRAM "/SysMaterial.xml");
    if (QFileInfo(installed).isFile())
        return installed;
    return BuiltInPath(QStringLiteral("SysMaterial.xml"));
}

bool ProvideSystemMaterials(const QString& library)
{
    const QString path = QString::fromLatin1(SystemFile);
    // CopyTo() never overwrites, not even a file that another program creates at this moment.
    return tarn::WholeFile(library).CopyTo(path) || QFileInfo(path).isFile();
}

QString ReadAnalysisFiles()
{
    QString warning;
    if (!ProvideSystemMaterials())
        warning =
            QCoreApplication::translate("AnalysisFiles", "No system library of materials: cannot "
                                                         "write SysMaterial.xml");
    KVPropertyData::GetInstance()->ReadXML(PropertyFile);
    KVMaterialData& materials = *KVMaterialData::GetInstance();
    // Reading would replace materials that were added but not written yet.
    if (materials.MapDataRow() > 0)
        return warning;
    materials.ReadXML(UserFile, MATERIAL_USER);
    materials.ReadXML(SystemFile, MATERIAL_SYSTEM);
    return warning;
}

void UpdatePropertyFile()
{
    if (QFileInfo(QString::fromLatin1(PropertyFile)).isFile())
        KVPropertyData::GetInstance()->WriteXML(PropertyFile);
}
