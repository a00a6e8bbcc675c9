#include "TarnGUICommonData.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QTranslator>

#ifdef Q_OS_UNIX
#include <dlfcn.h>
#else
#include <windows.h>
#endif

#include <memory>
#include <string>

namespace {

/// The path of the library's file.
QString LibraryFile()
{
    // Any address in the library will do.
    const auto* const address = reinterpret_cast<const void*>(&TarnGUICommonData::Folder);
#ifdef Q_OS_UNIX
    Dl_info library = {};
    dladdr(address, &library);
    return QFile::decodeName(library.dli_fname);
#else
    HMODULE library = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                           GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       static_cast<const wchar_t*>(address), &library);
    constexpr int LongestPath = 32767;
    std::wstring path(LongestPath, L'\0');
    path.resize(GetModuleFileNameW(library, &path[0], LongestPath));
    return QString::fromStdWString(path);
#endif
}

} // namespace

QString TarnGUICommonData::Folder()
{
    static const QString folder = QDir::cleanPath(QFileInfo(LibraryFile()).canonicalPath() +
                                                  QStringLiteral("/" TARN_DATA_FROM_LIBRARY));
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
