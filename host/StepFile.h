#pragma once

#include <QString>

#include <stdexcept>

class TopoDS_Shape;

/// Why a STEP file could not be written: one line, in UTF-8.
class StepError : public std::runtime_error
{
public:
    explicit StepError(const QString& reason);
};

/// Writes @p shape, in millimetres, to the file at @p path. A file of that name is replaced only
/// when the new one is complete. @throws StepError
void WriteStepFile(const TopoDS_Shape& shape, const QString& path);
