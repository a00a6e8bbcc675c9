#pragma once

#include <QHash>
#include <QJsonObject>
#include <QStringList>

class Project;

/// What all runs of a study have in common, as the content of "study.json". The values of the
/// @p inputs are left out, since they differ from run to run. @p density is that of the part, in
/// kg/m3.
QJsonObject StudyFingerprint(const Project& project, const QStringList& inputs, double density);

/// What differs between a study and the one that is @p stored in a folder, for example "its
/// material differs"; empty if nothing does.
QString FingerprintDifference(const QJsonObject& stored, const QJsonObject& study);

/// The names of the parameters, the inputs and the columns of results in a @p stored fingerprint,
/// and the units of parameters.
struct StudyNames
{
    /// @throws HostError if it is not of a format that this program reads
    explicit StudyNames(const QJsonObject& stored);

    QStringList parameters;
    QStringList inputs;
    QStringList columns; ///< Results of analyses and responses.
    /// By the parameter's name. They are only shown, so another unit is not another study.
    QHash<QString, QString> units;
};
