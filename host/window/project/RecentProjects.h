#pragma once

#include <QString>
#include <QStringList>

/// The projects that the user opened or saved last, and where; kept between sessions.
namespace RecentProjects {

constexpr int MaximumNumber = 8;

/// The paths, the latest first.
QStringList Paths();
/// Puts @p path, which is absolute, to the front.
void Add(const QString& path);
void Remove(const QString& path);

/// Where a file dialog starts: the folder of the latest project, or the user's home.
QString Folder();

} // namespace RecentProjects
