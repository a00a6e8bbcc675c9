#pragma once

#include <QString>

/// The path of a file or folder that is built into the program: "SysMaterial.xml",
/// "samples/flange.json" or "translations".
QString BuiltInPath(const QString& name);
