#include "RecentProjects.h"

#include "UserSettings.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QLatin1String PathsKey("recent/projects");
const QLatin1String FolderKey("recent/folder");

} // namespace

QStringList RecentProjects::Paths()
{
    return UserSettings().value(PathsKey).toStringList().mid(0, MaximumNumber);
}

void RecentProjects::Add(const QString& path)
{
    QStringList paths = Paths();
    paths.removeAll(path);
    paths.prepend(path);
    UserSettings settings;
    settings.setValue(PathsKey, QStringList(paths.mid(0, MaximumNumber)));
    settings.setValue(FolderKey, QFileInfo(path).path());
}

void RecentProjects::Remove(const QString& path)
{
    QStringList paths = Paths();
    paths.removeAll(path);
    UserSettings().setValue(PathsKey, paths);
}

QString RecentProjects::Folder()
{
    const QString folder = UserSettings().value(FolderKey).toString();
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}
