#pragma once

#include "Project.h"
#include "TestFiles.h"

/// @file
/// Project files as tests write them.

/// Writes the file and returns its path.
inline QString Write(const QByteArray& content, const QString& path = "p.json")
{
    Put(path, content);
    return path;
}

/// A project with this one parameter.
inline QByteArray WithParameter(const QByteArray& parameter)
{
    return "{\"version\": 1, \"parameters\": [" + parameter + "]}";
}

/// A project with the parameter "a" and these samples.
inline QByteArray WithSamples(const QByteArray& samples)
{
    return "{\"version\": 1, \"parameters\": [{\"name\": \"a\", \"value\": 1}], \"samples\": [" +
           samples + "]}";
}
