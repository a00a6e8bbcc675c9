#include "AnalysisFiles.h"

#include "KVMaterialData.h"
#include "KVPropertyData.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

// Outside every namespace, as the macro needs it: the file comes with a static library.
static void LoadBuiltInFile()
{
    Q_INIT_RESOURCE(materials);
}

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
    LoadBuiltInFile();
    return QStringLiteral(":/SysMaterial.xml");
}

bool ProvideSystemMaterials(const QString& library)
{
    const QString path = QString::fromLatin1(SystemFile);
    QFile source(library);
    QFile copy(path);
    // Only a new file: not even one that somebody else makes at this moment is overwritten.
    if (QFileInfo::exists(path) || !source.open(QIODevice::ReadOnly) ||
        !copy.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return QFileInfo(path).isFile();

    const QByteArray content = source.readAll();
    const bool isWhole = copy.write(content) == content.size() && copy.flush();
    copy.close();
    if (!isWhole)
        copy.remove();
    return isWhole;
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
