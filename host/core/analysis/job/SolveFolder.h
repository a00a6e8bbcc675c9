#pragma once

#include "HostError.h"

#include <QByteArray>
#include <QString>

/// Why a file of an analysis cannot be written: one line.
class FolderError : public HostError
{
public:
    using HostError::HostError;
};

/// The folder of one analysis, and the names of the files in it.
class SolveFolder
{
public:
    static const QLatin1String ShapeName;
    static const QLatin1String ScriptName;
    static const QLatin1String MeshName;
    static const QLatin1String MesherLog;
    static const QLatin1String JobName; ///< Of the decks, and of the solver's own files.
    static const QLatin1String SolverLog;

    explicit SolveFolder(const QString& path = QString());

    /// Removes what an earlier analysis left, which must not be taken for results of this one.
    void Clear() const;
    /// Removes the files of the solver alone.
    void ClearResults() const;

    const QString& Path() const { return m_path; }
    /// Absolute.
    QString PathOf(const QString& name) const;
    /// The name of a file of the solver or for it, such as "Model_Active.inp".
    static QString InJob(const char* suffix);

    /// Replaces a file as a whole. @throws FolderError
    void Write(const QString& name, const QByteArray& content) const;
    /// @throws HostError
    QByteArray ContentOf(const QString& name) const;

    /// Checks that a file can be written: programs rarely say that the disk was full.
    /// @throws FolderError
    void CheckWritable() const;

private:
    QString m_path;
};
