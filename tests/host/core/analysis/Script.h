#pragma once

#include "TestFiles.h"

#include <QDir>
#include <QFile>
#include <QString>

/// Writes a program of shell commands to the file @p name and returns its absolute path.
inline QString PutScript(const QString& name, const QByteArray& commands)
{
    Put(name, "#!/bin/sh\n" + commands);
    QFile::setPermissions(name, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return QDir::current().absoluteFilePath(name);
}
