#include "TarnGUICommonData.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QTranslator>

#include <dlfcn.h>

#include <memory>

namespace {

QString LibraryFolder()
{
    Dl_info library = {};
    // Any address in the library will do.
    dladdr(reinterpret_cast<const void*>(&TarnGUICommonData::Folder), &library);
    return QFileInfo(QFile::decodeName(library.dli_fname)).canonicalPath();
}

} // namespace

QString TarnGUICommonData::Folder()
{
    static const QString folder =
        QDir::cleanPath(LibraryFolder() + QStringLiteral("/" TARN_DATA_FROM_LIBRARY));
    return folder;
}

QString TarnGUICommonData::SystemMaterials()
{
    return Folder() + QStringLiteral("/SysMaterial.xml");
}

QString TarnGUICommonData::WindowIcon()
{
    return Folder() + QStringLiteral("/images/TopTitle.png");
}

bool TarnGUICommonData::InstallTranslations(const QLocale& locale)
{
    static QPointer<QTranslator> installed; // The application owns it.

    const QString folder = Folder() + QStringLiteral("/translations");
    const QString name = QStringLiteral("TarnGUICommon");
    auto texts = std::make_unique<QTranslator>();
    if (!texts->load(locale, name, QStringLiteral("_"), folder) &&
        !texts->load(name + QStringLiteral("_en"), folder))
        return false;
    delete installed; // Removes itself from the application.
    installed = texts.release();
    installed->setParent(QCoreApplication::instance());
    return QCoreApplication::installTranslator(installed);
}
