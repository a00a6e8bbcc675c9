#pragma once

#include "StepError.h"

#include <QString>

class TopoDS_Shape;

/// Writes @p shape, in millimetres, to the file at @p path. An existing file is replaced once the
/// new one is complete on the disk. Nothing is written if the file would not read back as the
/// shape: volume, area or centre of mass would differ by more than 1e-6 of it. @throws StepError
void WriteStepFile(const TopoDS_Shape& shape, const QString& path);

/// Reads the shape in the file at @p path, in millimetres whatever the file's unit is. Several
/// bodies are returned as a compound. @throws StepError if the file is unreadable, larger than
/// 256 MB or incomplete, if a part of the shape is missing, or if the file contains no shape, one
/// that is not a closed solid, or one that extends beyond 1000 m.
TopoDS_Shape ReadStepFile(const QString& path);
