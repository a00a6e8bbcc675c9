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
    // Only a new file: not even one that another program creates at this moment is overwritten.
    return tarn::WholeFile(library).CopyTo(path) || QFileInfo(path).isFile();
}

QString ReadAnalysisFiles()
{
    QString warning;
    if (!ProvideSystemMaterials())
        warning =
            QCoreApplication::translate("AnalysisFiles", "There is no system library of materials: "
                                                         "SysMaterial.xml cannot be written");
    KVPropertyData::GetInstance()->ReadXML(PropertyFile);
    KVMaterialData& materials = *KVMaterialData::GetInstance();
    // Materials that were added and not written yet stay as they are.
    if (materials.MapDataRow() > 0)
        return warning;
    materials.ReadXML(UserFile, MATERIAL_USER);
    materials.ReadXML(SystemFile, MATERIAL_SYSTEM);
    return warning;
}
