#pragma once

#include "HostError.h"

#include <QString>

class TopoDS_Shape;

/// Why a STEP file could not be written: one line.
class StepError : public HostError
{
public:
    using HostError::HostError;
};

/// Writes @p shape, in millimetres, to the file at @p path. A file of that name is replaced only
/// when the new one is complete. @throws StepError
void WriteStepFile(const TopoDS_Shape& shape, const QString& path);
