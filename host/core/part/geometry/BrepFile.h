#pragma once

#include <QString>

class TopoDS_Shape;

/// Writes @p shape, without its triangles, to the BREP file at @p path. An existing file is
/// replaced once the new one is complete on the disk. @throws BuildError if it cannot be written
void WriteBrepFile(const TopoDS_Shape& shape, const QString& path);
