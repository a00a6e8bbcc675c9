#pragma once

#include <QString>

class Project;

/// What a study would do.
struct StudyPreview
{
    int runs = 0;
    QString problem; ///< Why it cannot be started; empty if it can.
};

/// Of the study of @p project. Leaves the parameter store as it is.
StudyPreview PreviewOf(const Project& project);

/// Why the folder at @p path cannot take the study of @p project, whose part has the @p density in
/// kg/m3: what differs from the study that it holds. Empty if it can. Leaves the parameter store as
/// it is. @throws HostError if the folder or the project cannot be read
QString FolderDifference(const Project& project, double density, const QString& path);

/// A time for users, with its unit: "0.4 s", "12 s", "5 min", "3 h 20 min".
QString DurationText(double seconds);
